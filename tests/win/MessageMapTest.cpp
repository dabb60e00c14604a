// Message maps: every cracker hands its handler the right arguments and
// returns the handler's result; creation and destruction messages reach the
// map, for the framework's own classes and for system classes alike.
#include "MessageLog.h"
#include "WindowTest.h"

#include "afx/CDC.h"
#include "afx/CScrollBar.h"
#include "afx/CWnd.h"

#include <map>
#include <sstream>
#include <string>
#include <vector>

namespace {

// Stand-ins resolved when a row runs: handles and records exist only then.
enum Placeholder : LPARAM {
    kSelf = 0x7F01,
    kPeer,
    kDC,
    kRecord,       // the record the message carries (DRAWITEMSTRUCT, text ...)
    kWhiteBrush,
    kRegistered,   // the registered message
};

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

    afx_msg void OnChar(UINT c, UINT n, UINT f) { Record("OnChar", c, n, f); }
    afx_msg void OnKeyDown(UINT c, UINT n, UINT f) { Record("OnKeyDown", c, n, f); }
    afx_msg void OnKeyUp(UINT c, UINT n, UINT f) { Record("OnKeyUp", c, n, f); }
    afx_msg void OnSysKeyDown(UINT c, UINT n, UINT f) { Record("OnSysKeyDown", c, n, f); }
    afx_msg void OnLButtonDown(UINT f, CPoint p) { Record("OnLButtonDown", f, p.x, p.y); }
    afx_msg void OnLButtonUp(UINT f, CPoint p) { Record("OnLButtonUp", f, p.x, p.y); }
    afx_msg void OnLButtonDblClk(UINT f, CPoint p) { Record("OnLButtonDblClk", f, p.x, p.y); }
    afx_msg void OnMouseMove(UINT f, CPoint p) { Record("OnMouseMove", f, p.x, p.y); }
    afx_msg void OnSize(UINT type, int cx, int cy) { Record("OnSize", type, cx, cy); }
    afx_msg void OnMove(int x, int y) { Record("OnMove", x, y); }
    afx_msg void OnSetFocus(CWnd* pOld) { Record("OnSetFocus", Name(pOld)); }
    afx_msg void OnKillFocus(CWnd* pNew) { Record("OnKillFocus", Name(pNew)); }
    afx_msg void OnContextMenu(CWnd* pWnd, CPoint p) { Record("OnContextMenu", Name(pWnd), p.x, p.y); }
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT hit, UINT message)
    {
        Record("OnSetCursor", Name(pWnd), hit, message);
        return TRUE;
    }
    afx_msg void OnTimer(UINT_PTR id) { Record("OnTimer", id); }
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT type)
    {
        Record("OnCtlColor", Name(pDC), Name(pWnd), type);
        return static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH));
    }
    afx_msg UINT OnGetDlgCode()
    {
        Record("OnGetDlgCode");
        return DLGC_WANTCHARS | DLGC_WANTARROWS;
    }
    afx_msg void OnEnable(BOOL enable) { Record("OnEnable", enable); }
    afx_msg void OnShowWindow(BOOL show, UINT status) { Record("OnShowWindow", show, status); }
    afx_msg void OnClose() { Record("OnClose"); }
    afx_msg void OnSysColorChange() { Record("OnSysColorChange"); }
    afx_msg void OnCaptureChanged(CWnd* pWnd) { Record("OnCaptureChanged", Name(pWnd)); }
    afx_msg void OnHScroll(UINT code, UINT pos, CScrollBar* pBar) { Record("OnHScroll", code, pos, Name(pBar)); }
    afx_msg void OnVScroll(UINT code, UINT pos, CScrollBar* pBar) { Record("OnVScroll", code, pos, Name(pBar)); }
    afx_msg void OnDrawItem(int id, LPDRAWITEMSTRUCT p) { Record("OnDrawItem", id, p->itemID); }
    afx_msg void OnMeasureItem(int id, LPMEASUREITEMSTRUCT p) { Record("OnMeasureItem", id, p->itemID); }
    afx_msg void OnWindowPosChanging(WINDOWPOS* p) { Record("OnWindowPosChanging", p->x, p->y); }
    afx_msg void OnPaint() { Record("OnPaint"); }
    afx_msg BOOL OnEraseBkgnd(CDC* pDC)
    {
        Record("OnEraseBkgnd", Name(pDC));
        return TRUE;
    }
    afx_msg LRESULT OnSetText(WPARAM, LPARAM lParam)
    {
        Record("OnSetText", reinterpret_cast<const char*>(lParam));
        return TRUE;
    }
    afx_msg LRESULT OnRegistered(WPARAM wParam, LPARAM lParam)
    {
        Record("OnRegistered", wParam, lParam);
        return static_cast<LRESULT>(wParam) + lParam;
    }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CrackerWnd, CWnd)
    ON_WM_CHAR()
    ON_WM_KEYDOWN()
    ON_WM_KEYUP()
    ON_WM_SYSKEYDOWN()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_MOUSEMOVE()
    ON_WM_SIZE()
    ON_WM_MOVE()
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    ON_WM_CONTEXTMENU()
    ON_WM_SETCURSOR()
    ON_WM_TIMER()
    ON_WM_CTLCOLOR()
    ON_WM_GETDLGCODE()
    ON_WM_ENABLE()
    ON_WM_SHOWWINDOW()
    ON_WM_CLOSE()
    ON_WM_SYSCOLORCHANGE()
    ON_WM_CAPTURECHANGED()
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
    ON_WM_DRAWITEM()
    ON_WM_MEASUREITEM()
    ON_WM_WINDOWPOSCHANGING()
    ON_WM_PAINT()
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
    {"character with repeat count and scan code", WM_CHAR, 'a', MAKELPARAM(3, 0x1E), "OnChar(97,3,30)", 0},
    {"extended key down", WM_KEYDOWN, VK_LEFT, MAKELPARAM(1, KF_EXTENDED | 0x4B), "OnKeyDown(37,1,331)", 0},
    {"key up keeps its transition flags", WM_KEYUP, VK_RETURN, MAKELPARAM(1, KF_UP | KF_REPEAT | 0x1C),
     "OnKeyUp(13,1,49180)", 0},
    {"system key down", WM_SYSKEYDOWN, VK_F4, MAKELPARAM(1, KF_ALTDOWN | 0x3E), "OnSysKeyDown(115,1,8254)", 0},
    {"left button down with Shift", WM_LBUTTONDOWN, MK_LBUTTON | MK_SHIFT, MAKELPARAM(10, 20),
     "OnLButtonDown(5,10,20)", 0},
    {"left button up", WM_LBUTTONUP, 0, MAKELPARAM(1, 2), "OnLButtonUp(0,1,2)", 0},
    {"double click", WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(3, 4), "OnLButtonDblClk(1,3,4)", 0},
    {"mouse above and left of the client area is negative", WM_MOUSEMOVE, 0, MAKELPARAM(-5, -7),
     "OnMouseMove(0,-5,-7)", 0},
    {"maximized size", WM_SIZE, SIZE_MAXIMIZED, MAKELPARAM(640, 480), "OnSize(2,640,480)", 0},
    {"moved partly off screen", WM_MOVE, 0, MAKELPARAM(-20, 30), "OnMove(-20,30)", 0},
    {"focus from the peer", WM_SETFOCUS, kPeer, 0, "OnSetFocus(peer)", 0},
    {"focus lost to no window", WM_KILLFOCUS, 0, 0, "OnKillFocus(null)", 0},
    {"context menu from the keyboard", WM_CONTEXTMENU, kSelf, MAKELPARAM(-1, -1), "OnContextMenu(self,-1,-1)", 0},
    {"cursor over the client area", WM_SETCURSOR, kSelf, MAKELPARAM(HTCLIENT, WM_MOUSEMOVE),
     "OnSetCursor(self,1,512)", TRUE},
    {"timer", WM_TIMER, 7, 0, "OnTimer(7)", 0},
    {"edit colours", WM_CTLCOLOREDIT, kDC, kPeer, "OnCtlColor(dc,peer,1)", kWhiteBrush},
    {"static colours", WM_CTLCOLORSTATIC, kDC, kPeer, "OnCtlColor(dc,peer,6)", kWhiteBrush},
    {"dialog code", WM_GETDLGCODE, 0, 0, "OnGetDlgCode()", DLGC_WANTCHARS | DLGC_WANTARROWS},
    {"disabled", WM_ENABLE, FALSE, 0, "OnEnable(0)", 0},
    {"shown as the parent opens", WM_SHOWWINDOW, TRUE, SW_PARENTOPENING, "OnShowWindow(1,3)", 0},
    {"close", WM_CLOSE, 0, 0, "OnClose()", 0},
    {"system colours changed", WM_SYSCOLORCHANGE, 0, 0, "OnSysColorChange()", 0},
    {"capture taken by the peer", WM_CAPTURECHANGED, 0, kPeer, "OnCaptureChanged(peer)", 0},
    {"thumb tracked on the window's own scroll bar", WM_HSCROLL, MAKEWPARAM(SB_THUMBTRACK, 55), 0,
     "OnHScroll(5,55,null)", 0},
    {"line down on a scroll-bar control", WM_VSCROLL, SB_LINEDOWN, kPeer, "OnVScroll(1,0,peer)", 0},
    {"owner draw", WM_DRAWITEM, 12, kRecord, "OnDrawItem(12,3)", TRUE},
    {"owner measure", WM_MEASUREITEM, 12, kRecord, "OnMeasureItem(12,4)", TRUE},
    {"position changing", WM_WINDOWPOSCHANGING, 0, kRecord, "OnWindowPosChanging(11,22)", 0},
    {"paint", WM_PAINT, 0, 0, "OnPaint()", 0},
    {"background erased", WM_ERASEBKGND, kDC, 0, "OnEraseBkgnd(dc)", TRUE},
    {"text through ON_MESSAGE", WM_SETTEXT, 0, kRecord, "OnSetText(hello)", TRUE},
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
        m_records = {
            {WM_DRAWITEM, reinterpret_cast<LPARAM>(&m_drawItem)},
            {WM_MEASUREITEM, reinterpret_cast<LPARAM>(&m_measureItem)},
            {WM_WINDOWPOSCHANGING, reinterpret_cast<LPARAM>(&m_windowPos)},
            {WM_SETTEXT, reinterpret_cast<LPARAM>("hello")},
        };
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
        case kRecord: return m_records.at(message);
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
    MEASUREITEMSTRUCT m_measureItem{ODT_LISTBOX, 12, 4, 0, 0, 0};
    WINDOWPOS m_windowPos{nullptr, nullptr, 11, 22, 30, 40, 0};
    std::map<UINT, LPARAM> m_records;
};

TEST_F(MessageMapTest, CrackersHandTheirHandlersTheMessageArguments)
{
    for (const CrackerRow& row : kCrackers) {
        SCOPED_TRACE(row.name);
        m_wnd.calls.clear();
        const auto message = static_cast<UINT>(Resolve(static_cast<LPARAM>(row.message), 0));
        const LRESULT result = m_wnd.SendMessage(message, static_cast<WPARAM>(Resolve(static_cast<LPARAM>(row.wParam), message)),
                                                 Resolve(row.lParam, message));
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
    afx_msg BOOL OnNcCreate(LPCREATESTRUCT lpcs)
    {
        m_log.Add("map", WM_NCCREATE);
        return CWnd::OnNcCreate(lpcs);
    }
    afx_msg int OnCreate(LPCREATESTRUCT lpcs)
    {
        m_log.Add("map", WM_CREATE);
        return m_failCreate ? -1 : CWnd::OnCreate(lpcs);
    }
    afx_msg void OnDestroy()
    {
        m_log.Add("map", WM_DESTROY);
        CWnd::OnDestroy();
    }
    afx_msg void OnNcDestroy()
    {
        m_log.Add("map", WM_NCDESTROY);
        CWnd::OnNcDestroy();
    }
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

const ExpectedMessage kLivedAndDestroyed[] = {
    {"map", WM_NCCREATE, kAnyParams, 0, 0},  {"map", WM_CREATE, kAnyParams, 0, 0},
    {"map", WM_DESTROY, kAnyParams, 0, 0},   {"map", WM_NCDESTROY, kAnyParams, 0, 0},
    {"PostNcDestroy", WM_NULL, kAnyParams, 0, 0},
};

const ExpectedMessage kRefusedCreation[] = {
    {"map", WM_NCCREATE, kAnyParams, 0, 0},
    {"map", WM_CREATE, kAnyParams, 0, 0},
    {"map", WM_DESTROY, kOptional, 0, 0},
    {"map", WM_NCDESTROY, kAnyParams, 0, 0},
    {"PostNcDestroy", WM_NULL, kAnyParams, 0, 0},
};

struct LifecycleRow {
    const char* name;
    const char* className;  // null: the framework's own class
    bool failCreate;
    const ExpectedMessage* expected;
    std::size_t count;
};

const LifecycleRow kLifecycles[] = {
    {"framework class", nullptr, false, kLivedAndDestroyed, std::size(kLivedAndDestroyed)},
    {"system edit class", "EDIT", false, kLivedAndDestroyed, std::size(kLivedAndDestroyed)},
    {"system button class", "BUTTON", false, kLivedAndDestroyed, std::size(kLivedAndDestroyed)},
    {"creation refused by OnCreate", nullptr, true, kRefusedCreation, std::size(kRefusedCreation)},
    {"system class refused by OnCreate", "EDIT", true, kRefusedCreation, std::size(kRefusedCreation)},
};

TEST_F(MessageMapTest, CreationAndDestructionMessagesReachTheMap)
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
        CompareSequence(log, row.expected, row.count, row.name, __FILE__, __LINE__);
        EXPECT_EQ(wnd.m_hWnd, nullptr);
        EXPECT_EQ(CWnd::FromHandlePermanent(hWnd), nullptr);
    }
}

}  // namespace
