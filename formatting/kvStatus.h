// The one seam between text logic and the platform: status messages to the
// application's main window, and beeps. On Windows these are the real thing;
// on the host the application (or a test) installs a receiver and a beep hook.
#pragma once

#include "afx/CString.h"
#include "afx/WinTypes.h"
#include "library/kvWinExport.h"

#if !defined(_WIN32)
#include <functional>
#endif

// Sends the status message; 0 when there is no receiver (no main window).
KVWIN_API LRESULT kvSendStatus(WPARAM wParam, LPARAM lParam);
// Shows a formatter's own message (control and code 0) on the main window.
KVWIN_API void kvShowStatusMessage(const CString& message);
// The overtype state every field shares, and turning it over.
KVWIN_API bool kvIsOvertypeOn();
KVWIN_API void kvToggleOvertype();
// MessageBeep(type).
KVWIN_API void kvBeep(UINT type = 0);

#if !defined(_WIN32)
// An empty function removes the receiver.
KVWIN_API void kvSetStatusReceiver(std::function<LRESULT(WPARAM wParam, LPARAM lParam)> receiver);
KVWIN_API void kvSetBeepHook(std::function<void(unsigned int)> hook);
#endif
