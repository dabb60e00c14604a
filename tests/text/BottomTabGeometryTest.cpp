// The bottom tabs' geometry: heights and widths from the font, item rectangles,
// the hit test on the slanted sides, the 8-bit answers and the adjust rectangle.
#include "notebook/kvBottomTabGeometry.h"

#include <gtest/gtest.h>

namespace {

// A parent font 13 pixels high, 5 wide on average: tabs 16 high, overlapping
// by 8, 24 wider than their texts, at least 45 wide.
kvBottomTabGeometry Tabs(int fixedItemWidth = 0, int minTabWidth = -1, double overlap = -1.0)
{
    kvBottomTabGeometry tabs;
    tabs.fontHeight = 13;
    tabs.aveCharWidth = 5;
    tabs.fixedItemWidth = fixedItemWidth;
    tabs.minTabWidth = minTabWidth;
    tabs.overlap = overlap;
    return tabs;
}

const CRect kClient(0, 0, 300, 100);  // the strip runs from y = 82 to 100

struct SizeRow { const char* name; int itemHeight, paddingX, paddingY; double slope, overlap, derivedOverlap;
                 int height, extraWidth; };
const SizeRow kSizes[] = {
    {"font of height 13", 0, 0, 0, 0.5, -1.0, 8.0, 16, 24},
    {"vertical padding adds to the font's height", 0, 0, 4, 0.5, -1.0, 10.0, 20, 28},
    {"an item height replaces the font's", 30, 0, 2, 0.5, -1.0, 16.0, 32, 40},
    {"horizontal padding widens only", 0, 6, 0, 0.5, -1.0, 8.0, 16, 30},
    {"a fractional slant is truncated", 0, 0, 0, 0.3, -1.0, 4.8, 16, 17},
    {"an overlap set keeps its value", 0, 0, 0, 0.5, 3.5, 3.5, 16, 24},
};

TEST(BottomTabGeometry, HeightOverlapAndExtraWidth)
{
    for (const SizeRow& row : kSizes) {
        SCOPED_TRACE(row.name);
        kvBottomTabGeometry tabs = Tabs(0, -1, row.overlap);
        tabs.itemHeight = row.itemHeight;
        tabs.paddingX = row.paddingX;
        tabs.paddingY = row.paddingY;
        tabs.slope = row.slope;
        EXPECT_EQ(tabs.TabHeight(), row.height);
        EXPECT_DOUBLE_EQ(tabs.Overlap(), row.derivedOverlap);
        EXPECT_EQ(tabs.ExtraWidth(), row.extraWidth);
    }
}

struct WidthRow { const char* name; bool fixedStyle; int fixedItemWidth, minTabWidth; std::vector<int> textWidths, widths; };
const WidthRow kWidths[] = {
    {"text plus the extra width", false, 0, -1, {30, 50}, {54, 74}},
    {"raised to the default width of 9 average characters", false, 0, -1, {10, 21}, {45, 45}},
    {"raised to the minimum width when set, never lowered", false, 0, 60, {10, 50}, {60, 74}},
    {"fixed width: the widest text", true, 0, -1, {10, 50, 30}, {74, 74, 74}},
    {"fixed width: the item width when set", true, 40, -1, {10, 50}, {40, 40}},
    {"the fixed item width counts only in the fixed style", false, 40, -1, {30}, {54}},
};

TEST(BottomTabGeometry, ItemRectanglesAbutFromTheFirstTabOffset)
{
    for (const WidthRow& row : kWidths) {
        SCOPED_TRACE(row.name);
        const kvBottomTabGeometry tabs = Tabs(row.fixedItemWidth, row.minTabWidth);
        const std::vector<CRect> rects = tabs.ItemRects(row.textWidths, row.fixedStyle, kClient);
        ASSERT_EQ(rects.size(), row.widths.size());
        for (int i = 0, left = 4; i < int(rects.size()); left += row.widths[i++])
            EXPECT_EQ(rects[i], CRect(left, 82, left + row.widths[i], 100)) << "tab " << i;
    }
}

TEST(BottomTabGeometry, HitTestFollowsTheSlantedSides)
{
    // At the top of the strip tab 0 spans 4..58, tab 1 50..124, tab 2 116..170;
    // each side moves in half a pixel per pixel down.
    const kvBottomTabGeometry tabs = Tabs();
    const std::vector<CRect> rects = tabs.ItemRects({30, 50, 30}, false, kClient);
    for (int depth = 0; depth <= 18; depth += 2) {
        SCOPED_TRACE("depth " + std::to_string(depth));
        const int y = 82 + depth, inset = depth / 2;
        EXPECT_EQ(tabs.HitTest({4 + inset, y}, rects), 0) << "on the first tab's left side";
        EXPECT_EQ(tabs.HitTest({3 + inset, y}, rects), -1) << "left of it";
        EXPECT_EQ(tabs.HitTest({170 - inset, y}, rects), 2) << "on the last tab's right side";
        EXPECT_EQ(tabs.HitTest({171 - inset, y}, rects), -1) << "right of it";
        EXPECT_EQ(tabs.HitTest({50 + inset, y}, rects), depth <= 8 ? 0 : 1) << "the earlier tab wins the overlap";
        EXPECT_EQ(tabs.HitTest({49 + inset, y}, rects), depth <= 8 ? 0 : -1) << "between the neighbours' sides";
    }
    const struct { const char* name; double overlap; POINT point; int item; } rows[] = {
        {"above the strip", -1.0, {100, 81}, -1},
        {"below the window", -1.0, {100, 101}, -1},
        {"abutting tabs: the earlier tab's right edge", 0.0, {58, 82}, 0},
        {"abutting tabs: one pixel on", 0.0, {59, 82}, 1},
        {"abutting tabs: no overlap below the top", 0.0, {56, 90}, -1},
    };
    for (const auto& row : rows)
        EXPECT_EQ(Tabs(0, -1, row.overlap).HitTest(row.point, rects), row.item) << row.name;
    EXPECT_EQ(tabs.HitTest({30, 90}, {}), -1) << "no tabs";
}

TEST(BottomTabGeometry, AnswersInEightBitsAndTheAdjustedRectangle)
{
    kvBottomTabGeometry tabs = Tabs();
    EXPECT_EQ(tabs.SetItemSize(300, 256), 0u);
    EXPECT_EQ(tabs.SetItemSize(0, 0), 44u) << "300 and 256 in their low 8 bits";
    EXPECT_EQ(tabs.SetPadding(10, 20), 0u);
    EXPECT_EQ(tabs.SetPadding(0, 0), 10u | (20u << 8)) << "x in bits 0-7, y in 8-15";
    EXPECT_EQ(tabs.SetMinTabWidth(70), 45) << "the default width until set";
    EXPECT_EQ(tabs.SetMinTabWidth(-1), 70);
    RECT rect{10, 10, 200, 100};
    tabs.AdjustRect(false, rect);
    EXPECT_EQ(CRect(rect), CRect(10, 10, 200, 82)) << "the strip taken off";
    tabs.AdjustRect(true, rect);
    EXPECT_EQ(CRect(rect), CRect(10, 10, 200, 100)) << "and added back";
}

}  // namespace
