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

}  // namespace

bool SaveWindowBitmap(HWND window, const char* fileName)
{
    RECT rect;
    if (!::GetWindowRect(window, &rect))
        return false;
    BITMAPINFOHEADER header{};
    header.biSize = sizeof header;
    header.biWidth = rect.right - rect.left;
    header.biHeight = rect.bottom - rect.top;
    header.biPlanes = 1;
    header.biBitCount = 24;
    header.biCompression = BI_RGB;
    header.biSizeImage = ((header.biWidth * 3 + 3) & ~3) * header.biHeight;

    HDC windowDC = ::GetWindowDC(window);
    HDC memoryDC = ::CreateCompatibleDC(windowDC);
    void* bits = nullptr;
    HBITMAP picture = ::CreateDIBSection(windowDC, reinterpret_cast<BITMAPINFO*>(&header), DIB_RGB_COLORS,
                                         &bits, nullptr, 0);
    bool saved = false;
    if (picture) {
        HGDIOBJ previous = ::SelectObject(memoryDC, picture);
        saved = ::BitBlt(memoryDC, 0, 0, header.biWidth, header.biHeight, windowDC, 0, 0, SRCCOPY) &&
                ::GdiFlush() && WriteBitmapFile(fileName, header, bits);
        ::SelectObject(memoryDC, previous);
        ::DeleteObject(picture);
    }
    ::DeleteDC(memoryDC);
    ::ReleaseDC(window, windowDC);
    return saved;
}
