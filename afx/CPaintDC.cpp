// CPaintDC: the device context of one WM_PAINT.
#include "afx/CPaintDC.h"

#include "afx/CWnd.h"

#include <cassert>

CPaintDC::CPaintDC(CWnd* pWnd)
{
    assert(pWnd != nullptr && ::IsWindow(pWnd->m_hWnd));
    m_hWnd = pWnd->m_hWnd;
    Attach(::BeginPaint(m_hWnd, &m_ps));
}

CPaintDC::~CPaintDC()
{
    ::EndPaint(m_hWnd, &m_ps);
    Detach();
}
