// PreTranslateMessage routing: real keys typed into a dialog's control are
// offered to the control's object, then to the dialog's (which runs the dialog
// manager: Tab moves the focus), before they are dispatched.
#include "HostDialog.h"
#include "MessageLog.h"
#include "WindowTest.h"

#include "afx/CWnd.h"

#include <string>

namespace {

enum : UINT { kFirstEdit = 100, kSecondEdit };

bool IsKeyMessage(UINT message) { return message == WM_KEYDOWN || message == WM_KEYUP || message == WM_CHAR; }

// Logs the key messages it is offered; swallows the characters it is told to.
class RoutingEdit : public CWnd {
public:
    RoutingEdit(MessageLog& log, const char* who, WPARAM swallowed = 0) : m_log(log), m_who(who), m_swallowed(swallowed) {}

    BOOL PreTranslateMessage(MSG* pMsg) override
    {
        if (!IsKeyMessage(pMsg->message))
            return FALSE;
        m_log.Add(m_who, pMsg->message, pMsg->wParam);
        return pMsg->message == WM_CHAR && pMsg->wParam == m_swallowed;
    }

private:
    MessageLog& m_log;
    const char* m_who;
    WPARAM m_swallowed;
};

class RoutingDialog : public HostDialog {
public:
    RoutingDialog(const DialogTemplate& dialogTemplate, MessageLog& log) : HostDialog(dialogTemplate), m_log(log) {}

    BOOL PreTranslateMessage(MSG* pMsg) override
    {
        if (IsKeyMessage(pMsg->message))
            m_log.Add("dialog", pMsg->message, pMsg->wParam);
        return HostDialog::PreTranslateMessage(pMsg);
    }

private:
    MessageLog& m_log;
};

const ExpectedMessage kLetterA[] = {
    {"first", WM_KEYDOWN, kWParam, 'A', 0}, {"dialog", WM_KEYDOWN, kWParam, 'A', 0},
    {"first", WM_CHAR, kWParam, 'a', 0},    {"dialog", WM_CHAR, kWParam, 'a', 0},
    {"first", WM_KEYUP, kWParam, 'A', 0},   {"dialog", WM_KEYUP, kWParam, 'A', 0},
};

// The dialog manager moves the focus on the key press: the release goes to the
// second field.
const ExpectedMessage kTab[] = {
    {"first", WM_KEYDOWN, kWParam, VK_TAB, 0}, {"dialog", WM_KEYDOWN, kWParam, VK_TAB, 0},
    {"second", WM_KEYUP, kWParam, VK_TAB, 0},  {"dialog", WM_KEYUP, kWParam, VK_TAB, 0},
};

// A character the field's object consumes never reaches the dialog.
const ExpectedMessage kSwallowedX[] = {
    {"first", WM_KEYDOWN, kWParam, 'X', 0}, {"dialog", WM_KEYDOWN, kWParam, 'X', 0},
    {"first", WM_CHAR, kWParam, 'x', 0},
    {"first", WM_KEYUP, kWParam, 'X', 0},   {"dialog", WM_KEYUP, kWParam, 'X', 0},
};

// firstText: the first field's text afterwards; focusId: the control with the focus afterwards.
struct RoutingRow {
    const char *name, *keys;
    const ExpectedMessage* expected;
    std::size_t count;
    const char* firstText;
    UINT focusId;
};

const RoutingRow kRoutes[] = {
    {"a letter is offered to the field, then the dialog", "a", kLetterA, std::size(kLetterA), "a", kFirstEdit},
    {"tab moves the focus through the dialog manager", "\t", kTab, std::size(kTab), "", kSecondEdit},
    {"a character consumed by the field's object", "x", kSwallowedX, std::size(kSwallowedX), "", kFirstEdit},
};

class PreTranslateTest : public WindowTest {
protected:
    void SetUp() override
    {
        m_template.Add("Edit", kFirstEdit, "", WS_BORDER | WS_TABSTOP, 10, 10, 100, 14)
            .Add("Edit", kSecondEdit, "", WS_BORDER | WS_TABSTOP, 10, 30, 100, 14);
        ASSERT_TRUE(m_dialog.CreateModeless());
        ASSERT_TRUE(m_first.SubclassDlgItem(kFirstEdit, &m_dialog));
        ASSERT_TRUE(m_second.SubclassDlgItem(kSecondEdit, &m_dialog));
    }

    void TearDown() override
    {
        m_dialog.DestroyWindow();
        WindowTest::TearDown();
    }

    MessageLog m_log;
    DialogTemplate m_template{"routing", WS_POPUP | WS_CAPTION | WS_SYSMENU, 150, 60};
    RoutingDialog m_dialog{m_template, m_log};
    RoutingEdit m_first{m_log, "first", 'x'};
    RoutingEdit m_second{m_log, "second"};
};

TEST_F(PreTranslateTest, KeysAreOfferedFromTheFieldUpToTheDialog)
{
    for (const RoutingRow& row : kRoutes) {
        SCOPED_TRACE(row.name);
        m_first.SetWindowText("");
        FocusForInput(m_dialog.m_hWnd, m_first.m_hWnd);
        m_log.Clear();
        TypeText(row.keys);
        CompareSequence(m_log, row.expected, row.count, row.name, __FILE__, __LINE__);
        CString text;
        m_first.GetWindowText(text);
        EXPECT_STREQ(text, row.firstText);
        EXPECT_EQ(::GetDlgCtrlID(::GetFocus()), static_cast<int>(row.focusId));
    }
}

}  // namespace
