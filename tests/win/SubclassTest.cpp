// Subclassing a dialog's control: its messages go through the object's map,
// everything the map leaves reaches the control's own procedure, and
// unsubclassing or destroying the dialog gives the control back.
#include "HostDialog.h"
#include "MessageLog.h"
#include "MessageRecorder.h"
#include "WindowTest.h"

#include "afx/CWnd.h"

#include <string>

namespace {

constexpr UINT kEditId = 100;

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

std::string WindowText(HWND hWnd)
{
    char text[256] = {};
    ::GetWindowTextA(hWnd, text, sizeof text);
    return text;
}

struct TypingRow {
    const char* name;
    const char* keys;
    const char* text;   // the edit's text afterwards
    const char* typed;  // what the map saw
};

const TypingRow kTyping[] = {
    {"letters reach the edit through the map", "abc", "abc", "abc"},
    {"the map swallows x", "axbx", "ab", "axbx"},
    {"backspace reaches the edit's own procedure", "ab\b", "a", "ab\b"},
    {"digits and spaces", "1 2", "1 2", "1 2"},
};

// Typing one letter: the edit still tells its parent, as edits do.
const ExpectedMessage kLetterNotifications[] = {
    {"dialog", WM_COMMAND, kWParam, MAKEWPARAM(kEditId, EN_UPDATE), 0},
    {"dialog", WM_COMMAND, kWParam, MAKEWPARAM(kEditId, EN_CHANGE), 0},
};

class SubclassTest : public WindowTest {
protected:
    void SetUp() override
    {
        m_template.Add("Edit", kEditId, "", ES_AUTOHSCROLL | WS_BORDER | WS_TABSTOP, 10, 10, 100, 14);
        ASSERT_TRUE(m_dialog.CreateModeless());
        m_hWndEdit = ::GetDlgItem(m_dialog.m_hWnd, kEditId);
        m_originalProc = ::GetWindowLongPtrA(m_hWndEdit, GWLP_WNDPROC);
        ASSERT_TRUE(m_edit.SubclassDlgItem(kEditId, &m_dialog));
        FocusForInput(m_dialog.m_hWnd, m_hWndEdit);
    }

    void TearDown() override
    {
        m_dialog.DestroyWindow();
        WindowTest::TearDown();
    }

    void Clear()
    {
        ::SetWindowTextA(m_hWndEdit, "");
        m_edit.typed.clear();
    }

    DialogTemplate m_template{"host", WS_POPUP | WS_CAPTION | WS_SYSMENU, 150, 60};
    HostDialog m_dialog{m_template};
    FilteringEdit m_edit;
    HWND m_hWndEdit = nullptr;
    LONG_PTR m_originalProc = 0;
};

TEST_F(SubclassTest, RealKeysGoThroughTheMapThenTheEdit)
{
    for (const TypingRow& row : kTyping) {
        SCOPED_TRACE(row.name);
        Clear();
        TypeText(row.keys);
        EXPECT_EQ(WindowText(m_hWndEdit), row.text);
        EXPECT_EQ(m_edit.typed, row.typed);
    }
}

TEST_F(SubclassTest, TheEditStillNotifiesItsParent)
{
    Clear();
    MessageLog log;
    MessageRecorder recorder(log, {WM_COMMAND});
    recorder.Watch(m_dialog.m_hWnd, "dialog");
    TypeText("q");
    EXPECT_SEQUENCE(log, kLetterNotifications);
}

TEST_F(SubclassTest, MessagesWithoutEntriesReachTheEditsProcedure)
{
    m_edit.SetWindowText("framework");
    m_edit.SendMessage(EM_SETSEL, 2, 5);
    DWORD start = 0, end = 0;
    m_edit.SendMessage(EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    EXPECT_EQ(WindowText(m_hWndEdit), "framework");
    EXPECT_EQ(start, 2u);
    EXPECT_EQ(end, 5u);
}

TEST_F(SubclassTest, UnsubclassingGivesTheEditItsProcedureBack)
{
    EXPECT_EQ(m_edit.UnsubclassWindow(), m_hWndEdit);
    EXPECT_EQ(::GetWindowLongPtrA(m_hWndEdit, GWLP_WNDPROC), m_originalProc);
    EXPECT_EQ(CWnd::FromHandlePermanent(m_hWndEdit), nullptr);
    Clear();
    TypeText("xy");
    EXPECT_EQ(WindowText(m_hWndEdit), "xy");
    EXPECT_EQ(m_edit.typed, "");
}

TEST_F(SubclassTest, DestroyingTheDialogLetsGoOfTheEdit)
{
    m_dialog.DestroyWindow();
    EXPECT_EQ(m_edit.m_hWnd, nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(m_hWndEdit), nullptr);
    EXPECT_EQ(m_dialog.m_hWnd, nullptr);
}

}  // namespace
