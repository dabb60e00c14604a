// kvPopupPlacement: the popup's corner against the screen.
#include "dropdown/kvPopupPlacement.h"

#include <algorithm>

CPoint kvPopupPlacement::TopLeft(const CRect& field, CSize popup, CSize screen)
{
    CPoint topLeft(field.left, field.bottom);
    if (field.left + popup.cx > screen.cx)
        topLeft.x = std::max<LONG>(screen.cx - popup.cx, 0);
    if (field.bottom + popup.cy > screen.cy)
        topLeft.y = std::max<LONG>(field.top - popup.cy, 0);
    return topLeft;
}
