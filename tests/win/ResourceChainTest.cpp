// Resources found through the resource chain: the application's resource
// module first, then the extension modules; and the status bar, whose
// indicator texts are found the same way.
#include "GdiTestResource.h"

#include "afx/AfxExtension.h"
#include "afx/CBitmap.h"
#include "afx/CDC.h"
#include "afx/CDynLinkLibrary.h"
#include "afx/CImageList.h"
#include "afx/CMenu.h"
#include "afx/CStatusBar.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

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
         BITMAP info{};
         return bitmap.LoadBitmap(IDB_GDITEST_STRIP) && bitmap.GetBitmap(&info) && info.bmWidth == 4;
     }},
    {"CImageList::Create from a bitmap strip",
     [] {
         CImageList list;
         if (!list.Create(IDB_GDITEST_STRIP, 2, 0, RGB(255, 0, 255)) || list.GetImageCount() != 2)
             return false;
         // Magenta is the mask colour: the second image's bottom left stays white.
         const auto draw = [&list](CDC& dc) { list.Draw(&dc, 1, CPoint(0, 0), ILD_NORMAL); };
         return PixelOf(2, 2, {0, 0}, draw) == RGB(0, 0, 255) && PixelOf(2, 2, {1, 1}, draw) == RGB(255, 255, 255);
     }},
    {"CMenu::LoadMenu",
     [] {
         CMenu menu;
         return menu.LoadMenu(IDR_GDITEST_MENU) && menu.GetSubMenu(0)->GetMenuItemID(2) == UINT(ID_GDITEST_EXIT);
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

    HINSTANCE m_hSavedResource = nullptr;
};

TEST_F(ResourceChain, LoadersSearchTheApplicationThenTheExtensionModules)
{
    const HINSTANCE hProgram = ::GetModuleHandleA(nullptr);
    // The framework's own DLL holds none of the test program's resources.
    const HINSTANCE hWithout = ::GetModuleHandleA("afx.dll");
    ASSERT_NE(hWithout, nullptr);
    for (const Placement& placement : kPlacements) {
        AfxSetResourceHandle(placement.applicationResources ? hProgram : hWithout);
        std::unique_ptr<CDynLinkLibrary> entry;
        if (placement.extensionModule)
            entry = std::make_unique<CDynLinkLibrary>(hProgram, hProgram);
        for (const ResourceLoader& loader : kLoaders) {
            SCOPED_TRACE(testing::Message() << loader.name << " with the resources in " << placement.name);
            EXPECT_EQ(loader.load(), placement.found);
        }
    }
}

// ---- the status bar's panes ----

class StatusBar : public ResourceChain {
protected:
    void SetUp() override
    {
        ResourceChain::SetUp();
        if (IsSkipped())
            return;
        AfxSetResourceHandle(::GetModuleHandleA(nullptr));
        ASSERT_TRUE(m_parent.CreateEx(0, "STATIC", "", WS_POPUP, 0, 0, 300, 80, nullptr, nullptr));
        ASSERT_TRUE(m_bar.Create(&m_parent));
    }
    void TearDown() override
    {
        m_parent.DestroyWindow();
        ResourceChain::TearDown();
    }

    CRect PaneRect(int nIndex) const
    {
        CRect rect;
        m_bar.GetItemRect(nIndex, &rect);
        return rect;
    }

    CWnd m_parent;
    CStatusBar m_bar;
};

const UINT kIndicators[] = {ID_SEPARATOR, IDS_GDITEST_INDICATOR};

TEST_F(StatusBar, IndicatorPanesShowTheirStringsAndAreFoundByTheirIds)
{
    ASSERT_TRUE(m_bar.SetIndicators(kIndicators, 2));
    EXPECT_EQ(m_bar.GetPaneText(1), "OVR");
    EXPECT_EQ(m_bar.CommandToIndex(IDS_GDITEST_INDICATOR), 1);
    EXPECT_EQ(m_bar.CommandToIndex(ID_SEPARATOR), 0);
    EXPECT_EQ(m_bar.CommandToIndex(1234), -1);
    EXPECT_EQ(m_bar.GetItemID(1), static_cast<UINT>(IDS_GDITEST_INDICATOR));
    const UINT missing[] = {ID_SEPARATOR, 7999};
    EXPECT_FALSE(m_bar.SetIndicators(missing, 2)) << "an indicator without its string";
}

TEST_F(StatusBar, FirstSeparatorPaneTakesTheWidthTheIndicatorsLeave)
{
    ASSERT_TRUE(m_bar.SetIndicators(kIndicators, 2));
    const CRect first = PaneRect(0);
    const CRect indicator = PaneRect(1);
    CRect client;
    m_bar.GetClientRect(&client);
    EXPECT_LE(first.right, indicator.left + 2) << "the panes do not overlap";
    EXPECT_GE(indicator.right, client.right - 4) << "the indicator sits at the right end";

    m_parent.MoveWindow(0, 0, 400, 80);
    m_bar.SendMessage(WM_SIZE);
    EXPECT_EQ(PaneRect(0).Width(), first.Width() + 100);
    EXPECT_EQ(PaneRect(1).Width(), indicator.Width());
}

}  // namespace
