// The drop edit's window-free rules: the button in its three looks with the
// text's rectangle beside it, and the popup's corner against the screen.
#include "dropdown/kvDropEditLayout.h"
#include "dropdown/kvPopupPlacement.h"

#include <gtest/gtest.h>

#include <tuple>

namespace {

using Look = kvDropEditLayout::Look;

TEST(DropEditLayout, ButtonPlacementInEachLook)
{
    // A 120 by 20 field with the 17-pixel scroll-bar width, and one narrower than its button.
    const std::tuple<const char*, Look, int, CRect> rows[] = {
        {"3-D", Look::ThreeD, 120, CRect(103, 0, 120, 20)},
        {"flat with border", Look::FlatBordered, 120, CRect(102, 1, 119, 19)},
        {"flat without border", Look::FlatBorderless, 120, CRect(104, 0, 121, 20)},
        {"narrow 3-D keeps x 1", Look::ThreeD, 10, CRect(1, 0, 18, 20)},
        {"narrow flat bordered keeps x 1", Look::FlatBordered, 10, CRect(1, 1, 18, 19)},
        {"narrow flat borderless keeps x 0", Look::FlatBorderless, 10, CRect(0, 0, 17, 20)},
    };
    for (const auto& [name, look, width, button] : rows)
        EXPECT_EQ(kvDropEditLayout::For(look, width, 20, 17, 13).button, button) << name;
}

TEST(DropEditLayout, TextStaysCentredAndClearOfTheButton)
{
    // Height, font height: the rectangle's top and bottom.
    const std::tuple<int, int, int, int> rows[] = {{20, 13, 3, 16}, {21, 13, 3, 16}, {22, 13, 4, 17}, {13, 13, 0, 13}};
    for (const auto& [height, font, top, bottom] : rows) {
        const kvDropEditLayout layout = kvDropEditLayout::For(Look::ThreeD, 120, height, 17, font);
        EXPECT_EQ(layout.format, CRect(2, top, 100, bottom)) << "height " << height;
        EXPECT_EQ(layout.leftMargin, 0);
        EXPECT_EQ(layout.rightMargin, 18);
    }
}

TEST(PopupPlacement, BelowShiftedLeftOrFlippedAbove)
{
    const CSize screen(800, 600), popup(200, 150);
    const std::tuple<const char*, CRect, CPoint> rows[] = {
        {"below the field", CRect(100, 100, 220, 120), CPoint(100, 120)},
        {"right edge met exactly", CRect(600, 100, 720, 120), CPoint(600, 120)},
        {"past the right edge: shifted left", CRect(700, 100, 820, 120), CPoint(600, 120)},
        {"bottom edge met exactly", CRect(100, 430, 220, 450), CPoint(100, 450)},
        {"past the bottom edge: above", CRect(100, 500, 220, 520), CPoint(100, 350)},
        {"both edges", CRect(700, 500, 820, 520), CPoint(600, 350)},
        {"no room above: at the top", CRect(100, 100, 220, 590), CPoint(100, 0)},
    };
    for (const auto& [name, field, topLeft] : rows)
        EXPECT_EQ(kvPopupPlacement::TopLeft(field, popup, screen), topLeft) << name;
    EXPECT_EQ(kvPopupPlacement::TopLeft(CRect(0, 0, 10, 10), CSize(900, 10), screen), CPoint(0, 10))
        << "wider than the screen: at its left edge";
}

}  // namespace
