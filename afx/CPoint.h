// CPoint: a POINT with MFC's arithmetic.
#pragma once

#include "afx/WinTypes.h"

class CSize;

class CPoint : public POINT {
public:
    CPoint() noexcept : POINT{0, 0} {}
    CPoint(int x0, int y0) noexcept : POINT{x0, y0} {}
    CPoint(POINT pt) noexcept : POINT(pt) {}

    void Offset(int dx, int dy) noexcept { x += dx; y += dy; }
    void SetPoint(int x0, int y0) noexcept { x = x0; y = y0; }

    bool operator==(POINT pt) const noexcept { return x == pt.x && y == pt.y; }
    bool operator!=(POINT pt) const noexcept { return !(*this == pt); }
    CPoint operator+(POINT pt) const noexcept { return CPoint(x + pt.x, y + pt.y); }
    CPoint operator-(POINT pt) const noexcept { return CPoint(x - pt.x, y - pt.y); }
    CPoint operator-() const noexcept { return CPoint(-x, -y); }
    CPoint& operator+=(POINT pt) noexcept { Offset(pt.x, pt.y); return *this; }
    CPoint& operator-=(POINT pt) noexcept { Offset(-pt.x, -pt.y); return *this; }
};
