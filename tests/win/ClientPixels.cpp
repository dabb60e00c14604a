#include "ClientPixels.h"

#include <fstream>

namespace {
BITMAPINFOHEADER TopDownHeader(int width, int height)
{
    BITMAPINFOHEADER header{};
    header.biSize = sizeof header;
    header.biWidth = width;
    header.biHeight = -height;  // top-down
    header.biPlanes = 1;
    header.biBitCount = 32;
    header.biCompression = BI_RGB;
    return header;
}
}  // namespace

ClientPixels::ClientPixels(HWND hWnd)
{
    RECT client{};
    ::GetClientRect(hWnd, &client);
    m_width = client.right;
    m_height = client.bottom;
    if (m_width <= 0 || m_height <= 0)
        return;
    m_pixels.resize(static_cast<std::size_t>(m_width) * static_cast<std::size_t>(m_height));
    const HDC hWindowDC = ::GetDC(hWnd);
    const HDC hMemoryDC = ::CreateCompatibleDC(hWindowDC);
    const HBITMAP hBitmap = ::CreateCompatibleBitmap(hWindowDC, m_width, m_height);
    const HGDIOBJ hOld = ::SelectObject(hMemoryDC, hBitmap);
    ::BitBlt(hMemoryDC, 0, 0, m_width, m_height, hWindowDC, 0, 0, SRCCOPY);
    ::SelectObject(hMemoryDC, hOld);
    BITMAPINFO info{};
    info.bmiHeader = TopDownHeader(m_width, m_height);
    ::GetDIBits(hMemoryDC, hBitmap, 0, static_cast<UINT>(m_height), m_pixels.data(), &info, DIB_RGB_COLORS);
    ::DeleteObject(hBitmap);
    ::DeleteDC(hMemoryDC);
    ::ReleaseDC(hWnd, hWindowDC);
}

COLORREF ClientPixels::At(int x, int y) const
{
    if (x < 0 || y < 0 || x >= m_width || y >= m_height)
        return CLR_INVALID;
    const std::uint32_t pixel = m_pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(m_width) + static_cast<std::size_t>(x)];
    return RGB((pixel >> 16) & 0xFF, (pixel >> 8) & 0xFF, pixel & 0xFF);
}

bool ClientPixels::WriteBmp(const std::string& path) const
{
    const BITMAPINFOHEADER header = TopDownHeader(m_width, m_height);
    const DWORD pixelBytes = static_cast<DWORD>(m_pixels.size() * sizeof(std::uint32_t));
    BITMAPFILEHEADER file{};
    file.bfType = 0x4D42;  // "BM"
    file.bfOffBits = sizeof file + sizeof header;
    file.bfSize = file.bfOffBits + pixelBytes;
    std::ofstream out(path, std::ios::binary);
    out.write(reinterpret_cast<const char*>(&file), sizeof file);
    out.write(reinterpret_cast<const char*>(&header), sizeof header);
    out.write(reinterpret_cast<const char*>(m_pixels.data()), pixelBytes);
    return static_cast<bool>(out);
}
