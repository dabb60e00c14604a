// CClientDC: the device context of a window's client area.
#include "afx/CClientDC.h"

#include "afx/CWnd.h"

CClientDC::CClientDC(CWnd* pWnd) : m_hWnd(pWnd != nullptr ? pWnd->m_hWnd : nullptr)
{
    Attach(::GetDC(m_hWnd));
}

CClientDC::~CClientDC() { ::ReleaseDC(m_hWnd, Detach()); }
