// DropDownsPage: the gallery's drop-down fields: the invoice date in a calendar
// combo taken over from the page's template, calendar combos in the flat looks,
// one with colours, one read-only; the customer's state from a drop edit list
// that takes only states, a product from one that takes any name; a combo box
// and a coloured list box.
#pragma once

#include "dropdown/kvCalendarCombo.h"
#include "dropdown/kvComboBox.h"
#include "dropdown/kvDropEditList.h"
#include "dropdown/kvListBox.h"
#include "gallery/GalleryPage.h"

#include <array>

class DropDownsPage : public GalleryPage {
public:
    BOOL Create(CWnd* pParent);
    // The invoice date holds the focus.
    void PrepareForPicture() override;
    // The calendar open below the invoice date, and the states' list.
    int PopupPictureCount() const override;
    const char* PreparePopupPicture(int nPicture) override;

protected:
    BOOL OnInitDialog() override;

private:
    CRect RightOfLabel(UINT nLabelID, int height) const;
    void CreateCalendars();
    void CreateLists();

    kvCalendarCombo m_invoiceDate;
    std::array<kvCalendarCombo, 3> m_looks;
    kvDropEditList m_state;
    kvDropEditList m_product;
    kvComboBox m_unit;
    kvListBox m_colors;
};
