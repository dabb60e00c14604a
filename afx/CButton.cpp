// CButton: the native button control.
#include "afx/CButton.h"

#include <cassert>

BEGIN_MESSAGE_MAP(CButton, CWnd)
    ON_WM_DRAWITEM_REFLECT()
END_MESSAGE_MAP()

BOOL CButton::Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::Create("BUTTON", lpszCaption, dwStyle, rect, pParentWnd, nID);
}

UINT CButton::GetState() const
{
    assert(::IsWindow(m_hWnd));
    return static_cast<UINT>(SendMessage(BM_GETSTATE));
}

void CButton::SetState(BOOL bHighlight)
{
    assert(::IsWindow(m_hWnd));
    SendMessage(BM_SETSTATE, static_cast<WPARAM>(bHighlight));
}

int CButton::GetCheck() const
{
    assert(::IsWindow(m_hWnd));
    return static_cast<int>(SendMessage(BM_GETCHECK));
}

void CButton::SetCheck(int nCheck)
{
    assert(::IsWindow(m_hWnd));
    SendMessage(BM_SETCHECK, static_cast<WPARAM>(nCheck));
}

UINT CButton::GetButtonStyle() const
{
    assert(::IsWindow(m_hWnd));
    return static_cast<UINT>(GetStyle() & 0xFFFF);
}

void CButton::SetButtonStyle(UINT nStyle, BOOL bRedraw)
{
    assert(::IsWindow(m_hWnd));
    SendMessage(BM_SETSTYLE, nStyle, bRedraw);
}

void CButton::DrawItem(LPDRAWITEMSTRUCT) {}
