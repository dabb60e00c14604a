// Bitmaps, image lists and menus found through the resource chain: the
// application's resource module first, then the extension modules.
#include "GdiTestResource.h"

#include "afx/AfxExtension.h"
#include "afx/CBitmap.h"
#include "afx/CDC.h"
#include "afx/CDynLinkLibrary.h"
#include "afx/CImageList.h"
#include "afx/CMenu.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

constexpr COLORREF kBlack = RGB(0, 0, 0);
constexpr COLORREF kYellow = RGB(255, 255, 0);
constexpr COLORREF kMagenta = RGB(255, 0, 255);

// The colour of a pixel of what drawFn draws into a white memory bitmap.
template <class DrawFn>
COLORREF PixelOf(int cx, int cy, POINT point, DrawFn drawFn)
{
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    CBitmap canvas;
    canvas.CreateBitmap(cx, cy, 1, 32, nullptr);
    CBitmap* pOld = dc.SelectObject(&canvas);
    dc.FillSolidRect(0, 0, cx, cy, RGB(255, 255, 255));
    drawFn(dc);
    const COLORREF colour = dc.GetPixel(point.x, point.y);
    dc.SelectObject(pOld);
    return colour;
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
         EXPECT_EQ(CSize(info.bmWidth, info.bmHeight), CSize(4, 2));
         const auto draw = [&bitmap](CDC& dc) { dc.DrawState(CPoint(0, 0), CSize(4, 2), bitmap, DSS_NORMAL); };
         EXPECT_EQ(PixelOf(4, 2, {3, 0}, draw), kBlack);
         EXPECT_EQ(PixelOf(4, 2, {2, 1}, draw), kYellow);
         return true;
     }},
    {"CImageList::Create from a bitmap strip",
     [] {
         CImageList list;
         if (!list.Create(IDB_GDITEST_STRIP, 2, 0, kMagenta))
             return false;
         EXPECT_EQ(list.GetImageCount(), 2);
         // Magenta is the mask colour: the second image's bottom left stays white.
         const auto draw = [&list](CDC& dc) { list.Draw(&dc, 1, CPoint(0, 0), ILD_NORMAL); };
         EXPECT_EQ(PixelOf(2, 2, {0, 0}, draw), RGB(0, 0, 255));
         EXPECT_EQ(PixelOf(2, 2, {1, 1}, draw), RGB(255, 255, 255));
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
