// kvPopupWindow: what every drop edit's popup window does alike: open at its
// place below the field holding the mouse capture and the focus, and tell
// whether a click or a lost focus happened outside it.
#pragma once

#include "afx/CPoint.h"
#include "afx/CRect.h"
#include "library/kvWinExport.h"

class CWnd;

// Places the popup by kvPopupPlacement, shows it on top, captures the mouse
// (clicks anywhere then reach it) and takes the focus.
KVWIN_API void kvShowPopupWindow(CWnd& popup, CRect field);
// A point in the popup's client coordinates, as a captured click gives it.
KVWIN_API bool kvIsOutsidePopup(CWnd& popup, CPoint point);
// Where the message being handled happened (a focus lost to a click) lies
// outside the visible popup's window.
KVWIN_API bool kvIsMessageOutsidePopup(CWnd& popup);
