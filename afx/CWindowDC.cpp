// CWindowDC: the device context of a whole window.
#include "afx/CWindowDC.h"

#include "afx/CWnd.h"

CWindowDC::CWindowDC(CWnd* pWnd) : m_hWnd(pWnd != nullptr ? pWnd->m_hWnd : nullptr)
{
    Attach(::GetWindowDC(m_hWnd));
}

CWindowDC::~CWindowDC() { ::ReleaseDC(m_hWnd, Detach()); }
