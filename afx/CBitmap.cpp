// CBitmap: a GDI bitmap.
#include "afx/CBitmap.h"

#include "afx/CDC.h"
#include "afx/AfxExtension.h"

#include <cassert>

CBitmap* CBitmap::FromHandle(HBITMAP hBitmap)
{
    return static_cast<CBitmap*>(CGdiObject::FromHandle(hBitmap));
}

BOOL CBitmap::LoadBitmap(LPCTSTR lpszResourceName)
{
    HINSTANCE hInst = AfxFindResourceHandle(lpszResourceName, RT_BITMAP);
    return Attach(::LoadBitmap(hInst, lpszResourceName));
}

BOOL CBitmap::LoadBitmap(UINT nIDResource) { return LoadBitmap(MAKEINTRESOURCE(nIDResource)); }

BOOL CBitmap::CreateBitmap(int nWidth, int nHeight, UINT nPlanes, UINT nBitcount, const void* lpBits)
{
    return Attach(::CreateBitmap(nWidth, nHeight, nPlanes, nBitcount, lpBits));
}

BOOL CBitmap::CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight)
{
    assert(pDC != nullptr);
    return Attach(::CreateCompatibleBitmap(pDC->GetSafeHdc(), nWidth, nHeight));
}

int CBitmap::GetBitmap(BITMAP* pBitMap) const { return GetObject(sizeof(BITMAP), pBitMap); }

CSize CBitmap::SetBitmapDimension(int nWidth, int nHeight)
{
    SIZE previous{0, 0};
    ::SetBitmapDimensionEx(*this, nWidth, nHeight, &previous);
    return previous;
}

CSize CBitmap::GetBitmapDimension() const
{
    SIZE size{0, 0};
    ::GetBitmapDimensionEx(*this, &size);
    return size;
}
