// kvNotifyParent: a control's notification code to its parent as WM_COMMAND,
// with the control's id and handle, as native controls send theirs.
#pragma once

#include "afx/WinTypes.h"

class CWnd;

void kvNotifyParent(const CWnd* pCtrl, UINT nCode);
