// CProgressCtrl: the common-controls progress bar.
#include "afx/CProgressCtrl.h"

#include "afx/AfxInitCommonControls.h"

#include <cassert>

BOOL CProgressCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    AfxInitCommonControls(ICC_PROGRESS_CLASS);
    return CWnd::Create(PROGRESS_CLASS, nullptr, dwStyle, rect, pParentWnd, nID);
}

void CProgressCtrl::SetRange(short nLower, short nUpper)
{
    assert(::IsWindow(m_hWnd));
    SendMessage(PBM_SETRANGE, 0, MAKELPARAM(nLower, nUpper));
}

void CProgressCtrl::SetRange32(int nLower, int nUpper)
{
    assert(::IsWindow(m_hWnd));
    SendMessage(PBM_SETRANGE32, static_cast<WPARAM>(nLower), nUpper);
}

void CProgressCtrl::GetRange(int& nLower, int& nUpper) const
{
    assert(::IsWindow(m_hWnd));
    PBRANGE range{};
    SendMessage(PBM_GETRANGE, FALSE, reinterpret_cast<LPARAM>(&range));
    nLower = range.iLow;
    nUpper = range.iHigh;
}

int CProgressCtrl::GetPos() const
{
    assert(::IsWindow(m_hWnd));
    return static_cast<int>(SendMessage(PBM_GETPOS));
}

int CProgressCtrl::SetPos(int nPos)
{
    assert(::IsWindow(m_hWnd));
    return static_cast<int>(SendMessage(PBM_SETPOS, static_cast<WPARAM>(nPos)));
}

int CProgressCtrl::OffsetPos(int nPos)
{
    assert(::IsWindow(m_hWnd));
    return static_cast<int>(SendMessage(PBM_DELTAPOS, static_cast<WPARAM>(nPos)));
}

int CProgressCtrl::SetStep(int nStep)
{
    assert(::IsWindow(m_hWnd));
    return static_cast<int>(SendMessage(PBM_SETSTEP, static_cast<WPARAM>(nStep)));
}

int CProgressCtrl::StepIt()
{
    assert(::IsWindow(m_hWnd));
    return static_cast<int>(SendMessage(PBM_STEPIT));
}
