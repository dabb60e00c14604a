// CSize: a SIZE with MFC's arithmetic.
#pragma once

#include "afx/WinTypes.h"

class CSize : public SIZE {
public:
    CSize() noexcept : SIZE{0, 0} {}
    CSize(int cx0, int cy0) noexcept : SIZE{cx0, cy0} {}
    CSize(SIZE sz) noexcept : SIZE(sz) {}

    void SetSize(int cx0, int cy0) noexcept { cx = cx0; cy = cy0; }

    bool operator==(SIZE sz) const noexcept { return cx == sz.cx && cy == sz.cy; }
    bool operator!=(SIZE sz) const noexcept { return !(*this == sz); }
    CSize operator+(SIZE sz) const noexcept { return CSize(cx + sz.cx, cy + sz.cy); }
    CSize operator-(SIZE sz) const noexcept { return CSize(cx - sz.cx, cy - sz.cy); }
    CSize& operator+=(SIZE sz) noexcept { cx += sz.cx; cy += sz.cy; return *this; }
    CSize& operator-=(SIZE sz) noexcept { cx -= sz.cx; cy -= sz.cy; return *this; }
};
