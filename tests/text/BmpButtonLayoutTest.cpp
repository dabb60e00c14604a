// Where the bitmap button puts its image and caption: each caption position
// under each alignment, the worked example, shrinking, the pressed offset, and
// the size that fits the content.
#include "buttons/kvBmpButtonLayout.h"

#include <gtest/gtest.h>

#include <ostream>

// Failures show rectangles and sizes as numbers.
static void PrintTo(const CRect& rc, std::ostream* out)
{
    *out << "(" << rc.left << ", " << rc.top << ", " << rc.right << ", " << rc.bottom << ")";
}

static void PrintTo(const CSize& size, std::ostream* out) { *out << size.cx << " x " << size.cy; }

namespace {

using L = kvBmpButtonLayout;

const L::Alignment kAlignments[] = {L::AlignNear, L::AlignCentre, L::AlignFar};

// A 100 x 60 button at (10, 20), large enough for both contents.
const CRect kButton(10, 20, 110, 80);
const CSize kSquareImage(16, 16), kWideCaption(40, 13);  // caption wider, image taller
const CSize kWideImage(24, 8), kNarrowCaption(12, 13);   // image wider, caption taller

// One axis does not depend on the other's alignment: each row holds for all three.
struct AxisRow {
    const char* name;
    CSize image, caption;
    L::textPos pos;
    L::Alignment align;
    int imageAt, captionAt;
};

const AxisRow kHorizontal[] = {
    {"left, caption right: image at the left margin", kSquareImage, kWideCaption, L::TextRight, L::AlignNear, 12, 30},
    {"left, caption above: centred on the caption", kSquareImage, kWideCaption, L::TextAbove, L::AlignNear, 24, 12},
    {"left, caption below: centred on the caption", kSquareImage, kWideCaption, L::TextBelow, L::AlignNear, 24, 12},
    {"left, caption left: centred on the caption", kSquareImage, kWideCaption, L::TextLeft, L::AlignNear, 24, 12},
    {"left, wider image: caption centred on it", kWideImage, kNarrowCaption, L::TextBelow, L::AlignNear, 12, 18},
    {"right, caption left: image 3 from the edge", kSquareImage, kWideCaption, L::TextLeft, L::AlignFar, 91, 49},
    {"right, caption above: centred on the caption", kSquareImage, kWideCaption, L::TextAbove, L::AlignFar, 80, 68},
    {"right, caption below: centred on the caption", kSquareImage, kWideCaption, L::TextBelow, L::AlignFar, 80, 68},
    {"right, caption right: centred on the caption", kSquareImage, kWideCaption, L::TextRight, L::AlignFar, 80, 68},
    {"right, wider image: image 2 from the edge", kWideImage, kNarrowCaption, L::TextAbove, L::AlignFar, 84, 90},
    {"centred, caption left", kSquareImage, kWideCaption, L::TextLeft, L::AlignCentre, 73, 31},
    {"centred, caption right", kSquareImage, kWideCaption, L::TextRight, L::AlignCentre, 31, 49},
    {"centred, caption above", kSquareImage, kWideCaption, L::TextAbove, L::AlignCentre, 52, 40},
    {"centred, caption below", kSquareImage, kWideCaption, L::TextBelow, L::AlignCentre, 52, 40},
};

const AxisRow kVertical[] = {
    {"top, caption above: the image stays on top", kSquareImage, kWideCaption, L::TextAbove, L::AlignNear, 22, 40},
    {"top, caption below", kSquareImage, kWideCaption, L::TextBelow, L::AlignNear, 22, 40},
    {"top, caption left: centred on the taller image", kSquareImage, kWideCaption, L::TextLeft, L::AlignNear, 22, 23},
    {"top, caption right: centred on the taller image", kSquareImage, kWideCaption, L::TextRight, L::AlignNear, 22,
     23},
    {"top, taller caption: image centred on it", kWideImage, kNarrowCaption, L::TextRight, L::AlignNear, 24, 22},
    {"bottom, caption above", kSquareImage, kWideCaption, L::TextAbove, L::AlignFar, 62, 47},
    {"bottom, caption below: the caption stays above", kSquareImage, kWideCaption, L::TextBelow, L::AlignFar, 62, 47},
    {"bottom, caption left: centred on the taller image", kSquareImage, kWideCaption, L::TextLeft, L::AlignFar, 62,
     64},
    {"bottom, caption right", kSquareImage, kWideCaption, L::TextRight, L::AlignFar, 62, 64},
    {"bottom, taller caption: image centred on it", kWideImage, kNarrowCaption, L::TextLeft, L::AlignFar, 67, 65},
    {"centred, caption above", kSquareImage, kWideCaption, L::TextAbove, L::AlignCentre, 50, 35},
    {"centred, caption below overlaps the image's lower half", kSquareImage, kWideCaption, L::TextBelow,
     L::AlignCentre, 35, 45},
    {"centred, caption left", kSquareImage, kWideCaption, L::TextLeft, L::AlignCentre, 42, 44},
    {"centred, caption right", kSquareImage, kWideCaption, L::TextRight, L::AlignCentre, 42, 44},
};

TEST(BmpButtonLayout, HorizontalPlacementForEveryVerticalAlignment)
{
    for (const AxisRow& row : kHorizontal) {
        for (L::Alignment vertical : kAlignments) {
            SCOPED_TRACE(testing::Message() << row.name << ", vertical " << vertical);
            const L layout = L::Distribute(kButton, row.caption, row.image, row.pos, row.align, vertical, false);
            EXPECT_EQ(layout.image.left, row.imageAt);
            EXPECT_EQ(layout.caption.left, row.captionAt);
            EXPECT_EQ(layout.image.Size(), row.image);
            EXPECT_EQ(layout.caption.Size(), row.caption);
            EXPECT_EQ(layout.face, kButton);
        }
    }
}

TEST(BmpButtonLayout, VerticalPlacementForEveryHorizontalAlignment)
{
    for (const AxisRow& row : kVertical) {
        for (L::Alignment horizontal : kAlignments) {
            SCOPED_TRACE(testing::Message() << row.name << ", horizontal " << horizontal);
            const L layout = L::Distribute(kButton, row.caption, row.image, row.pos, horizontal, row.align, false);
            EXPECT_EQ(layout.image.top, row.imageAt);
            EXPECT_EQ(layout.caption.top, row.captionAt);
        }
    }
}

struct PlacementRow {
    const char* name;
    CRect button;
    CSize image, caption;
    L::textPos pos;
    bool selected;
    CRect imageAt, captionAt;
};

const PlacementRow kPlacements[] = {
    {"60 x 50, caption below", CRect(0, 0, 60, 50), kSquareImage, kWideCaption, L::TextBelow, false,
     CRect(22, 10, 38, 26), CRect(10, 20, 50, 33)},
    {"pressed: both move by (1, 1)", CRect(0, 0, 60, 50), kSquareImage, kWideCaption, L::TextBelow, true,
     CRect(23, 11, 39, 27), CRect(11, 21, 51, 34)},
    {"no caption: the image alone, caption empty", CRect(0, 0, 60, 50), kSquareImage, CSize(0, 0), L::TextBelow,
     false, CRect(22, 16, 38, 32), CRect()},
    {"no image: the caption alone", CRect(0, 0, 60, 50), CSize(0, 0), kWideCaption, L::TextRight, false,
     CRect(9, 25, 9, 25), CRect(11, 19, 51, 32)},
    {"narrow and low: caption and image shrink", CRect(0, 0, 30, 20), CSize(32, 32), kWideCaption, L::TextBelow,
     false, CRect(3, 3, 27, 3), CRect(5, 5, 25, 18)},
    {"lower than the caption: both shrink", CRect(0, 0, 100, 10), kSquareImage, kWideCaption, L::TextRight, false,
     CRect(21, 3, 37, 7), CRect(39, 2, 79, 8)},
    {"smaller than the margins: nothing left", CRect(5, 5, 9, 8), kSquareImage, kWideCaption, L::TextAbove, false,
     CRect(7, 7, 7, 7), CRect(7, 5, 7, 5)},
};

TEST(BmpButtonLayout, ImageAndCaptionRectangles)
{
    for (const PlacementRow& row : kPlacements) {
        SCOPED_TRACE(row.name);
        const L layout =
            L::Distribute(row.button, row.caption, row.image, row.pos, L::AlignCentre, L::AlignCentre, row.selected);
        EXPECT_EQ(layout.image, row.imageAt);
        EXPECT_EQ(layout.caption, row.captionAt);
        EXPECT_EQ(layout.face, row.button) << "the face never moves";
    }
}

struct FitRow {
    const char* name;
    CSize image, caption, fit;
};

const FitRow kFits[] = {
    {"16 x 16 image, 40 x 13 caption", kSquareImage, kWideCaption, CSize(50, 39)},
    {"image wider than the caption", CSize(64, 16), kWideCaption, CSize(70, 39)},
    {"no caption: the image's margins", kSquareImage, CSize(0, 0), CSize(22, 22)},
    {"caption without height: no caption margins", kSquareImage, CSize(40, 0), CSize(40, 22)},
    {"nothing: the margins alone", CSize(0, 0), CSize(0, 0), CSize(6, 6)},
};

TEST(BmpButtonLayout, FitSizeStacksImageAndCaption)
{
    for (const FitRow& row : kFits) {
        EXPECT_EQ(L::FitSize(row.image, row.caption), row.fit) << row.name;
    }
}

}  // namespace
