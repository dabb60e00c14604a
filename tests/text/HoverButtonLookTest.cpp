// What a hover button shows: the state it draws, the colours its special
// values stand for, the ink of its text and the size its content needs.
#include "buttons/kvHoverLook.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

constexpr COLORREF D = kvHoverColorDefault;
constexpr COLORREF N = kvHoverColorNone;
constexpr kvHoverSystemColors kSystem{RGB(212, 208, 200), RGB(0, 0, 1), RGB(255, 255, 254), RGB(128, 128, 127)};

TEST(HoverButtonLook, DrawnState)
{
    struct Row {
        bool enabled, down, hovering;
        kvHoverState state;
    };
    const Row rows[] = {
        {true, false, false, kvHoverNormal},   {true, false, true, kvHoverHovering},
        {true, true, true, kvHoverPushed},     {true, true, false, kvHoverNormal},
        {false, true, true, kvHoverDisabled},
    };
    for (const Row& row : rows)
        EXPECT_EQ(kvHoverDrawnState(row.enabled, row.down, row.hovering), row.state)
            << row.enabled << row.down << row.hovering;
}

TEST(HoverButtonLook, BackgroundFill)
{
    COLORREF fill = 0;
    EXPECT_TRUE(kvHoverBackground(D, kSystem, fill));
    EXPECT_EQ(fill, kSystem.face);
    EXPECT_TRUE(kvHoverBackground(RGB(1, 2, 3), kSystem, fill));
    EXPECT_EQ(fill, RGB(1, 2, 3));
    fill = 7;
    EXPECT_FALSE(kvHoverBackground(N, kSystem, fill)) << "the parent shows through";
    EXPECT_EQ(fill, 7u);
}

struct InkRow {
    const char* name;
    COLORREF colors[kvHoverStateCount];  // normal, hovering, disabled, pushed
    bool enabled, hovering, pushed;
    kvHoverInk ink;
};

constexpr COLORREF kRed = RGB(255, 0, 0), kGreen = RGB(0, 255, 0), kBlue = RGB(0, 0, 255), kGray = RGB(9, 9, 9);

const InkRow kInks[] = {
    {"normal", {kRed, kGreen, kGray, kBlue}, true, false, false, {false, kRed}},
    {"hovering", {kRed, kGreen, kGray, kBlue}, true, true, false, {false, kGreen}},
    {"pushed", {kRed, kGreen, kGray, kBlue}, true, true, true, {false, kBlue}},
    {"a default value is the system's text", {D, D, D, D}, true, false, false, {false, kSystem.text}},
    {"so is a text colour of none", {N, N, D, N}, true, true, false, {false, kSystem.text}},
    {"disabled with the default colour: embossed", {kRed, kGreen, D, kBlue}, false, false, false,
     {true, kSystem.shadow}},
    {"disabled colour set: it only turns embossing off", {kRed, kGreen, kGray, kBlue}, false, false, false,
     {false, kRed}},
    {"disabled, hovered: the hovering colour", {kRed, kGreen, kGray, kBlue}, false, true, false, {false, kGreen}},
};

TEST(HoverButtonLook, TextInk)
{
    for (const InkRow& row : kInks) {
        const kvHoverInk ink = kvHoverTextInk(row.colors, row.enabled, row.hovering, row.pushed, kSystem);
        EXPECT_EQ(ink.embossed, row.ink.embossed) << row.name;
        EXPECT_EQ(ink.color, row.ink.color) << row.name;
    }
}

TEST(HoverButtonLook, FocusKeepsClearOfAnyFrame)
{
    const int none[kvHoverStateCount] = {0, 0, 0, 0};
    const int hoverOnly[kvHoverStateCount] = {0, 2, 0, 2};
    EXPECT_EQ(kvHoverFocusInset(none), 0);
    EXPECT_EQ(kvHoverFocusInset(hoverOnly), 3);
}

TEST(HoverButtonLook, MeasuredCaption)
{
    struct Row {
        const char* caption;
        bool hotkey;
        const char* measured;
    };
    const Row rows[] = {
        {"Save && &Exit", true, "Save & Exit"},
        {"Save && &Exit", false, "Save && &Exit"},
        {"&&&", true, "&"},
        {"", true, ""},
    };
    for (const Row& row : rows)
        EXPECT_EQ(kvHoverMeasuredCaption(row.caption, row.hotkey), row.measured) << row.caption << row.hotkey;
}

TEST(HoverButtonLook, FitSize)
{
    struct Row {
        const char* name;
        CSize text;
        std::vector<CSize> bitmaps;
        CSize fit;
    };
    const Row rows[] = {
        {"text alone", {40, 13}, {}, {42, 15}},
        {"a taller bitmap", {40, 13}, {{16, 16}}, {42, 18}},
        {"each direction from the largest", {40, 13}, {{16, 20}, {50, 10}}, {52, 22}},
        {"no caption", {0, 0}, {{16, 16}}, {18, 18}},
    };
    for (const Row& row : rows)
        EXPECT_EQ(kvHoverFitSize(row.text, row.bitmaps.data(), static_cast<int>(row.bitmaps.size())), row.fit)
            << row.name;
}

}  // namespace
