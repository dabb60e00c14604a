#include "ModalWatchdog.h"

#include "afx/CDialog.h"

#include <algorithm>
#include <vector>

namespace {
std::vector<ModalWatchdog*>& Active()
{
    static std::vector<ModalWatchdog*> active;
    return active;
}
}  // namespace

ModalWatchdog::ModalWatchdog(UINT milliseconds) : m_timer(::SetTimer(nullptr, 0, milliseconds, OnTimer))
{
    Active().push_back(this);
}

ModalWatchdog::~ModalWatchdog()
{
    ::KillTimer(nullptr, m_timer);
    Active().erase(std::remove(Active().begin(), Active().end(), this), Active().end());
}

void CALLBACK ModalWatchdog::OnTimer(HWND, UINT, UINT_PTR timer, DWORD)
{
    const auto found = std::find_if(Active().begin(), Active().end(),
                                    [timer](const ModalWatchdog* p) { return p->m_timer == timer; });
    if (found == Active().end())
        return;
    (*found)->m_fired = true;
    ::KillTimer(nullptr, timer);
    ::EndMenu();
    ::EnumThreadWindows(::GetCurrentThreadId(), EndDialogWindow, 0);
}

BOOL CALLBACK ModalWatchdog::EndDialogWindow(HWND hWnd, LPARAM)
{
    char className[16] = {};
    ::GetClassNameA(hWnd, className, sizeof className);
    if (::lstrcmpA(className, "#32770") != 0)
        return TRUE;
    // The framework's dialogs run their own loop: end it through the object.
    if (auto* pDialog = dynamic_cast<CDialog*>(CWnd::FromHandlePermanent(hWnd)))
        pDialog->EndDialog(kTimedOut);
    else
        ::EndDialog(hWnd, kTimedOut);
    return TRUE;
}
