// CScrollBar: a scroll-bar control. Scroll messages hand their handlers the
// sending control as a CScrollBar, as the framework always has. Header-only:
// it adds no data to CWnd.
#pragma once

#include "afx/CWnd.h"

class CScrollBar : public CWnd {
public:
    // SBM_GETPOS / SBM_SETPOS
    int GetScrollPos() const { return ::GetScrollPos(m_hWnd, SB_CTL); }
    int SetScrollPos(int nPos, BOOL bRedraw = TRUE) { return ::SetScrollPos(m_hWnd, SB_CTL, nPos, bRedraw); }
    // SBM_SETRANGE
    void SetScrollRange(int nMinPos, int nMaxPos, BOOL bRedraw = TRUE)
    {
        ::SetScrollRange(m_hWnd, SB_CTL, nMinPos, nMaxPos, bRedraw);
    }
    // SBM_GETSCROLLINFO / SBM_SETSCROLLINFO
    BOOL GetScrollInfo(LPSCROLLINFO lpScrollInfo) const { return ::GetScrollInfo(m_hWnd, SB_CTL, lpScrollInfo); }
    BOOL SetScrollInfo(LPSCROLLINFO lpScrollInfo, BOOL bRedraw = TRUE)
    {
        return ::SetScrollInfo(m_hWnd, SB_CTL, lpScrollInfo, bRedraw);
    }
};
