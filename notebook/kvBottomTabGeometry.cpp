// kvBottomTabGeometry: heights, widths, item rectangles, the hit test and the
// outlines of the bottom tabs.
#include "notebook/kvBottomTabGeometry.h"

#include <algorithm>

namespace {
unsigned PackLowBytes(int width, int height) { return (width & 0xFF) | ((height & 0xFF) << 8); }
}  // namespace

int kvBottomTabGeometry::TabHeight() const
{
    return itemHeight != 0 ? itemHeight + paddingY : fontHeight + paddingY + 3;
}

double kvBottomTabGeometry::Overlap() const { return overlap == -1.0 ? TabHeight() * slope : overlap; }

int kvBottomTabGeometry::ExtraWidth() const
{
    return paddingX + static_cast<int>(TabHeight() * (2 * slope)) + 8;
}

int kvBottomTabGeometry::DefaultTabWidth() const { return 9 * aveCharWidth; }

unsigned kvBottomTabGeometry::SetItemSize(int width, int height)
{
    const unsigned previous = PackLowBytes(fixedItemWidth, itemHeight);
    fixedItemWidth = width;
    itemHeight = height;
    return previous;
}

unsigned kvBottomTabGeometry::SetPadding(int x, int y)
{
    const unsigned previous = PackLowBytes(paddingX, paddingY);
    paddingX = x;
    paddingY = y;
    return previous;
}

int kvBottomTabGeometry::SetMinTabWidth(int width)
{
    const int previous = minTabWidth == -1 ? DefaultTabWidth() : minTabWidth;
    minTabWidth = width;
    return previous;
}

void kvBottomTabGeometry::AdjustRect(bool larger, RECT& rect) const
{
    const int strip = TabHeight() + 2;
    rect.bottom += larger ? strip : -strip;
}

CRect kvBottomTabGeometry::StripRect(const CRect& client) const
{
    return CRect(client.left, client.bottom - TabHeight() - 2, client.right, client.bottom);
}

int kvBottomTabGeometry::TabWidth(int textWidth) const
{
    const int lowest = minTabWidth != -1 ? minTabWidth : DefaultTabWidth();
    return std::max(textWidth + ExtraWidth(), lowest);
}

std::vector<CRect> kvBottomTabGeometry::ItemRects(const std::vector<int>& textWidths, bool fixedWidth,
                                                  const CRect& client) const
{
    int widest = fixedItemWidth;
    if (fixedWidth && widest == 0) {
        for (const int textWidth : textWidths)
            widest = std::max(widest, textWidth + ExtraWidth());
    }
    const CRect strip = StripRect(client);
    std::vector<CRect> rects;
    int left = firstTabOffset;
    for (const int textWidth : textWidths) {
        const int width = fixedWidth ? widest : TabWidth(textWidth);
        rects.emplace_back(left, strip.top, left + width, strip.bottom);
        left += width;
    }
    return rects;
}

std::vector<kvBottomTabGeometry::Span> kvBottomTabGeometry::Spans(const std::vector<CRect>& itemRects) const
{
    const int shift = static_cast<int>(Overlap());
    std::vector<Span> spans;
    for (const CRect& rect : itemRects) {
        const int left = spans.empty() ? firstTabOffset : spans.back().right - shift;
        spans.push_back({left, left + rect.Width()});
    }
    return spans;
}

int kvBottomTabGeometry::HitTest(POINT point, const std::vector<CRect>& itemRects) const
{
    if (itemRects.empty() || point.y < itemRects[0].top || point.y > itemRects[0].bottom)
        return -1;
    const double inset = slope * (point.y - itemRects[0].top);
    const std::vector<Span> spans = Spans(itemRects);
    for (std::size_t i = 0; i < spans.size(); ++i) {
        if (spans[i].left + inset <= point.x && point.x <= spans[i].right - inset)
            return static_cast<int>(i);
    }
    return -1;
}

int kvBottomTabGeometry::Inset(int depth) const { return static_cast<int>(slope * depth); }

std::array<CPoint, 4> kvBottomTabGeometry::Trapezoid(const Span& span, int top, int depth) const
{
    const int bottom = top + depth;
    return {CPoint(span.left, top), CPoint(span.right, top), CPoint(span.right - Inset(depth), bottom),
            CPoint(span.left + Inset(depth), bottom)};
}

CRect kvBottomTabGeometry::TextRect(const Span& span, int top, int depth) const
{
    return CRect(span.left + Inset(depth), top, span.right - Inset(depth), top + depth);
}
