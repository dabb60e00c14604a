// CFrameWnd: the main window with its status bar at the bottom.
#include "afx/CFrameWnd.h"

#include "afx/AfxExtension.h"

const CRect CFrameWnd::rectDefault(CW_USEDEFAULT, CW_USEDEFAULT, 0, 0);

BEGIN_MESSAGE_MAP(CFrameWnd, CWnd)
    ON_WM_SIZE()
    ON_WM_SETFOCUS()
END_MESSAGE_MAP()

BOOL CFrameWnd::Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                       CWnd* pParentWnd, LPCTSTR lpszMenuName, DWORD dwExStyle, void* pContext)
{
    HMENU hMenu = nullptr;
    if (lpszMenuName != nullptr) {
        hMenu = ::LoadMenuA(AfxFindResourceHandle(lpszMenuName, RT_MENU), lpszMenuName);
        if (hMenu == nullptr) {
            PostNcDestroy();  // a frame that fails to be created is gone, whatever the reason
            return FALSE;
        }
    }
    // rectDefault (left at CW_USEDEFAULT) lets Windows choose the place and the size.
    const bool bDefault = rect.left == CW_USEDEFAULT;
    if (!CreateEx(dwExStyle, lpszClassName, lpszWindowName, dwStyle, rect.left, rect.top,
                  bDefault ? CW_USEDEFAULT : rect.right - rect.left,
                  bDefault ? CW_USEDEFAULT : rect.bottom - rect.top, pParentWnd->GetSafeHwnd(), hMenu,
                  pContext)) {
        if (hMenu != nullptr)
            ::DestroyMenu(hMenu);
        return FALSE;
    }
    return TRUE;
}

BOOL CFrameWnd::PreCreateWindow(CREATESTRUCT& cs)
{
    if (cs.lpszClass == nullptr) {
        cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW, ::LoadCursorA(nullptr, IDC_ARROW),
                                           reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1));
    }
    return cs.lpszClass != nullptr;
}

void CFrameWnd::PostNcDestroy() { delete this; }

CWnd* CFrameWnd::GetMessageBar() { return GetDlgItem(AFX_IDW_STATUS_BAR); }

void CFrameWnd::RecalcLayout(BOOL)
{
    CRect rcClient;
    GetClientRect(&rcClient);
    if (CWnd* pBar = GetMessageBar(); pBar != nullptr && pBar->IsWindowVisible()) {
        CRect rcBar;
        pBar->GetWindowRect(&rcBar);
        rcClient.bottom -= rcBar.Height();
        pBar->SetWindowPos(nullptr, 0, rcClient.bottom, rcClient.Width(), rcBar.Height(),
                           SWP_NOZORDER | SWP_NOACTIVATE);
    }
    if (CWnd* pView = GetDlgItem(AFX_IDW_PANE_FIRST))
        pView->MoveWindow(&rcClient);
}

void CFrameWnd::SetMessageText(LPCTSTR lpszText)
{
    if (CWnd* pBar = GetMessageBar())
        pBar->SetWindowText(lpszText);
}

void CFrameWnd::SetMessageText(UINT nID)
{
    char text[256] = {};
    const LPCTSTR lpszName = MAKEINTRESOURCEA((nID >> 4) + 1);  // strings live in tables of 16
    ::LoadStringA(AfxFindResourceHandle(lpszName, RT_STRING), nID, text, sizeof text);
    SetMessageText(text);
}

void CFrameWnd::OnSize(UINT nType, int cx, int cy)
{
    CWnd::OnSize(nType, cx, cy);
    if (nType != SIZE_MINIMIZED)
        RecalcLayout();
}

void CFrameWnd::OnSetFocus(CWnd* pOldWnd)
{
    // The view takes the focus the frame is given.
    if (CWnd* pView = GetDlgItem(AFX_IDW_PANE_FIRST))
        pView->SetFocus();
    else
        CWnd::OnSetFocus(pOldWnd);
}
