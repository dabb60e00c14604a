// The validating push button: the field it holds after taking the focus as a
// super target (Cancel), checked when the owner asks, when the button is
// verified or when the focus moves on; and the font and context menu the
// library's controls share.
#include "FieldHarness.h"
#include "WindowTest.h"

#include "buttons/kvButton.h"
#include "formatting/kvEdit.h"
#include "formatting/kvNumEditFormatter.h"

namespace {

using NF = kvNumEditFormatter;

constexpr UINT kAmount = 100;
constexpr UINT kNext = 101;

enum class Action { ValidatePending, Verify, TabOn, DestroyField };

struct PendingRow {
    const char* name;
    const char* amount;
    Action action;
    LRESULT result;      // ValidatePendingCtrl's answer, or Verify's
    UINT focused;        // who has the focus afterwards
    bool reported;       // the amount's message reached the main window
    bool stillPending;
};

const PendingRow kPending[] = {
    {"ValidatePendingCtrl forces the check", "12,345", Action::ValidatePending, false, kAmount, true, false},
    {"a valid field lets the action go ahead", "12.5", Action::ValidatePending, true, IDCANCEL, false, true},
    {"verifying the button verifies its field", "12,345", Action::Verify, kvEditValidator::Invalid, kAmount, true,
     false},
    {"the focus moving on checks the field", "12,345", Action::TabOn, 0, kAmount, true, false},
    {"a field that is gone is dropped", "12,345", Action::DestroyField, true, IDCANCEL, false, false},
};

class Button : public WindowTest {
protected:
    LRESULT Act(kvButton& cancel, kvEdit& amount, Action action)
    {
        DWORD sel = 0;
        switch (action) {
        case Action::ValidatePending:
            return cancel.ValidatePendingCtrl();
        case Action::Verify:
            return cancel.SendMessage(WM_KV_VERIFY, reinterpret_cast<WPARAM>(&sel));
        case Action::TabOn:
            PressKey(VK_TAB);
            return 0;
        case Action::DestroyField:
            amount.DestroyWindow();
            return cancel.ValidatePendingCtrl();
        }
        return -1;
    }
};

TEST_F(Button, CancelHoldsTheFieldUntilItIsChecked)
{
    for (const PendingRow& row : kPending) {
        SCOPED_TRACE(row.name);
        status.messages.clear();
        FieldForm form(status.MainWindow());
        kvEdit& amount = form.AddField(kAmount, new NF(3, 2, NF::Separators), row.amount);
        kvButton& cancel = form.AddButton(IDCANCEL, "Cancel");
        form.AddField(kNext, nullptr);
        FocusForInput(form.dialog, amount);
        ClickAt(cancel, POINT{10, 10});
        ASSERT_EQ(::GetFocus(), cancel.m_hWnd);
        ASSERT_EQ(cancel.GetPendingCtrl(), &amount);
        EXPECT_TRUE(status.messages.empty()) << "Cancel validates nothing by itself";

        EXPECT_EQ(Act(cancel, amount, row.action), row.result);
        flushEvents();
        EXPECT_EQ(::GetFocus(), ::GetDlgItem(form.dialog, static_cast<int>(row.focused)));
        EXPECT_EQ(status.messages.size(), row.reported ? 1u : 0u);
        if (row.reported) {
            EXPECT_EQ(SelOf(amount), std::make_pair(0, 6));
        }
        EXPECT_EQ(cancel.GetPendingCtrl() != nullptr, row.stillPending);
    }
}

TEST_F(Button, ControlsTakeTheirParentsFont)
{
    FieldForm form(status.MainWindow());
    const auto dialogFont = form.dialog.SendMessage(WM_GETFONT);
    ASSERT_NE(dialogFont, 0);
    kvEdit& field = form.AddField(kAmount, nullptr);
    EXPECT_EQ(field.SendMessage(WM_GETFONT), dialogFont);
    EXPECT_EQ(form.AddButton(IDOK, "OK").SendMessage(WM_GETFONT), dialogFont);
    EXPECT_EQ(field.GetExStyle() & WS_EX_CLIENTEDGE, DWORD(WS_EX_CLIENTEDGE)) << "a border becomes a client edge";
    EXPECT_EQ(field.GetStyle() & WS_BORDER, 0u);

    CWnd plain;
    ASSERT_TRUE(plain.CreateEx(0, AfxRegisterWndClass(0), "plain", WS_POPUP, 0, 0, 200, 100, nullptr, nullptr));
    kvButton button;
    ASSERT_TRUE(button.Create("OK", WS_CHILD, CRect(0, 0, 60, 20), &plain, IDOK));
    EXPECT_EQ(button.SendMessage(WM_GETFONT), reinterpret_cast<LRESULT>(::GetStockObject(DEFAULT_GUI_FONT)));
    plain.DestroyWindow();
}

TEST_F(Button, ContextMenuOffersHelp)
{
    FieldForm form(status.MainWindow());
    kvButton& button = form.AddButton(IDOK, "OK");
    button.SetWindowContextHelpId(0x4321);
    FocusForInput(form.dialog, button);
    EXPECT_EQ(ChooseFromContextMenu("\x1b"), "&What's This?");
}

}  // namespace
