// The bitmap button's derived images of real resources, pixel by pixel: the gray
// copy of a palettized bitmap and icon, the embossed copy of an icon, and the
// palettes of their colour tables. Pictures go to pictures/.
#include "BmpButtonTestResource.h"
#include "WindowTest.h"

#include "afx/CBitmap.h"
#include "afx/CClientDC.h"
#include "afx/CPalette.h"
#include "buttons/kvBmpButton.h"

#include <cstdio>
#include <functional>
#include <string>
#include <vector>

namespace {

constexpr int kSize = 16;
constexpr COLORREF kMagenta = RGB(255, 0, 255);
constexpr COLORREF kGreen = RGB(0, 255, 0);  // behind icons: their transparent parts

COLORREF Gray(BYTE level) { return RGB(level, level, level); }

// The 16 x 16 pixels of a bitmap, or of an icon drawn over green.
class Pixels16 {
public:
    explicit Pixels16(HBITMAP hBitmap) { Read(hBitmap); }
    explicit Pixels16(HICON hIcon)
    {
        CClientDC screen(nullptr);
        CDC memory;
        memory.CreateCompatibleDC(&screen);
        CBitmap canvas;
        canvas.CreateCompatibleBitmap(&screen, kSize, kSize);
        CBitmap* pOld = memory.SelectObject(&canvas);
        memory.FillSolidRect(0, 0, kSize, kSize, kGreen);
        ::DrawIconEx(memory, 0, 0, hIcon, kSize, kSize, 0, nullptr, DI_NORMAL);
        memory.SelectObject(pOld);
        Read(canvas);
    }

    COLORREF At(int x, int y) const
    {
        const DWORD pixel = m_pixels[static_cast<size_t>(y * kSize + x)];
        return RGB((pixel >> 16) & 0xFF, (pixel >> 8) & 0xFF, pixel & 0xFF);
    }

    // Every pixel against the expected colour; the first few differences reported.
    void ExpectEach(const std::function<COLORREF(int, int)>& expected) const
    {
        int wrong = 0;
        for (int y = 0; y < kSize; ++y) {
            for (int x = 0; x < kSize; ++x) {
                if (At(x, y) != expected(x, y) && ++wrong <= 5)
                    ADD_FAILURE() << "at " << x << ", " << y << ": " << std::hex << At(x, y) << " instead of "
                                  << expected(x, y);
            }
        }
        EXPECT_EQ(wrong, 0);
    }

    void WriteBmp(const std::string& name) const
    {
        ::CreateDirectoryA("pictures", nullptr);
        BITMAPINFOHEADER header{sizeof header, kSize, -kSize, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        BITMAPFILEHEADER file{0x4D42, 0, 0, 0, sizeof file + sizeof header};
        file.bfSize = file.bfOffBits + sizeof m_pixels;
        FILE* out = std::fopen(("pictures/" + name + ".bmp").c_str(), "wb");
        ASSERT_NE(out, nullptr);
        std::fwrite(&file, sizeof file, 1, out);
        std::fwrite(&header, sizeof header, 1, out);
        std::fwrite(m_pixels, sizeof m_pixels, 1, out);
        std::fclose(out);
    }

private:
    void Read(HBITMAP hBitmap)
    {
        BITMAPINFO info{};
        info.bmiHeader = BITMAPINFOHEADER{sizeof info.bmiHeader, kSize, -kSize, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        CClientDC screen(nullptr);
        ASSERT_EQ(::GetDIBits(screen, hBitmap, 0, kSize, m_pixels, &info, DIB_RGB_COLORS), kSize);
    }

    DWORD m_pixels[kSize * kSize]{};
};

bool InsideBorder(int x, int y) { return x > 0 && x < kSize - 1 && y > 0 && y < kSize - 1; }
bool InsideIcon(int x, int y) { return x >= 2 && x <= 13 && y >= 2 && y <= 13; }

TEST_F(WindowTest, ImageGrayBitmapTakesTheFourGrays)
{
    CBitmap gray;
    ASSERT_TRUE(kvBmpButton::BuildGrayBitmap(MAKEINTRESOURCE(IDB_BMPBUTTON_QUADRANTS), kMagenta, &gray));
    const Pixels16 pixels(static_cast<HBITMAP>(gray));
    pixels.WriteBmp("imagegray-bitmap");
    // Red 77 and blue 25 above, yellow 230 and cyan 178 below; magenta is transparent.
    pixels.ExpectEach([](int x, int y) {
        if (!InsideBorder(x, y))
            return kMagenta;
        return y < 8 ? Gray(x < 8 ? 128 : 0) : Gray(x < 8 ? 255 : 192);
    });

    CBitmap trueColour;
    EXPECT_FALSE(kvBmpButton::BuildGrayBitmap(MAKEINTRESOURCE(IDB_BMPBUTTON_TRUECOLOUR), kMagenta, &trueColour));
    EXPECT_EQ(trueColour.GetSafeHandle(), nullptr);
    EXPECT_FALSE(kvBmpButton::BuildGrayBitmap(MAKEINTRESOURCE(IDB_BMPBUTTON_QUADRANTS + 100), kMagenta, &gray));
}

TEST_F(WindowTest, ImageGrayIconKeepsItsMask)
{
    HICON hGray = nullptr;
    ASSERT_TRUE(kvBmpButton::BuildGrayIcon(MAKEINTRESOURCE(IDI_BMPBUTTON_QUADRANTS), &hGray));
    const Pixels16 pixels(hGray);
    ::DestroyIcon(hGray);
    pixels.WriteBmp("imagegray-icon");
    // Red 77 and navy 12 above, black and white below.
    pixels.ExpectEach([](int x, int y) {
        if (!InsideIcon(x, y))
            return kGreen;
        return y < 8 ? Gray(x < 8 ? 128 : 0) : Gray(x < 8 ? 0 : 255);
    });
}

// Dark pixels take the shadow colour, with a highlight one pixel down and right
// of them; light pixels show the face; the icon's mask stays.
TEST_F(WindowTest, ImageGrayDisabledIconIsEmbossed)
{
    const auto hIcon = static_cast<HICON>(
        ::LoadImageA(::GetModuleHandleA(nullptr), MAKEINTRESOURCEA(IDI_BMPBUTTON_QUADRANTS), IMAGE_ICON, 0, 0, 0));
    ASSERT_NE(hIcon, nullptr);
    HICON hDisabled = nullptr;
    EXPECT_TRUE(kvBmpButton::BuildDisabledImage(hIcon, CSize(kSize, kSize), hDisabled));
    ::DestroyIcon(hIcon);
    ASSERT_NE(hDisabled, nullptr);
    const Pixels16 pixels(hDisabled);
    ::DestroyIcon(hDisabled);
    pixels.WriteBmp("imagegray-embossed");

    const auto dark = [](int x, int y) { return InsideIcon(x, y) && (y < 8 || x < 8); };
    pixels.ExpectEach([&dark](int x, int y) {
        if (!InsideIcon(x, y))
            return kGreen;
        if (dark(x, y))
            return ::GetSysColor(COLOR_3DSHADOW);
        return dark(x - 1, y - 1) ? ::GetSysColor(COLOR_3DHILIGHT) : kvBmpButton::m_defaultButtonColor;
    });
}

struct PaletteRow {
    const char* name;
    std::function<int(CPalette&)> build;
    int entries;  // 0: no palette
    int index;
    COLORREF colour;
};

const PaletteRow kPalettes[] = {
    {"8-bit bitmap", [](CPalette& p) { return kvBmpButton::GetBitmapPalette(MAKEINTRESOURCE(IDB_BMPBUTTON_QUADRANTS), p); },
     256, 1, RGB(255, 0, 0)},
    {"4-bit icon", [](CPalette& p) { return kvBmpButton::GetIconPalette(MAKEINTRESOURCE(IDI_BMPBUTTON_QUADRANTS), p); },
     16, 3, RGB(0, 0, 128)},
    {"true-colour bitmap",
     [](CPalette& p) { return kvBmpButton::GetBitmapPalette(MAKEINTRESOURCE(IDB_BMPBUTTON_TRUECOLOUR), p); }, 0, 0, 0},
    {"missing icon", [](CPalette& p) { return kvBmpButton::GetIconPalette(MAKEINTRESOURCE(1), p); }, 0, 0, 0},
};

TEST_F(WindowTest, ImageGrayPaletteOfTheColourTable)
{
    for (const PaletteRow& row : kPalettes) {
        SCOPED_TRACE(row.name);
        CPalette palette;
        EXPECT_EQ(row.build(palette) != FALSE, row.entries != 0);
        if (row.entries == 0) {
            EXPECT_EQ(palette.GetSafeHandle(), nullptr);
            continue;
        }
        EXPECT_EQ(palette.GetEntryCount(), row.entries);
        PALETTEENTRY entry{};
        palette.GetPaletteEntries(static_cast<UINT>(row.index), 1, &entry);
        EXPECT_EQ(RGB(entry.peRed, entry.peGreen, entry.peBlue), row.colour);
    }
}

}  // namespace
