// ModalWatchdog: ends every modal loop of the thread (dialogs, menus, message
// boxes) once its time is up, so that a lost keystroke fails a test instead of
// hanging the run. Watchdogs nest: a modal run may set a shorter one inside a
// test's own.
#pragma once

#include "afx/WinTypes.h"

class ModalWatchdog {
public:
    // The result a dialog ended by the watchdog returns.
    static constexpr int kTimedOut = -7;

    explicit ModalWatchdog(UINT milliseconds);
    ~ModalWatchdog();
    ModalWatchdog(const ModalWatchdog&) = delete;
    ModalWatchdog& operator=(const ModalWatchdog&) = delete;

    bool Fired() const { return m_fired; }

private:
    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR timer, DWORD);
    static BOOL CALLBACK EndDialogWindow(HWND hWnd, LPARAM);

    UINT_PTR m_timer = 0;
    bool m_fired = false;
};
