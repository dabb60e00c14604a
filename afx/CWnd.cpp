// CWnd: the handle map, the creation hook, message dispatch with reflection,
// subclassing, and the thin operations on the window handle.
#include "afx/CWnd.h"

#include "afx/AfxExtension.h"
#include "afx/AfxState.h"
#include "afx/CDC.h"
#include "afx/CFont.h"
#include "afx/CFrameWnd.h"
#include "afx/CHandleMap.h"
#include "afx/CMenu.h"
#include "afx/CScrollBar.h"
#include "afx/CWinApp.h"

#include <memory>
#include <mutex>
#include <set>
#include <string>

namespace {

using WndHandleMap = CHandleMap<CWnd, HWND, &CWnd::m_hWnd>;

std::unique_ptr<CWnd> MakeTemporaryWnd(HWND) { return std::make_unique<CWnd>(); }

WndHandleMap& ThreadWindows() { return WndHandleMap::OfThisThread(MakeTemporaryWnd); }

bool IsCtlColorMessage(UINT message)
{
    return message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC;
}

// The key a message is looked up under in a map: WM_COMMAND and WM_NOTIFY by
// notification code and control id, every WM_CTLCOLOR* message as WM_CTLCOLOR.
struct MapKey {
    UINT message;
    UINT code;
    UINT id;
};

MapKey KeyOf(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_COMMAND)
        return {WM_COMMAND, lParam != 0 ? HIWORD(wParam) : UINT(CN_COMMAND), LOWORD(wParam)};
    if (message == WM_NOTIFY) {
        const auto* pNMHDR = reinterpret_cast<const NMHDR*>(lParam);
        return {WM_NOTIFY, pNMHDR->code, static_cast<UINT>(pNMHDR->idFrom)};
    }
    if (IsCtlColorMessage(message))
        return {WM_CTLCOLOR, 0, 0};
    return {message, 0, 0};
}

// The messages a parent hands to the child they are about.
bool IsReflectable(UINT message)
{
    switch (message) {
    case WM_COMMAND:
    case WM_NOTIFY:
    case WM_HSCROLL:
    case WM_VSCROLL:
    case WM_DRAWITEM:
    case WM_MEASUREITEM:
    case WM_COMPAREITEM:
    case WM_DELETEITEM:
        return true;
    default:
        return IsCtlColorMessage(message);
    }
}

// The child a parent's message is about, for the messages a child may handle
// itself (reflection); null for every other message.
HWND NotifyingChild(HWND hWndParent, UINT message, LPARAM lParam)
{
    switch (message) {
    case WM_COMMAND:
    case WM_HSCROLL:
    case WM_VSCROLL:
        return reinterpret_cast<HWND>(lParam);
    case WM_NOTIFY:
        return reinterpret_cast<const NMHDR*>(lParam)->hwndFrom;
    case WM_DRAWITEM: {
        const auto* p = reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
        return p->CtlType == ODT_MENU ? nullptr : p->hwndItem;
    }
    case WM_MEASUREITEM: {
        // The item's window may still be inside CreateWindowEx: find it by id.
        const auto* p = reinterpret_cast<const MEASUREITEMSTRUCT*>(lParam);
        return p->CtlType == ODT_MENU ? nullptr : ::GetDlgItem(hWndParent, static_cast<int>(p->CtlID));
    }
    case WM_COMPAREITEM:
        return reinterpret_cast<const COMPAREITEMSTRUCT*>(lParam)->hwndItem;
    case WM_DELETEITEM:
        return reinterpret_cast<const DELETEITEMSTRUCT*>(lParam)->hwndItem;
    default:
        return IsCtlColorMessage(message) ? reinterpret_cast<HWND>(lParam) : nullptr;
    }
}

// Offers a parent's message to the child's OnChildNotify; true when the child took it.
BOOL ReflectToChild(HWND hWndChild, UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    CWnd* pChild = CWnd::FromHandlePermanent(hWndChild);
    return pChild != nullptr && pChild->OnChildNotify(message, wParam, lParam, pResult);
}

// Saves and restores the thread's current message around one dispatch, so that
// Default() stays right when handlers send messages that come back.
class CurrentMessageScope {
public:
    CurrentMessageScope(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
        : m_state(AfxGetThreadState()), m_saved(m_state.lastSentMsg)
    {
        m_state.lastSentMsg = MSG{hWnd, message, wParam, lParam, 0, {0, 0}};
    }
    ~CurrentMessageScope() { m_state.lastSentMsg = m_saved; }
    CurrentMessageScope(const CurrentMessageScope&) = delete;
    CurrentMessageScope& operator=(const CurrentMessageScope&) = delete;

private:
    AfxThreadState& m_state;
    MSG m_saved;
};

bool IsImeWindow(HWND hWnd)
{
    char className[32] = {};
    ::GetClassNameA(hWnd, className, sizeof className);
    return ::lstrcmpiA(className, "IME") == 0 || ::lstrcmpiA(className, "MSCTFIME UI") == 0;
}

LRESULT CALLBACK CbtFilterHook(int code, WPARAM wParam, LPARAM lParam)
{
    AfxThreadState& state = AfxGetThreadState();
    // Input-method windows may be created inside our CreateWindowEx: not ours.
    if (code == HCBT_CREATEWND && state.pWndInit != nullptr) {
        const auto hWnd = reinterpret_cast<HWND>(wParam);
        if (!IsImeWindow(hWnd)) {
            CWnd* pWnd = state.pWndInit;
            state.pWndInit = nullptr;
            pWnd->SubclassWindow(hWnd);
        }
    }
    return ::CallNextHookEx(state.hHookCbtFilter, code, wParam, lParam);
}

std::string ClassNameFor(UINT nClassStyle, HCURSOR hCursor, HBRUSH hbrBackground, HICON hIcon)
{
    char name[96];
    ::wsprintfA(name, "Afx:%p:%x:%p:%p:%p", static_cast<void*>(AfxGetInstanceHandle()), nClassStyle,
                static_cast<void*>(hCursor), static_cast<void*>(hbrBackground), static_cast<void*>(hIcon));
    return name;
}

}  // namespace

// ---- thread state and creation hook ----

AfxThreadState& AfxGetThreadState()
{
    thread_local AfxThreadState state;
    return state;
}

void AfxHookWindowCreate(CWnd* pWnd)
{
    AfxThreadState& state = AfxGetThreadState();
    if (state.hHookCbtFilter == nullptr)
        state.hHookCbtFilter = ::SetWindowsHookExA(WH_CBT, CbtFilterHook, nullptr, ::GetCurrentThreadId());
    state.pWndInit = pWnd;
}

bool AfxUnhookWindowCreate()
{
    AfxThreadState& state = AfxGetThreadState();
    if (state.hHookCbtFilter != nullptr) {
        ::UnhookWindowsHookEx(state.hHookCbtFilter);
        state.hHookCbtFilter = nullptr;
    }
    const bool attached = state.pWndInit == nullptr;
    state.pWndInit = nullptr;
    return attached;
}

LRESULT CALLBACK CWnd::WndProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam)
{
    CWnd* pWnd = FromHandlePermanent(hWnd);
    if (pWnd == nullptr)
        return ::DefWindowProcA(hWnd, nMsg, wParam, lParam);
    CurrentMessageScope scope(hWnd, nMsg, wParam, lParam);
    const LRESULT lResult = pWnd->WindowProc(nMsg, wParam, lParam);
    // Whatever the handlers did, the window is gone: the object lets go of it.
    if (nMsg == WM_NCDESTROY && CWnd::FromHandlePermanent(hWnd) == pWnd)
        pWnd->FinishNcDestroy();
    return lResult;
}

LPCTSTR AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor, HBRUSH hbrBackground, HICON hIcon)
{
    static std::mutex guard;
    static std::set<std::string> registered;
    const std::string name = ClassNameFor(nClassStyle, hCursor, hbrBackground, hIcon);
    std::lock_guard<std::mutex> lock(guard);
    auto found = registered.find(name);
    if (found != registered.end())
        return found->c_str();
    WNDCLASSA wc{};
    wc.style = nClassStyle;
    wc.lpfnWndProc = ::DefWindowProcA;  // the creation hook puts CWnd's procedure in front
    wc.hInstance = AfxGetInstanceHandle();
    wc.hCursor = hCursor;
    wc.hbrBackground = hbrBackground;
    wc.hIcon = hIcon;
    wc.lpszClassName = name.c_str();
    if (::RegisterClassA(&wc) == 0 && ::GetLastError() != ERROR_CLASS_ALREADY_EXISTS)
        return nullptr;
    return registered.insert(name).first->c_str();
}

CWnd* AfxWndFromHandle(HWND hWnd) { return CWnd::FromHandle(hWnd); }
CDC* AfxDCFromHandle(HDC hDC) { return CDC::FromHandle(hDC); }
// Trackbars and up-down controls send scroll messages too: like the framework,
// hand over the sender's CWnd as a CScrollBar (which adds nothing to CWnd).
CScrollBar* AfxScrollBarFromHandle(HWND hWnd) { return static_cast<CScrollBar*>(CWnd::FromHandle(hWnd)); }

// ---- the handle map ----

const CWnd CWnd::wndTop(HWND_TOP);
const CWnd CWnd::wndBottom(HWND_BOTTOM);
const CWnd CWnd::wndTopMost(HWND_TOPMOST);
const CWnd CWnd::wndNoTopMost(HWND_NOTOPMOST);

namespace {
HWND SafeHandle(const CWnd* pWnd) { return pWnd != nullptr ? pWnd->m_hWnd : nullptr; }
}  // namespace

CWnd::~CWnd()
{
    if (m_hWnd != nullptr && ::IsWindow(m_hWnd) && FromHandlePermanent(m_hWnd) == this)
        DestroyWindow();
}

CWnd::operator HWND() const { return SafeHandle(this); }
HWND CWnd::GetSafeHwnd() const { return SafeHandle(this); }

CWnd* CWnd::FromHandle(HWND hWnd) { return ThreadWindows().FromHandle(hWnd); }
CWnd* CWnd::FromHandlePermanent(HWND hWnd) { return ThreadWindows().LookupPermanent(hWnd); }
void CWnd::DeleteTempMap() { ThreadWindows().DeleteTemp(); }

BOOL CWnd::Attach(HWND hWndNew)
{
    if (hWndNew == nullptr)
        return FALSE;
    m_hWnd = hWndNew;
    ThreadWindows().SetPermanent(hWndNew, this);
    return TRUE;
}

HWND CWnd::Detach()
{
    const HWND hWnd = m_hWnd;
    if (hWnd != nullptr && FromHandlePermanent(hWnd) == this)
        ThreadWindows().RemoveHandle(hWnd);
    m_hWnd = nullptr;
    return hWnd;
}

BOOL CWnd::SubclassWindow(HWND hWnd)
{
    if (!Attach(hWnd))
        return FALSE;
    PreSubclassWindow();
    const auto previous = reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtrA(hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&WndProc)));
    if (previous != &WndProc)
        m_pfnSuper = previous;
    return TRUE;
}

BOOL CWnd::SubclassDlgItem(UINT nID, CWnd* pParent)
{
    const HWND hWndControl = ::GetDlgItem(pParent->GetSafeHwnd(), static_cast<int>(nID));
    return hWndControl != nullptr && SubclassWindow(hWndControl);
}

HWND CWnd::UnsubclassWindow()
{
    if (m_pfnSuper != nullptr)
        ::SetWindowLongPtrA(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(m_pfnSuper));
    m_pfnSuper = nullptr;
    return Detach();
}

void CWnd::FinishNcDestroy()
{
    if (CWinThread* pThread = AfxGetThread(); pThread != nullptr && pThread->m_pMainWnd == this) {
        // The thread's main window is gone: so is the thread's reason to run.
        pThread->m_pMainWnd = nullptr;
        ::PostQuitMessage(0);
    }
    const auto current = reinterpret_cast<WNDPROC>(::GetWindowLongPtrA(m_hWnd, GWLP_WNDPROC));
    if (m_pfnSuper != nullptr && current == &WndProc)
        ::SetWindowLongPtrA(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(m_pfnSuper));
    m_pfnSuper = nullptr;
    Detach();
    PostNcDestroy();
}

// ---- creation ----

BOOL CWnd::Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                  CWnd* pParentWnd, UINT nID, void* pContext)
{
    return CreateEx(0, lpszClassName, lpszWindowName, dwStyle | WS_CHILD, rect, pParentWnd, nID, pContext);
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                    const RECT& rect, CWnd* pParentWnd, UINT nID, LPVOID lpParam)
{
    return CreateEx(dwExStyle, lpszClassName, lpszWindowName, dwStyle, rect.left, rect.top,
                    rect.right - rect.left, rect.bottom - rect.top, pParentWnd->GetSafeHwnd(),
                    reinterpret_cast<HMENU>(static_cast<UINT_PTR>(nID)), lpParam);
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                    int x, int y, int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu,
                    LPVOID lpParam)
{
    CREATESTRUCTA cs{};
    cs.dwExStyle = dwExStyle;
    cs.lpszClass = lpszClassName;
    cs.lpszName = lpszWindowName;
    cs.style = static_cast<LONG>(dwStyle);
    cs.x = x;
    cs.y = y;
    cs.cx = nWidth;
    cs.cy = nHeight;
    cs.hwndParent = hWndParent;
    cs.hMenu = nIDorHMenu;
    cs.hInstance = AfxGetInstanceHandle();
    cs.lpCreateParams = lpParam;
    if (!PreCreateWindow(cs)) {
        PostNcDestroy();
        return FALSE;
    }
    AfxHookWindowCreate(this);
    const HWND hWnd = ::CreateWindowExA(cs.dwExStyle, cs.lpszClass, cs.lpszName, static_cast<DWORD>(cs.style),
                                        cs.x, cs.y, cs.cx, cs.cy, cs.hwndParent, cs.hMenu, cs.hInstance,
                                        cs.lpCreateParams);
    // A window that was attached and then failed went through WM_NCDESTROY
    // already; one that never existed still owes its PostNcDestroy.
    if (!AfxUnhookWindowCreate())
        PostNcDestroy();
    return hWnd != nullptr;
}

BOOL CWnd::PreCreateWindow(CREATESTRUCT& cs)
{
    if (cs.lpszClass == nullptr)
        cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursorA(nullptr, IDC_ARROW));
    return cs.lpszClass != nullptr;
}

BOOL CWnd::DestroyWindow()
{
    const HWND hWnd = m_hWnd;
    if (hWnd == nullptr)
        return FALSE;
    const bool permanent = FromHandlePermanent(hWnd) == this;
    const BOOL destroyed = ::DestroyWindow(hWnd);
    // A permanent object was detached (and may be deleted) on WM_NCDESTROY.
    if (!permanent)
        m_hWnd = nullptr;
    return destroyed;
}

void CWnd::PreSubclassWindow() {}
void CWnd::PostNcDestroy() {}

// ---- dispatch ----

const MSG* CWnd::GetCurrentMessage()
{
    MSG& msg = AfxGetThreadState().lastSentMsg;
    msg.time = static_cast<DWORD>(::GetMessageTime());
    const DWORD pos = ::GetMessagePos();
    msg.pt = {AFX_X_LPARAM(pos), AFX_Y_LPARAM(pos)};
    return &msg;
}

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    LRESULT lResult = 0;
    if (!OnWndMsg(message, wParam, lParam, &lResult))
        lResult = DefWindowProc(message, wParam, lParam);
    return lResult;
}

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    LRESULT lResult = 0;
    BOOL handled = FALSE;
    if (message == WM_COMMAND) {
        handled = OnCommand(wParam, lParam);
        lResult = handled;
    } else if (message == WM_NOTIFY) {
        handled = OnNotify(wParam, lParam, &lResult);
    } else {
        const HWND hWndChild = NotifyingChild(m_hWnd, message, lParam);
        handled = (hWndChild != nullptr && ReflectToChild(hWndChild, message, wParam, lParam, &lResult))
                  || DispatchKeyed(message, wParam, lParam, &lResult, false);
    }
    if (handled && pResult != nullptr)
        *pResult = lResult;
    return handled;
}

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam)
{
    const auto hWndCtrl = reinterpret_cast<HWND>(lParam);
    if (hWndCtrl != nullptr && ReflectToChild(hWndCtrl, WM_COMMAND, wParam, lParam, nullptr))
        return TRUE;
    LRESULT ignored = 0;
    return DispatchKeyed(WM_COMMAND, wParam, lParam, &ignored, false);
}

BOOL CWnd::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    const auto* pNMHDR = reinterpret_cast<const NMHDR*>(lParam);
    if (ReflectToChild(pNMHDR->hwndFrom, WM_NOTIFY, wParam, lParam, pResult))
        return TRUE;
    return DispatchKeyed(WM_NOTIFY, wParam, lParam, pResult, false);
}

BOOL CWnd::DispatchKeyed(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult, bool reflected)
{
    MapKey key = KeyOf(message, wParam, lParam);
    AFX_CTLCOLOR ctl{};
    if (key.message == WM_CTLCOLOR) {
        ctl = {reinterpret_cast<HWND>(lParam), reinterpret_cast<HDC>(wParam), message - WM_CTLCOLORMSGBOX};
        lParam = reinterpret_cast<LPARAM>(&ctl);
    }
    if (reflected) {
        key.message += WM_REFLECT_BASE;
        key.id = 0;
    }
    return DispatchToMap(key.message, key.code, key.id, wParam, lParam, pResult);
}

BOOL CWnd::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    return ReflectChildNotify(message, wParam, lParam, pResult);
}

BOOL CWnd::ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    if (!IsReflectable(message))
        return FALSE;
    LRESULT lResult = 0;
    if (!DispatchKeyed(message, wParam, lParam, &lResult, true))
        return FALSE;
    if (pResult != nullptr)
        *pResult = message == WM_COMMAND ? 1 : lResult;
    return TRUE;
}

BOOL CWnd::ReflectLastMsg(HWND hWndChild, LRESULT* pResult)
{
    const MSG& msg = AfxGetThreadState().lastSentMsg;
    return ReflectToChild(hWndChild, msg.message, msg.wParam, msg.lParam, pResult);
}

BOOL CWnd::SendChildNotifyLastMsg(LRESULT* pResult)
{
    const MSG& msg = AfxGetThreadState().lastSentMsg;
    return OnChildNotify(msg.message, msg.wParam, msg.lParam, pResult);
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (m_pfnSuper != nullptr)
        return ::CallWindowProcA(m_pfnSuper, m_hWnd, message, wParam, lParam);
    return ::DefWindowProcA(m_hWnd, message, wParam, lParam);
}

LRESULT CWnd::Default()
{
    const MSG& msg = AfxGetThreadState().lastSentMsg;
    return DefWindowProc(msg.message, msg.wParam, msg.lParam);
}

LRESULT CWnd::SendMessage(UINT message, WPARAM wParam, LPARAM lParam) const
{
    return ::SendMessageA(m_hWnd, message, wParam, lParam);
}

BOOL CWnd::PostMessage(UINT message, WPARAM wParam, LPARAM lParam) const
{
    return ::PostMessageA(m_hWnd, message, wParam, lParam);
}

namespace {
void SendToDescendants(HWND hWndParent, UINT message, WPARAM wParam, LPARAM lParam, bool bDeep)
{
    for (HWND hChild = ::GetTopWindow(hWndParent); hChild != nullptr; hChild = ::GetWindow(hChild, GW_HWNDNEXT)) {
        ::SendMessageA(hChild, message, wParam, lParam);
        if (bDeep)
            SendToDescendants(hChild, message, wParam, lParam, bDeep);
    }
}
}  // namespace

void CWnd::SendMessageToDescendants(UINT message, WPARAM wParam, LPARAM lParam, BOOL bDeep)
{
    SendToDescendants(m_hWnd, message, wParam, lParam, bDeep != FALSE);
}

BOOL CWnd::PreTranslateMessage(MSG*) { return FALSE; }

BOOL CWnd::PreTranslateInput(LPMSG lpMsg)
{
    const bool key = lpMsg->message >= WM_KEYFIRST && lpMsg->message <= WM_KEYLAST;
    const bool mouse = lpMsg->message >= WM_MOUSEFIRST && lpMsg->message <= WM_MOUSELAST;
    return (key || mouse) && IsDialogMessage(lpMsg);
}

BOOL CWnd::IsDialogMessage(LPMSG lpMsg) { return ::IsDialogMessageA(m_hWnd, lpMsg); }

BOOL CWnd::WalkPreTranslateTree(HWND hWndStop, MSG* pMsg)
{
    for (HWND hWnd = pMsg->hwnd; hWnd != nullptr; hWnd = ::GetParent(hWnd)) {
        if (CWnd* pWnd = FromHandlePermanent(hWnd); pWnd != nullptr && pWnd->PreTranslateMessage(pMsg))
            return TRUE;
        if (hWnd == hWndStop)
            break;
    }
    return FALSE;
}


// ---- text ----

void CWnd::SetWindowText(LPCTSTR lpszString) { ::SetWindowTextA(m_hWnd, lpszString); }

int CWnd::GetWindowText(LPTSTR lpszStringBuf, int nMaxCount) const
{
    return ::GetWindowTextA(m_hWnd, lpszStringBuf, nMaxCount);
}

void CWnd::GetWindowText(CString& rString) const
{
    const int nLength = ::GetWindowTextLengthA(m_hWnd);
    const int nCopied = ::GetWindowTextA(m_hWnd, rString.GetBufferSetLength(nLength), nLength + 1);
    rString.ReleaseBuffer(nCopied);
}

int CWnd::GetWindowTextLength() const { return ::GetWindowTextLengthA(m_hWnd); }

void CWnd::SetDlgItemText(int nID, LPCTSTR lpszString) { ::SetDlgItemTextA(m_hWnd, nID, lpszString); }

int CWnd::GetDlgItemText(int nID, CString& rString) const
{
    rString.Empty();
    if (const HWND hItem = ::GetDlgItem(m_hWnd, nID); hItem != nullptr)
        CWnd::FromHandle(hItem)->GetWindowText(rString);
    return rString.GetLength();
}

void CWnd::SetDlgItemInt(int nID, UINT nValue, BOOL bSigned) { ::SetDlgItemInt(m_hWnd, nID, nValue, bSigned); }

UINT CWnd::GetDlgItemInt(int nID, BOOL* lpTrans, BOOL bSigned) const
{
    return ::GetDlgItemInt(m_hWnd, nID, lpTrans, bSigned);
}

void CWnd::CheckDlgButton(int nIDButton, UINT nCheck) { ::CheckDlgButton(m_hWnd, nIDButton, nCheck); }
UINT CWnd::IsDlgButtonChecked(int nIDButton) const { return ::IsDlgButtonChecked(m_hWnd, nIDButton); }

// ---- style ----

namespace {
BOOL ModifyWindowLong(HWND hWnd, int nIndex, DWORD dwRemove, DWORD dwAdd, UINT nFlags)
{
    const auto dwStyle = static_cast<DWORD>(::GetWindowLongPtrA(hWnd, nIndex));
    const DWORD dwNewStyle = (dwStyle & ~dwRemove) | dwAdd;
    if (dwStyle == dwNewStyle)
        return FALSE;
    ::SetWindowLongPtrA(hWnd, nIndex, static_cast<LONG_PTR>(dwNewStyle));
    // Frame changes take effect only through SetWindowPos.
    if (nFlags != 0)
        ::SetWindowPos(hWnd, nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | nFlags);
    return TRUE;
}
}  // namespace

DWORD CWnd::GetStyle() const { return static_cast<DWORD>(::GetWindowLongPtrA(m_hWnd, GWL_STYLE)); }
DWORD CWnd::GetExStyle() const { return static_cast<DWORD>(::GetWindowLongPtrA(m_hWnd, GWL_EXSTYLE)); }

BOOL CWnd::ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags)
{
    return ModifyWindowLong(m_hWnd, GWL_STYLE, dwRemove, dwAdd, nFlags);
}

BOOL CWnd::ModifyStyleEx(DWORD dwRemove, DWORD dwAdd, UINT nFlags)
{
    return ModifyWindowLong(m_hWnd, GWL_EXSTYLE, dwRemove, dwAdd, nFlags);
}

// ---- geometry ----

void CWnd::GetWindowRect(LPRECT lpRect) const { ::GetWindowRect(m_hWnd, lpRect); }
void CWnd::GetClientRect(LPRECT lpRect) const { ::GetClientRect(m_hWnd, lpRect); }

void CWnd::MoveWindow(int x, int y, int nWidth, int nHeight, BOOL bRepaint)
{
    ::MoveWindow(m_hWnd, x, y, nWidth, nHeight, bRepaint);
}

void CWnd::MoveWindow(LPCRECT lpRect, BOOL bRepaint)
{
    MoveWindow(lpRect->left, lpRect->top, lpRect->right - lpRect->left, lpRect->bottom - lpRect->top, bRepaint);
}

BOOL CWnd::SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags)
{
    return ::SetWindowPos(m_hWnd, SafeHandle(pWndInsertAfter), x, y, cx, cy, nFlags);
}

void CWnd::ClientToScreen(LPPOINT lpPoint) const { ::ClientToScreen(m_hWnd, lpPoint); }

void CWnd::ClientToScreen(LPRECT lpRect) const
{
    ::MapWindowPoints(m_hWnd, HWND_DESKTOP, reinterpret_cast<LPPOINT>(lpRect), 2);
}

void CWnd::ScreenToClient(LPPOINT lpPoint) const { ::ScreenToClient(m_hWnd, lpPoint); }

void CWnd::ScreenToClient(LPRECT lpRect) const
{
    ::MapWindowPoints(HWND_DESKTOP, m_hWnd, reinterpret_cast<LPPOINT>(lpRect), 2);
}

void CWnd::MapWindowPoints(CWnd* pwndTo, LPPOINT lpPoint, UINT nCount) const
{
    ::MapWindowPoints(m_hWnd, SafeHandle(pwndTo), lpPoint, nCount);
}

void CWnd::MapWindowPoints(CWnd* pwndTo, LPRECT lpRect) const
{
    ::MapWindowPoints(m_hWnd, SafeHandle(pwndTo), reinterpret_cast<LPPOINT>(lpRect), 2);
}

void CWnd::CenterWindow(CWnd* pAlternateOwner)
{
    // Over the owner (a child: its parent) when it is visible, else the work area.
    HWND hWndCenter = pAlternateOwner != nullptr ? pAlternateOwner->m_hWnd
                      : (GetStyle() & WS_CHILD) ? ::GetParent(m_hWnd)
                                                : ::GetWindow(m_hWnd, GW_OWNER);
    CRect rcArea;
    if (hWndCenter != nullptr && ::IsWindowVisible(hWndCenter)) {
        ::GetWindowRect(hWndCenter, &rcArea);
    } else {
        ::SystemParametersInfoA(SPI_GETWORKAREA, 0, &rcArea, 0);
    }
    CRect rcWindow;
    GetWindowRect(&rcWindow);
    CPoint topLeft(rcArea.left + (rcArea.Width() - rcWindow.Width()) / 2,
                   rcArea.top + (rcArea.Height() - rcWindow.Height()) / 2);
    if (GetStyle() & WS_CHILD)
        ::ScreenToClient(::GetParent(m_hWnd), &topLeft);
    SetWindowPos(nullptr, topLeft.x, topLeft.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

CWnd* CWnd::ChildWindowFromPoint(POINT point) const
{
    return FromHandle(::ChildWindowFromPoint(m_hWnd, point));
}

CWnd* CWnd::WindowFromPoint(POINT point) { return FromHandle(::WindowFromPoint(point)); }

// ---- state and painting ----

BOOL CWnd::ShowWindow(int nCmdShow) { return ::ShowWindow(m_hWnd, nCmdShow); }
BOOL CWnd::IsWindowVisible() const { return ::IsWindowVisible(m_hWnd); }
BOOL CWnd::IsWindowEnabled() const { return ::IsWindowEnabled(m_hWnd); }
BOOL CWnd::EnableWindow(BOOL bEnable) { return ::EnableWindow(m_hWnd, bEnable); }
BOOL CWnd::IsIconic() const { return ::IsIconic(m_hWnd); }
BOOL CWnd::IsZoomed() const { return ::IsZoomed(m_hWnd); }
void CWnd::UpdateWindow() { ::UpdateWindow(m_hWnd); }
void CWnd::SetRedraw(BOOL bRedraw) { SendMessage(WM_SETREDRAW, static_cast<WPARAM>(bRedraw)); }
void CWnd::Invalidate(BOOL bErase) { ::InvalidateRect(m_hWnd, nullptr, bErase); }
void CWnd::InvalidateRect(LPCRECT lpRect, BOOL bErase) { ::InvalidateRect(m_hWnd, lpRect, bErase); }
void CWnd::ValidateRect(LPCRECT lpRect) { ::ValidateRect(m_hWnd, lpRect); }

BOOL CWnd::RedrawWindow(LPCRECT lpRectUpdate, HRGN hrgnUpdate, UINT flags)
{
    return ::RedrawWindow(m_hWnd, lpRectUpdate, hrgnUpdate, flags);
}

CDC* CWnd::GetDC() { return CDC::FromHandle(::GetDC(m_hWnd)); }
CDC* CWnd::GetWindowDC() { return CDC::FromHandle(::GetWindowDC(m_hWnd)); }
int CWnd::ReleaseDC(CDC* pDC) { return pDC != nullptr ? ::ReleaseDC(m_hWnd, pDC->GetSafeHdc()) : 0; }

void CWnd::SetFont(CFont* pFont, BOOL bRedraw)
{
    const HGDIOBJ hFont = pFont != nullptr ? pFont->GetSafeHandle() : nullptr;
    SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(hFont), bRedraw);
}

CFont* CWnd::GetFont() const
{
    return CFont::FromHandle(reinterpret_cast<HFONT>(SendMessage(WM_GETFONT)));
}

CMenu* CWnd::GetMenu() const { return CMenu::FromHandle(::GetMenu(m_hWnd)); }

int CWnd::MessageBox(LPCTSTR lpszText, LPCTSTR lpszCaption, UINT nType)
{
    if (lpszCaption == nullptr && AfxGetApp() != nullptr)
        lpszCaption = AfxGetApp()->m_pszAppName;
    return ::MessageBoxA(m_hWnd, lpszText, lpszCaption, nType);
}

BOOL CWnd::OpenClipboard() { return ::OpenClipboard(m_hWnd); }

// ---- focus, capture, activation ----

CWnd* CWnd::SetFocus() { return FromHandle(::SetFocus(m_hWnd)); }
CWnd* CWnd::GetFocus() { return FromHandle(::GetFocus()); }
CWnd* CWnd::SetCapture() { return FromHandle(::SetCapture(m_hWnd)); }
CWnd* CWnd::GetCapture() { return FromHandle(::GetCapture()); }
CWnd* CWnd::SetActiveWindow() { return FromHandle(::SetActiveWindow(m_hWnd)); }
CWnd* CWnd::GetActiveWindow() { return FromHandle(::GetActiveWindow()); }
BOOL CWnd::SetForegroundWindow() { return ::SetForegroundWindow(m_hWnd); }
CWnd* CWnd::GetForegroundWindow() { return FromHandle(::GetForegroundWindow()); }

// ---- timers ----

UINT_PTR CWnd::SetTimer(UINT_PTR nIDEvent, UINT nElapse, void(CALLBACK* lpfnTimer)(HWND, UINT, UINT_PTR, DWORD))
{
    return ::SetTimer(m_hWnd, nIDEvent, nElapse, lpfnTimer);
}

BOOL CWnd::KillTimer(UINT_PTR nIDEvent) { return ::KillTimer(m_hWnd, nIDEvent); }

// ---- relatives ----

namespace {
// A child's parent, a top-level window's owner.
HWND ParentOrOwner(HWND hWnd)
{
    return (::GetWindowLongPtrA(hWnd, GWL_STYLE) & WS_CHILD) ? ::GetParent(hWnd) : ::GetWindow(hWnd, GW_OWNER);
}
}  // namespace

CWnd* CWnd::GetParent() const { return FromHandle(::GetParent(m_hWnd)); }
CWnd* CWnd::SetParent(CWnd* pWndNewParent) { return FromHandle(::SetParent(m_hWnd, SafeHandle(pWndNewParent))); }
CWnd* CWnd::GetOwner() const { return m_hWndOwner != nullptr ? FromHandle(m_hWndOwner) : GetParent(); }
void CWnd::SetOwner(CWnd* pOwnerWnd) { m_hWndOwner = SafeHandle(pOwnerWnd); }

CWnd* CWnd::GetTopLevelParent() const
{
    HWND hWndTop = m_hWnd;
    for (HWND hWndUp = ParentOrOwner(hWndTop); hWndUp != nullptr; hWndUp = ParentOrOwner(hWndTop))
        hWndTop = hWndUp;
    return FromHandle(hWndTop);
}

CFrameWnd* CWnd::GetParentFrame() const
{
    for (HWND hWnd = ::GetParent(m_hWnd); hWnd != nullptr; hWnd = ::GetParent(hWnd)) {
        if (auto* pFrame = dynamic_cast<CFrameWnd*>(FromHandlePermanent(hWnd)))
            return pFrame;
    }
    return nullptr;
}

CWnd* CWnd::GetWindow(UINT nCmd) const { return FromHandle(::GetWindow(m_hWnd, nCmd)); }
BOOL CWnd::IsChild(const CWnd* pWnd) const { return ::IsChild(m_hWnd, SafeHandle(pWnd)); }
int CWnd::GetDlgCtrlID() const { return ::GetDlgCtrlID(m_hWnd); }

int CWnd::SetDlgCtrlID(int nID)
{
    return static_cast<int>(::SetWindowLongPtrA(m_hWnd, GWLP_ID, static_cast<LONG_PTR>(nID)));
}

CWnd* CWnd::GetDlgItem(int nID) const { return FromHandle(::GetDlgItem(m_hWnd, nID)); }
void CWnd::GetDlgItem(int nID, HWND* phWnd) const { *phWnd = ::GetDlgItem(m_hWnd, nID); }

namespace {
// Depth first, as the framework searches: a child with the id before its children.
HWND FindDescendant(HWND hWndParent, int nID, bool bOnlyPerm)
{
    for (HWND hChild = ::GetTopWindow(hWndParent); hChild != nullptr; hChild = ::GetWindow(hChild, GW_HWNDNEXT)) {
        if (::GetDlgCtrlID(hChild) == nID && (!bOnlyPerm || CWnd::FromHandlePermanent(hChild) != nullptr))
            return hChild;
        if (const HWND hFound = FindDescendant(hChild, nID, bOnlyPerm))
            return hFound;
    }
    return nullptr;
}
}  // namespace

CWnd* CWnd::GetDescendantWindow(int nID, BOOL bOnlyPerm) const
{
    return FromHandle(FindDescendant(m_hWnd, nID, bOnlyPerm != FALSE));
}

CWnd* CWnd::GetNextDlgTabItem(CWnd* pWndCtl, BOOL bPrevious) const
{
    return FromHandle(::GetNextDlgTabItem(m_hWnd, SafeHandle(pWndCtl), bPrevious));
}

CWnd* CWnd::GetNextDlgGroupItem(CWnd* pWndCtl, BOOL bPrevious) const
{
    return FromHandle(::GetNextDlgGroupItem(m_hWnd, SafeHandle(pWndCtl), bPrevious));
}

// ---- help ----

BOOL CWnd::SetWindowContextHelpId(DWORD dwContextHelpId) { return ::SetWindowContextHelpId(m_hWnd, dwContextHelpId); }
DWORD CWnd::GetWindowContextHelpId() const { return ::GetWindowContextHelpId(m_hWnd); }

namespace {
LPCTSTR HelpFilePath()
{
    const CWinApp* pApp = AfxGetApp();
    return pApp != nullptr ? pApp->m_pszHelpFilePath : nullptr;
}
}  // namespace

void CWnd::WinHelp(DWORD_PTR dwData, UINT nCmd)
{
    ::WinHelpA(GetTopLevelParent()->GetSafeHwnd(), HelpFilePath(), nCmd, dwData);
}

void CWnd::HtmlHelp(DWORD_PTR dwData, UINT nCmd)
{
    AfxCallHtmlHelp(GetTopLevelParent()->GetSafeHwnd(), HelpFilePath(), nCmd, dwData);
}

// ---- default handlers: the current message, unchanged, to the original procedure ----

int CWnd::OnCreate(LPCREATESTRUCT) { return static_cast<int>(Default()); }
BOOL CWnd::OnNcCreate(LPCREATESTRUCT) { return static_cast<BOOL>(Default()); }
void CWnd::OnDestroy() { Default(); }
void CWnd::OnNcDestroy() { Default(); }
void CWnd::OnPaint() { Default(); }
BOOL CWnd::OnEraseBkgnd(CDC*) { return static_cast<BOOL>(Default()); }
void CWnd::OnSize(UINT, int, int) { Default(); }
void CWnd::OnMove(int, int) { Default(); }
void CWnd::OnChar(UINT, UINT, UINT) { Default(); }
void CWnd::OnKeyDown(UINT, UINT, UINT) { Default(); }
void CWnd::OnKeyUp(UINT, UINT, UINT) { Default(); }
void CWnd::OnSysKeyDown(UINT, UINT, UINT) { Default(); }
void CWnd::OnSetFocus(CWnd*) { Default(); }
void CWnd::OnKillFocus(CWnd*) { Default(); }
void CWnd::OnLButtonDown(UINT, CPoint) { Default(); }
void CWnd::OnRButtonDown(UINT, CPoint) { Default(); }
void CWnd::OnLButtonUp(UINT, CPoint) { Default(); }
void CWnd::OnLButtonDblClk(UINT, CPoint) { Default(); }
void CWnd::OnMouseMove(UINT, CPoint) { Default(); }
void CWnd::OnNcLButtonDown(UINT, CPoint) { Default(); }
void CWnd::OnContextMenu(CWnd*, CPoint) { Default(); }
BOOL CWnd::OnSetCursor(CWnd*, UINT, UINT) { return static_cast<BOOL>(Default()); }
void CWnd::OnTimer(UINT_PTR) { Default(); }
HBRUSH CWnd::OnCtlColor(CDC*, CWnd*, UINT) { return reinterpret_cast<HBRUSH>(Default()); }
UINT CWnd::OnGetDlgCode() { return static_cast<UINT>(Default()); }
void CWnd::OnEnable(BOOL) { Default(); }
void CWnd::OnShowWindow(BOOL, UINT) { Default(); }
void CWnd::OnClose() { Default(); }
void CWnd::OnSysColorChange() { Default(); }
void CWnd::OnCaptureChanged(CWnd*) { Default(); }
void CWnd::OnHScroll(UINT, UINT, CScrollBar*) { Default(); }
void CWnd::OnVScroll(UINT, UINT, CScrollBar*) { Default(); }
void CWnd::OnDrawItem(int, LPDRAWITEMSTRUCT) { Default(); }
void CWnd::OnMeasureItem(int, LPMEASUREITEMSTRUCT) { Default(); }
void CWnd::OnWindowPosChanging(WINDOWPOS*) { Default(); }
