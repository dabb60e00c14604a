// CBitmap: a GDI bitmap, loaded from the resource chain or created in memory.
#pragma once

#include "afx/CGdiObject.h"
#include "afx/CSize.h"

class CDC;

class AFX_API CBitmap : public CGdiObject {
public:
    CBitmap() noexcept = default;

    static CBitmap* FromHandle(HBITMAP hBitmap);

    // Searches the application, then the extension modules (AfxFindResourceHandle).
    BOOL LoadBitmap(LPCTSTR lpszResourceName);
    BOOL LoadBitmap(UINT nIDResource);

    BOOL CreateBitmap(int nWidth, int nHeight, UINT nPlanes, UINT nBitcount, const void* lpBits);
    BOOL CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight);

    int GetBitmap(BITMAP* pBitMap) const;
    CSize SetBitmapDimension(int nWidth, int nHeight);
    CSize GetBitmapDimension() const;

    operator HBITMAP() const noexcept { return static_cast<HBITMAP>(m_hObject); }
};
