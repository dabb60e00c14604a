// CToolTipCtrl: the common-controls tool tip window.
#include "afx/CToolTipCtrl.h"

#include "afx/AfxInitCommonControls.h"

#include <cassert>

BOOL CToolTipCtrl::Create(CWnd* pParentWnd, DWORD dwStyle)
{
    AfxInitCommonControls(ICC_BAR_CLASSES);
    const HWND hWndParent = pParentWnd != nullptr ? pParentWnd->m_hWnd : nullptr;
    return CreateEx(0, TOOLTIPS_CLASS, nullptr, WS_POPUP | dwStyle, CW_USEDEFAULT, CW_USEDEFAULT,
                    CW_USEDEFAULT, CW_USEDEFAULT, hWndParent, nullptr);
}

// A window tool is known by its handle under its parent; a rectangle tool by
// its id under its window. The record has the size every common-controls
// version accepts.
TOOLINFO CToolTipCtrl::ToolInfo(CWnd* pWnd, UINT_PTR nIDTool) const
{
    assert(pWnd != nullptr);
    TOOLINFO info{};
    info.cbSize = TTTOOLINFOA_V2_SIZE;
    if (nIDTool == 0) {
        info.hwnd = ::GetParent(pWnd->m_hWnd);
        info.uFlags = TTF_IDISHWND;
        info.uId = reinterpret_cast<UINT_PTR>(pWnd->m_hWnd);
    } else {
        info.hwnd = pWnd->m_hWnd;
        info.uId = nIDTool;
    }
    return info;
}

BOOL CToolTipCtrl::AddTool(CWnd* pWnd, LPCTSTR lpszText, LPCRECT lpRectTool, UINT_PTR nIDTool)
{
    assert(::IsWindow(m_hWnd));
    TOOLINFO info = ToolInfo(pWnd, nIDTool);
    if (lpRectTool != nullptr)
        info.rect = *lpRectTool;
    info.lpszText = const_cast<LPTSTR>(lpszText);
    return static_cast<BOOL>(SendMessage(TTM_ADDTOOL, 0, reinterpret_cast<LPARAM>(&info)));
}

void CToolTipCtrl::DelTool(CWnd* pWnd, UINT_PTR nIDTool)
{
    assert(::IsWindow(m_hWnd));
    TOOLINFO info = ToolInfo(pWnd, nIDTool);
    SendMessage(TTM_DELTOOL, 0, reinterpret_cast<LPARAM>(&info));
}

void CToolTipCtrl::UpdateTipText(LPCTSTR lpszText, CWnd* pWnd, UINT_PTR nIDTool)
{
    assert(::IsWindow(m_hWnd));
    TOOLINFO info = ToolInfo(pWnd, nIDTool);
    info.lpszText = const_cast<LPTSTR>(lpszText);
    SendMessage(TTM_UPDATETIPTEXT, 0, reinterpret_cast<LPARAM>(&info));
}

void CToolTipCtrl::Activate(BOOL bActivate)
{
    assert(::IsWindow(m_hWnd));
    SendMessage(TTM_ACTIVATE, static_cast<WPARAM>(bActivate));
}

void CToolTipCtrl::RelayEvent(LPMSG lpMsg)
{
    assert(::IsWindow(m_hWnd));
    SendMessage(TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(lpMsg));
}

void CToolTipCtrl::SetDelayTime(UINT nDelay)
{
    assert(::IsWindow(m_hWnd));
    SendMessage(TTM_SETDELAYTIME, TTDT_AUTOMATIC, nDelay);
}
