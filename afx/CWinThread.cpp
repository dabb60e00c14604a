// CWinThread: the message loop, PreTranslateMessage routing and idle-time
// cleanup of the thread's temporary objects.
#include "afx/CWinThread.h"

#include "afx/AfxState.h"
#include "afx/CDC.h"
#include "afx/CGdiObject.h"
#include "afx/CImageList.h"
#include "afx/CMenu.h"
#include "afx/CWinApp.h"
#include "afx/CWnd.h"

namespace {
// The caret's blink timer, which Windows posts without anything having changed.
constexpr UINT WM_SYSTIMER = 0x0118;
}  // namespace

CWinThread::CWinThread()
    : m_hThread(::GetCurrentThread()), m_nThreadID(::GetCurrentThreadId())
{
    AfxThreadState& state = AfxGetThreadState();
    m_pPreviousThread = state.pCurrentThread;
    state.pCurrentThread = this;
}

CWinThread::~CWinThread()
{
    AfxThreadState& state = AfxGetThreadState();
    if (state.pCurrentThread == this)
        state.pCurrentThread = m_pPreviousThread;
}

CWnd* CWinThread::GetMainWnd() { return m_pMainWnd; }

BOOL CWinThread::InitInstance() { return TRUE; }

int CWinThread::ExitInstance() { return static_cast<int>(m_msgCur.wParam); }

int CWinThread::Run()
{
    bool bIdle = true;
    LONG lIdleCount = 0;
    for (;;) {
        MSG msg;
        while (bIdle && !::PeekMessageA(&msg, nullptr, 0, 0, PM_NOREMOVE)) {
            if (!OnIdle(lIdleCount++))
                bIdle = false;
        }
        do {
            if (!PumpMessage())
                return ExitInstance();
            if (IsIdleMessage(&m_msgCur)) {
                bIdle = true;
                lIdleCount = 0;
            }
        } while (::PeekMessageA(&msg, nullptr, 0, 0, PM_NOREMOVE));
    }
}

BOOL CWinThread::PumpMessage()
{
    if (!::GetMessageA(&m_msgCur, nullptr, 0, 0))
        return FALSE;
    if (!PreTranslateMessage(&m_msgCur)) {
        ::TranslateMessage(&m_msgCur);
        ::DispatchMessageA(&m_msgCur);
    }
    return TRUE;
}

BOOL CWinThread::PreTranslateMessage(MSG* pMsg)
{
    CWnd* pMainWnd = GetMainWnd();
    const HWND hWndMain = pMainWnd != nullptr ? pMainWnd->m_hWnd : nullptr;
    if (CWnd::WalkPreTranslateTree(hWndMain, pMsg))
        return TRUE;
    // A modeless window outside the main window's tree still gets the main
    // window's chance (its accelerators) last.
    if (pMainWnd != nullptr && pMsg->hwnd != nullptr) {
        const HWND hWndTop = CWnd::FromHandle(pMsg->hwnd)->GetTopLevelParent()->GetSafeHwnd();
        if (hWndTop != hWndMain)
            return pMainWnd->PreTranslateMessage(pMsg);
    }
    return FALSE;
}

BOOL CWinThread::OnIdle(LONG lCount)
{
    if (lCount <= 0) {
        CWnd::DeleteTempMap();
        CDC::DeleteTempMap();
        CGdiObject::DeleteTempMap();
        CMenu::DeleteTempMap();
        CImageList::DeleteTempMap();
    }
    return FALSE;
}

BOOL CWinThread::IsIdleMessage(MSG* pMsg)
{
    // A mouse move to where the mouse already was, or a caret blink, changes nothing.
    if (pMsg->message == WM_MOUSEMOVE || pMsg->message == WM_NCMOUSEMOVE) {
        if (pMsg->message == m_nMsgLast && pMsg->pt.x == m_ptCursorLast.x && pMsg->pt.y == m_ptCursorLast.y)
            return FALSE;
        m_ptCursorLast = pMsg->pt;
        m_nMsgLast = pMsg->message;
        return TRUE;
    }
    return pMsg->message != WM_PAINT && pMsg->message != WM_SYSTIMER;
}

CWinThread* AfxGetThread() { return AfxGetThreadState().pCurrentThread; }

CWnd* AfxGetMainWnd()
{
    if (CWinThread* pThread = AfxGetThread(); pThread != nullptr && pThread->GetMainWnd() != nullptr)
        return pThread->GetMainWnd();
    CWinApp* pApp = AfxGetApp();
    return pApp != nullptr ? pApp->GetMainWnd() : nullptr;
}

BOOL AfxPreTranslateMessage(MSG* pMsg)
{
    if (CWinThread* pThread = AfxGetThread())
        return pThread->PreTranslateMessage(pMsg);
    return CWnd::WalkPreTranslateTree(nullptr, pMsg);
}

BOOL AfxPumpMessage()
{
    if (CWinThread* pThread = AfxGetThread())
        return pThread->PumpMessage();
    MSG msg;
    if (!::GetMessageA(&msg, nullptr, 0, 0))
        return FALSE;
    if (!AfxPreTranslateMessage(&msg)) {
        ::TranslateMessage(&msg);
        ::DispatchMessageA(&msg);
    }
    return TRUE;
}
