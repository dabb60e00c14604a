// kvDropEditPopup: what a drop edit asks of its popup (a list, a month
// calendar): open below the field, close, and say whether it is open. A popup
// closes itself by sending its field the close-popup message.
#pragma once

#include "afx/CRect.h"
#include "afx/CString.h"
#include "library/kvWinExport.h"

class KVWIN_API kvDropEditPopup {
public:
    kvDropEditPopup() = default;
    kvDropEditPopup(const kvDropEditPopup&) = default;
    kvDropEditPopup& operator=(const kvDropEditPopup&) = default;
    virtual ~kvDropEditPopup() = default;

    // field is the field's window rectangle in screen coordinates; the popup
    // places itself below it and takes the focus.
    virtual void Show(CRect field, const CString& text) = 0;
    virtual void Hide() = 0;
    // Greater than 0 while open.
    virtual int IsVisible() = 0;
};
