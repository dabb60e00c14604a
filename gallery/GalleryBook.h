// GalleryBook: the main window's view, a notebook with a page for each part of
// the gallery. A field the focus leaves for the notebook is checked here, and
// changing pages is refused while the current page holds an invalid field. The
// tabs sit on top or below; the notebook is made again to switch.
#pragma once

#include "afx/CDialog.h"
#include "formatting/kvEditValidator.h"
#include "gallery/ButtonsPage.h"
#include "gallery/CalculatorPage.h"
#include "gallery/CustomerForm.h"
#include "gallery/DropDownsPage.h"
#include "gallery/ProgressPage.h"
#include "notebook/kvTabNotebook.h"

#include <array>
#include <memory>

class GalleryBook : public CDialog {
public:
    // Creates the book as the view of its frame.
    BOOL Create(CWnd* pFrame, kvTabNotebook::TabStyle tabStyle);
    void SetTabStyle(kvTabNotebook::TabStyle tabStyle);
    kvTabNotebook::TabStyle GetTabStyle() const { return m_pNotebook->GetTabStyle(); }

    int GetPageCount() const { return static_cast<int>(m_pages.size()); }
    // A short name of each page, for the file its picture goes to.
    static const char* PageName(int nPage);
    // Shows the page as its picture shows it.
    void ShowPageForPicture(int nPage);
    int GetPopupPictureCount(int nPage) const { return m_pages[nPage]->PopupPictureCount(); }
    // Opens the popup of the page's n-th popup picture; the picture's name.
    CString ShowPopupForPicture(int nPage, int nPicture);

protected:
    BOOL OnInitDialog() override;
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnSelChanging(NMHDR* pNotifyStruct, LRESULT* pResult);
    afx_msg LRESULT OnChildKillFocus(WPARAM wParam, LPARAM lParam);

    DECLARE_MESSAGE_MAP()

private:
    void CreateNotebook(kvTabNotebook::TabStyle tabStyle);
    void PlaceNotebook();
    // The pages, in tab order, to the notebook just made.
    void AddPages();

    std::unique_ptr<kvTabNotebook> m_pNotebook;
    CustomerForm m_form;
    ButtonsPage m_buttons;
    DropDownsPage m_dropdowns;
    CalculatorPage m_calculator;
    ProgressPage m_progress;
    std::array<GalleryPage*, 5> m_pages{&m_form, &m_buttons, &m_dropdowns, &m_calculator, &m_progress};
    kvTabNotebook::TabStyle m_initialStyle = kvTabNotebook::StandardTabs;
    kvEditValidator m_validator;
};
