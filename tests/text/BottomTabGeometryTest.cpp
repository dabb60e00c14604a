// The bottom tabs' geometry: heights and widths from the font, item rectangles,
// the overlap of neighbours and the hit test on their slanted sides.
#include "notebook/kvBottomTabGeometry.h"

#include <gtest/gtest.h>

namespace {

// A notebook of 300 x 100 pixels whose parent font is 13 pixels high, 5 wide
// on average: tabs 16 high, overlapping by 8, 24 wider than their texts.
kvBottomTabGeometry DefaultTabs()
{
    kvBottomTabGeometry tabs;
    tabs.fontHeight = 13;
    tabs.aveCharWidth = 5;
    return tabs;
}

const CRect kClient(0, 0, 300, 100);

struct SizeRow {
    const char* name;
    int itemHeight, paddingX, paddingY;
    double slope, overlap;
    int height;
    double derivedOverlap;
    int extraWidth;
};

const SizeRow kSizes[] = {
    {"font of height 13", 0, 0, 0, 0.5, -1.0, 16, 8.0, 24},
    {"vertical padding adds to the font's height", 0, 0, 4, 0.5, -1.0, 20, 10.0, 28},
    {"an item height replaces the font's", 30, 0, 0, 0.5, -1.0, 30, 15.0, 38},
    {"item height and padding", 30, 0, 2, 0.5, -1.0, 32, 16.0, 40},
    {"horizontal padding widens only", 0, 6, 0, 0.5, -1.0, 16, 8.0, 30},
    {"a steeper slope", 0, 0, 0, 1.0, -1.0, 16, 16.0, 40},
    {"a fractional slant is truncated", 0, 0, 0, 0.3, -1.0, 16, 4.8, 17},
    {"an overlap set keeps its value", 0, 0, 0, 0.5, 3.5, 16, 3.5, 24},
    {"an overlap of zero abuts", 0, 0, 0, 0.5, 0.0, 16, 0.0, 24},
};

TEST(BottomTabGeometry, HeightOverlapAndExtraWidth)
{
    for (const SizeRow& row : kSizes) {
        SCOPED_TRACE(row.name);
        kvBottomTabGeometry tabs = DefaultTabs();
        tabs.itemHeight = row.itemHeight;
        tabs.paddingX = row.paddingX;
        tabs.paddingY = row.paddingY;
        tabs.slope = row.slope;
        tabs.overlap = row.overlap;
        EXPECT_EQ(tabs.TabHeight(), row.height);
        EXPECT_DOUBLE_EQ(tabs.Overlap(), row.derivedOverlap);
        EXPECT_EQ(tabs.ExtraWidth(), row.extraWidth);
    }
}

struct WidthRow {
    const char* name;
    bool fixedStyle;
    int fixedItemWidth, minTabWidth;
    std::vector<int> textWidths;
    std::vector<int> lefts;  // each tab's left edge; the last entry is the last tab's right
};

const WidthRow kWidths[] = {
    {"text plus the extra width", false, 0, -1, {30, 50}, {4, 58, 132}},
    {"raised to the default width of 9 average characters", false, 0, -1, {10, 21}, {4, 49, 94}},
    {"raised to the minimum width when set", false, 0, 60, {10, 50}, {4, 64, 138}},
    {"a minimum below the text's width changes nothing", false, 0, 20, {30}, {4, 58}},
    {"fixed width: the widest text", true, 0, -1, {10, 50, 30}, {4, 78, 152, 226}},
    {"fixed width: the item width when set", true, 40, -1, {10, 50}, {4, 44, 84}},
    {"the fixed item width counts only in the fixed style", false, 40, -1, {30}, {4, 58}},
};

TEST(BottomTabGeometry, ItemRectanglesAbutAlongTheBottom)
{
    for (const WidthRow& row : kWidths) {
        SCOPED_TRACE(row.name);
        kvBottomTabGeometry tabs = DefaultTabs();
        tabs.fixedItemWidth = row.fixedItemWidth;
        tabs.minTabWidth = row.minTabWidth;
        const std::vector<CRect> rects = tabs.ItemRects(row.textWidths, row.fixedStyle, kClient);
        ASSERT_EQ(rects.size(), row.textWidths.size());
        for (std::size_t i = 0; i < rects.size(); ++i) {
            EXPECT_EQ(rects[i], CRect(row.lefts[i], 82, row.lefts[i + 1], 100)) << "tab " << i;
        }
    }
}

TEST(BottomTabGeometry, ThirdRectangleIsTheSecondShiftedToItsRightEdge)
{
    const std::vector<CRect> rects = DefaultTabs().ItemRects({40, 40, 40}, false, kClient);
    CRect shifted = rects[1];
    shifted.OffsetRect(rects[1].Width(), 0);
    EXPECT_EQ(rects[2], shifted);
}

struct HitRow {
    const char* name;
    double overlap;
    POINT point;
    int item;
};

// Tabs of 54, 74 and 54 pixels from x = 4, overlapping by 8 (the strip runs
// from y = 82 to 100): tab 0 spans 4..58 at its top, tab 1 50..124, tab 2 116..170.
const HitRow kHits[] = {
    {"the middle of the first tab", -1.0, {30, 90}, 0},
    {"the top-left corner is on the edge", -1.0, {4, 82}, 0},
    {"left of the first tab", -1.0, {3, 82}, -1},
    {"exactly on the left slant, 10 pixels down", -1.0, {9, 92}, 0},
    {"just outside the left slant", -1.0, {8, 92}, -1},
    {"exactly on the right slant of the last tab", -1.0, {170 - 5, 92}, 2},
    {"just outside the right slant of the last tab", -1.0, {170 - 4, 92}, -1},
    {"in the overlap at the top the earlier tab wins", -1.0, {54, 82}, 0},
    {"the later tab's slant below the earlier one's", -1.0, {57, 96}, 1},
    {"between the slants of neighbours", -1.0, {54, 96}, -1},
    {"the bottom row counts", -1.0, {100, 100}, 1},
    {"above the strip", -1.0, {100, 81}, -1},
    {"below the window", -1.0, {100, 101}, -1},
    {"right of the last tab", -1.0, {250, 85}, -1},
    {"abutting tabs: the earlier tab's right edge", 0.0, {58, 82}, 0},
    {"abutting tabs: one pixel on", 0.0, {59, 82}, 1},
    {"abutting tabs: no overlap below the top", 0.0, {56, 90}, -1},
};

TEST(BottomTabGeometry, HitTestFollowsTheSlantedSides)
{
    for (const HitRow& row : kHits) {
        SCOPED_TRACE(row.name);
        kvBottomTabGeometry tabs = DefaultTabs();
        tabs.overlap = row.overlap;
        const std::vector<CRect> rects = tabs.ItemRects({30, 50, 30}, false, kClient);
        EXPECT_EQ(tabs.HitTest(row.point, rects), row.item);
    }
    EXPECT_EQ(DefaultTabs().HitTest({30, 90}, {}), -1) << "no tabs";
}

struct MessageRow {
    const char* name;
    int width, height;
    unsigned previousOfNext;  // what the next call answers: the values set, 8 bits each
};

const MessageRow kPacked[] = {
    {"small values", 40, 20, 40 | (20 << 8)},
    {"a width of 300 keeps its low 8 bits", 300, 20, 44 | (20 << 8)},
    {"a height of 256 answers 0", 10, 256, 10},
};

TEST(BottomTabGeometry, SizeAndPaddingAnswerThePreviousPairIn8Bits)
{
    for (const MessageRow& row : kPacked) {
        SCOPED_TRACE(row.name);
        kvBottomTabGeometry tabs = DefaultTabs();
        EXPECT_EQ(tabs.SetItemSize(row.width, row.height), 0u);
        EXPECT_EQ(tabs.SetItemSize(0, 0), row.previousOfNext);
        EXPECT_EQ(tabs.SetPadding(row.width, row.height), 0u);
        EXPECT_EQ(tabs.SetPadding(0, 0), row.previousOfNext);
    }
}

TEST(BottomTabGeometry, MinimumWidthAnswersTheDefaultUntilSet)
{
    kvBottomTabGeometry tabs = DefaultTabs();
    EXPECT_EQ(tabs.SetMinTabWidth(70), 45);
    EXPECT_EQ(tabs.SetMinTabWidth(-1), 70);
    EXPECT_EQ(tabs.SetMinTabWidth(10), 45);
}

TEST(BottomTabGeometry, AdjustRectAddsOrTakesOffTheStrip)
{
    const kvBottomTabGeometry tabs = DefaultTabs();
    RECT rect{10, 10, 200, 100};
    tabs.AdjustRect(false, rect);
    EXPECT_EQ(CRect(rect), CRect(10, 10, 200, 82));
    tabs.AdjustRect(true, rect);
    EXPECT_EQ(CRect(rect), CRect(10, 10, 200, 100));
}

}  // namespace
