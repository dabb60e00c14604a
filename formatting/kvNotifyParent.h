// kvNotifyParent: a control's notification code to its parent as WM_COMMAND,
// with the control's id and handle, as native controls send theirs;
// kvNotifyParentNotify: the same as WM_NOTIFY, for the codes whose reply counts
// (a parent refuses TCN_SELCHANGING by answering non-zero).
#pragma once

#include "afx/WinTypes.h"

class CWnd;

void kvNotifyParent(const CWnd* pCtrl, UINT nCode);
// The parent's reply; 0 when the control has no parent.
LRESULT kvNotifyParentNotify(const CWnd* pCtrl, UINT nCode);
