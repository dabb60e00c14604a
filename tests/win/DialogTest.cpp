// Modal dialogs from in-memory templates: the framework's loop runs until the
// dialog ends, with the owner disabled meanwhile, and DoModal returns the
// result the dialog ended with.
#include "HostDialog.h"
#include "WindowTest.h"

#include "afx/CDialog.h"

namespace {

enum DialogAction { kPressEnter, kPressEscape, kEndWithSeven, kEndInInitDialog };

struct ModalRow {
    const char* name;
    DialogAction action;
    INT_PTR result;
};

const ModalRow kModals[] = {
    {"Enter presses the default button", kPressEnter, IDOK},
    {"Escape cancels", kPressEscape, IDCANCEL},
    {"a handler ends the dialog with its own result", kEndWithSeven, 7},
    {"ending in OnInitDialog skips the loop", kEndInInitDialog, 42},
};

// The action runs from a thread timer, that is from inside the modal loop.
struct PendingAction {
    HostDialog* pDialog = nullptr;
    DialogAction action = kPressEnter;
    HWND hWndOwner = nullptr;
    bool ownerEnabledInLoop = true;
};
PendingAction g_pending;

void CALLBACK RunPendingAction(HWND, UINT, UINT_PTR timer, DWORD)
{
    ::KillTimer(nullptr, timer);
    HostDialog& dialog = *g_pending.pDialog;
    g_pending.ownerEnabledInLoop = ::IsWindowEnabled(g_pending.hWndOwner) != FALSE;
    dialog.SetForegroundWindow();
    switch (g_pending.action) {
    case kPressEnter: PressKey(VK_RETURN); break;
    case kPressEscape: PressKey(VK_ESCAPE); break;
    default: dialog.EndDialog(7); break;
    }
}

class DialogTest : public WindowTest {
protected:
    DialogTemplate m_template = DialogTemplate("modal", WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME, 160, 70)
                                    .Add("Edit", 100, "", WS_BORDER | WS_TABSTOP, 10, 10, 100, 14)
                                    .Add("Button", IDOK, "OK", BS_DEFPUSHBUTTON | WS_TABSTOP, 10, 40, 50, 14)
                                    .Add("Button", IDCANCEL, "Cancel", WS_TABSTOP, 70, 40, 50, 14);
};

TEST_F(DialogTest, DoModalReturnsTheResultTheDialogEndedWith)
{
    for (const ModalRow& row : kModals) {
        SCOPED_TRACE(row.name);
        HostDialog dialog(m_template);
        g_pending = {&dialog, row.action, status.MainWindow()->GetSafeHwnd(), true};
        dialog.onInitDialog = [&row](HostDialog& self) {
            g_pending.ownerEnabledInLoop = ::IsWindowEnabled(g_pending.hWndOwner) != FALSE;
            if (row.action == kEndInInitDialog)
                self.EndDialog(42);
            else
                ::SetTimer(nullptr, 0, 50, RunPendingAction);
        };
        EXPECT_EQ(dialog.RunModal(status.MainWindow()), row.result);
        EXPECT_EQ(dialog.m_hWnd, nullptr);
        EXPECT_FALSE(g_pending.ownerEnabledInLoop);
        EXPECT_TRUE(::IsWindowEnabled(g_pending.hWndOwner));
    }
}

TEST_F(DialogTest, AMissingTemplateGivesMinusOne)
{
    CDialog dialog(9999u);
    EXPECT_EQ(dialog.DoModal(), -1);
}

}  // namespace
