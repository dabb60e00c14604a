// CWinThread: a user-interface thread: its main window, its message loop with
// PreTranslateMessage routing, and its idle-time work.
#pragma once

#include "afx/AfxExport.h"
#include "afx/CCmdTarget.h"
#include "afx/WinTypes.h"

class CWnd;

class AFX_API CWinThread : public CCmdTarget {
public:
    // Becomes the thread object of the calling thread (AfxGetThread) until it is
    // destroyed, when the thread object it replaced comes back.
    CWinThread();
    ~CWinThread() override;

    CWnd* m_pMainWnd = nullptr;
    HANDLE m_hThread = nullptr;
    DWORD m_nThreadID = 0;

    virtual CWnd* GetMainWnd();
    virtual BOOL InitInstance();
    // The message loop: runs until WM_QUIT, then returns ExitInstance().
    virtual int Run();
    virtual int ExitInstance();
    // Offers a message to the windows from its target up to the main window;
    // true when one of them consumed it.
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    // Idle-time work; lCount counts the calls since the last message. Returns
    // true while more idle work is wanted. Temporary objects are deleted here.
    virtual BOOL OnIdle(LONG lCount);
    // Gets and dispatches one message; false on WM_QUIT.
    virtual BOOL PumpMessage();
    // Whether a message ends an idle period (mouse moves to the same place and
    // the caret's blink timer do not).
    virtual BOOL IsIdleMessage(MSG* pMsg);

    // The message PumpMessage is dispatching.
    MSG m_msgCur{};

private:
    CWinThread* m_pPreviousThread = nullptr;
    POINT m_ptCursorLast{-1, -1};
    UINT m_nMsgLast = 0;
};

// The calling thread's thread object, or null.
AFX_API CWinThread* AfxGetThread();
// The calling thread's main window (the application's when the thread has none).
AFX_API CWnd* AfxGetMainWnd();
// One message of the calling thread's loop, with its PreTranslateMessage
// routing; false on WM_QUIT. Modal loops use it.
AFX_API BOOL AfxPumpMessage();
// PreTranslateMessage of the calling thread's thread object (or the plain
// window walk when the thread has none).
AFX_API BOOL AfxPreTranslateMessage(MSG* pMsg);
