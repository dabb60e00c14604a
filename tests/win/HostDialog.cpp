#include "HostDialog.h"

#include "ModalWatchdog.h"
#include "RealInput.h"

#include <gtest/gtest.h>

bool HostDialog::CreateModeless(CWnd* pParentWnd)
{
    if (!CreateIndirect(m_template.Get(), pParentWnd))
        return false;
    ShowWindow(SW_SHOWNORMAL);
    SetForegroundWindow();
    flushEvents();
    return true;
}

INT_PTR HostDialog::RunModal(CWnd* pParentWnd)
{
    ModalWatchdog watchdog(kModalMilliseconds);
    InitModalIndirect(m_template.Get(), pParentWnd);
    const INT_PTR result = DoModal();
    EXPECT_FALSE(watchdog.Fired()) << "the modal loop had to be ended by the watchdog";
    return result;
}

BOOL HostDialog::OnInitDialog()
{
    const BOOL focusFirstControl = CDialog::OnInitDialog();
    if (onInitDialog)
        onInitDialog(*this);
    return focusFirstControl;
}
