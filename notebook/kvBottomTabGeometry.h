// kvBottomTabGeometry: where the tabs of a bottom-tab notebook lie. The tabs are
// trapezoids in a strip along the window's bottom edge, widest where they meet
// the page and narrowing by the slope per pixel going down; neighbours overlap.
// Pure arithmetic on the notebook's settings and its parent font's metrics, so
// that the window only measures texts and draws what this computes.
#pragma once

#include "afx/CPoint.h"
#include "afx/CRect.h"
#include "library/kvWinExport.h"

#include <array>
#include <vector>

struct KVWIN_API kvBottomTabGeometry {
    // A tab's horizontal extent at its top edge, overlap applied.
    struct Span {
        int left;
        int right;
    };

    // The settings, changed through the tab messages.
    int firstTabOffset = 4;
    int fixedItemWidth = 0;
    int itemHeight = 0;  // 0: from the font
    int paddingX = 0;
    int paddingY = 0;
    double slope = 0.5;
    double overlap = -1.0;  // -1: derived from the height and slope
    int minTabWidth = -1;   // -1: the default width
    // The parent font's metrics (tmHeight, tmAveCharWidth).
    int fontHeight = 0;
    int aveCharWidth = 0;

    int TabHeight() const;
    double Overlap() const;
    // The room the slanted sides and the margins add to a tab's text.
    int ExtraWidth() const;
    int DefaultTabWidth() const;

    // The previous size or padding, 8 bits each: width in bits 0-7, height in 8-15.
    unsigned SetItemSize(int width, int height);
    unsigned SetPadding(int x, int y);
    // The previous minimum width (the default width when none was set).
    int SetMinTabWidth(int width);
    // Between the page area and the whole window: the tab strip is added or taken off.
    void AdjustRect(bool larger, RECT& rect) const;

    // The strip the tabs are drawn in.
    CRect StripRect(const CRect& client) const;
    // One rectangle per tab, abutting, from the widths of the tabs' texts.
    std::vector<CRect> ItemRects(const std::vector<int>& textWidths, bool fixedWidth, const CRect& client) const;
    std::vector<Span> Spans(const std::vector<CRect>& itemRects) const;
    // The first tab that holds the point, or -1; the edges count as inside.
    int HitTest(POINT point, const std::vector<CRect>& itemRects) const;
    // A tab's outline from its top-left corner clockwise, depth pixels deep.
    std::array<CPoint, 4> Trapezoid(const Span& span, int top, int depth) const;
    // The room between the slanted sides, for the tab's text.
    CRect TextRect(const Span& span, int top, int depth) const;

private:
    int TabWidth(int textWidth) const;
    int Inset(int depth) const;
};
