// The progress window around a job on the real clock: hidden through its
// delay and shown after, the application answering while the job runs, the
// main window disabled with the wait cursor and given back at the end; Escape,
// the button and a quit stopping the job with and without a confirmation
// (answered by a timer), the quit posted again; and the bar over the first
// pane of a status bar.
#include "ClientPixels.h"
#include "WindowTest.h"

#include "afx/CFrameWnd.h"
#include "afx/CMFCStatusBar.h"
#include "afx/CWinApp.h"
#include "afx/CWinThread.h"
#include "formatting/kvMessages.h"
#include "progress/kvProgressWnd.h"

#include <functional>
#include <string>
#include <utility>

namespace {

using Progress = kvProgressWnd;

// Answers the message boxes of the thread with answer and keeps the last
// one's caption and text.
struct MessageBoxAnswer {
    static inline int answer = 0;
    static inline std::string caption, text;
    explicit MessageBoxAnswer(int id) : timer(::SetTimer(nullptr, 0, 50, &OnTimer)) { answer = id, caption = text = ""; }
    ~MessageBoxAnswer() { ::KillTimer(nullptr, timer); }
    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD)
    {
        char buffer[256] = {};
        const HWND hBox = ::FindWindowA("#32770", nullptr);
        if (hBox == nullptr || ::GetWindowThreadProcessId(hBox, nullptr) != ::GetCurrentThreadId())
            return;
        caption = ::GetWindowTextA(hBox, buffer, sizeof buffer) > 0 ? buffer : "";
        text = ::GetDlgItemTextA(hBox, 0xFFFF, buffer, sizeof buffer) > 0 ? buffer : "";
        ::PostMessage(hBox, WM_COMMAND, answer, 0);
    }
    UINT_PTR timer;
};

class ProgressWndTest : public WindowTest {
public:
    // Steps of 10 ms while Continue() allows, at most steps of them; atStep
    // runs before each. Returns the steps done.
    static int RunJob(Progress& progress, int steps, const std::function<void(int)>& atStep = {})
    {
        int step = 0;
        for (; step < steps && progress.Continue(); ++step) {
            if (atStep)
                atStep(step);
            progress.SetText("Step %d", step);
            progress.StepIt();
            ::Sleep(10);
        }
        return step;
    }

protected:
    static bool MainShowsWaitCursor()
    {
        HWND hMain = AfxGetMainWnd()->GetSafeHwnd();
        ::SendMessage(hMain, WM_SETCURSOR, reinterpret_cast<WPARAM>(hMain), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
        return ::GetCursor() == ::LoadCursor(nullptr, IDC_WAIT);
    }
};

TEST_F(ProgressWndTest, ShownAfterItsDelayWhileTheApplicationAnswers)
{
    CWnd* pMain = AfxGetMainWnd();
    const LONG_PTR procedure = ::GetWindowLongPtr(*pMain, GWLP_WNDPROC);
    {
        Progress progress("Copying", 0.4f);
        EXPECT_FALSE(pMain->IsWindowEnabled());
        EXPECT_NE(::GetWindowLongPtr(*pMain, GWLP_WNDPROC), procedure);
        EXPECT_TRUE(MainShowsWaitCursor());
        // The application answers a message posted to it while the job runs.
        pMain->PostMessage(WM_KV_STATUS, kvStatusSetOvertype, TRUE);
        const DWORD start = ::GetTickCount();
        bool shownEarly = false;
        RunJob(progress, 200, [&](int) {
            shownEarly |= progress.IsWindowVisible() && ::GetTickCount() - start < 350;
        });
        EXPECT_FALSE(shownEarly);
        EXPECT_TRUE(progress.IsWindowVisible());
        EXPECT_TRUE(status.overtype);
        EXPECT_EQ(progress.GetDlgItem(11)->GetWindowTextLength(), 8);  // "Step 199"

        CRect bar, button;
        progress.GetDlgItem(12)->GetWindowRect(bar);
        progress.GetDlgItem(10)->GetWindowRect(button);
        EXPECT_EQ(bar.Width(), 200);
        EXPECT_NEAR(button.CenterPoint().x, bar.CenterPoint().x, 1);
        ::CreateDirectoryA("pictures", nullptr);
        EXPECT_TRUE(ClientPixels(progress).WriteBmp("pictures/progress.bmp"));
    }
    EXPECT_TRUE(pMain->IsWindowEnabled());
    EXPECT_EQ(::GetWindowLongPtr(*pMain, GWLP_WNDPROC), procedure);
    EXPECT_FALSE(MainShowsWaitCursor());
}

enum class Input { Escape, Button, Quit };
struct StopRow { const char* name; Progress::kvpwStopOpt stop; Progress::kvpwConfOpt confirmation; Input input;
                 int answer; bool stopped; const char* question; };
// Two tables, each within the fixture's watchdog: a window going away takes
// Wine a moment without a window manager.
const StopRow kStops[] = {
    {"Escape stops at once", Progress::kvpwStopButton, Progress::kvpwImmediate, Input::Escape, 0, true, ""},
    {"the Stop button stops at once", Progress::kvpwStopButton, Progress::kvpwImmediate, Input::Button, 0, true, ""},
    {"stopping disabled ignores Escape", Progress::kvpwStopButton, Progress::kvpwStopDisabled, Input::Escape, 0,
     false, ""},
    {"no button ignores Escape", Progress::kvpwNoButton, Progress::kvpwImmediate, Input::Escape, 0, false, ""},
    {"a quit stops even without a button", Progress::kvpwNoButton, Progress::kvpwStopDisabled, Input::Quit, 0, true,
     ""},
};
const StopRow kConfirmations[] = {
    {"Cancel confirmed with Yes", Progress::kvpwCancelButton, Progress::kvpwConfirm, Input::Button, IDYES, true,
     "Are you sure you want to cancel this process?"},
    {"Stop answered No goes on", Progress::kvpwStopButton, Progress::kvpwConfirm, Input::Button, IDNO, false,
     "Are you sure you want to stop this process?"},
    {"Escape confirmed with Yes", Progress::kvpwStopButton, Progress::kvpwConfirm, Input::Escape, IDYES, true,
     "Are you sure you want to stop this process?"},
};

// A job of 60 steps with the input given at the fifth.
void RunStopRow(const StopRow& row)
{
    SCOPED_TRACE(row.name);
    Progress progress("Job", 0.0f, row.stop, true, row.confirmation);
    MessageBoxAnswer answer(row.answer);
    CWnd* pButton = progress.GetDlgItem(10);
    EXPECT_EQ(pButton != nullptr && pButton->IsWindowEnabled(),
              row.stop != Progress::kvpwNoButton && row.confirmation != Progress::kvpwStopDisabled);
    ::SetForegroundWindow(progress);
    const int steps = ProgressWndTest::RunJob(progress, 60, [&](int step) {
        if (step != 5)
            return;
        if (row.input == Input::Escape)
            QueueKey(VK_ESCAPE);
        else if (row.input == Input::Button)
            QueueClickAt(*pButton, CRect(0, 0, 20, 10).CenterPoint());
        else
            ::PostQuitMessage(0);
    });
    EXPECT_EQ(steps < 60, row.stopped);
    EXPECT_EQ(progress.Continue(), !row.stopped);
    EXPECT_EQ(MessageBoxAnswer::text, row.question);
    EXPECT_EQ(MessageBoxAnswer::caption, *row.question ? "Job" : "");
    // The application's own loop still gets the quit.
    MSG msg;
    EXPECT_EQ(::PeekMessage(&msg, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE) != FALSE, row.input == Input::Quit);
}

TEST_F(ProgressWndTest, StoppedByEscapeOrTheButton)
{
    for (const StopRow& row : kStops)
        RunStopRow(row);
}

TEST_F(ProgressWndTest, StopConfirmedByTheUser)
{
    for (const StopRow& row : kConfirmations)
        RunStopRow(row);
}

// The application's main window while it lives.
struct MainWindowAs {
    explicit MainWindowAs(CWnd* pWnd) : saved(std::exchange(AfxGetApp()->m_pMainWnd, pWnd)) {}
    ~MainWindowAs() { AfxGetApp()->m_pMainWnd = saved; }
    CWnd* saved;
};

TEST_F(ProgressWndTest, BarOverTheStatusBarsFirstPane)
{
    auto* pFrame = new CFrameWnd;
    ASSERT_TRUE(pFrame->Create(nullptr, "frame", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(40, 40, 440, 240)));
    CMFCStatusBar bar;
    const UINT indicators[] = {ID_SEPARATOR};
    ASSERT_TRUE(bar.Create(pFrame));
    bar.SetIndicators(indicators, 1);
    pFrame->RecalcLayout();
    flushEvents();
    // The bar given, or found as the message bar of a visible main frame.
    for (const bool given : {true, false}) {
        SCOPED_TRACE(given ? "given" : "the main frame's");
        const MainWindowAs main(given ? AfxGetMainWnd() : pFrame);
        Progress progress("Saving", given ? &bar : nullptr);
        EXPECT_EQ(progress.GetSafeHwnd(), nullptr);
        EXPECT_TRUE(AfxGetMainWnd()->IsWindowEnabled());
        CWnd* pBar = bar.GetDlgItem(12);
        ASSERT_NE(pBar, nullptr);
        CRect pane, placed;
        bar.GetItemRect(0, pane);
        pBar->GetWindowRect(placed);
        bar.ScreenToClient(placed);
        EXPECT_EQ(placed, pane);
        CString text;
        pBar->GetWindowText(text);
        EXPECT_STREQ(text, "Saving");

        progress.SetPos(50);
        flushEvents();
        const ClientPixels pixels(*pBar);
        EXPECT_EQ(pixels.At(1, pixels.Height() - 1), ::GetSysColor(COLOR_HIGHLIGHT));
        EXPECT_EQ(pixels.At(pixels.Width() - 2, pixels.Height() - 1), ::GetSysColor(COLOR_MENU));
    }
    pFrame->DestroyWindow();
}

}  // namespace
