// The status seam: the main window of the current thread on Windows, installed
// hooks on the host.
#include "formatting/kvStatus.h"

#include "formatting/kvMessages.h"
#include "formatting/kvWinAMCtrlValidateInfo.h"

#if defined(_WIN32)
#include "afx/CWinThread.h"
#include "afx/CWnd.h"

namespace {
// The thread object's own main window: none without a thread object or before
// the application has made its main window.
HWND MainWindowOfCurrentThread()
{
    const CWinThread* pThread = AfxGetThread();
    if (pThread == nullptr || pThread->m_pMainWnd == nullptr)
        return nullptr;
    return pThread->m_pMainWnd->GetSafeHwnd();
}
}  // namespace

LRESULT kvSendStatus(WPARAM wParam, LPARAM lParam)
{
    HWND hMain = MainWindowOfCurrentThread();
    return hMain ? ::SendMessageA(hMain, WM_KV_STATUS, wParam, lParam) : 0;
}

void kvBeep(UINT type) { ::MessageBeep(type); }

#else

namespace {
std::function<LRESULT(WPARAM, LPARAM)>& Receiver()
{
    static std::function<LRESULT(WPARAM, LPARAM)> receiver;
    return receiver;
}

std::function<void(unsigned int)>& BeepHook()
{
    static std::function<void(unsigned int)> hook;
    return hook;
}
}  // namespace

void kvSetStatusReceiver(std::function<LRESULT(WPARAM, LPARAM)> receiver)
{
    Receiver() = std::move(receiver);
}

void kvSetBeepHook(std::function<void(unsigned int)> hook) { BeepHook() = std::move(hook); }

LRESULT kvSendStatus(WPARAM wParam, LPARAM lParam)
{
    return Receiver() ? Receiver()(wParam, lParam) : 0;
}

void kvBeep(UINT type)
{
    if (BeepHook())
        BeepHook()(type);
}

#endif

bool kvIsOvertypeOn() { return kvSendStatus(kvStatusGetOvertype, 0) != 0; }

void kvToggleOvertype() { kvSendStatus(kvStatusSetOvertype, kvIsOvertypeOn() ? 0 : 1); }

void kvShowStatusMessage(const CString& message)
{
    kvWinAMCtrlValidateInfo info(message);
    kvSendStatus(kvStatusShow, reinterpret_cast<LPARAM>(&info));
}
