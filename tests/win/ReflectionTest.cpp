// Reflection: a parent's notification about a child goes to the child's
// reflected entries first; the parent's map sees it only when the child did
// not take it (or has no framework object).
#include "WindowTest.h"

#include "afx/CWnd.h"

#include <string>

namespace {

constexpr UINT kChildId = 21;
constexpr UINT kSiblingId = 22;
constexpr UINT kMenuCommand = 300;

std::string g_seen;  // who handled the message, in order

void Saw(const char* who) { g_seen += g_seen.empty() ? who : std::string(" ") + who; }

class ReflectingChild : public CWnd {
public:
    bool accepts = true;

protected:
    afx_msg BOOL OnReflectedClick() { return Saw("child"), accepts; }
    afx_msg BOOL OnReflectedNotify(NMHDR*, LRESULT* pResult)
    {
        Saw("child");
        *pResult = 5;
        return accepts;
    }
    afx_msg HBRUSH CtlColor(CDC*, UINT)
    {
        Saw("child");
        return accepts ? static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH)) : nullptr;
    }
    afx_msg void DrawItem(LPDRAWITEMSTRUCT) { Saw("child"); }
    afx_msg void MeasureItem(LPMEASUREITEMSTRUCT) { Saw("child"); }
    afx_msg void HScroll(UINT, UINT) { Saw("child"); }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ReflectingChild, CWnd)
    ON_CONTROL_REFLECT_EX(BN_CLICKED, OnReflectedClick)
    ON_NOTIFY_REFLECT_EX(NM_CLICK, OnReflectedNotify)
    ON_WM_CTLCOLOR_REFLECT()
    ON_WM_DRAWITEM_REFLECT()
    ON_WM_MEASUREITEM_REFLECT()
    ON_WM_HSCROLL_REFLECT()
END_MESSAGE_MAP()

class NotifiedParent : public CWnd {
protected:
    afx_msg void OnClicked(UINT) { Saw("parent"); }
    afx_msg void OnMenuCommand() { Saw("parent"); }
    afx_msg void OnClick(UINT, NMHDR*, LRESULT* pResult)
    {
        Saw("parent");
        *pResult = 9;
    }
    afx_msg HBRUSH OnCtlColor(CDC*, CWnd*, UINT)
    {
        Saw("parent");
        return static_cast<HBRUSH>(::GetStockObject(BLACK_BRUSH));
    }
    afx_msg void OnDrawItem(int, LPDRAWITEMSTRUCT) { Saw("parent"); }
    afx_msg void OnMeasureItem(int, LPMEASUREITEMSTRUCT) { Saw("parent"); }
    afx_msg void OnHScroll(UINT, UINT, CScrollBar*) { Saw("parent"); }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(NotifiedParent, CWnd)
    ON_CONTROL_RANGE(BN_CLICKED, kChildId, kSiblingId, OnClicked)
    ON_COMMAND(kMenuCommand, OnMenuCommand)
    ON_NOTIFY_RANGE(NM_CLICK, kChildId, kSiblingId, OnClick)
    ON_WM_CTLCOLOR()
    ON_WM_DRAWITEM()
    ON_WM_MEASUREITEM()
    ON_WM_HSCROLL()
END_MESSAGE_MAP()

enum Sender { kFromChild, kFromSibling, kFromMenu };

struct ReflectionRow {
    const char* name;
    UINT message;
    Sender sender;
    bool childAccepts;
    UINT ownerDrawType;  // WM_DRAWITEM / WM_MEASUREITEM
    const char* seen;
    LRESULT result;  // 0 where the message has no meaningful result
    int brush;       // stock brush expected as the result, -1 for none
};

const ReflectionRow kReflections[] = {
    {"click taken by the child", WM_COMMAND, kFromChild, true, 0, "child", 0, -1},
    {"click the child declines reaches the parent", WM_COMMAND, kFromChild, false, 0, "child parent", 0, -1},
    {"click from a window without an object goes to the parent", WM_COMMAND, kFromSibling, true, 0, "parent", 0, -1},
    {"menu command goes to the parent", WM_COMMAND, kFromMenu, true, 0, "parent", 0, -1},
    {"notification taken by the child keeps its result", WM_NOTIFY, kFromChild, true, 0, "child", 5, -1},
    {"notification the child declines", WM_NOTIFY, kFromChild, false, 0, "child parent", 9, -1},
    {"colours chosen by the child", WM_CTLCOLOREDIT, kFromChild, true, 0, "child", 0, WHITE_BRUSH},
    {"colours the child leaves to the parent", WM_CTLCOLORSTATIC, kFromChild, false, 0, "child parent", 0, BLACK_BRUSH},
    {"owner draw goes to the child only", WM_DRAWITEM, kFromChild, false, ODT_BUTTON, "child", TRUE, -1},
    {"owner draw of a menu stays with the parent", WM_DRAWITEM, kFromChild, true, ODT_MENU, "parent", TRUE, -1},
    {"owner measure finds the child by its id", WM_MEASUREITEM, kFromChild, true, ODT_LISTBOX, "child", TRUE, -1},
    {"scrolling of a child scroll bar", WM_HSCROLL, kFromChild, true, 0, "child", 0, -1},
};

class ReflectionTest : public WindowTest {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_parent.CreateEx(0, nullptr, "parent", WS_POPUP, 0, 0, 100, 100, nullptr, nullptr));
        ASSERT_TRUE(m_child.Create(nullptr, "child", WS_VISIBLE, CRect(0, 0, 20, 20), &m_parent, kChildId));
        m_hWndSibling = ::CreateWindowExA(0, "STATIC", "sibling", WS_CHILD, 30, 0, 20, 20, m_parent.m_hWnd,
                                          reinterpret_cast<HMENU>(static_cast<UINT_PTR>(kSiblingId)), nullptr, nullptr);
    }

    void TearDown() override
    {
        m_parent.DestroyWindow();
        WindowTest::TearDown();
    }

    LRESULT Send(const ReflectionRow& row)
    {
        const HWND hWndFrom =
            row.sender == kFromChild ? m_child.m_hWnd : row.sender == kFromSibling ? m_hWndSibling : nullptr;
        const UINT id = row.sender == kFromChild ? kChildId : kSiblingId;
        NMHDR nmhdr{hWndFrom, id, static_cast<UINT>(NM_CLICK)};
        DRAWITEMSTRUCT drawItem{row.ownerDrawType, id, 0, ODA_DRAWENTIRE, 0, hWndFrom, nullptr, {}, 0};
        MEASUREITEMSTRUCT measureItem{row.ownerDrawType, id, 0, 0, 0, 0};
        const HDC hDC = ::GetDC(m_parent.m_hWnd);
        WPARAM wParam = id;
        LPARAM lParam = reinterpret_cast<LPARAM>(hWndFrom);
        switch (row.message) {
        case WM_COMMAND: wParam = MAKEWPARAM(hWndFrom ? id : kMenuCommand, BN_CLICKED); break;
        case WM_NOTIFY: lParam = reinterpret_cast<LPARAM>(&nmhdr); break;
        case WM_DRAWITEM: lParam = reinterpret_cast<LPARAM>(&drawItem); break;
        case WM_MEASUREITEM: lParam = reinterpret_cast<LPARAM>(&measureItem); break;
        case WM_HSCROLL: wParam = SB_LINELEFT; break;
        default: wParam = reinterpret_cast<WPARAM>(hDC); break;  // the colour messages
        }
        const LRESULT result = m_parent.SendMessage(row.message, wParam, lParam);
        ::ReleaseDC(m_parent.m_hWnd, hDC);
        return result;
    }

    NotifiedParent m_parent;
    ReflectingChild m_child;
    HWND m_hWndSibling = nullptr;
};

TEST_F(ReflectionTest, TheChildSeesItsNotificationsFirst)
{
    for (const ReflectionRow& row : kReflections) {
        SCOPED_TRACE(row.name);
        g_seen.clear();
        m_child.accepts = row.childAccepts;
        const LRESULT result = Send(row);
        EXPECT_EQ(g_seen, row.seen);
        if (row.brush >= 0) {
            EXPECT_EQ(result, reinterpret_cast<LRESULT>(::GetStockObject(row.brush)));
        } else if (row.message != WM_COMMAND) {
            EXPECT_EQ(result, row.result);
        }
    }
}

}  // namespace
