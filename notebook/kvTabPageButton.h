// kvTabPageButton: an invisible, zero-size push button that carries a tab's
// title, so that a mnemonic in the title selects the tab through the dialog's
// ordinary mnemonic handling, which clicks the matching button.
#pragma once

#include "afx/CButton.h"
#include "library/kvWinExport.h"

class kvTabNotebook;

class KVWIN_API kvTabPageButton : public CButton {
public:
    kvTabPageButton() = default;
    kvTabPageButton(kvTabNotebook* pNotebook, int nPage) : m_pNotebook(pNotebook), m_nPage(nPage) {}
    ~kvTabPageButton() override = default;

    int GetPage() const { return m_nPage; }
    void SetPage(int nPage) { m_nPage = nPage; }

protected:
    afx_msg void OnClicked();
    afx_msg LRESULT OnClick(WPARAM wParam, LPARAM lParam);

    DECLARE_MESSAGE_MAP()

private:
    kvTabNotebook* m_pNotebook = nullptr;
    int m_nPage = -1;
};
