// The gallery's notebook with real input: a page holding an invalid field is
// not left, whether the user clicks another tab or presses Ctrl+Tab, and the
// field keeps the focus with its message shown; a valid page is left.
#include "win/ModalWatchdog.h"
#include "win/RealInput.h"
#include "text/StatusRecorder.h"

#include "afx/CFrameWnd.h"
#include "gallery/GalleryBook.h"
#include "gallery/resource.h"

#include <gtest/gtest.h>

namespace {

struct LeaveRow {
    const char* name;
    const char* amount;  // typed over the amount field
    bool byCtrlTab;      // else a click on the second tab
    int page;            // current afterwards
    const char* message;
};

const LeaveRow kLeave[] = {
    {"an invalid amount keeps a click on a tab", "2500000", false, 0,
     "Value must be less than or equal to 1000000.00."},
    {"an invalid amount keeps Ctrl+Tab", "2500000", true, 0, "Value must be less than or equal to 1000000.00."},
    {"a valid amount lets a click through", "25", false, 1, nullptr},
    {"a valid amount lets Ctrl+Tab through", "25", true, 1, nullptr},
};

class GalleryBookTest : public ::testing::TestWithParam<kvTabNotebook::TabStyle> {
protected:
    StatusRecorder status;
    ModalWatchdog watchdog{30000};
};

TEST_P(GalleryBookTest, APageWithAnInvalidFieldIsNotLeft)
{
    for (const LeaveRow& row : kLeave) {
        SCOPED_TRACE(row.name);
        auto* pFrame = new CFrameWnd;  // deletes itself when destroyed
        pFrame->Create(nullptr, "gallery", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(20, 20, 460, 470));
        GalleryBook book;
        book.Create(pFrame, GetParam());
        pFrame->RecalcLayout();
        CWnd* pAmount = book.GetDescendantWindow(IDC_AMOUNT);
        ASSERT_NE(pAmount, nullptr);
        FocusForInput(pFrame->m_hWnd, pAmount->m_hWnd);
        pAmount->SendMessage(EM_SETSEL, 0, -1);
        TypeText(row.amount);
        status.messages.clear();
        auto* pNotebook = static_cast<CTabCtrl*>(book.GetDlgItem(IDC_NOTEBOOK));
        if (row.byCtrlTab) {
            PressKey(VK_TAB, false, true);
        } else {
            CRect tab;
            pNotebook->GetItemRect(1, &tab);
            ClickAt(pNotebook->m_hWnd, tab.CenterPoint());
        }
        flushEvents();
        EXPECT_EQ(pNotebook->GetCurSel(), row.page);
        if (row.message != nullptr) {
            EXPECT_EQ(::GetFocus(), pAmount->m_hWnd);
            ASSERT_FALSE(status.messages.empty());
            EXPECT_EQ(status.messages.back(), row.message);
        }
        pFrame->DestroyWindow();
        flushEvents();
    }
    EXPECT_FALSE(watchdog.Fired());
}

INSTANTIATE_TEST_SUITE_P(BothTabStyles, GalleryBookTest,
                         ::testing::Values(kvTabNotebook::StandardTabs, kvTabNotebook::BottomTabs));

}  // namespace
