// CPen: a GDI pen.
#include "afx/CPen.h"

CPen::CPen(int nPenStyle, int nWidth, COLORREF crColor) { CreatePen(nPenStyle, nWidth, crColor); }

CPen* CPen::FromHandle(HPEN hPen) { return static_cast<CPen*>(CGdiObject::FromHandle(hPen)); }

BOOL CPen::CreatePen(int nPenStyle, int nWidth, COLORREF crColor)
{
    return Attach(::CreatePen(nPenStyle, nWidth, crColor));
}
