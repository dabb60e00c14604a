// The hover button's rules, decided without a window: the pixels of its gray,
// embossed and mask copies, and the look it draws in each state.
#include "buttons/kvDibPixels.h"
#include "buttons/kvHoverLook.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <tuple>
#include <vector>

namespace {

constexpr COLORREF kMagenta = RGB(255, 0, 255), kShadow = RGB(128, 128, 128), kHighlight = RGB(255, 255, 254);
constexpr COLORREF kWhite = RGB(255, 255, 255), kBlack = RGB(0, 0, 0);
constexpr int kMask = -1;  // in place of a kvGrayType

constexpr COLORREF Gray(int level) { return RGB(level, level, level); }

TEST(HoverButtonPixels, EachPixelByItsColour)
{
    std::vector<std::tuple<std::string, int, COLORREF, COLORREF>> rows = {
        {"plain: the weighted gray level", kvGrayPlain, RGB(200, 100, 50), Gray(125)},
        {"equal to transparent on the top 5 bits: kept", kvGrayPlain, RGB(250, 7, 251), RGB(250, 7, 251)},
        {"differing in bit 3: grayed", kvGrayPlain, RGB(247, 0, 255), Gray(99)},
        {"mask: nearly transparent is white", kMask, RGB(250, 7, 251), kWhite},
        {"mask: any other colour is black", kMask, kWhite, kBlack},
    };
    for (const int level : {0, 100, 109, 110, 190, 200}) {
        const std::string gray = " gray " + std::to_string(level);
        rows.emplace_back("light: 65 lighter, capped at white," + gray, kvGrayLight, Gray(level),
                          Gray(std::min(level + 65, 255)));
        rows.emplace_back("embossed: dark below 110, else transparent," + gray, kvGrayEmbossed, Gray(level),
                          level < 110 ? kShadow : kMagenta);
    }
    for (const auto& [name, type, pixel, expected] : rows) {
        kvDibPixels pixels(1, 1);
        pixels.Set(0, 0, pixel);
        if (type == kMask)
            pixels.MakeMask(kMagenta);
        else
            pixels.MakeGray(static_cast<kvGrayType>(type), kMagenta, kShadow, kHighlight);
        EXPECT_EQ(pixels.At(0, 0), expected) << name;
    }
}

// Pictures as they show, top row first: '#' dark, '.' light, 'T' transparent,
// 'S' shadow, 'H' highlight.
const COLORREF kCodes[] = {Gray(20), Gray(220), kShadow, kHighlight, kMagenta};

kvDibPixels PixelsOf(const std::vector<std::string>& picture)
{
    const int height = static_cast<int>(picture.size());
    kvDibPixels pixels(static_cast<int>(picture[0].size()), height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < pixels.Width(); ++x)
            pixels.Set(x, height - 1 - y, kCodes[std::string("#.SHT").find(picture[y][x])]);
    }
    return pixels;
}

TEST(HoverButtonPixels, EmbossedHighlightFallsOneRightAndOneLower)
{
    const std::tuple<const char*, std::vector<std::string>, std::vector<std::string>> rows[] = {
        {"onto a transparent pixel too", {"#T", "TT"}, {"ST", "TH"}},
        {"none past the right or bottom edge, none on a shadow", {"#.#", ".#."}, {"STS", "TST"}},
    };
    for (const auto& [name, picture, embossed] : rows) {
        kvDibPixels pixels = PixelsOf(picture);
        pixels.MakeGray(kvGrayEmbossed, kMagenta, kShadow, kHighlight);
        kvDibPixels expected = PixelsOf(embossed);
        EXPECT_EQ(std::memcmp(pixels.Bits(), expected.Bits(), 2 * kvDibPixels::RowBytes(pixels.Width())), 0) << name;
    }
}

TEST(HoverButtonPixels, RowPaddingIsLeftAlone)
{
    kvDibPixels pixels(3, 2);  // rows of 9 bytes of pixels and 3 of padding
    pixels.MakeMask(kBlack);
    for (int i = 0; i < 24; ++i)
        EXPECT_EQ(pixels.Bits()[i], i % 12 < 9 ? 255 : 0) << "byte " << i;
}

constexpr COLORREF D = kvHoverColorDefault, N = kvHoverColorNone;
constexpr kvHoverSystemColors kSystem{RGB(212, 208, 200), RGB(0, 0, 1), RGB(255, 255, 254), RGB(128, 128, 127)};

TEST(HoverButtonLook, DrawnState)
{
    // Enabled, button down, hovering: the state drawn.
    const std::tuple<bool, bool, bool, kvHoverState> rows[] = {
        {true, false, false, kvHoverNormal}, {true, false, true, kvHoverHovering}, {true, true, true, kvHoverPushed},
        {true, true, false, kvHoverNormal},  {false, true, true, kvHoverDisabled},
    };
    for (const auto& [enabled, down, hovering, state] : rows)
        EXPECT_EQ(kvHoverDrawnState(enabled, down, hovering), state) << enabled << down << hovering;
}

TEST(HoverButtonLook, SpecialColours)
{
    COLORREF fill = 7;
    EXPECT_FALSE(kvHoverBackground(N, kSystem, fill)) << "a background of none shows the parent";
    EXPECT_TRUE(kvHoverBackground(D, kSystem, fill));
    EXPECT_EQ(fill, kSystem.face);

    constexpr COLORREF kRed = RGB(255, 0, 0), kGreen = RGB(0, 255, 0);
    struct Row {
        const char* name;
        COLORREF colors[kvHoverStateCount];  // normal, hovering, disabled, pushed
        bool enabled, hovering, embossed;
        COLORREF color;
    };
    const Row rows[] = {
        {"text of default or none is the system's", {D, N, D, D}, true, true, false, kSystem.text},
        {"disabled with the default colour: embossed", {kRed, kGreen, D, kRed}, false, false, true, kSystem.shadow},
        {"a disabled colour set only turns embossing off", {kRed, kGreen, kRed, kRed}, false, false, false, kRed},
    };
    for (const Row& row : rows) {
        const kvHoverInk ink = kvHoverTextInk(row.colors, row.enabled, row.hovering, false, kSystem);
        EXPECT_EQ(ink.embossed, row.embossed) << row.name;
        EXPECT_EQ(ink.color, row.color) << row.name;
    }
}

TEST(HoverButtonLook, FitSizeOfTheCaptionMeasuredWithoutMnemonics)
{
    EXPECT_EQ(kvHoverMeasuredCaption("Save && &Exit", true), "Save & Exit");
    EXPECT_EQ(kvHoverMeasuredCaption("Save && &Exit", false), "Save && &Exit") << "no hotkeys: as it is";
    const CSize bitmaps[] = {{16, 20}, {50, 10}};
    EXPECT_EQ(kvHoverFitSize({40, 13}, nullptr, 0), CSize(42, 15)) << "text alone, a pixel of room each side";
    EXPECT_EQ(kvHoverFitSize({40, 13}, bitmaps, 2), CSize(52, 22)) << "each direction from the largest";
}

}  // namespace
