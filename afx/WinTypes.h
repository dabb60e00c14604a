// The Windows types and constants that kvWin's text logic names. On Windows they
// come from the platform headers; elsewhere this header declares the same names
// with the same sizes, so that formatters compile unchanged on the host.
#pragma once

#if defined(_WIN32)
#  ifndef NOMINMAX
#    define NOMINMAX
#  endif
#  ifndef WIN32_LEAN_AND_MEAN
#    define WIN32_LEAN_AND_MEAN
#  endif
#  include <windows.h>
#else
#include <cstdint>

typedef int BOOL;
typedef unsigned char BYTE;
typedef unsigned short WORD;
typedef std::uint32_t DWORD;
typedef unsigned int UINT;
typedef long LONG;
typedef char TCHAR;
typedef const char* LPCSTR;
typedef char* LPSTR;
typedef const char* LPCTSTR;
typedef char* LPTSTR;
typedef std::uintptr_t WPARAM;
typedef std::intptr_t LPARAM;
typedef std::intptr_t LRESULT;
typedef DWORD COLORREF;
typedef void* HWND;

#ifndef TRUE
#  define TRUE 1
#  define FALSE 0
#endif

struct SYSTEMTIME {
    WORD wYear;
    WORD wMonth;
    WORD wDayOfWeek;
    WORD wDay;
    WORD wHour;
    WORD wMinute;
    WORD wSecond;
    WORD wMilliseconds;
};

struct POINT { LONG x; LONG y; };
struct SIZE { LONG cx; LONG cy; };
struct RECT { LONG left; LONG top; LONG right; LONG bottom; };

// A device-independent bitmap's header and colour table, laid out as on Windows
// (the 32-bit fields stay 32 bits), and a palette's entry.
struct BITMAPINFOHEADER {
    DWORD biSize;
    std::int32_t biWidth;
    std::int32_t biHeight;
    WORD biPlanes;
    WORD biBitCount;
    DWORD biCompression;
    DWORD biSizeImage;
    std::int32_t biXPelsPerMeter;
    std::int32_t biYPelsPerMeter;
    DWORD biClrUsed;
    DWORD biClrImportant;
};
struct RGBQUAD { BYTE rgbBlue; BYTE rgbGreen; BYTE rgbRed; BYTE rgbReserved; };
struct PALETTEENTRY { BYTE peRed; BYTE peGreen; BYTE peBlue; BYTE peFlags; };

#define WM_APP 0x8000
#define VK_BACK 0x08
#define VK_TAB 0x09
#define VK_RETURN 0x0D
#define VK_ESCAPE 0x1B
#define VK_END 0x23
#define VK_HOME 0x24
#define VK_LEFT 0x25
#define VK_UP 0x26
#define VK_RIGHT 0x27
#define VK_DOWN 0x28
#define VK_INSERT 0x2D
#define VK_DELETE 0x2E
#define MB_OK 0x00000000L
#define MB_ICONHAND 0x00000010L
#define MB_ICONQUESTION 0x00000020L
#define MB_ICONEXCLAMATION 0x00000030L
#define MB_ICONASTERISK 0x00000040L

#define RGB(r, g, b) ((COLORREF)(((BYTE)(r) | ((WORD)((BYTE)(g)) << 8)) | (((DWORD)(BYTE)(b)) << 16)))
#define LOWORD(l) ((WORD)(((std::uintptr_t)(l)) & 0xffff))
#define HIWORD(l) ((WORD)((((std::uintptr_t)(l)) >> 16) & 0xffff))
#define MAKELONG(a, b) ((LONG)(((WORD)(((std::uintptr_t)(a)) & 0xffff)) | ((DWORD)((WORD)(((std::uintptr_t)(b)) & 0xffff))) << 16))
#endif
