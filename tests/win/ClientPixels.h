// ClientPixels: a window's client area read back (GetDIBits), to check the
// colours at points the layout determines and to save a picture of a control
// for people to look at.
#pragma once

#include "afx/WinTypes.h"

#include <cstdint>
#include <string>
#include <vector>

class ClientPixels {
public:
    // The window must be visible and in front.
    explicit ClientPixels(HWND hWnd);

    int Width() const { return m_width; }
    int Height() const { return m_height; }
    // The colour at a client point; CLR_INVALID outside the area.
    COLORREF At(int x, int y) const;
    // Writes a 32-bit BMP file; false when the file cannot be written.
    bool WriteBmp(const std::string& path) const;

private:
    int m_width = 0;
    int m_height = 0;
    std::vector<std::uint32_t> m_pixels;  // top-down rows of 0x00RRGGBB
};
