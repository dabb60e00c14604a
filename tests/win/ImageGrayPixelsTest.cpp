// The bitmap button's derived images of real resources, pixel by pixel: the gray
// copy of a palettized bitmap and icon, the embossed copy of an icon (icons drawn
// over green, which shows through their transparent parts), and the palettes of
// their colour tables.
#include "BmpButtonTestResource.h"
#include "ClientPixels.h"
#include "WindowTest.h"

#include "afx/CBitmap.h"
#include "afx/CClientDC.h"
#include "afx/CPalette.h"
#include "buttons/kvBmpButton.h"

#include <functional>

namespace {

constexpr int kSize = 16;
constexpr COLORREF kMagenta = RGB(255, 0, 255);
constexpr COLORREF kGreen = RGB(0, 255, 0);

COLORREF Gray(BYTE level) { return RGB(level, level, level); }
bool InsideBorder(int x, int y) { return x > 0 && x < kSize - 1 && y > 0 && y < kSize - 1; }
bool InsideIcon(int x, int y) { return x >= 2 && x <= 13 && y >= 2 && y <= 13; }
// The icon's red, navy and black parts: all but its white quadrant.
bool DarkInIcon(int x, int y) { return InsideIcon(x, y) && (y < 8 || x < 8); }

using Expected = std::function<COLORREF(int x, int y)>;

// Red 77 and blue 25 above, yellow 230 and cyan 178 below; magenta is transparent.
COLORREF GrayBitmap(int x, int y)
{
    if (!InsideBorder(x, y))
        return kMagenta;
    return y < 8 ? Gray(x < 8 ? 128 : 0) : Gray(x < 8 ? 255 : 192);
}

// Red 77 and navy 12 above, black and white below.
COLORREF GrayIcon(int x, int y)
{
    if (!InsideIcon(x, y))
        return kGreen;
    return y < 8 ? Gray(x < 8 ? 128 : 0) : Gray(x < 8 ? 0 : 255);
}

// Dark pixels take the shadow colour with a highlight one down and right of
// them; light ones show the face.
COLORREF EmbossedIcon(int x, int y)
{
    if (!InsideIcon(x, y))
        return kGreen;
    if (DarkInIcon(x, y))
        return ::GetSysColor(COLOR_3DSHADOW);
    return DarkInIcon(x - 1, y - 1) ? ::GetSysColor(COLOR_3DHILIGHT) : kvBmpButton::m_defaultButtonColor;
}

void ExpectEachPixel(const ClientPixels& pixels, int left, const Expected& expected)
{
    int wrong = 0;
    for (int y = 0; y < kSize; ++y) {
        for (int x = 0; x < kSize; ++x) {
            if (pixels.At(left + x, y) != expected(x, y) && ++wrong <= 3)
                ADD_FAILURE() << "at " << x << ", " << y << ": " << std::hex << pixels.At(left + x, y);
        }
    }
    EXPECT_EQ(wrong, 0);
}

TEST_F(WindowTest, ImageGrayCopiesPixelByPixel)
{
    CBitmap grayBitmap;
    HICON hGrayIcon = nullptr, hEmbossed = nullptr;
    const auto hIcon = static_cast<HICON>(
        ::LoadImageA(::GetModuleHandleA(nullptr), MAKEINTRESOURCEA(IDI_BMPBUTTON_QUADRANTS), IMAGE_ICON, 0, 0, 0));
    ASSERT_TRUE(kvBmpButton::BuildGrayBitmap(MAKEINTRESOURCE(IDB_BMPBUTTON_QUADRANTS), kMagenta, &grayBitmap));
    ASSERT_TRUE(kvBmpButton::BuildGrayIcon(MAKEINTRESOURCE(IDI_BMPBUTTON_QUADRANTS), &hGrayIcon));
    EXPECT_TRUE(kvBmpButton::BuildDisabledImage(hIcon, CSize(kSize, kSize), hEmbossed));
    ASSERT_NE(hEmbossed, nullptr);

    // The three copies side by side in a window, read back as a user sees them.
    CWnd canvas;
    ASSERT_TRUE(canvas.CreateEx(0, AfxRegisterWndClass(0), "derived images", WS_POPUP | WS_VISIBLE, 40, 40,
                                3 * kSize, kSize, nullptr, nullptr));
    ::SetForegroundWindow(canvas);
    flushEvents();
    {
        CClientDC dc(&canvas);
        dc.FillSolidRect(0, 0, 3 * kSize, kSize, kGreen);
        CDC memory;
        memory.CreateCompatibleDC(&dc);
        CBitmap* pOld = memory.SelectObject(&grayBitmap);
        dc.BitBlt(0, 0, kSize, kSize, &memory, 0, 0, SRCCOPY);
        memory.SelectObject(pOld);
        ::DrawIconEx(dc, kSize, 0, hGrayIcon, kSize, kSize, 0, nullptr, DI_NORMAL);
        ::DrawIconEx(dc, 2 * kSize, 0, hEmbossed, kSize, kSize, 0, nullptr, DI_NORMAL);
    }
    const ClientPixels pixels(canvas);
    ::CreateDirectoryA("pictures", nullptr);
    pixels.WriteBmp("pictures/imagegray-bitmap-icon-embossed.bmp");
    canvas.DestroyWindow();
    for (HICON h : {hIcon, hGrayIcon, hEmbossed})
        ::DestroyIcon(h);

    ExpectEachPixel(pixels, 0, GrayBitmap);
    ExpectEachPixel(pixels, kSize, GrayIcon);
    ExpectEachPixel(pixels, 2 * kSize, EmbossedIcon);
}

TEST_F(WindowTest, ImageGrayTrueColourIsNotGrayed)
{
    CBitmap gray;
    EXPECT_FALSE(kvBmpButton::BuildGrayBitmap(MAKEINTRESOURCE(IDB_BMPBUTTON_TRUECOLOUR), kMagenta, &gray));
    EXPECT_EQ(gray.GetSafeHandle(), nullptr);
    EXPECT_FALSE(kvBmpButton::BuildGrayBitmap(MAKEINTRESOURCE(IDB_BMPBUTTON_QUADRANTS + 100), kMagenta, &gray));
}

struct PaletteRow {
    const char* name;
    int (*build)(LPCTSTR, CPalette&);
    UINT id;
    int entries;  // 0: no palette
    int index;
    COLORREF colour;
};

const PaletteRow kPalettes[] = {
    {"8-bit bitmap", kvBmpButton::GetBitmapPalette, IDB_BMPBUTTON_QUADRANTS, 256, 1, RGB(255, 0, 0)},
    {"4-bit icon", kvBmpButton::GetIconPalette, IDI_BMPBUTTON_QUADRANTS, 16, 3, RGB(0, 0, 128)},
    {"true-colour bitmap", kvBmpButton::GetBitmapPalette, IDB_BMPBUTTON_TRUECOLOUR, 0, 0, 0},
    {"missing icon", kvBmpButton::GetIconPalette, 1, 0, 0, 0},
};

TEST_F(WindowTest, ImageGrayPaletteOfTheColourTable)
{
    for (const PaletteRow& row : kPalettes) {
        SCOPED_TRACE(row.name);
        CPalette palette;
        EXPECT_EQ(row.build(MAKEINTRESOURCE(row.id), palette) != FALSE, row.entries != 0);
        EXPECT_EQ(palette.GetSafeHandle() != nullptr, row.entries != 0);
        if (row.entries == 0)
            continue;
        EXPECT_EQ(palette.GetEntryCount(), row.entries);
        PALETTEENTRY entry{};
        palette.GetPaletteEntries(static_cast<UINT>(row.index), 1, &entry);
        EXPECT_EQ(RGB(entry.peRed, entry.peGreen, entry.peBlue), row.colour);
    }
}

}  // namespace
