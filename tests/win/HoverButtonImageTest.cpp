// The hover button's images: gray, light and embossed copies and masks read
// back pixel by pixel, an image drawn through its mask, the pictures of every
// look in every state, and no GDI object left behind by a thousand buttons.
#include "ClientPixels.h"
#include "FieldHarness.h"
#include "WindowTest.h"
#include "monkey/GuiObjectCounter.h"

#include "afx/CBitmap.h"
#include "buttons/kvHoverButton.h"
#include "formatting/kvEdit.h"

#include <functional>
#include <string>
#include <vector>

namespace {

constexpr COLORREF kMagenta = RGB(255, 0, 255);
constexpr COLORREF kDark = RGB(20, 40, 60);     // gray level 35
constexpr COLORREF kLight = RGB(220, 200, 180);  // gray level 204

// Pictures as they show, top row first: '#' dark, '.' light, 'T' transparent
// (magenta); expected also 'S' shadow, 'H' highlight, and gray levels 'a' 35,
// 'b' 204, 'c' 100, 'W' white, 'K' black.
COLORREF ColourOf(char code)
{
    switch (code) {
    case '#': return kDark;
    case '.': return kLight;
    case 'S': return ::GetSysColor(COLOR_BTNSHADOW);
    case 'H': return ::GetSysColor(COLOR_3DHILIGHT);
    case 'a': return RGB(35, 35, 35);
    case 'b': return RGB(204, 204, 204);
    case 'c': return RGB(100, 100, 100);
    case 'W': return RGB(255, 255, 255);
    case 'K': return RGB(0, 0, 0);
    default: return kMagenta;
    }
}

// A device-dependent bitmap of the screen's format, as LoadBitmap makes them.
void MakeBitmap(CBitmap& bitmap, const std::vector<std::string>& picture)
{
    const int width = static_cast<int>(picture[0].size()), height = static_cast<int>(picture.size());
    std::vector<DWORD> bits;
    for (const std::string& row : picture) {
        for (const char code : row) {
            const COLORREF colour = ColourOf(code);
            bits.push_back(static_cast<DWORD>(GetRValue(colour)) << 16 | GetGValue(colour) << 8 | GetBValue(colour));
        }
    }
    ASSERT_TRUE(bitmap.CreateBitmap(width, height, 1, 32, bits.data()));
}

std::vector<COLORREF> PixelsOf(CBitmap& bitmap)
{
    BITMAP bm{};
    bitmap.GetBitmap(&bm);
    BITMAPINFO info{};
    info.bmiHeader = {sizeof info.bmiHeader, bm.bmWidth, -bm.bmHeight, 1, 32, BI_RGB};
    std::vector<DWORD> bits(static_cast<size_t>(bm.bmWidth * bm.bmHeight));
    const HDC hScreen = ::GetDC(nullptr);
    ::GetDIBits(hScreen, bitmap, 0, static_cast<UINT>(bm.bmHeight), bits.data(), &info, DIB_RGB_COLORS);
    ::ReleaseDC(nullptr, hScreen);
    std::vector<COLORREF> pixels;
    for (const DWORD bgr : bits)
        pixels.push_back(RGB((bgr >> 16) & 0xFF, (bgr >> 8) & 0xFF, bgr & 0xFF));
    return pixels;
}

struct CopyRow {
    const char* name;
    int type;  // a GrayBitmapTypes, or a mask when -1
    std::vector<std::string> expected;
};

const std::vector<std::string> kSource = {"#.T#", "..#.", "T..."};

const CopyRow kCopies[] = {
    {"plain", kvHoverButton::GrayPlain, {"abTa", "bbab", "Tbbb"}},
    {"light", kvHoverButton::GrayLight, {"cWTc", "WWcW", "TWWW"}},
    {"embossed", kvHoverButton::GrayEmbossed, {"STTS", "THST", "TTTH"}},
    {"mask", -1, {"KKWK", "KKKK", "WKKK"}},
};

class HoverButtonImage : public WindowTest {};

TEST_F(HoverButtonImage, CopiesReadBackPixelByPixel)
{
    CBitmap source;
    MakeBitmap(source, kSource);
    for (const CopyRow& row : kCopies) {
        SCOPED_TRACE(row.name);
        CBitmap copy;
        ASSERT_TRUE(row.type < 0 ? kvHoverButton::BuildMaskBitmap(&source, &copy, kMagenta)
                                 : kvHoverButton::BuildGrayBitmap(
                                       &source, &copy, kMagenta, static_cast<kvHoverButton::GrayBitmapTypes>(row.type)));
        const std::vector<COLORREF> pixels = PixelsOf(copy);
        const int width = static_cast<int>(kSource[0].size());
        for (size_t i = 0; i < pixels.size(); ++i)
            EXPECT_EQ(pixels[i], ColourOf(row.expected[i / width][i % width])) << "at " << i % width << ", " << i / width;
    }
    CBitmap noSource, result;
    EXPECT_FALSE(kvHoverButton::BuildGrayBitmap(&noSource, &result, kMagenta, kvHoverButton::GrayPlain));
    EXPECT_FALSE(kvHoverButton::BuildMaskBitmap(nullptr, &result, kMagenta));
}

// A 16 by 16 diamond, dark with a light middle, on magenta.
std::vector<std::string> Diamond()
{
    std::vector<std::string> picture;
    for (int y = 0; y < 16; ++y) {
        std::string row;
        for (int x = 0; x < 16; ++x) {
            const int distance = std::abs(2 * x - 15) + std::abs(2 * y - 15);
            row += distance < 8 ? '.' : distance < 16 ? '#' : 'T';
        }
        picture.push_back(row);
    }
    return picture;
}

// The four looks of the gallery, each button with its pictures.
struct Images {
    Images()
    {
        MakeBitmap(image, Diamond());
        kvHoverButton::BuildMaskBitmap(&image, &mask, kMagenta);
        kvHoverButton::BuildGrayBitmap(&image, &gray, kMagenta, kvHoverButton::GrayLight);
        kvHoverButton::BuildMaskBitmap(&gray, &grayMask, kMagenta);
    }
    CBitmap image, mask, gray, grayMask;
};

struct LookRow {
    const char* name;
    const char* caption;
    std::function<void(kvHoverButton&, Images&)> setUp;
};

const LookRow kLooks[] = {
    {"standard", "&Save", [](kvHoverButton& b, Images&) { b.SetStandardButtonLook(); }},
    {"flat", "&Print", [](kvHoverButton& b, Images&) { b.SetStandardHoverLook(); }},
    {"hyperlink", "www.example.com", [](kvHoverButton& b, Images&) { b.SetStandardHyperlinkLook(); }},
    {"image", "",
     [](kvHoverButton& b, Images& images) {
         b.SetStandardHoverLook();
         b.SetBitmap(kvHoverButton::HoverAllStates, &images.image, &images.mask);
         b.SetBitmap(kvHoverButton::HoverDisabled, &images.gray, &images.grayMask);
     }},
};

const CRect kRect(10, 100, 130, 130);

TEST_F(HoverButtonImage, PicturesOfEveryLookInEveryState)
{
    ::CreateDirectoryA("pictures", nullptr);
    Images images;
    for (const LookRow& look : kLooks) {
        SCOPED_TRACE(look.name);
        FieldForm form(status.MainWindow());
        CWnd& field = form.AddField(100, nullptr);
        kvHoverButton button;
        look.setUp(button, images);
        ASSERT_TRUE(button.Create(look.caption, WS_CHILD | WS_VISIBLE | WS_TABSTOP, kRect, &form.dialog, 200));
        const auto save = [&](const char* state) {
            flushEvents();
            const ClientPixels pixels(button);
            EXPECT_TRUE(pixels.WriteBmp(std::string("pictures/hover-") + look.name + "-" + state + ".bmp"));
            return pixels;
        };
        MoveMouseTo(button, POINT{200, 15});
        const ClientPixels normal = save("normal");
        MoveMouseTo(button, POINT{60, 15});
        save("hovering");
        PressLeftButton(true);
        save("pushed");
        MoveMouseTo(button, POINT{200, 15});
        PressLeftButton(false);
        button.SetFocus();
        save("focused");
        field.SetFocus();
        button.EnableWindow(FALSE);
        save("disabled");
        if (look.caption[0] == '\0') {
            EXPECT_EQ(normal.At(52, 7), normal.At(2, 2)) << "the mask's corner lets the background through";
            EXPECT_EQ(normal.At(59, 14), kLight) << "the middle of the image";
            EXPECT_EQ(normal.At(53, 14), kDark) << "its edge";
        }
        button.DestroyWindow();
    }
}

TEST_F(HoverButtonImage, AThousandButtonsLeaveNoGdiObjectBehind)
{
    Images images;
    FieldForm form(status.MainWindow());
    GuiObjectCounter counter;
    const GuiObjectCounts before = counter.Count();
    for (int i = 0; i < 1000; ++i) {
        kvHoverButton button;
        button.SetStandardHyperlinkLook();
        button.SetBitmap(kvHoverButton::HoverAllStates, &images.image, &images.mask);
        button.SetDrawButtonFrame(kvHoverButton::HoverAllStates, kvHoverButton::FrameThin);
        button.Create("&Link", WS_CHILD | WS_VISIBLE, kRect, &form.dialog, 200);
        button.SetFocus();
        button.UpdateWindow();
        button.SizeToContent();
        button.UpdateWindow();
        button.DestroyWindow();
    }
    flushEvents();
    EXPECT_EQ(counter.Count().libraryGdi, before.libraryGdi);
}

}  // namespace
