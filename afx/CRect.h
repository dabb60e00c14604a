// CRect: a RECT with MFC's geometry helpers. Like MFC, right and bottom are
// exclusive, and an empty rectangle has no area.
#pragma once

#include "afx/CPoint.h"
#include "afx/CSize.h"

#include <algorithm>

class CRect : public RECT {
public:
    CRect() noexcept : RECT{0, 0, 0, 0} {}
    CRect(int l, int t, int r, int b) noexcept : RECT{l, t, r, b} {}
    CRect(const RECT& rc) noexcept : RECT(rc) {}
    CRect(POINT topLeft, SIZE size) noexcept
        : RECT{topLeft.x, topLeft.y, topLeft.x + size.cx, topLeft.y + size.cy} {}
    CRect(POINT topLeft, POINT bottomRight) noexcept
        : RECT{topLeft.x, topLeft.y, bottomRight.x, bottomRight.y} {}

    int Width() const noexcept { return right - left; }
    int Height() const noexcept { return bottom - top; }
    CSize Size() const noexcept { return CSize(Width(), Height()); }
    CPoint TopLeft() const noexcept { return CPoint(left, top); }
    CPoint BottomRight() const noexcept { return CPoint(right, bottom); }
    CPoint CenterPoint() const noexcept { return CPoint((left + right) / 2, (top + bottom) / 2); }

    bool IsRectEmpty() const noexcept { return right <= left || bottom <= top; }
    bool IsRectNull() const noexcept { return left == 0 && top == 0 && right == 0 && bottom == 0; }
    bool PtInRect(POINT pt) const noexcept
    {
        return pt.x >= left && pt.x < right && pt.y >= top && pt.y < bottom;
    }

    void SetRect(int l, int t, int r, int b) noexcept { left = l; top = t; right = r; bottom = b; }
    void SetRectEmpty() noexcept { SetRect(0, 0, 0, 0); }
    void OffsetRect(int dx, int dy) noexcept { left += dx; right += dx; top += dy; bottom += dy; }
    void OffsetRect(POINT pt) noexcept { OffsetRect(pt.x, pt.y); }
    void InflateRect(int dx, int dy) noexcept { left -= dx; right += dx; top -= dy; bottom += dy; }
    void DeflateRect(int dx, int dy) noexcept { InflateRect(-dx, -dy); }
    void NormalizeRect() noexcept
    {
        if (left > right) std::swap(left, right);
        if (top > bottom) std::swap(top, bottom);
    }
    bool IntersectRect(const RECT& a, const RECT& b) noexcept
    {
        SetRect(std::max(a.left, b.left), std::max(a.top, b.top),
                std::min(a.right, b.right), std::min(a.bottom, b.bottom));
        if (IsRectEmpty()) {
            SetRectEmpty();
            return false;
        }
        return true;
    }
    bool UnionRect(const RECT& a, const RECT& b) noexcept
    {
        const CRect ra(a), rb(b);
        if (ra.IsRectEmpty()) *this = rb;
        else if (rb.IsRectEmpty()) *this = ra;
        else SetRect(std::min(a.left, b.left), std::min(a.top, b.top),
                     std::max(a.right, b.right), std::max(a.bottom, b.bottom));
        return !IsRectEmpty();
    }

    bool operator==(const RECT& rc) const noexcept
    {
        return left == rc.left && top == rc.top && right == rc.right && bottom == rc.bottom;
    }
    bool operator!=(const RECT& rc) const noexcept { return !(*this == rc); }
    operator RECT*() noexcept { return this; }
    operator const RECT*() const noexcept { return this; }
};
