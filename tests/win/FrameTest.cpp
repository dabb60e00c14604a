// The frame window: the status bar stays along the bottom and the view fills
// the rest whatever the size; the view paints where the layout put it.
#include "ClientPixels.h"
#include "WindowTest.h"

#include "afx/CFrameWnd.h"
#include "afx/CPaintDC.h"
#include "afx/CStatusBar.h"

namespace {

constexpr COLORREF kLeftColour = RGB(200, 30, 30);
constexpr COLORREF kRightColour = RGB(30, 30, 200);

// Paints its left half and its right half in two colours.
class TwoToneView : public CWnd {
protected:
    afx_msg void OnPaint()
    {
        CPaintDC dc(this);
        CRect client;
        GetClientRect(&client);
        dc.FillSolidRect(0, 0, client.Width() / 2, client.Height(), kLeftColour);
        dc.FillSolidRect(client.Width() / 2, 0, client.Width() - client.Width() / 2, client.Height(), kRightColour);
    }
    afx_msg BOOL OnEraseBkgnd(CDC*) { return TRUE; }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(TwoToneView, CWnd)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
END_MESSAGE_MAP()

struct SizeRow {
    const char* name;
    int width, height;  // of the frame window
};

const SizeRow kSizes[] = {
    {"ordinary", 320, 240},
    {"wide and short", 600, 120},
    {"narrow and tall", 160, 400},
};

class FrameTest : public WindowTest {
protected:
    void SetUp() override
    {
        m_pFrame = new CFrameWnd;
        ASSERT_TRUE(m_pFrame->Create(nullptr, "frame", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(40, 40, 360, 280)));
        ASSERT_TRUE(m_bar.Create(m_pFrame));
        ASSERT_TRUE(m_view.Create(nullptr, nullptr, WS_VISIBLE, CRect(), m_pFrame, AFX_IDW_PANE_FIRST));
        m_pFrame->RecalcLayout();
        m_pFrame->SetForegroundWindow();
        flushEvents();
    }

    void TearDown() override
    {
        m_pFrame->DestroyWindow();  // deletes the frame
        WindowTest::TearDown();
    }

    CRect ChildRect(const CWnd& child) const
    {
        CRect rect;
        child.GetWindowRect(&rect);
        m_pFrame->ScreenToClient(&rect);
        return rect;
    }

    CFrameWnd* m_pFrame = nullptr;
    CStatusBar m_bar;
    TwoToneView m_view;
};

TEST_F(FrameTest, StatusBarAlongTheBottomViewInTheRest)
{
    for (const SizeRow& row : kSizes) {
        SCOPED_TRACE(row.name);
        m_pFrame->SetWindowPos(nullptr, 0, 0, row.width, row.height, SWP_NOMOVE | SWP_NOZORDER);
        flushEvents();
        CRect client;
        m_pFrame->GetClientRect(&client);
        const CRect bar = ChildRect(m_bar);
        const CRect view = ChildRect(m_view);
        EXPECT_EQ(bar.bottom, client.bottom);
        EXPECT_GT(bar.Height(), 0);
        EXPECT_EQ(view.TopLeft(), CPoint(0, 0));
        EXPECT_EQ(view.right, client.right);
        EXPECT_EQ(view.bottom, bar.top);
    }
}

TEST_F(FrameTest, MessageTextGoesToTheStatusBar)
{
    m_pFrame->SetMessageText("Ready");
    EXPECT_STREQ(m_bar.GetPaneText(0), "Ready");
}

TEST_F(FrameTest, TheViewPaintsWhereTheLayoutPutIt)
{
    m_view.Invalidate();
    m_view.UpdateWindow();
    const ClientPixels pixels(m_view.m_hWnd);
    pixels.WriteBmp("frame-view.bmp");
    const int w = pixels.Width(), h = pixels.Height();
    ASSERT_GT(w, 20);
    ASSERT_GT(h, 20);
    const struct {
        int x, y;
        COLORREF colour;
    } points[] = {
        {2, 2, kLeftColour},          {w / 2 - 2, h - 2, kLeftColour},
        {w / 2 + 2, 2, kRightColour}, {w - 2, h - 2, kRightColour},
    };
    for (const auto& point : points) {
        SCOPED_TRACE(testing::Message() << "at " << point.x << "," << point.y);
        EXPECT_EQ(pixels.At(point.x, point.y), point.colour);
    }
}

}  // namespace
