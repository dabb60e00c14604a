// SaveWindowBitmap: the window's pixels, copied from its window DC into a
// 24-bit DIB and written bottom-up as the BMP format stores them.
#include "gallery/WindowBitmap.h"

#include <windows.h>

#include <cstdio>
#include <memory>

namespace {

struct FileCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

bool WriteBitmapFile(const char* fileName, const BITMAPINFOHEADER& header, const void* bits)
{
    const DWORD headersSize = sizeof(BITMAPFILEHEADER) + sizeof(BITMAPINFOHEADER);
    BITMAPFILEHEADER fileHeader{};
    fileHeader.bfType = 0x4D42;  // "BM"
    fileHeader.bfOffBits = headersSize;
    fileHeader.bfSize = headersSize + header.biSizeImage;
    std::unique_ptr<std::FILE, FileCloser> file(std::fopen(fileName, "wb"));
    return file && std::fwrite(&fileHeader, sizeof fileHeader, 1, file.get()) == 1 &&
           std::fwrite(&header, sizeof header, 1, file.get()) == 1 &&
           std::fwrite(bits, header.biSizeImage, 1, file.get()) == 1;
}

// The pixels of a rectangle of the source DC, from its point (x, y).
bool SaveBitmapOf(HDC sourceDC, int x, int y, int width, int height, const char* fileName)
{
    BITMAPINFOHEADER header{};
    header.biSize = sizeof header;
    header.biWidth = width;
    header.biHeight = height;
    header.biPlanes = 1;
    header.biBitCount = 24;
    header.biCompression = BI_RGB;
    header.biSizeImage = ((header.biWidth * 3 + 3) & ~3) * header.biHeight;

    HDC memoryDC = ::CreateCompatibleDC(sourceDC);
    void* bits = nullptr;
    HBITMAP picture = ::CreateDIBSection(sourceDC, reinterpret_cast<BITMAPINFO*>(&header), DIB_RGB_COLORS,
                                         &bits, nullptr, 0);
    bool saved = false;
    if (picture) {
        HGDIOBJ previous = ::SelectObject(memoryDC, picture);
        saved = ::BitBlt(memoryDC, 0, 0, header.biWidth, header.biHeight, sourceDC, x, y, SRCCOPY) &&
                ::GdiFlush() && WriteBitmapFile(fileName, header, bits);
        ::SelectObject(memoryDC, previous);
        ::DeleteObject(picture);
    }
    ::DeleteDC(memoryDC);
    return saved;
}

}  // namespace

bool SaveWindowBitmap(HWND window, const char* fileName)
{
    RECT rect;
    if (!::GetWindowRect(window, &rect))
        return false;
    HDC windowDC = ::GetWindowDC(window);
    const bool saved = SaveBitmapOf(windowDC, 0, 0, rect.right - rect.left, rect.bottom - rect.top, fileName);
    ::ReleaseDC(window, windowDC);
    return saved;
}

bool SaveScreenBitmap(const RECT& rect, const char* fileName)
{
    HDC screenDC = ::GetDC(nullptr);
    const bool saved =
        SaveBitmapOf(screenDC, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top, fileName);
    ::ReleaseDC(nullptr, screenDC);
    return saved;
}
