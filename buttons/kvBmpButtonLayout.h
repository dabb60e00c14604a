// kvBmpButtonLayout: where the bitmap button puts its face, image and caption.
// Image and caption keep fixed margins, are placed by the button's alignment
// and the caption's position, shrink when the button is too small for them,
// and move down and right while the button is pressed.
#pragma once

#include "afx/CRect.h"
#include "afx/CSize.h"
#include "library/kvWinExport.h"

class KVWIN_API kvBmpButtonLayout {
public:
    // The caption's place relative to the image.
    enum textPos { TextAbove = 0, TextBelow = 1, TextLeft = 2, TextRight = 3 };
    // Left or top, centred, right or bottom.
    enum Alignment { AlignNear, AlignCentre, AlignFar };

    // Negated, twice the image offset is the room around the image; the caption
    // gets twice its negated x but its negated y only once.
    static constexpr POINT ImageOffset{-3, -3};
    static constexpr POINT TextOffset{-5, -4};
    static constexpr POINT OuterFocusOffset{0, 0};
    static constexpr POINT InnerFocusOffset{-3, -3};
    static constexpr POINT DownOffset{1, 1};

    // Lays image and caption out in rect; an image or caption size of (0, 0)
    // means there is none.
    static kvBmpButtonLayout Distribute(const CRect& rect, CSize textSize, CSize imageSize, textPos pos,
                                        Alignment horizontal, Alignment vertical, bool selected);
    // The smallest button that holds image and caption with their margins, the
    // caption always counted below the image.
    static CSize FitSize(CSize imageSize, CSize textSize);

    CRect face;
    CRect image;
    CRect caption;  // empty without a caption
};
