// The status seam on Windows: formatters' messages and queries reach the main
// window of the current thread's thread object, and nothing is sent where
// there is no thread object or no main window.
#include "WindowTest.h"

#include "afx/CWinThread.h"
#include "formatting/kvStatus.h"

#include <thread>
#include <utility>

namespace {

class StatusSeamTest : public WindowTest {};

TEST_F(StatusSeamTest, RequestsAndMessagesReachTheMainWindow)
{
    status.Answer(1, 12);
    EXPECT_EQ(kvSendStatus(kvStatusQuery, 1), 12) << "the application's answer comes back";
    EXPECT_EQ(kvSendStatus(kvStatusSetOvertype, 1), 0);
    EXPECT_TRUE(status.overtype);
    kvShowStatusMessage("Invalid date.");
    kvShowStatusMessage("Too many characters.");
    EXPECT_EQ(status.queries, (std::vector<LPARAM>{1}));
    EXPECT_EQ(status.messages, (std::vector<std::string>{"Invalid date.", "Too many characters."}));
}

TEST_F(StatusSeamTest, NothingIsSentWithoutAMainWindowOrAThreadObject)
{
    status.Answer(0, 3);
    CWinThread* pThread = AfxGetThread();
    CWnd* pMainWnd = std::exchange(pThread->m_pMainWnd, nullptr);
    EXPECT_EQ(kvSendStatus(kvStatusQuery, 0), 0);
    kvShowStatusMessage("unseen");
    pThread->m_pMainWnd = pMainWnd;

    LRESULT fromWorker = -1;
    std::thread worker([&fromWorker] { fromWorker = kvSendStatus(kvStatusQuery, 0); });
    worker.join();
    EXPECT_EQ(fromWorker, 0);
    EXPECT_TRUE(status.messages.empty());
    EXPECT_TRUE(status.queries.empty());
}

}  // namespace
