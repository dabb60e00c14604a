// The bitmap button's rules without a window: where image and caption go, the
// gray colour table and its palette, and the fields of the window text.
#include "buttons/kvBmpButtonLayout.h"
#include "buttons/kvDibColorTable.h"
#include "buttons/kvSubString.h"

#include <gtest/gtest.h>

#include <ostream>

// Failures show rectangles as numbers.
static void PrintTo(const CRect& rc, std::ostream* out)
{
    *out << "(" << rc.left << ", " << rc.top << ", " << rc.right << ", " << rc.bottom << ")";
}

namespace {

using L = kvBmpButtonLayout;

const char* const kPositions[] = {"above", "below", "left", "right"}, *const kAlignments[] = {"near", "centre", "far"};

// A 16 x 16 image and a 40 x 13 caption in a 100 x 60 button at (10, 20): the
// left edges of image and caption by caption position and horizontal alignment,
// their top edges by caption position and vertical alignment.
const int kLeft[4][3][2] = {
    {{24, 12}, {52, 40}, {80, 68}},  // above: centred on the wider caption
    {{24, 12}, {52, 40}, {80, 68}},  // below
    {{24, 12}, {73, 31}, {91, 49}},  // left
    {{12, 30}, {31, 49}, {80, 68}},  // right
};
const int kTop[4][3][2] = {
    {{22, 40}, {50, 35}, {62, 47}},  // above: at the top the image stays on top
    {{22, 40}, {35, 45}, {62, 47}},  // below: centred, the caption overlaps the image's lower half
    {{22, 23}, {42, 44}, {62, 64}},  // left: centred on the taller image
    {{22, 23}, {42, 44}, {62, 64}},  // right
};

// The worked example, the pressed offset, shrinking, and the other branches of
// each axis: an image wider than the caption and lower.
const struct {
    const char* name;
    CRect button;
    CSize image, caption;
    int pos, h, v;  // alignments 0 near, 1 centred, 2 far
    bool pressed;
    CRect imageAt, captionAt;
} kPlacements[] = {
    {"60 x 50, caption below: iy = T + 10, ty = T + 20", {0, 0, 60, 50}, {16, 16}, {40, 13}, L::TextBelow, 1, 1,
     false, {22, 10, 38, 26}, {10, 20, 50, 33}},
    {"pressed: both move by (1, 1)", {0, 0, 60, 50}, {16, 16}, {40, 13}, L::TextBelow, 1, 1, true, {23, 11, 39, 27},
     {11, 21, 51, 34}},
    {"smaller than the content: both shrink", {0, 0, 30, 20}, {32, 32}, {40, 13}, L::TextBelow, 1, 1, false,
     {3, 3, 27, 3}, {5, 5, 25, 18}},
    {"left-top, caption left, image wider and lower", {10, 20, 110, 80}, {24, 8}, {12, 13}, L::TextLeft, 0, 0,
     false, {12, 24, 36, 32}, {18, 22, 30, 35}},
    {"right-bottom, caption right, image wider and lower", {10, 20, 110, 80}, {24, 8}, {12, 13}, L::TextRight, 2, 2,
     false, {84, 67, 108, 75}, {90, 65, 102, 78}},
};

TEST(BmpButtonLayout, ImageAndCaptionPlaces)
{
    const CSize image(16, 16), caption(40, 13);
    for (int i = 0; i < 36; ++i) {
        const int pos = i / 9, h = i % 3, v = i / 3 % 3;
        SCOPED_TRACE(testing::Message() << "caption " << kPositions[pos] << ", horizontal " << kAlignments[h]
                                        << ", vertical " << kAlignments[v]);
        const L layout = L::Distribute(CRect(10, 20, 110, 80), caption, image, L::textPos(pos), L::Alignment(h),
                                       L::Alignment(v), false);
        EXPECT_EQ(layout.image, CRect(CPoint(kLeft[pos][h][0], kTop[pos][v][0]), image));
        EXPECT_EQ(layout.caption, CRect(CPoint(kLeft[pos][h][1], kTop[pos][v][1]), caption));
    }
    for (const auto& row : kPlacements) {
        const L layout = L::Distribute(row.button, row.caption, row.image, L::textPos(row.pos), L::Alignment(row.h),
                                       L::Alignment(row.v), row.pressed);
        EXPECT_EQ(layout.image, row.imageAt) << row.name;
        EXPECT_EQ(layout.caption, row.captionAt) << row.name;
    }
    EXPECT_EQ(L::FitSize(CSize(16, 16), CSize(40, 13)), CSize(50, 39)) << "image and caption stacked";
    EXPECT_EQ(L::FitSize(CSize(16, 16), CSize(40, 0)), CSize(40, 22)) << "no caption margins without a height";
}

// A header followed by a full 8-bit colour table.
struct Dib {
    BITMAPINFOHEADER header;
    RGBQUAD table[256]{};

    void Set(int i, COLORREF c) { table[i] = RGBQUAD{BYTE(c >> 16), BYTE(c >> 8), BYTE(c), 0}; }
    COLORREF At(int i) const { return RGB(table[i].rgbRed, table[i].rgbGreen, table[i].rgbBlue); }
};

COLORREF Gray(int level) { return RGB(level, level, level); }
constexpr COLORREF kMagenta = RGB(255, 0, 255);

// Each table holds these colours over and over; magenta is the transparent one.
const COLORREF kIn[] = {Gray(63), Gray(64), Gray(159), Gray(160), Gray(223), Gray(224), kMagenta, RGB(255, 0, 254)};
const COLORREF kOut[] = {Gray(0), Gray(128), Gray(128), Gray(192), Gray(192), Gray(255), kMagenta, Gray(128)};

const struct {
    const char* name;
    WORD bits;
    DWORD used;
    int grayed;  // entries rewritten, and palette entries
} kDepths[] = {
    {"8 bits: 256 entries", 8, 0, 256},
    {"4 bits: 16 entries", 4, 0, 16},
    {"8 bits using 3 colours: the table ends after 3", 8, 3, 3},
    {"24 bits: true colour is not grayed", 24, 0, 0},
};

TEST(ImageGray, ColourTableBecomesTheFourStandardGraysAndAPalette)
{
    for (const auto& row : kDepths) {
        SCOPED_TRACE(row.name);
        Dib dib{{sizeof(BITMAPINFOHEADER), 2, 2, 1, row.bits, 0, 0, 0, 0, row.used, 0}};
        for (int i = 0; i < 256; ++i)
            dib.Set(i, kIn[i % 8]);
        EXPECT_EQ(kvDibColorTable::MakeGray(&dib.header, kMagenta), row.grayed != 0 ? 1 : 0);
        for (int i = 0; i < 256; ++i) {
            const COLORREF* expected = i < row.grayed ? kOut : kIn;
            EXPECT_EQ(dib.At(i), expected[i % 8]) << "entry " << i;
        }
        const auto palette = kvDibColorTable::PaletteEntries(dib.header);
        ASSERT_EQ(palette.size(), size_t(row.grayed));
        for (int i = 0; i < row.grayed; ++i)
            EXPECT_EQ(RGB(palette[i].peRed, palette[i].peGreen, palette[i].peBlue), kOut[i % 8]) << "palette " << i;
        EXPECT_TRUE(kvDibColorTable::Fits(&dib.header, 40 + 4 * row.grayed));
        EXPECT_FALSE(kvDibColorTable::Fits(&dib.header, 39 + 4 * row.grayed)) << "a resource cut short";
    }
}

// Shift-JIS lead bytes, so that a backslash can be a second byte.
bool IsShiftJisLead(unsigned char byte) { return (byte >= 0x81 && byte <= 0x9F) || (byte >= 0xE0 && byte <= 0xFC); }

const struct {
    const char* name;
    const char* text;
    int n;
    char separator;
    const char* field;
} kFields[] = {
    {"the caption", "Save\nSaves the file", 1, '\n', "Save"},
    {"the tool tip", "Save\nSaves the file", 2, '\n', "Saves the file"},
    {"no third field", "Save\nSaves the file", 3, '\n', ""},
    {"a second byte is not the separator", "\x95\\\\x", 1, '\\', "\x95\\"},
    {"the field after a two-byte character", "\x95\\\\x", 2, '\\', "x"},
};

TEST(BmpButtonText, SubStringFieldsOfTheWindowText)
{
    for (const auto& row : kFields)
        EXPECT_EQ(CString(kvSubString(row.text, row.n, row.separator, IsShiftJisLead)), row.field) << row.name;
}

}  // namespace
