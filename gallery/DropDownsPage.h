// DropDownsPage: the gallery's drop-down fields: the invoice date in a calendar
// combo taken over from the page's template, and calendar combos in the flat
// looks, one with colours, one read-only.
#pragma once

#include "dropdown/kvCalendarCombo.h"
#include "gallery/GalleryPage.h"

#include <array>

class DropDownsPage : public GalleryPage {
public:
    BOOL Create(CWnd* pParent);
    // The invoice date holds the focus.
    void PrepareForPicture() override;
    // The calendar open below the invoice date.
    int PopupPictureCount() const override { return 1; }
    const char* PreparePopupPicture(int nPicture) override;

protected:
    BOOL OnInitDialog() override;

private:
    CRect RightOfLabel(UINT nLabelID) const;

    kvCalendarCombo m_invoiceDate;
    std::array<kvCalendarCombo, 3> m_looks;
};
