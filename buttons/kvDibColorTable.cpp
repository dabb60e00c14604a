#include "buttons/kvDibColorTable.h"

#include "buttons/kvGrayLevel.h"


namespace {

constexpr WORD kMaxPalettizedBits = 8;

COLORREF ColorOf(const RGBQUAD& entry) { return RGB(entry.rgbRed, entry.rgbGreen, entry.rgbBlue); }

}  // namespace

int kvDibColorTable::ColorCount(const BITMAPINFOHEADER& dib)
{
    if (dib.biBitCount > kMaxPalettizedBits)
        return 0;
    const DWORD full = DWORD{1} << dib.biBitCount;
    // A shorter table is all the header has room for: beyond it lie the pixels.
    return static_cast<int>(dib.biClrUsed != 0 && dib.biClrUsed < full ? dib.biClrUsed : full);
}

bool kvDibColorTable::Fits(const BITMAPINFOHEADER* dib, std::size_t bytes)
{
    if (dib == nullptr || bytes < sizeof(BITMAPINFOHEADER) || dib->biSize < sizeof(BITMAPINFOHEADER) ||
        dib->biSize > bytes)
        return false;
    return bytes - dib->biSize >= static_cast<std::size_t>(ColorCount(*dib)) * sizeof(RGBQUAD);
}

const void* kvDibColorTable::Pixels(const BITMAPINFOHEADER& dib) { return Table(dib) + ColorCount(dib); }

BYTE kvDibColorTable::GrayLevel(int gray)
{
    if (gray < 64)
        return 0;
    if (gray < 160)
        return 128;
    if (gray < 224)
        return 192;
    return 255;
}

int kvDibColorTable::MakeGray(BITMAPINFOHEADER* dib, COLORREF transparent)
{
    const int count = dib != nullptr ? ColorCount(*dib) : 0;
    if (count == 0)
        return 0;
    RGBQUAD* table = Table(*dib);
    for (int i = 0; i < count; ++i) {
        RGBQUAD& entry = table[i];
        if (ColorOf(entry) == transparent)
            continue;
        const BYTE level = GrayLevel(kvGrayLevel(entry.rgbRed, entry.rgbGreen, entry.rgbBlue));
        entry.rgbRed = entry.rgbGreen = entry.rgbBlue = level;
    }
    return 1;
}

std::vector<PALETTEENTRY> kvDibColorTable::PaletteEntries(const BITMAPINFOHEADER& dib)
{
    const RGBQUAD* table = Table(dib);
    std::vector<PALETTEENTRY> entries(static_cast<std::size_t>(ColorCount(dib)));
    for (std::size_t i = 0; i < entries.size(); ++i)
        entries[i] = PALETTEENTRY{table[i].rgbRed, table[i].rgbGreen, table[i].rgbBlue, 0};
    return entries;
}

RGBQUAD* kvDibColorTable::Table(BITMAPINFOHEADER& dib)
{
    return reinterpret_cast<RGBQUAD*>(reinterpret_cast<BYTE*>(&dib) + dib.biSize);
}

const RGBQUAD* kvDibColorTable::Table(const BITMAPINFOHEADER& dib)
{
    return reinterpret_cast<const RGBQUAD*>(reinterpret_cast<const BYTE*>(&dib) + dib.biSize);
}
