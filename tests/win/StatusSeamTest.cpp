// The status seam on Windows: formatters' messages and queries reach the main
// window of the current thread's thread object, and nothing is sent where
// there is no thread object or no main window.
#include "WindowTest.h"

#include "afx/CWinThread.h"
#include "formatting/kvStatus.h"

#include <thread>

namespace {

// Rows run in order against one main window: state (overtype) carries over.
struct SeamRow {
    const char* name;
    WPARAM kind;
    LPARAM lParam;
    LRESULT result;
    int clears;     // clear requests seen so far
    bool overtype;  // the main window's overtype state afterwards
};

const SeamRow kRequests[] = {
    {"a date-order query the application answers", kvStatusQuery, 0, 3, 0, false},
    {"a preset query the application answers", kvStatusQuery, 1, 12, 0, false},
    {"a preset query nobody configured gives 0", kvStatusQuery, 2, 0, 0, false},
    {"clearing the message", kvStatusShow, 0, 0, 1, false},
    {"overtype switched on", kvStatusSetOvertype, 1, 0, 1, true},
    {"overtype read back", kvStatusGetOvertype, 0, 1, 1, true},
    {"overtype switched off", kvStatusSetOvertype, 0, 0, 1, false},
    {"overtype read back off", kvStatusGetOvertype, 0, 0, 1, false},
};

class StatusSeamTest : public WindowTest {};

TEST_F(StatusSeamTest, RequestsReachTheMainWindow)
{
    status.Answer(0, 3);
    status.Answer(1, 12);
    for (const SeamRow& row : kRequests) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(kvSendStatus(row.kind, row.lParam), row.result);
        EXPECT_EQ(status.clears, row.clears);
        EXPECT_EQ(status.overtype, row.overtype);
    }
    EXPECT_EQ(status.queries, (std::vector<LPARAM>{0, 1, 2}));
}

TEST_F(StatusSeamTest, ShownMessagesReachTheMainWindowInOrder)
{
    kvShowStatusMessage("Invalid date.");
    kvShowStatusMessage("Too many characters.");
    EXPECT_EQ(status.messages, (std::vector<std::string>{"Invalid date.", "Too many characters."}));
}

TEST_F(StatusSeamTest, NothingIsSentWithoutAMainWindow)
{
    CWinThread* pThread = AfxGetThread();
    CWnd* pMainWnd = pThread->m_pMainWnd;
    pThread->m_pMainWnd = nullptr;
    status.Answer(0, 3);
    EXPECT_EQ(kvSendStatus(kvStatusQuery, 0), 0);
    kvShowStatusMessage("unseen");
    pThread->m_pMainWnd = pMainWnd;
    EXPECT_TRUE(status.messages.empty());
    EXPECT_TRUE(status.queries.empty());
}

TEST_F(StatusSeamTest, NothingIsSentFromAThreadWithoutAThreadObject)
{
    status.Answer(0, 3);
    LRESULT result = -1;
    std::thread worker([&result] { result = kvSendStatus(kvStatusQuery, 0); });
    worker.join();
    EXPECT_EQ(result, 0);
    EXPECT_TRUE(status.queries.empty());
}

}  // namespace
