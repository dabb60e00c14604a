// kvShowContextMenu: a control's right-click menu, built fresh with its default
// items, shown at the point and gone when the chosen action has run.
#pragma once

#include "afx/CPoint.h"

class CWnd;

template <class StandardMenu>
void kvShowContextMenu(CWnd* pCtrl, CPoint point)
{
    StandardMenu menu;
    menu.AppendDefaultMenu();
    menu.DisplayPopup(pCtrl, point);
}
