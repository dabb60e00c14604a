// Re-entrant dispatch: a handler that sends a message back to its own window
// still passes its own message on with Default() afterwards.
#include "HostDialog.h"
#include "WindowTest.h"

#include "afx/CWnd.h"

namespace {

constexpr UINT kEditId = 100;

// Moves the caret to the end (a nested WM_KEYDOWN through the map), then lets
// the edit insert the character: typing always appends.
class AppendingEdit : public CWnd {
public:
    UINT messageAfterNestedSend = 0;

protected:
    afx_msg void OnChar(UINT, UINT, UINT)
    {
        SendMessage(WM_KEYDOWN, VK_END, 0);
        messageAfterNestedSend = GetCurrentMessage()->message;
        Default();
    }
    afx_msg void OnKeyDown(UINT, UINT, UINT) { Default(); }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(AppendingEdit, CWnd)
    ON_WM_CHAR()
    ON_WM_KEYDOWN()
END_MESSAGE_MAP()

struct AppendRow {
    const char* name;
    const char* start;
    int selStart, selEnd;
    char typed;
    const char* expected;
};

const AppendRow kAppends[] = {
    {"caret at the start", "abc", 0, 0, 'x', "abcx"},
    {"caret in the middle", "abc", 1, 1, 'y', "abcy"},
    {"empty field", "", 0, 0, 'z', "z"},
    {"a selection is not replaced", "abc", 0, 3, 'w', "abcw"},
};

class ReentrancyTest : public WindowTest {
protected:
    void SetUp() override
    {
        m_template.Add("Edit", kEditId, "", WS_BORDER | ES_AUTOHSCROLL, 10, 10, 100, 14);
        ASSERT_TRUE(m_dialog.CreateModeless());
        ASSERT_TRUE(m_edit.SubclassDlgItem(kEditId, &m_dialog));
    }

    void TearDown() override
    {
        m_dialog.DestroyWindow();
        WindowTest::TearDown();
    }

    DialogTemplate m_template{"reentrancy", WS_POPUP | WS_CAPTION, 150, 40};
    HostDialog m_dialog{m_template};
    AppendingEdit m_edit;
};

TEST_F(ReentrancyTest, DefaultPassesOnTheMessageOfItsOwnHandler)
{
    for (const AppendRow& row : kAppends) {
        SCOPED_TRACE(row.name);
        m_edit.SetWindowText(row.start);
        m_edit.SendMessage(EM_SETSEL, row.selStart, row.selEnd);
        m_edit.SendMessage(WM_CHAR, static_cast<WPARAM>(row.typed), 1);
        CString text;
        m_edit.GetWindowText(text);
        EXPECT_STREQ(text, row.expected);
        EXPECT_EQ(m_edit.messageAfterNestedSend, static_cast<UINT>(WM_CHAR));
    }
}

}  // namespace
