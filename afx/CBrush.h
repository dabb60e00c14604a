// CBrush: a GDI brush (solid, pattern or system colour).
#pragma once

#include "afx/CGdiObject.h"

class CBitmap;

class AFX_API CBrush : public CGdiObject {
public:
    CBrush() noexcept = default;
    explicit CBrush(COLORREF crColor);

    static CBrush* FromHandle(HBRUSH hBrush);

    BOOL CreateSolidBrush(COLORREF crColor);
    BOOL CreatePatternBrush(CBitmap* pBitmap);
    // The system keeps these brushes; deleting them is a harmless no-op.
    BOOL CreateSysColorBrush(int nIndex);

    operator HBRUSH() const noexcept { return static_cast<HBRUSH>(m_hObject); }
};
