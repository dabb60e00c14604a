#include "buttons/kvDibPixels.h"

#include "buttons/kvGrayLevel.h"

#include <algorithm>

namespace {

constexpr COLORREF kTopFiveBits = 0xF8F8F8;
constexpr int kLightening = 65;
constexpr int kEmbossThreshold = 110;
constexpr COLORREF kInvalid = 0xFFFFFFFF;  // CLR_INVALID
constexpr COLORREF kBlack = 0x000000;
constexpr COLORREF kWhite = 0xFFFFFF;

constexpr int Red(COLORREF color) { return static_cast<int>(color & 0xFF); }
constexpr int Green(COLORREF color) { return static_cast<int>((color >> 8) & 0xFF); }
constexpr int Blue(COLORREF color) { return static_cast<int>((color >> 16) & 0xFF); }

constexpr COLORREF Gray(int level) { return RGB(level, level, level); }

}  // namespace

kvDibPixels::kvDibPixels(int width, int height)
{
    if (width < 1 || height < 1)
        return;
    m_width = width;
    m_height = height;
    m_bits.assign(static_cast<std::size_t>(RowBytes(width)) * static_cast<std::size_t>(height), 0);
}

int kvDibPixels::RowBytes(int width) { return (width * 3 + 3) / 4 * 4; }

bool kvDibPixels::_Contains(int x, int row) const { return x >= 0 && row >= 0 && x < m_width && row < m_height; }

std::size_t kvDibPixels::_Offset(int x, int row) const
{
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(RowBytes(m_width)) + static_cast<std::size_t>(x) * 3;
}

COLORREF kvDibPixels::At(int x, int row) const
{
    if (!_Contains(x, row))
        return kInvalid;
    const unsigned char* pixel = &m_bits[_Offset(x, row)];
    return RGB(pixel[2], pixel[1], pixel[0]);
}

void kvDibPixels::Set(int x, int row, COLORREF color)
{
    if (!_Contains(x, row))
        return;
    unsigned char* pixel = &m_bits[_Offset(x, row)];
    pixel[0] = static_cast<unsigned char>(Blue(color));
    pixel[1] = static_cast<unsigned char>(Green(color));
    pixel[2] = static_cast<unsigned char>(Red(color));
}

bool kvDibPixels::MatchesTransparent(COLORREF color, COLORREF transparent)
{
    return (color & kTopFiveBits) == (transparent & kTopFiveBits);
}

void kvDibPixels::MakeGray(kvGrayType type, COLORREF transparent, COLORREF shadow, COLORREF highlight)
{
    for (int row = 0; row < m_height; ++row) {
        for (int x = 0; x < m_width; ++x) {
            const COLORREF color = At(x, row);
            if (MatchesTransparent(color, transparent))
                continue;
            const int gray = kvGrayLevel(Red(color), Green(color), Blue(color));
            switch (type) {
            case kvGrayPlain:
                Set(x, row, Gray(gray));
                break;
            case kvGrayLight:
                Set(x, row, Gray(std::min(gray + kLightening, 255)));
                break;
            case kvGrayEmbossed:
                _Emboss(x, row, gray, transparent, shadow, highlight);
                break;
            }
        }
    }
}

// The highlight goes to a row already done, so it is never grayed itself.
void kvDibPixels::_Emboss(int x, int row, int gray, COLORREF transparent, COLORREF shadow, COLORREF highlight)
{
    if (gray >= kEmbossThreshold) {
        Set(x, row, transparent);
        return;
    }
    Set(x, row, shadow);
    if (_Contains(x + 1, row - 1) && At(x + 1, row - 1) != shadow)
        Set(x + 1, row - 1, highlight);
}

void kvDibPixels::MakeMask(COLORREF transparent)
{
    for (int row = 0; row < m_height; ++row) {
        for (int x = 0; x < m_width; ++x)
            Set(x, row, MatchesTransparent(At(x, row), transparent) ? kWhite : kBlack);
    }
}
