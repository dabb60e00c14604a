// The hover button's gray, embossed and mask copies, pixel by pixel, on 24-bit
// bottom-up rows.
#include "buttons/kvDibPixels.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

constexpr COLORREF kMagenta = RGB(255, 0, 255);
constexpr COLORREF kShadow = RGB(128, 128, 128);
constexpr COLORREF kHighlight = RGB(255, 255, 254);
constexpr COLORREF kUntouched = RGB(1, 2, 3);  // expected: the pixel as it was

struct PixelRow {
    const char* name;
    int type;  // a kvGrayType, or a mask when -1
    COLORREF pixel;
    COLORREF expected;
};

const PixelRow kPixels[] = {
    {"plain: the weighted gray level", kvGrayPlain, RGB(200, 100, 50), RGB(125, 125, 125)},
    {"light: 65 lighter", kvGrayLight, RGB(100, 100, 100), RGB(165, 165, 165)},
    {"light: gray 200 is capped at white", kvGrayLight, RGB(200, 200, 200), RGB(255, 255, 255)},
    {"embossed: gray 109 is dark", kvGrayEmbossed, RGB(109, 109, 109), kShadow},
    {"embossed: gray 110 turns transparent", kvGrayEmbossed, RGB(110, 110, 110), kMagenta},
    {"the transparent colour is kept", kvGrayPlain, kMagenta, kUntouched},
    {"differing in the low 3 bits is transparent", kvGrayPlain, RGB(250, 7, 251), kUntouched},
    {"differing in bit 3 is not", kvGrayPlain, RGB(247, 0, 255), RGB(99, 99, 99)},
    {"an unknown type changes nothing", 3, RGB(200, 100, 50), kUntouched},
    {"mask: transparent is white", -1, kMagenta, RGB(255, 255, 255)},
    {"mask: nearly transparent is white", -1, RGB(250, 7, 251), RGB(255, 255, 255)},
    {"mask: any other colour is black", -1, RGB(255, 255, 255), RGB(0, 0, 0)},
};

void Transform(kvDibPixels& pixels, int type)
{
    if (type < 0)
        pixels.MakeMask(kMagenta);
    else
        pixels.MakeGray(static_cast<kvGrayType>(type), kMagenta, kShadow, kHighlight);
}

TEST(HoverButtonPixels, EachPixelByItsColour)
{
    for (const PixelRow& row : kPixels) {
        kvDibPixels pixels(1, 1);
        pixels.Set(0, 0, row.pixel);
        Transform(pixels, row.type);
        EXPECT_EQ(pixels.At(0, 0), row.expected == kUntouched ? row.pixel : row.expected) << row.name;
    }
}

// Pictures as they show, top row first: '#' dark, '.' light, 'T' transparent;
// expected 'S' shadow, 'H' highlight, 'T' transparent.
struct EmbossRow {
    const char* name;
    std::vector<std::string> picture;
    std::vector<std::string> embossed;
};

const EmbossRow kEmbossing[] = {
    {"the highlight falls one right and one lower", {"#..", "..."}, {"STT", "THT"}},
    {"nothing below the bottom row", {"...", "#.."}, {"TTT", "STT"}},
    {"nothing right of the last column", {"..#", "..."}, {"TTS", "TTT"}},
    {"a shadow is not highlighted", {"#..", ".#."}, {"STT", "TST"}},
    {"transparent pixels take highlights too", {"#T.", "TTT"}, {"STT", "THT"}},
};

COLORREF ColourOf(char code)
{
    switch (code) {
    case '#': return RGB(20, 20, 20);
    case '.': return RGB(220, 220, 220);
    case 'S': return kShadow;
    case 'H': return kHighlight;
    default: return kMagenta;
    }
}

kvDibPixels PixelsOf(const std::vector<std::string>& picture)
{
    const int height = static_cast<int>(picture.size());
    kvDibPixels pixels(static_cast<int>(picture[0].size()), height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < pixels.Width(); ++x)
            pixels.Set(x, height - 1 - y, ColourOf(picture[y][x]));
    }
    return pixels;
}

TEST(HoverButtonPixels, EmbossedHighlightsBelowAndRight)
{
    for (const EmbossRow& row : kEmbossing) {
        kvDibPixels pixels = PixelsOf(row.picture);
        pixels.MakeGray(kvGrayEmbossed, kMagenta, kShadow, kHighlight);
        const kvDibPixels expected = PixelsOf(row.embossed);
        for (int storedRow = 0; storedRow < pixels.Height(); ++storedRow) {
            for (int x = 0; x < pixels.Width(); ++x)
                EXPECT_EQ(pixels.At(x, storedRow), expected.At(x, storedRow)) << row.name << " at " << x << ", " << storedRow;
        }
    }
}

TEST(HoverButtonPixels, RowsArePaddedAndPaddingIsLeftAlone)
{
    EXPECT_EQ(kvDibPixels::RowBytes(1), 4);
    EXPECT_EQ(kvDibPixels::RowBytes(3), 12);
    EXPECT_EQ(kvDibPixels::RowBytes(4), 12);
    kvDibPixels pixels(3, 2);
    pixels.MakeMask(RGB(0, 0, 0));
    const unsigned char* bits = pixels.Bits();
    for (int row = 0; row < 2; ++row) {
        for (int pad = 9; pad < 12; ++pad)
            EXPECT_EQ(bits[row * 12 + pad], 0) << "row " << row;
        EXPECT_EQ(pixels.At(2, row), RGB(255, 255, 255));
    }
    EXPECT_EQ(pixels.At(3, 0), COLORREF(0xFFFFFFFF)) << "outside";
    EXPECT_EQ(kvDibPixels(0, 5).Width(), 0) << "no image without a width";
}

}  // namespace
