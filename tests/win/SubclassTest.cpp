// Subclassing a dialog's controls: their messages go through the object's map,
// Default() hands the control's own procedure the message of the handler that
// calls it even after a nested send, and unsubclassing or destroying the
// dialog gives the control back.
#include "FieldHarness.h"
#include "WindowTest.h"

#include "afx/CWnd.h"

#include <string>

namespace {

constexpr UINT kFilteringId = 100;
constexpr UINT kAppendingId = 101;

// Drops the letter x; every other character goes to the edit control.
class FilteringEdit : public CWnd {
public:
    std::string typed;

protected:
    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags)
    {
        typed += static_cast<char>(nChar);
        if (nChar != 'x')
            CWnd::OnChar(nChar, nRepCnt, nFlags);
    }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(FilteringEdit, CWnd)
    ON_WM_CHAR()
END_MESSAGE_MAP()

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

class SubclassTest : public WindowTest {
protected:
    void SetUp() override
    {
        m_template.Add("Edit", kFilteringId, "", ES_AUTOHSCROLL | WS_BORDER | WS_TABSTOP, 10, 10, 100, 14)
            .Add("Edit", kAppendingId, "", ES_AUTOHSCROLL | WS_BORDER | WS_TABSTOP, 10, 30, 100, 14);
        ASSERT_TRUE(m_dialog.CreateModeless());
        m_hWndEdit = ::GetDlgItem(m_dialog.m_hWnd, kFilteringId);
        m_originalProc = ::GetWindowLongPtrA(m_hWndEdit, GWLP_WNDPROC);
        ASSERT_TRUE(m_filtering.SubclassDlgItem(kFilteringId, &m_dialog));
        ASSERT_TRUE(m_appending.SubclassDlgItem(kAppendingId, &m_dialog));
        FocusForInput(m_dialog.m_hWnd, m_hWndEdit);
    }

    void TearDown() override
    {
        m_dialog.DestroyWindow();
        WindowTest::TearDown();
    }

    DialogTemplate m_template{"host", WS_POPUP | WS_CAPTION | WS_SYSMENU, 150, 60};
    HostDialog m_dialog{m_template};
    FilteringEdit m_filtering;
    AppendingEdit m_appending;
    HWND m_hWndEdit = nullptr;
    LONG_PTR m_originalProc = 0;
};

TEST_F(SubclassTest, RealKeysGoThroughTheMapThenTheEdit)
{
    TypeText("axbx\bc");
    EXPECT_EQ(m_filtering.typed, "axbx\bc");
    EXPECT_EQ(TextOf(m_filtering), "ac");
}

TEST_F(SubclassTest, UnsubclassingGivesTheEditItsProcedureBack)
{
    EXPECT_EQ(m_filtering.UnsubclassWindow(), m_hWndEdit);
    EXPECT_EQ(::GetWindowLongPtrA(m_hWndEdit, GWLP_WNDPROC), m_originalProc);
    EXPECT_EQ(CWnd::FromHandlePermanent(m_hWndEdit), nullptr);
    TypeText("xy");
    EXPECT_EQ(TextOf(*CWnd::FromHandle(m_hWndEdit)), "xy");
    EXPECT_EQ(m_filtering.typed, "");
}

TEST_F(SubclassTest, DestroyingTheDialogLetsGoOfItsControls)
{
    m_dialog.DestroyWindow();
    EXPECT_EQ(m_filtering.m_hWnd, nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(m_hWndEdit), nullptr);
}

struct AppendRow {
    const char* name;
    int selStart, selEnd;
    const char* expected;
};

const AppendRow kAppends[] = {
    {"caret at the start", 0, 0, "abcx"},
    {"a selection is not replaced", 0, 3, "abcx"},
};

TEST_F(SubclassTest, DefaultPassesOnTheMessageOfItsOwnHandlerAfterANestedSend)
{
    for (const AppendRow& row : kAppends) {
        SCOPED_TRACE(row.name);
        m_appending.SetWindowText("abc");
        m_appending.SendMessage(EM_SETSEL, row.selStart, row.selEnd);
        m_appending.SendMessage(WM_CHAR, 'x', 1);
        EXPECT_EQ(TextOf(m_appending), row.expected);
        EXPECT_EQ(m_appending.messageAfterNestedSend, static_cast<UINT>(WM_CHAR));
    }
}

}  // namespace
