// What a control tells others when the focus comes and goes: the main window
// (through the status message) shows which field is active, and the parent
// gets the child-kill-focus record that starts validation.
#pragma once

#include "afx/WinTypes.h"

class CWnd;

// The control got the focus.
void kvReportFocusIn(const CWnd* pCtrl);
// The focus left the control: reported only when it really is elsewhere now,
// with the window that has it.
void kvReportFocusOut(const CWnd* pCtrl);
// The child-kill-focus record (this control, the window that gets the focus)
// to the control's parent; the parent's answer, 0 without a parent.
LRESULT kvSendChildKillFocus(CWnd* pCtrl, CWnd* pNewWnd);
