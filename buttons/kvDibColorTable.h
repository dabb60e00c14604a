// kvDibColorTable: the colour table of a palettized device-independent bitmap
// (a header, the colour table, then the pixels, as bitmap and icon resources
// hold them). The bitmap button grays its inactive image by rewriting the table,
// and draws with a palette made of it.
#pragma once

#include "afx/WinTypes.h"
#include "library/kvWinExport.h"

#include <cstddef>
#include <vector>

class KVWIN_API kvDibColorTable {
public:
    // The table's length: 2 to the power of the bit count up to 8 bits per pixel
    // (fewer when the header says it uses fewer), 0 for a true-colour image.
    static int ColorCount(const BITMAPINFOHEADER& dib);
    // Whether a header and its colour table lie within the bytes given.
    static bool Fits(const BITMAPINFOHEADER* dib, std::size_t bytes);
    // The pixels, which follow the header and the colour table.
    static const void* Pixels(const BITMAPINFOHEADER& dib);

    // The nearest of the four grays of the standard 16-colour palette.
    static BYTE GrayLevel(int gray);
    // Each colour of the table but the transparent one becomes its gray level.
    // 0, with nothing changed, for a true-colour image; else 1.
    static int MakeGray(BITMAPINFOHEADER* dib, COLORREF transparent);
    // The table's colours as palette entries; empty for a true-colour image.
    static std::vector<PALETTEENTRY> PaletteEntries(const BITMAPINFOHEADER& dib);

private:
    static RGBQUAD* Table(BITMAPINFOHEADER& dib);
    static const RGBQUAD* Table(const BITMAPINFOHEADER& dib);
};
