// Drawing through CDC and CImageList, read back pixel by pixel from a memory
// bitmap: objects selected and put back, shapes, blits and clipping, text
// measured and drawn, point fonts sized, image lists drawn, and bitmaps, image
// lists and menus found through the resource chain.
#include "GdiTestResource.h"

#include "afx/AfxExtension.h"
#include "afx/CBitmap.h"
#include "afx/CBrush.h"
#include "afx/CDC.h"
#include "afx/CDynLinkLibrary.h"
#include "afx/CFont.h"
#include "afx/CImageList.h"
#include "afx/CMenu.h"
#include "afx/CPalette.h"
#include "afx/CPen.h"
#include "afx/CRect.h"
#include "afx/CRgn.h"

#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <string>
#include <vector>

namespace {

constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr COLORREF kBlack = RGB(0, 0, 0);
constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kGreen = RGB(0, 255, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);
constexpr COLORREF kYellow = RGB(255, 255, 0);
constexpr COLORREF kMagenta = RGB(255, 0, 255);

using Picture = std::vector<std::string>;

// Pixels are written as letters, so that expected images read as pictures.
char Letter(COLORREF colour)
{
    static const struct {
        char letter;
        COLORREF colour;
    } kLegend[] = {{'.', kWhite}, {'K', kBlack}, {'R', kRed}, {'G', kGreen},
                   {'B', kBlue},  {'Y', kYellow}, {'M', kMagenta}};
    for (const auto& entry : kLegend)
        if (entry.colour == colour)
            return entry.letter;
    return '?';
}

// 32 bits per pixel, top row first: red, green over blue, black.
const DWORD kSourcePixels[] = {0x00FF0000, 0x0000FF00, 0x000000FF, 0x00000000};

void CreateSourceBitmap(CBitmap& bitmap) { ASSERT_TRUE(bitmap.CreateBitmap(2, 2, 1, 32, kSourcePixels)); }

// A memory DC drawing into a 32-bit bitmap, so that colours come back exactly.
// Without pixels the canvas starts white.
class Canvas {
public:
    Canvas(int cx, int cy, const DWORD* pixels = nullptr) : m_cx(cx), m_cy(cy)
    {
        dc.CreateCompatibleDC(nullptr);
        m_bitmap.CreateBitmap(cx, cy, 1, 32, pixels);
        m_pOriginal = dc.SelectObject(&m_bitmap);
        if (pixels == nullptr)
            dc.FillSolidRect(0, 0, cx, cy, kWhite);
    }
    ~Canvas() { dc.SelectObject(m_pOriginal); }

    Picture Pixels() const
    {
        Picture rows(static_cast<size_t>(m_cy), std::string(static_cast<size_t>(m_cx), ' '));
        for (int y = 0; y < m_cy; ++y)
            for (int x = 0; x < m_cx; ++x)
                rows[static_cast<size_t>(y)][static_cast<size_t>(x)] = Letter(dc.GetPixel(x, y));
        return rows;
    }

    CDC dc;

private:
    int m_cx;
    int m_cy;
    CBitmap m_bitmap;
    CBitmap* m_pOriginal = nullptr;
};

// ---- selecting objects ------------------------------------------------------

template <class T>
void ExpectSelectionRoundTrip(const char* name, T& object, UINT kind)
{
    SCOPED_TRACE(name);
    CDC dc;
    ASSERT_TRUE(dc.CreateCompatibleDC(nullptr));
    const HGDIOBJ original = ::GetCurrentObject(dc, kind);

    T* previous = dc.SelectObject(&object);
    ASSERT_NE(previous, nullptr);
    EXPECT_EQ(previous->m_hObject, original);
    EXPECT_EQ(::GetCurrentObject(dc, kind), object.m_hObject);

    EXPECT_EQ(dc.SelectObject(previous), &object) << "the permanent object comes back, not a temporary";
    EXPECT_EQ(::GetCurrentObject(dc, kind), original);
}

TEST(Gdi, SelectObjectReturnsThePreviousObjectForPuttingItBack)
{
    CPen pen(PS_SOLID, 1, kRed);
    CBrush brush(kRed);
    CFont font;
    font.CreatePointFont(90, "Arial");
    CBitmap bitmap;
    bitmap.CreateBitmap(2, 2, 1, 1, nullptr);
    CPen penAsAnyObject(PS_DOT, 1, kBlue);
    ExpectSelectionRoundTrip<CPen>("pen", pen, OBJ_PEN);
    ExpectSelectionRoundTrip<CBrush>("brush", brush, OBJ_BRUSH);
    ExpectSelectionRoundTrip<CFont>("font", font, OBJ_FONT);
    ExpectSelectionRoundTrip<CBitmap>("bitmap", bitmap, OBJ_BITMAP);
    ExpectSelectionRoundTrip<CGdiObject>("pen through the generic overload", penAsAnyObject, OBJ_PEN);

    CPalette palette;
    LOGPALETTE entries{0x300, 1, {{1, 2, 3, 0}}};
    palette.CreatePalette(&entries);
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    CPalette* pDefault = dc.SelectPalette(&palette, FALSE);
    ASSERT_NE(pDefault, nullptr);
    EXPECT_EQ(pDefault->m_hObject, ::GetStockObject(DEFAULT_PALETTE));
    EXPECT_EQ(dc.SelectPalette(pDefault, FALSE), &palette);
}

// ---- drawing ------------------------------------------------------------------

struct DrawingCase {
    const char* name;
    void (*draw)(CDC& dc);
    Picture expected;  // a 5 x 4 canvas that starts white
};

const DrawingCase kDrawings[] = {
    {"FillSolidRect fills exactly its rectangle",
     [](CDC& dc) { dc.FillSolidRect(1, 1, 3, 2, kRed); },
     {".....", ".RRR.", ".RRR.", "....."}},
    {"Draw3dRect gives the far corners to the second colour",
     [](CDC& dc) { dc.Draw3dRect(CRect(0, 0, 5, 4), kRed, kBlue); },
     {"RRRRB", "R...B", "R...B", "BBBBB"}},
    {"Rectangle with the stock null pen is one pixel smaller",
     [](CDC& dc) {
         CBrush brush(kRed);
         CGdiObject* pOldPen = dc.SelectStockObject(NULL_PEN);
         CBrush* pOldBrush = dc.SelectObject(&brush);
         dc.Rectangle(CRect(0, 0, 4, 3));
         dc.SelectObject(pOldBrush);
         dc.SelectObject(pOldPen);
     },
     {"RRR..", "RRR..", ".....", "....."}},
    {"IntersectClipRect clips until RestoreDC",
     [](CDC& dc) {
         dc.SaveDC();
         dc.IntersectClipRect(1, 1, 3, 3);
         dc.FillSolidRect(0, 0, 5, 4, kRed);
         dc.RestoreDC(-1);
         dc.SetPixel(4, 3, kBlue);
     },
     {".....", ".RR..", ".RR..", "....B"}},
    {"SelectClipRgn clips until the region is taken away",
     [](CDC& dc) {
         CRgn region;
         region.CreateRectRgn(3, 0, 5, 2);
         dc.SelectClipRgn(&region);
         dc.FillSolidRect(0, 0, 5, 4, kRed);
         dc.SelectClipRgn(nullptr);
         dc.SetPixel(CPoint(0, 3), kBlue);
     },
     {"...RR", "...RR", ".....", "B...."}},
    {"BitBlt copies from another DC",
     [](CDC& dc) {
         Canvas source(2, 2, kSourcePixels);
         dc.BitBlt(1, 1, 2, 2, &source.dc, 0, 0, SRCCOPY);
     },
     {".....", ".RG..", ".BK..", "....."}},
    {"StretchBlt doubles each pixel",
     [](CDC& dc) {
         Canvas source(2, 2, kSourcePixels);
         dc.StretchBlt(0, 0, 4, 4, &source.dc, 0, 0, 2, 2, SRCCOPY);
     },
     {"RRGG.", "RRGG.", "BBKK.", "BBKK."}},
    {"DrawState draws a bitmap at its place",
     [](CDC& dc) {
         CBitmap bitmap;
         CreateSourceBitmap(bitmap);
         dc.DrawState(CPoint(3, 2), CSize(2, 2), static_cast<HBITMAP>(bitmap), DSS_NORMAL);
     },
     {".....", ".....", "...RG", "...BK"}},
};

TEST(Gdi, DrawingOperationsPaintExactlyTheirPixels)
{
    for (const DrawingCase& drawing : kDrawings) {
        SCOPED_TRACE(drawing.name);
        Canvas canvas(5, 4);
        drawing.draw(canvas.dc);
        EXPECT_EQ(canvas.Pixels(), drawing.expected);
    }
}

// ---- text ---------------------------------------------------------------------

int CountNonWhite(const Canvas& canvas, const CRect& area, bool inside)
{
    const Picture pixels = canvas.Pixels();
    int count = 0;
    for (int y = 0; y < static_cast<int>(pixels.size()); ++y)
        for (int x = 0; x < static_cast<int>(pixels[0].size()); ++x)
            if (area.PtInRect(CPoint(x, y)) == inside && pixels[size_t(y)][size_t(x)] != '.')
                ++count;
    return count;
}

TEST(Gdi, TextIsDrawnWithinTheExtentItIsMeasuredAt)
{
    for (const char* text : {"Hello", "MW", "10:45"}) {
        SCOPED_TRACE(text);
        Canvas canvas(60, 24);
        canvas.dc.SelectStockObject(DEFAULT_GUI_FONT);
        canvas.dc.SetBkMode(TRANSPARENT);
        canvas.dc.SetTextColor(kBlack);
        const CSize extent = canvas.dc.GetTextExtent(CString(text));
        EXPECT_EQ(extent, canvas.dc.GetTextExtent(text, static_cast<int>(strlen(text))));

        TEXTMETRIC metrics{};
        ASSERT_TRUE(canvas.dc.GetTextMetrics(&metrics));
        CRect measured(0, 0, 0, 0);
        canvas.dc.DrawText(CString(text), &measured, DT_CALCRECT | DT_SINGLELINE | DT_NOPREFIX);
        EXPECT_EQ(measured.Width(), extent.cx);
        EXPECT_EQ(measured.Height(), metrics.tmHeight);

        ASSERT_TRUE(canvas.dc.TextOut(2, 2, CString(text)));
        const CRect box(CPoint(2, 2), extent);
        EXPECT_GT(CountNonWhite(canvas, box, true), 0);
        EXPECT_EQ(CountNonWhite(canvas, box, false), 0);
    }
}

// ---- point fonts ------------------------------------------------------

bool ScreenIs96Dpi()
{
    CDC screen;
    screen.Attach(::GetDC(nullptr));
    const bool is96 = screen.GetDeviceCaps(LOGPIXELSY) == 96;
    ::ReleaseDC(nullptr, screen.Detach());
    return is96;
}

struct PointFontCase {
    int nPointSize;   // tenths of a point
    bool halvedUnits; // measured for a DC whose logical unit is two pixels, not the screen
    LONG lfHeight;
};

const PointFontCase kPointFonts[] = {
    {90, false, -12}, {80, false, -11}, {100, false, -13}, {120, false, -16}, {90, true, -6},
};

TEST(Gdi, CreatePointFontConvertsTenthsOfAPointToLogicalHeight)
{
    if (!ScreenIs96Dpi())
        GTEST_SKIP() << "the rows are written for a 96 dpi screen";
    for (const PointFontCase& row : kPointFonts) {
        SCOPED_TRACE(testing::Message() << row.nPointSize
                                        << (row.halvedUnits ? " in halved units" : " on the screen"));
        CDC halved;
        halved.CreateCompatibleDC(nullptr);
        ::SetMapMode(halved, MM_ANISOTROPIC);
        ::SetWindowExtEx(halved, 1, 1, nullptr);
        ::SetViewportExtEx(halved, 2, 2, nullptr);

        CFont font;
        ASSERT_TRUE(font.CreatePointFont(row.nPointSize, "MS Sans Serif", row.halvedUnits ? &halved : nullptr));
        LOGFONT logFont{};
        ASSERT_TRUE(font.GetLogFont(&logFont));
        EXPECT_EQ(logFont.lfHeight, row.lfHeight);
        EXPECT_STREQ(logFont.lfFaceName, "MS Sans Serif");
        EXPECT_EQ(logFont.lfCharSet, DEFAULT_CHARSET);
    }
}

// ---- image lists ------------------------------------------------------------------

// Red, black over black, blue: the black pixels are the ones a mask hides, as
// image lists expect of masked images.
const DWORD kMaskedPixels[] = {0x00FF0000, 0x00000000, 0x00000000, 0x000000FF};

// A 2 x 2 monochrome mask: set bits are transparent. Rows are padded to 16 bits.
void CreateMask(CBitmap& mask, BYTE topRow, BYTE bottomRow)
{
    const BYTE bits[] = {topRow, 0, bottomRow, 0};
    mask.CreateBitmap(2, 2, 1, 1, bits);
}

// The masked image and its mask, hiding the top right and bottom left pixels.
void CreateMaskedImage(CBitmap& image, CBitmap& mask)
{
    image.CreateBitmap(2, 2, 1, 32, kMaskedPixels);
    CreateMask(mask, 0x40, 0x80);
}

struct ImageListCase {
    const char* name;
    void (*fill)(CImageList& list);  // leaves the image to draw at index 0
    Picture expected;                // image 0 drawn at (1, 0) of a white 4 x 2 canvas
};

const ImageListCase kImageLists[] = {
    {"a mask colour makes its pixels transparent",
     [](CImageList& list) {
         const DWORD pixels[] = {0x00FF0000, 0x00FF00FF, 0x00FF00FF, 0x000000FF};
         CBitmap image;
         image.CreateBitmap(2, 2, 1, 32, pixels);
         list.Add(&image, kMagenta);
     },
     {".R..", "..B."}},
    {"a mask bitmap makes its set pixels transparent",
     [](CImageList& list) {
         CBitmap image, mask;
         CreateMaskedImage(image, mask);
         list.Add(&image, &mask);
     },
     {".R..", "..B."}},
    {"the background colour fills the transparent pixels",
     [](CImageList& list) {
         CBitmap image, mask;
         CreateMaskedImage(image, mask);
         list.Add(&image, &mask);
         EXPECT_EQ(list.SetBkColor(kYellow), CLR_NONE);
     },
     {".RY.", ".YB."}},
    {"Replace changes the picture of an index",
     [](CImageList& list) {
         CBitmap first, second, mask;
         const DWORD blue[] = {0x000000FF, 0x000000FF, 0x000000FF, 0x000000FF};
         first.CreateBitmap(2, 2, 1, 32, blue);
         CreateSourceBitmap(second);
         CreateMask(mask, 0x00, 0x00);
         list.Add(&first, &mask);
         list.Replace(0, &second, &mask);
     },
     {".RG.", ".BK."}},
};

TEST(ImageList, DrawPaintsTheImageThroughItsMask)
{
    for (const ImageListCase& row : kImageLists) {
        SCOPED_TRACE(row.name);
        CImageList list;
        ASSERT_TRUE(list.Create(2, 2, ILC_COLOR24 | ILC_MASK, 0, 4));
        row.fill(list);
        ASSERT_EQ(list.GetImageCount(), 1);
        Canvas canvas(4, 2);
        EXPECT_TRUE(list.Draw(&canvas.dc, 0, CPoint(1, 0), ILD_NORMAL));
        EXPECT_EQ(canvas.Pixels(), row.expected);
    }
}

TEST(ImageList, ExtractedIconKeepsColoursAndTransparency)
{
    CImageList list;
    ASSERT_TRUE(list.Create(2, 2, ILC_COLOR24 | ILC_MASK, 0, 4));
    CBitmap image, mask;
    CreateMaskedImage(image, mask);
    EXPECT_EQ(list.Add(&image, &mask), 0);
    EXPECT_EQ(list.Add(&image, &mask), 1);

    IMAGEINFO info{};
    ASSERT_TRUE(list.GetImageInfo(1, &info));
    EXPECT_EQ(CRect(info.rcImage).Size(), CSize(2, 2));

    const HICON icon = list.ExtractIcon(1);
    ASSERT_NE(icon, nullptr);
    Canvas canvas(4, 2);
    EXPECT_TRUE(canvas.dc.DrawState(CPoint(2, 0), CSize(2, 2), icon, DSS_NORMAL));
    ::DestroyIcon(icon);
    EXPECT_EQ(canvas.Pixels(), (Picture{"..R.", "...B"}));
}

// ---- the resource chain -------------------------------------------------------

// Where the test program's own resources are put for one lookup.
struct Placement {
    const char* name;
    bool applicationResources;  // the program is the application's resource module
    bool extensionModule;       // the program is entered in the chain as an extension
    bool found;
};

const Placement kPlacements[] = {
    {"the application's resource module", true, false, true},
    {"an extension module in the chain", false, true, true},
    {"neither", false, false, false},
};

struct ResourceLoader {
    const char* name;
    bool (*load)();  // loads and checks what it got
};

const ResourceLoader kLoaders[] = {
    {"CBitmap::LoadBitmap",
     [] {
         CBitmap bitmap;
         if (!bitmap.LoadBitmap(IDB_GDITEST_STRIP))
             return false;
         BITMAP info{};
         bitmap.GetBitmap(&info);
         CDC dc;
         dc.CreateCompatibleDC(nullptr);
         CBitmap* pOld = dc.SelectObject(&bitmap);
         const bool pixelsRight = dc.GetPixel(0, 0) == kRed && dc.GetPixel(3, 0) == kBlack &&
                                  dc.GetPixel(2, 1) == kYellow;
         dc.SelectObject(pOld);
         EXPECT_EQ(CSize(info.bmWidth, info.bmHeight), CSize(4, 2));
         EXPECT_TRUE(pixelsRight);
         return true;
     }},
    {"CImageList::Create from a bitmap strip",
     [] {
         CImageList list;
         if (!list.Create(IDB_GDITEST_STRIP, 2, 0, kMagenta))
             return false;
         EXPECT_EQ(list.GetImageCount(), 2);
         Canvas canvas(4, 2);
         list.Draw(&canvas.dc, 0, CPoint(0, 0), ILD_NORMAL);
         list.Draw(&canvas.dc, 1, CPoint(2, 0), ILD_NORMAL);
         EXPECT_EQ(canvas.Pixels(), (Picture{"RGBK", "..Y."}));
         return true;
     }},
    {"CMenu::LoadMenu",
     [] {
         CMenu menu;
         if (!menu.LoadMenu(IDR_GDITEST_MENU))
             return false;
         CMenu* pFile = menu.GetSubMenu(0);
         EXPECT_EQ(pFile->GetMenuItemCount(), 3u);
         EXPECT_EQ(pFile->GetMenuItemID(2), static_cast<UINT>(ID_GDITEST_EXIT));
         return true;
     }},
};

class ResourceChain : public testing::Test {
protected:
    void SetUp() override
    {
        m_hSavedResource = AfxGetResourceHandle();
        if (::FindResourceA(nullptr, MAKEINTRESOURCE(IDB_GDITEST_STRIP), RT_BITMAP) == nullptr)
            GTEST_SKIP() << "the test program was built without GdiTest.rc";
    }
    void TearDown() override { AfxSetResourceHandle(m_hSavedResource); }

    // The framework's own DLL holds none of the test program's resources.
    static HINSTANCE ModuleWithoutTheResources() { return ::GetModuleHandleA("afx.dll"); }

    HINSTANCE m_hSavedResource = nullptr;
};

TEST_F(ResourceChain, LoadersSearchTheApplicationThenTheExtensionModules)
{
    const HINSTANCE hProgram = ::GetModuleHandleA(nullptr);
    ASSERT_NE(ModuleWithoutTheResources(), nullptr);
    for (const Placement& placement : kPlacements) {
        AfxSetResourceHandle(placement.applicationResources ? hProgram : ModuleWithoutTheResources());
        std::unique_ptr<CDynLinkLibrary> entry;
        if (placement.extensionModule)
            entry = std::make_unique<CDynLinkLibrary>(hProgram, hProgram);
        for (const ResourceLoader& loader : kLoaders) {
            SCOPED_TRACE(testing::Message() << loader.name << " with the resources in " << placement.name);
            EXPECT_EQ(loader.load(), placement.found);
        }
    }
}

}  // namespace
