#include "buttons/kvBmpButtonLayout.h"

#include <algorithm>

namespace {

using Layout = kvBmpButtonLayout;

constexpr int kImageRoomX = -2 * Layout::ImageOffset.x;
constexpr int kImageRoomY = -2 * Layout::ImageOffset.y;
constexpr int kTextRoomX = -2 * Layout::TextOffset.x;
constexpr int kTextRoomY = -Layout::TextOffset.y;

bool HasCaption(CSize textSize) { return textSize.cx != 0 && textSize.cy != 0; }

bool IsStacked(Layout::textPos pos) { return pos == Layout::TextAbove || pos == Layout::TextBelow; }

// Origins start at the rectangle's corner; each arrangement moves them.
struct Origins {
    int ix, iy;
    int tx, ty;
};

void PlaceHorizontally(Origins& at, int W, int iw, int tw, Layout::textPos pos, Layout::Alignment align)
{
    int& ix = at.ix;
    int& tx = at.tx;
    switch (align) {
    case Layout::AlignNear:
        if (pos == Layout::TextRight) {
            ix += 2;
            tx = ix + iw + 2;
        } else if (iw <= tw) {
            tx += 2;
            ix = tx + tw / 2 - iw / 2;
        } else {
            ix += 2;
            tx = ix + iw / 2 - tw / 2;
        }
        break;
    case Layout::AlignFar:
        if (pos == Layout::TextLeft) {
            ix += W - iw - 3;
            tx = ix - tw - 2;
        } else if (iw <= tw) {
            tx += W - tw - 2;
            ix = tx + tw / 2 - iw / 2;
        } else {
            ix += W - iw - 2;
            tx = ix + iw / 2 - tw / 2;
        }
        break;
    case Layout::AlignCentre:
        if (pos == Layout::TextLeft) {
            tx += W / 2 - (tw + iw) / 2 - 1;
            ix = tx + tw + 2;
        } else if (pos == Layout::TextRight) {
            ix += W / 2 - (tw + iw) / 2 - 1;
            tx = ix + iw + 2;
        } else {
            tx += W / 2 - tw / 2;
            ix += W / 2 - iw / 2;
        }
        break;
    }
}

void PlaceVertically(Origins& at, int H, int ih, int th, Layout::textPos pos, Layout::Alignment align)
{
    int& iy = at.iy;
    int& ty = at.ty;
    switch (align) {
    case Layout::AlignNear:
        // Stacked, the image is on top whichever side the caption belongs to.
        if (IsStacked(pos)) {
            iy += 2;
            ty = iy + ih + 2;
        } else if (th > ih) {
            ty += 2;
            iy += th / 2 + 2 - ih / 2;
        } else {
            iy += 2;
            ty += (ih - th) / 2 + 2;
        }
        break;
    case Layout::AlignFar:
        // Stacked, the caption is above whichever side it belongs to.
        if (IsStacked(pos)) {
            iy += H - ih - 2;
            ty = iy - 2 - th;
        } else if (ih <= th) {
            ty += H - th - 2;
            iy = ty + th / 2 - ih / 2;
        } else {
            iy += H - ih - 2;
            ty = iy + ih / 2 - th / 2;
        }
        break;
    case Layout::AlignCentre:
        if (pos == Layout::TextAbove) {
            ty += H / 2 - (ih + th + 2) / 2;
            iy = ty + th + 2;
        } else if (pos == Layout::TextBelow) {
            // Half the image's height: the caption overlaps the lower half of its box.
            iy += H / 2 - (th + ih + 2) / 2;
            ty = iy + ih / 2 + 2;
        } else {
            iy += H / 2 - ih / 2;
            ty += H / 2 - th / 2;
        }
        break;
    }
}

}  // namespace

kvBmpButtonLayout kvBmpButtonLayout::Distribute(const CRect& rect, CSize textSize, CSize imageSize, textPos pos,
                                                Alignment horizontal, Alignment vertical, bool selected)
{
    const int W = rect.Width();
    const int H = rect.Height();
    int available = H;

    int tw = static_cast<int>(textSize.cx);
    int th = static_cast<int>(textSize.cy);
    if (HasCaption(textSize)) {
        int neededHeight = th + kTextRoomY;
        if (W < tw + kTextRoomX)
            tw = std::max(W - kTextRoomX, 0);
        if (available < neededHeight) {
            th = std::max(available - kTextRoomY, 0);
            neededHeight = available;
        }
        if (IsStacked(pos))
            available -= neededHeight;
    }

    int iw = static_cast<int>(imageSize.cx);
    int ih = static_cast<int>(imageSize.cy);
    if (W < iw + kImageRoomX)
        iw = std::max(W - kImageRoomX, 0);
    if (available < ih + kImageRoomY)
        ih = std::max(available - kImageRoomY, 0);

    Origins at{static_cast<int>(rect.left), static_cast<int>(rect.top), static_cast<int>(rect.left),
               static_cast<int>(rect.top)};
    PlaceHorizontally(at, W, iw, tw, pos, horizontal);
    PlaceVertically(at, H, ih, th, pos, vertical);

    kvBmpButtonLayout layout;
    layout.face = rect;
    layout.image = CRect(at.ix, at.iy, at.ix + iw, at.iy + ih);
    if (HasCaption(textSize))
        layout.caption = CRect(at.tx, at.ty, at.tx + tw, at.ty + th);
    if (selected) {
        layout.image.OffsetRect(DownOffset);
        layout.caption.OffsetRect(DownOffset);
    }
    return layout;
}

CSize kvBmpButtonLayout::FitSize(CSize imageSize, CSize textSize)
{
    const CSize caption = HasCaption(textSize) ? textSize + CSize(kTextRoomX, kTextRoomY) : textSize;
    return CSize(std::max<LONG>(imageSize.cx + kImageRoomX, caption.cx), imageSize.cy + kImageRoomY + caption.cy);
}
