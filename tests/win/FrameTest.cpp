// The frame window: the status bar stays along the bottom and the view fills
// the rest whatever the size; message text goes to the status bar.
#include "WindowTest.h"

#include "afx/CFrameWnd.h"
#include "afx/CStatusBar.h"

namespace {

struct SizeRow {
    const char* name;
    int width, height;  // of the frame window
};

const SizeRow kSizes[] = {
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
    CWnd m_view;
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

}  // namespace
