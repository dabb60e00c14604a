// The framework's per-thread state and the creation hook, shared by the window
// classes inside the framework DLL (not exported).
#pragma once

#include "afx/WinTypes.h"

class CWnd;
class CWinThread;

struct AfxThreadState {
    MSG lastSentMsg{};                 // the message being handled (CWnd::GetCurrentMessage)
    CWnd* pWndInit = nullptr;          // the window being created, until its first message
    HHOOK hHookCbtFilter = nullptr;    // the creation hook while a creation runs
    CWinThread* pCurrentThread = nullptr;
};

AfxThreadState& AfxGetThreadState();

// Around CreateWindowEx (or CreateDialogIndirect): the next window created on
// this thread is attached to pWnd and subclassed before it sees any message, so
// that WM_NCCREATE and WM_CREATE reach pWnd's map.
void AfxHookWindowCreate(CWnd* pWnd);
// Ends the hook; true when it attached its window.
bool AfxUnhookWindowCreate();

// The platform's help: HtmlHelpA from hhctrl.ocx, WinHelp when that is missing.
void AfxCallHtmlHelp(HWND hWnd, LPCTSTR lpszHelpFile, UINT nCmd, DWORD_PTR dwData);
