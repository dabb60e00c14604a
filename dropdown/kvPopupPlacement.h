// kvPopupPlacement: where a drop-down popup opens: below its field, shifted
// left at the screen's right edge and flipped above the field at its bottom
// edge, never off the screen's top-left corner.
#pragma once

#include "afx/CPoint.h"
#include "afx/CRect.h"
#include "afx/CSize.h"
#include "library/kvWinExport.h"

class KVWIN_API kvPopupPlacement {
public:
    // field is the field's window rectangle in screen coordinates.
    static CPoint TopLeft(const CRect& field, CSize popup, CSize screen);
};
