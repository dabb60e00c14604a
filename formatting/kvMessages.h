// The custom window messages through which kvWin's controls talk to each other
// and to the application's main window, and the kinds of status message.
#pragma once

#include "afx/WinTypes.h"

// Ask a control to validate itself; wParam points to a DWORD that receives a
// packed selection. Result 0 valid, nonzero invalid, 2 invalid with a selection.
constexpr UINT WM_KV_VERIFY = 0x81F4;
// A control tells its parent it lost the focus; wParam points to a kvChildKillFocus.
constexpr UINT WM_KV_CHILDKILLFOCUS = 0x81F5;
// Sent to the main window of the current thread; wParam is a kvStatusKind.
constexpr UINT WM_KV_STATUS = WM_APP + 503;
// A drop-edit popup asks its field to close it.
constexpr UINT WM_KV_CLOSEPOPUP = 0x8262;

enum kvStatusKind : WPARAM {
    kvStatusShow = 0,         // lParam: kvWinAMCtrlValidateInfo*, or 0 to clear
    kvStatusQuery = 1,        // lParam 0: date order (1..6); 1 or 2: numeric preset
    kvStatusGetOvertype = 2,  // result nonzero when overtype is on
    kvStatusSetOvertype = 3,  // lParam 0 or 1
    kvStatusFocusIn = 4,      // lParam: the field's window handle
    kvStatusFocusOut = 5,     // lParam: the window that receives the focus
};
