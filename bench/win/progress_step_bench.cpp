// progress_step_bench: what one kvProgressWnd::StepIt() costs inside a tight
// job loop of 1,000,000 steps with the progress window shown, against the same
// loop without progress reporting, and next to the native progress bar's own
// step message (PBM_STEPIT) timed in the same run, over fewer steps because
// Wine's native bar repaints on every one. The window pumps messages
// at most every 250 ms and the bar repaints only when its filled width moves,
// so a step should be a clock read and a few comparisons.
//
// Run by hand (under Wine inside an X display). Exit status 0 when a step costs
// under 1 microsecond on average, 1 when it costs more, 2 when nothing could be
// measured.
#include "BenchApp.h"

#include "afx/CFrameWnd.h"
#include "afx/CProgressCtrl.h"
#include "afx/CWinApp.h"
#include "formatting/kvMessages.h"
#include "progress/kvProgressWnd.h"

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

constexpr int kSteps = 1000000;
constexpr int kRounds = 5;
// Wine's native bar repaints on every step: it gets fewer of them.
constexpr int kNativeSteps = 2000;
constexpr double kTargetNs = 1000.0;

// The job's own work per step, kept from being optimised away.
volatile unsigned long g_sink = 0;
inline void Work(int step) { g_sink = g_sink + static_cast<unsigned long>(step); }

double Bare()
{
    const LONGLONG start = Ticks();
    for (int step = 0; step < kSteps; ++step)
        Work(step);
    return NanosecondsOf(Ticks() - start) / kSteps;
}

// A shown progress window; false when the job was stopped before its end.
double Reported(bool& completed)
{
    kvProgressWnd progress("Benchmark", 0.0f, kvProgressWnd::kvpwStopButton, true, kvProgressWnd::kvpwImmediate);
    progress.SetRange(0, kSteps);
    progress.SetStep(1);
    progress.SetText("Stepping %d times", kSteps);
    const LONGLONG start = Ticks();
    for (int step = 0; step < kSteps; ++step) {
        Work(step);
        progress.StepIt();
    }
    const LONGLONG ticks = Ticks() - start;
    completed = progress.Continue() && progress.IsWindowVisible();
    return NanosecondsOf(ticks) / kSteps;
}

double Native(CWnd& frame)
{
    CProgressCtrl bar;
    bar.Create(WS_CHILD | WS_VISIBLE | PBS_SMOOTH, CRect(10, 10, 210, 30), &frame, 1);
    bar.SetRange32(0, kNativeSteps);
    bar.SetStep(1);
    const LONGLONG start = Ticks();
    for (int step = 0; step < kNativeSteps; ++step) {
        Work(step);
        bar.StepIt();
    }
    return NanosecondsOf(Ticks() - start) / kNativeSteps;
}

class BenchFrame : public CFrameWnd {
public:
    BOOL Create()
    {
        return CFrameWnd::Create(nullptr, "kvProgressWnd step benchmark", WS_OVERLAPPEDWINDOW, CRect(40, 40, 360, 200));
    }

protected:
    // Answers the library's status message as an application's main window does.
    afx_msg LRESULT OnStatusMessage(WPARAM, LPARAM) { return 0; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(BenchFrame, CFrameWnd)
    ON_MESSAGE(WM_KV_STATUS, OnStatusMessage)
END_MESSAGE_MAP()

int RunBenchmark(BenchFrame& frame)
{
    std::vector<double> bare, reported, native;
    for (int round = 0; round < kRounds; ++round) {
        bool completed = false;
        bare.push_back(Bare());
        reported.push_back(Reported(completed));
        native.push_back(Native(frame));
        if (!completed) {
            std::printf("The progress window was not shown or the job was stopped: nothing measured.\n");
            return 2;
        }
    }
    const double cost = Median(reported) - Median(bare);
    std::printf("%d steps a round, %d rounds, median ns per step:\n", kSteps, kRounds);
    std::printf("  loop without progress reporting   %8.1f\n", Median(bare));
    std::printf("  loop with kvProgressWnd::StepIt   %8.1f\n", Median(reported));
    std::printf("  loop with the native PBM_STEPIT   %8.1f  (%d steps)\n", Median(native), kNativeSteps);
    std::printf("verdict: one StepIt() costs %.1f ns (target under %.0f ns): %s\n", cost, kTargetNs,
                cost < kTargetNs ? "PASS" : "FAIL");
    return cost < kTargetNs ? 0 : 1;
}

}  // namespace

BenchApp<BenchFrame> theApp("kvProgressWnd step benchmark", RunBenchmark);
