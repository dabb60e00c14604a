// The status bar's panes: indicator texts found through the resource chain, a
// first separator pane that takes the width the indicators leave, and pane
// texts written and read back.
#include "GdiTestResource.h"

#include "afx/AfxExtension.h"
#include "afx/CStatusBar.h"

#include <gtest/gtest.h>

namespace {

class StatusBar : public testing::Test {
protected:
    void SetUp() override
    {
        m_hSavedResource = AfxGetResourceHandle();
        if (::FindResourceA(nullptr, MAKEINTRESOURCE(IDS_GDITEST_INDICATOR / 16 + 1), RT_STRING) == nullptr)
            GTEST_SKIP() << "the test program was built without GdiTest.rc";
        AfxSetResourceHandle(::GetModuleHandleA(nullptr));
        ASSERT_TRUE(m_parent.CreateEx(0, "STATIC", "", WS_POPUP, 0, 0, 300, 80, nullptr, nullptr));
        ASSERT_TRUE(m_bar.Create(&m_parent));
    }
    void TearDown() override
    {
        m_parent.DestroyWindow();
        AfxSetResourceHandle(m_hSavedResource);
    }

    CRect PaneRect(int nIndex) const
    {
        CRect rect;
        m_bar.GetItemRect(nIndex, &rect);
        return rect;
    }

    HINSTANCE m_hSavedResource = nullptr;
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

    EXPECT_TRUE(m_bar.SetPaneText(0, "Ready"));
    CString text;
    m_bar.GetPaneText(0, text);
    EXPECT_EQ(text, "Ready");
}

TEST_F(StatusBar, AnIndicatorWithoutItsStringIsRefused)
{
    const UINT missing[] = {ID_SEPARATOR, 7999};
    EXPECT_FALSE(m_bar.SetIndicators(missing, 2));
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
