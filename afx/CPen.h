// CPen: a GDI pen.
#pragma once

#include "afx/CGdiObject.h"

class AFX_API CPen : public CGdiObject {
public:
    CPen() noexcept = default;
    CPen(int nPenStyle, int nWidth, COLORREF crColor);

    static CPen* FromHandle(HPEN hPen);

    BOOL CreatePen(int nPenStyle, int nWidth, COLORREF crColor);

    operator HPEN() const noexcept { return static_cast<HPEN>(m_hObject); }
};
