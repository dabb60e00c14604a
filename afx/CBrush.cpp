// CBrush: a GDI brush.
#include "afx/CBrush.h"

#include "afx/CBitmap.h"

#include <cassert>

CBrush::CBrush(COLORREF crColor) { CreateSolidBrush(crColor); }

CBrush* CBrush::FromHandle(HBRUSH hBrush) { return static_cast<CBrush*>(CGdiObject::FromHandle(hBrush)); }

BOOL CBrush::CreateSolidBrush(COLORREF crColor) { return Attach(::CreateSolidBrush(crColor)); }

BOOL CBrush::CreatePatternBrush(CBitmap* pBitmap)
{
    assert(pBitmap != nullptr);
    return Attach(::CreatePatternBrush(static_cast<HBITMAP>(pBitmap->GetSafeHandle())));
}

BOOL CBrush::CreateSysColorBrush(int nIndex) { return Attach(::GetSysColorBrush(nIndex)); }
