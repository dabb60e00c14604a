// Message maps: one cracker of each argument shape hands its handler the
// decoded arguments and returns the handler's result; creation and destruction
// messages reach the map, and the object is unmapped with its window.
#include "MessageLog.h"
#include "WindowTest.h"

#include "afx/CDC.h"
#include "afx/CScrollBar.h"
#include "afx/CWnd.h"

#include <sstream>
#include <string>
#include <vector>

namespace {

// Stand-ins resolved when a row runs: handles and records exist only then.
enum Placeholder : LPARAM { kSelf = 0x7F01, kPeer, kDC, kRecord, kWhiteBrush, kRegistered };

const UINT kRegisteredMessage = ::RegisterWindowMessageA("kvWin cracker test");

class CrackerWnd : public CWnd {
public:
    std::vector<std::string> calls;
    HWND hWndPeer = nullptr;
    HDC hDC = nullptr;

protected:
    template <class... Args>
    void Record(const char* handler, const Args&... args)
    {
        std::ostringstream call;
        call << handler << '(';
        [[maybe_unused]] const char* separator = "";
        ((call << separator << args, separator = ","), ...);
        call << ')';
        calls.push_back(call.str());
    }

    std::string Name(const CWnd* pWnd) const
    {
        const HWND hWnd = pWnd->GetSafeHwnd();
        return hWnd == nullptr ? "null" : hWnd == m_hWnd ? "self" : hWnd == hWndPeer ? "peer" : "other";
    }
    std::string Name(CDC* pDC) const { return pDC->GetSafeHdc() == hDC ? "dc" : "other dc"; }

    afx_msg void OnKeyUp(UINT c, UINT n, UINT f) { Record("OnKeyUp", c, n, f); }
    afx_msg void OnMouseMove(UINT f, CPoint p) { Record("OnMouseMove", f, p.x, p.y); }
    afx_msg void OnSize(UINT type, int cx, int cy) { Record("OnSize", type, cx, cy); }
    afx_msg void OnMove(int x, int y) { Record("OnMove", x, y); }
    afx_msg void OnKillFocus(CWnd* pNew) { Record("OnKillFocus", Name(pNew)); }
    afx_msg void OnContextMenu(CWnd* pWnd, CPoint p) { Record("OnContextMenu", Name(pWnd), p.x, p.y); }
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT hit, UINT message)
        { return Record("OnSetCursor", Name(pWnd), hit, message), TRUE; }
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT type)
    {
        Record("OnCtlColor", Name(pDC), Name(pWnd), type);
        return static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH));
    }
    afx_msg UINT OnGetDlgCode() { return Record("OnGetDlgCode"), DLGC_WANTCHARS | DLGC_WANTARROWS; }
    afx_msg void OnHScroll(UINT code, UINT pos, CScrollBar* pBar) { Record("OnHScroll", code, pos, Name(pBar)); }
    afx_msg void OnDrawItem(int id, LPDRAWITEMSTRUCT p) { Record("OnDrawItem", id, p->itemID); }
    afx_msg BOOL OnEraseBkgnd(CDC* pDC) { return Record("OnEraseBkgnd", Name(pDC)), TRUE; }
    afx_msg LRESULT OnSetText(WPARAM, LPARAM lParam)
        { return Record("OnSetText", reinterpret_cast<const char*>(lParam)), TRUE; }
    afx_msg LRESULT OnRegistered(WPARAM wParam, LPARAM lParam)
        { return Record("OnRegistered", wParam, lParam), static_cast<LRESULT>(wParam) + lParam; }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CrackerWnd, CWnd)
    ON_WM_KEYUP()
    ON_WM_MOUSEMOVE()
    ON_WM_SIZE()
    ON_WM_MOVE()
    ON_WM_KILLFOCUS()
    ON_WM_CONTEXTMENU()
    ON_WM_SETCURSOR()
    ON_WM_CTLCOLOR()
    ON_WM_GETDLGCODE()
    ON_WM_HSCROLL()
    ON_WM_DRAWITEM()
    ON_WM_ERASEBKGND()
    ON_MESSAGE(WM_SETTEXT, OnSetText)
    ON_REGISTERED_MESSAGE(kRegisteredMessage, OnRegistered)
END_MESSAGE_MAP()

struct CrackerRow {
    const char* name;
    UINT message;  // or kRegistered
    WPARAM wParam;
    LPARAM lParam;
    const char* call;  // "" when no handler may run
    LRESULT result;
};

const CrackerRow kCrackers[] = {
    {"key: code, repeat count and the flags word", WM_KEYUP, VK_RETURN, MAKELPARAM(1, KF_UP | KF_REPEAT | 0x1C),
     "OnKeyUp(13,1,49180)", 0},
    {"mouse: keys and a signed point", WM_MOUSEMOVE, MK_SHIFT, MAKELPARAM(-5, -7), "OnMouseMove(4,-5,-7)", 0},
    {"size: type and unsigned extent", WM_SIZE, SIZE_MAXIMIZED, MAKELPARAM(640, 480), "OnSize(2,640,480)", 0},
    {"move: signed position", WM_MOVE, 0, MAKELPARAM(-20, 30), "OnMove(-20,30)", 0},
    {"window in wParam, none given", WM_KILLFOCUS, 0, 0, "OnKillFocus(null)", 0},
    {"window and point", WM_CONTEXTMENU, kSelf, MAKELPARAM(-1, -1), "OnContextMenu(self,-1,-1)", 0},
    {"window and two words, result returned", WM_SETCURSOR, kSelf, MAKELPARAM(HTCLIENT, WM_MOUSEMOVE),
     "OnSetCursor(self,1,512)", TRUE},
    {"colours: DC, control and the kind from the message", WM_CTLCOLORSTATIC, kDC, kPeer, "OnCtlColor(dc,peer,6)",
     kWhiteBrush},
    {"no arguments, result returned", WM_GETDLGCODE, 0, 0, "OnGetDlgCode()", DLGC_WANTCHARS | DLGC_WANTARROWS},
    {"scroll code, thumb position and bar", WM_HSCROLL, MAKEWPARAM(SB_THUMBTRACK, 55), kPeer,
     "OnHScroll(5,55,peer)", 0},
    {"id and record, TRUE returned", WM_DRAWITEM, 12, kRecord, "OnDrawItem(12,3)", TRUE},
    {"DC, result returned", WM_ERASEBKGND, kDC, 0, "OnEraseBkgnd(dc)", TRUE},
    {"raw parameters through ON_MESSAGE", WM_SETTEXT, 0, kRecord, "OnSetText(hello)", TRUE},
    {"registered message", kRegistered, 5, 6, "OnRegistered(5,6)", 11},
    {"a message without an entry reaches the window's procedure", WM_GETTEXTLENGTH, 0, 0, "", 7},
};

class MessageMapTest : public WindowTest {
protected:
    void SetUp() override
    {
        m_hWndPeer = ::CreateWindowExA(0, "STATIC", "peer", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
        m_wnd.hWndPeer = m_hWndPeer;
        m_wnd.hDC = m_hDC = ::CreateCompatibleDC(nullptr);
        ASSERT_TRUE(m_wnd.CreateEx(0, nullptr, "cracker", WS_POPUP, 0, 0, 50, 50, nullptr, nullptr));
    }

    void TearDown() override
    {
        m_wnd.DestroyWindow();
        ::DestroyWindow(m_hWndPeer);
        ::DeleteDC(m_hDC);
        WindowTest::TearDown();
    }

    LPARAM Resolve(LPARAM value, UINT message) const
    {
        switch (value) {
        case kSelf: return reinterpret_cast<LPARAM>(m_wnd.m_hWnd);
        case kPeer: return reinterpret_cast<LPARAM>(m_hWndPeer);
        case kDC: return reinterpret_cast<LPARAM>(m_hDC);
        case kRecord:
            return message == WM_SETTEXT ? reinterpret_cast<LPARAM>("hello") : reinterpret_cast<LPARAM>(&m_drawItem);
        case kWhiteBrush: return reinterpret_cast<LPARAM>(::GetStockObject(WHITE_BRUSH));
        case kRegistered: return kRegisteredMessage;
        default: return value;
        }
    }

    CrackerWnd m_wnd;
    HWND m_hWndPeer = nullptr;
    HDC m_hDC = nullptr;
    // The peer has no framework object, so nothing is reflected to it.
    DRAWITEMSTRUCT m_drawItem{ODT_BUTTON, 12, 3, ODA_DRAWENTIRE, 0, nullptr, nullptr, {}, 0};
};

TEST_F(MessageMapTest, CrackersHandTheirHandlersTheMessageArguments)
{
    for (const CrackerRow& row : kCrackers) {
        SCOPED_TRACE(row.name);
        m_wnd.calls.clear();
        const auto message = static_cast<UINT>(Resolve(static_cast<LPARAM>(row.message), 0));
        const auto wParam = static_cast<WPARAM>(Resolve(static_cast<LPARAM>(row.wParam), message));
        const LRESULT result = m_wnd.SendMessage(message, wParam, Resolve(row.lParam, message));
        const std::vector<std::string> expected =
            *row.call != '\0' ? std::vector<std::string>{row.call} : std::vector<std::string>{};
        EXPECT_EQ(m_wnd.calls, expected);
        EXPECT_EQ(result, Resolve(row.result, message));
    }
}

// ---- creation and destruction ----

class LifecycleWnd : public CWnd {
public:
    LifecycleWnd(MessageLog& log, bool failCreate) : m_log(log), m_failCreate(failCreate) {}

protected:
    afx_msg BOOL OnNcCreate(LPCREATESTRUCT lpcs) { return m_log.Add("map", WM_NCCREATE), CWnd::OnNcCreate(lpcs); }
    afx_msg int OnCreate(LPCREATESTRUCT lpcs)
    {
        m_log.Add("map", WM_CREATE);
        return m_failCreate ? -1 : CWnd::OnCreate(lpcs);
    }
    afx_msg void OnDestroy() { m_log.Add("map", WM_DESTROY), CWnd::OnDestroy(); }
    afx_msg void OnNcDestroy() { m_log.Add("map", WM_NCDESTROY), CWnd::OnNcDestroy(); }
    void PostNcDestroy() override { m_log.Add("PostNcDestroy", WM_NULL); }

    DECLARE_MESSAGE_MAP()

private:
    MessageLog& m_log;
    bool m_failCreate;
};

BEGIN_MESSAGE_MAP(LifecycleWnd, CWnd)
    ON_WM_NCCREATE()
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_NCDESTROY()
END_MESSAGE_MAP()

struct LifecycleRow {
    const char* name;
    const char* className;  // null: the framework's own class
    bool failCreate;
};

const LifecycleRow kLifecycles[] = {
    {"framework class", nullptr, false},
    {"system class", "EDIT", false},
    {"creation refused by OnCreate", nullptr, true},
    {"system class refused by OnCreate", "EDIT", true},
};

TEST_F(MessageMapTest, CreationAndDestructionMessagesReachTheMapAndUnmapTheObject)
{
    for (const LifecycleRow& row : kLifecycles) {
        SCOPED_TRACE(row.name);
        MessageLog log;
        LifecycleWnd wnd(log, row.failCreate);
        const BOOL created = wnd.Create(row.className, "life", WS_VISIBLE, CRect(0, 0, 40, 20), &m_wnd, 5);
        EXPECT_EQ(created != FALSE, !row.failCreate);
        const HWND hWnd = wnd.m_hWnd;
        if (created) {
            EXPECT_EQ(CWnd::FromHandlePermanent(hWnd), &wnd);
            wnd.DestroyWindow();
        }
        // A refused creation may or may not see WM_DESTROY.
        const ExpectedMessage expected[] = {
            {"map", WM_NCCREATE, kAnyParams, 0, 0}, {"map", WM_CREATE, kAnyParams, 0, 0},
            {"map", WM_DESTROY, row.failCreate ? kOptional : kAnyParams, 0, 0},
            {"map", WM_NCDESTROY, kAnyParams, 0, 0}, {"PostNcDestroy", WM_NULL, kAnyParams, 0, 0},
        };
        EXPECT_SEQUENCE(log, expected);
        EXPECT_EQ(wnd.m_hWnd, nullptr);
        EXPECT_EQ(CWnd::FromHandlePermanent(hWnd), nullptr);
    }
}

}  // namespace
