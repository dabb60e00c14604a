// kvDibPixels: an image as 24-bit device-independent pixels (blue, green, red
// bytes; each row padded to a multiple of 4 bytes; bottom row stored first), and
// the per-pixel rules of the hover button's gray, embossed and mask copies.
#pragma once

#include "afx/WinTypes.h"
#include "library/kvWinExport.h"

#include <vector>

// How a gray copy is made; the hover button names them GrayPlain, GrayLight and
// GrayEmbossed.
enum kvGrayType : int { kvGrayPlain = 0, kvGrayLight = 1, kvGrayEmbossed = 2 };

class KVWIN_API kvDibPixels {
public:
    // A black image; a width or height below 1 gives an empty one.
    kvDibPixels(int width, int height);

    int Width() const { return m_width; }
    int Height() const { return m_height; }
    static int RowBytes(int width);
    // The buffer GetDIBits fills and SetDIBits reads.
    unsigned char* Bits() { return m_bits.data(); }

    // row counts in storage order, 0 the bottom row. Outside: CLR_INVALID, or nothing set.
    COLORREF At(int x, int row) const;
    void Set(int x, int row, COLORREF color);

    // Compared on the top 5 bits of each channel, so that colours a display
    // depth has rounded still match.
    static bool MatchesTransparent(COLORREF color, COLORREF transparent);

    // Every pixel but the transparent ones grayed by the type; an unknown type
    // changes nothing. Embossed: dark pixels become shadow with a highlight one
    // pixel right and one row lower on screen, light ones become transparent.
    void MakeGray(kvGrayType type, COLORREF transparent, COLORREF shadow, COLORREF highlight);
    // Transparent pixels white, the others black.
    void MakeMask(COLORREF transparent);

private:
    void _Emboss(int x, int row, int gray, COLORREF transparent, COLORREF shadow, COLORREF highlight);
    std::size_t _Offset(int x, int row) const;
    bool _Contains(int x, int row) const;

    int m_width = 0;
    int m_height = 0;
    std::vector<unsigned char> m_bits;
};
