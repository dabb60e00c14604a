// Validation on focus loss: where the focus goes decides whether the field
// that lost it is verified; an invalid field takes the focus back with the
// offending characters selected and its message on the main window.
#include "FieldHarness.h"
#include "MessageRecorder.h"
#include "WindowTest.h"

#include "buttons/kvButton.h"
#include "formatting/kvEdit.h"
#include "formatting/kvNumEditFormatter.h"

namespace {

using NF = kvNumEditFormatter;

// kOutside: a window of the application outside the dialog; kNowhere: the focus left the application.
enum : UINT { kNowhere = 0, kAmount = 100, kNext, kApply, kSuperTarget, kOutside = 999 };

const char kTooManyIntegers[] = "Too many digits before the decimal point. A maximum of 3 digits is allowed.";

enum class Move { Tab, Click, SetFocus };

// focused: who has the focus afterwards; message "" when nothing was verified or all was
// valid; forwarded: checks passed to the dialog's parent.
struct LeaveRow {
    const char *name, *amount;
    Move move;
    UINT target;
    bool forward;
    UINT focused;
    const char* message;
    int selStart, selEnd, forwarded;
};

const LeaveRow kLeaving[] = {
    {"tab out of an invalid amount", "12,345", Move::Tab, kNext, false, kAmount, kTooManyIntegers, 0, 6, 0},
    {"a click on a plain button", "12,345", Move::Click, kApply, false, kAmount, kTooManyIntegers, 0, 6, 0},
    {"tab out of a valid amount", "12.5", Move::Tab, kNext, false, kNext, "", 0, 0, 0},
    {"a click on Cancel validates nothing", "12,345", Move::Click, IDCANCEL, false, IDCANCEL, "", 0, 0, 0},
    {"a registered super target validates nothing", "12,345", Move::Click, kSuperTarget, false, kSuperTarget, "", 0,
     0, 0},
    {"focus leaving the application", "12,345", Move::SetFocus, kNowhere, true, kNowhere, "", 0, 0, 0},
    {"a window outside the dialog", "12,345", Move::SetFocus, kOutside, false, kOutside, "", 0, 0, 0},
    {"a window outside, passed to the parent", "12,345", Move::SetFocus, kOutside, true, kOutside, "", 0, 0, 1},
};

class Validation : public WindowTest {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_outside.CreateEx(0, AfxRegisterWndClass(0), "outside", WS_POPUP | WS_VISIBLE, 400, 300, 80,
                                       40, nullptr, nullptr));
    }

    void TearDown() override
    {
        m_outside.DestroyWindow();
        WindowTest::TearDown();
    }

    HWND WindowOf(const FieldForm& form, UINT id) const
    {
        return id == kOutside ? m_outside.m_hWnd : id == kNowhere ? nullptr : ::GetDlgItem(form.dialog, static_cast<int>(id));
    }

    void MoveFocus(FieldForm& form, const LeaveRow& row)
    {
        const HWND hTarget = WindowOf(form, row.target);
        if (row.move == Move::Tab)
            PressKey(VK_TAB);
        else if (row.move == Move::Click)
            ClickAt(hTarget, POINT{10, 10});
        else
            ::SetFocus(hTarget);
        flushEvents();
    }

    CWnd m_outside;
};

TEST_F(Validation, WhereTheFocusGoesDecidesTheCheck)
{
    for (const LeaveRow& row : kLeaving) {
        SCOPED_TRACE(row.name);
        status.messages.clear();
        FieldForm form(status.MainWindow());
        form.dialog.forward = row.forward;
        kvEdit& amount = form.AddField(kAmount, new NF(3, 2, NF::Separators), row.amount);
        form.AddField(kNext, nullptr);
        form.AddButton(kApply, "Apply");
        form.AddButton(IDCANCEL, "Cancel");
        form.dialog.SendMessage(WM_TEST_REGISTER_SUPER_TARGET,
                                reinterpret_cast<WPARAM>(&form.AddButton(kSuperTarget, "Help")));
        MessageLog log;
        MessageRecorder recorder(log, {WM_KV_CHILDKILLFOCUS});
        recorder.Watch(status.MainWindow()->GetSafeHwnd(), "main");
        FocusForInput(form.dialog, amount);
        MoveFocus(form, row);
        EXPECT_EQ(::GetFocus(), WindowOf(form, row.focused));
        EXPECT_EQ(status.messages, MessagesOf(row.message));
        if (*row.message) {
            EXPECT_EQ(SelOf(amount), std::make_pair(row.selStart, row.selEnd));
        }
        EXPECT_EQ(log.Entries().size(), static_cast<size_t>(row.forwarded));
    }
}

// selection: the word Verify fills.
struct VerifyRow { const char *name, *amount; LRESULT result; DWORD selection; const char *shown, *message; int clears; };

const VerifyRow kVerify[] = {
    {"valid: shown in display form, message cleared", "0123.5", kvEditValidator::Valid, 0, "123.5", "", 1},
    {"invalid: the offending digits and the reason", "12,345", kvEditValidator::InvalidWithSelection,
     MAKELONG(0, 6), "12,345", kTooManyIntegers, 0},
};

TEST_F(Validation, VerifyAnswersForTheField)
{
    for (const VerifyRow& row : kVerify) {
        SCOPED_TRACE(row.name);
        status.messages.clear();
        status.clears = 0;
        FieldForm form(status.MainWindow());
        kvEdit& amount = form.AddField(kAmount, new NF(3, 2, NF::Separators), row.amount);
        DWORD selection = 0;
        EXPECT_EQ(amount.SendMessage(WM_KV_VERIFY, reinterpret_cast<WPARAM>(&selection)), row.result);
        EXPECT_EQ(selection, row.selection);
        EXPECT_EQ(TextOf(amount), row.shown);
        EXPECT_EQ(status.messages, MessagesOf(row.message));
        EXPECT_EQ(status.clears, row.clears);
    }
}

}  // namespace
