// CRgn: a GDI region.
#include "afx/CRgn.h"

#include <cassert>

CRgn* CRgn::FromHandle(HRGN hRgn) { return static_cast<CRgn*>(CGdiObject::FromHandle(hRgn)); }

BOOL CRgn::CreateRectRgn(int x1, int y1, int x2, int y2) { return Attach(::CreateRectRgn(x1, y1, x2, y2)); }

BOOL CRgn::CreateRectRgnIndirect(LPCRECT lpRect) { return Attach(::CreateRectRgnIndirect(lpRect)); }

int CRgn::CombineRgn(const CRgn* pRgn1, const CRgn* pRgn2, int nCombineMode)
{
    assert(m_hObject != nullptr && pRgn1 != nullptr);
    return ::CombineRgn(*this, *pRgn1, pRgn2 != nullptr ? static_cast<HRGN>(*pRgn2) : nullptr,
                        nCombineMode);
}

int CRgn::GetRgnBox(LPRECT lpRect) const
{
    assert(m_hObject != nullptr);
    return ::GetRgnBox(*this, lpRect);
}

BOOL CRgn::PtInRegion(int x, int y) const
{
    assert(m_hObject != nullptr);
    return ::PtInRegion(*this, x, y);
}
