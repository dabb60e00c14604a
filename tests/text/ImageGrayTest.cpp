// The gray copy of a palettized image: its colour table rewritten to the four
// grays of the standard palette, the transparent colour kept, true colour left
// alone; and how much of a resource the table takes.
#include "buttons/kvDibColorTable.h"

#include <gtest/gtest.h>

#include <cstring>
#include <initializer_list>

namespace {

constexpr COLORREF kNoTransparent = 0xFFFFFFFF;
constexpr COLORREF kMagenta = RGB(255, 0, 255);

// A header, a full 8-bit table, and bytes standing for the pixels.
struct Dib {
    BITMAPINFOHEADER header{};
    RGBQUAD table[256]{};
    BYTE pixels[4]{0x11, 0x22, 0x33, 0x44};

    Dib(WORD bits, std::initializer_list<COLORREF> colours, DWORD used = 0)
    {
        header.biSize = sizeof header;
        header.biWidth = 2;
        header.biHeight = 2;
        header.biPlanes = 1;
        header.biBitCount = bits;
        header.biClrUsed = used;
        int i = 0;
        for (COLORREF colour : colours)
            table[i++] = RGBQUAD{GetB(colour), GetG(colour), GetR(colour), 0x5A};
    }
    static BYTE GetR(COLORREF c) { return static_cast<BYTE>(c); }
    static BYTE GetG(COLORREF c) { return static_cast<BYTE>(c >> 8); }
    static BYTE GetB(COLORREF c) { return static_cast<BYTE>(c >> 16); }
    COLORREF At(int i) const { return RGB(table[i].rgbRed, table[i].rgbGreen, table[i].rgbBlue); }
};

COLORREF Gray(BYTE level) { return RGB(level, level, level); }

struct LevelRow {
    const char* name;
    COLORREF colour;
    BYTE level;
};

const LevelRow kLevels[] = {
    {"gray 63", Gray(63), 0},          {"gray 64", Gray(64), 128},
    {"gray 159", Gray(159), 128},      {"gray 160", Gray(160), 192},
    {"gray 223", Gray(223), 192},      {"gray 224", Gray(224), 255},
    {"red weighs 77", RGB(255, 0, 0), 128}, {"green weighs 153", RGB(0, 255, 0), 128},
    {"blue weighs 25", RGB(0, 0, 255), 0},  {"yellow weighs 230", RGB(255, 255, 0), 255},
    {"cyan weighs 178", RGB(0, 255, 255), 192},
};

TEST(ImageGray, ColoursBecomeTheStandardGrays)
{
    Dib dib(8, {});
    for (size_t i = 0; i < std::size(kLevels); ++i)
        dib.table[i] = Dib(8, {kLevels[i].colour}).table[0];
    ASSERT_EQ(kvDibColorTable::MakeGray(&dib.header, kNoTransparent), 1);
    for (size_t i = 0; i < std::size(kLevels); ++i) {
        EXPECT_EQ(dib.At(static_cast<int>(i)), Gray(kLevels[i].level)) << kLevels[i].name;
        EXPECT_EQ(dib.table[i].rgbReserved, 0x5A) << kLevels[i].name;
    }
}

TEST(ImageGray, TheTransparentEntryKeepsItsColour)
{
    Dib dib(4, {kMagenta, RGB(255, 0, 254), RGB(0, 0, 255)});
    ASSERT_EQ(kvDibColorTable::MakeGray(&dib.header, kMagenta), 1);
    EXPECT_EQ(dib.At(0), kMagenta);
    EXPECT_EQ(dib.At(1), Gray(128)) << "only the exact colour is transparent";
    EXPECT_EQ(dib.At(2), Gray(0));

    Dib opaque(4, {kMagenta});
    kvDibColorTable::MakeGray(&opaque.header, kNoTransparent);
    EXPECT_EQ(opaque.At(0), Gray(128)) << "without a transparent colour, magenta grays too";
}

struct DepthRow {
    const char* name;
    WORD bits;
    DWORD used;
    int colours;  // also MakeGray's answer: 0 or 1
};

const DepthRow kDepths[] = {
    {"1 bit: 2 colours", 1, 0, 2},
    {"4 bits: 16 colours", 4, 0, 16},
    {"8 bits: 256 colours", 8, 0, 256},
    {"8 bits using 3 colours", 8, 3, 3},
    {"16 bits: true colour", 16, 0, 0},
    {"24 bits: true colour", 24, 0, 0},
    {"32 bits: true colour", 32, 0, 0},
};

TEST(ImageGray, OnlyTheColourTableIsRewritten)
{
    for (const DepthRow& row : kDepths) {
        SCOPED_TRACE(row.name);
        Dib dib(row.bits, {}, row.used);
        for (RGBQUAD& entry : dib.table)
            entry = RGBQUAD{0, 0, 255, 0};  // red, which grays to 128
        const Dib before = dib;
        EXPECT_EQ(kvDibColorTable::ColorCount(dib.header), row.colours);
        EXPECT_EQ(kvDibColorTable::MakeGray(&dib.header, kNoTransparent), row.colours != 0 ? 1 : 0);
        EXPECT_EQ(kvDibColorTable::Pixels(dib.header), &dib.table[row.colours]);
        for (int i = 0; i < 256; ++i) {
            EXPECT_EQ(dib.At(i), i < row.colours ? Gray(128) : before.At(i)) << "entry " << i;
        }
        EXPECT_EQ(std::memcmp(dib.pixels, before.pixels, sizeof dib.pixels), 0);
        EXPECT_EQ(kvDibColorTable::PaletteEntries(dib.header).size(), static_cast<size_t>(row.colours));
    }
    EXPECT_EQ(kvDibColorTable::MakeGray(nullptr, kNoTransparent), 0);
}

struct FitRow {
    const char* name;
    WORD bits;
    DWORD headerSize;
    size_t bytes;
    bool fits;
};

const FitRow kFits[] = {
    {"true colour: the header alone", 24, 40, 40, true},
    {"8 bits: header and 256 entries", 8, 40, 40 + 1024, true},
    {"8 bits, table cut short", 8, 40, 40 + 1023, false},
    {"a longer header", 4, 124, 124 + 64, true},
    {"a longer header, table cut short", 4, 124, 40 + 64, false},
    {"a header too short to be one", 4, 12, 1024, false},
    {"fewer bytes than a header", 24, 40, 39, false},
};

TEST(ImageGray, ResourceHoldsHeaderAndTable)
{
    for (const FitRow& row : kFits) {
        Dib dib(row.bits, {});
        dib.header.biSize = row.headerSize;
        EXPECT_EQ(kvDibColorTable::Fits(&dib.header, row.bytes), row.fits) << row.name;
    }
    EXPECT_FALSE(kvDibColorTable::Fits(nullptr, 1024));
}

}  // namespace
