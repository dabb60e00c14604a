// CRgn: a GDI region, used for clipping.
#pragma once

#include "afx/CGdiObject.h"

class AFX_API CRgn : public CGdiObject {
public:
    CRgn() noexcept = default;

    static CRgn* FromHandle(HRGN hRgn);

    BOOL CreateRectRgn(int x1, int y1, int x2, int y2);
    BOOL CreateRectRgnIndirect(LPCRECT lpRect);
    // The result replaces this region's contents; it must exist already.
    int CombineRgn(const CRgn* pRgn1, const CRgn* pRgn2, int nCombineMode);
    int GetRgnBox(LPRECT lpRect) const;
    BOOL PtInRegion(int x, int y) const;
    BOOL PtInRegion(POINT point) const { return PtInRegion(point.x, point.y); }

    operator HRGN() const noexcept { return static_cast<HRGN>(m_hObject); }
};
