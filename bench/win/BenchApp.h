// BenchApp: the application of a window benchmark, with what every such
// benchmark measures by: a high-resolution clock, the median of its samples
// and a queue pump that goes through the application's PreTranslateMessage,
// as a message loop would. The application shows the benchmark's frame,
// measures, and closes the frame: the message loop then ends with the
// benchmark's exit status (0 target met, 1 missed, 2 nothing measured).
#pragma once

#include "afx/CWinApp.h"
#include "afx/CWinThread.h"

#include <algorithm>
#include <cstdio>
#include <vector>

inline LONGLONG Ticks()
{
    LARGE_INTEGER now;
    ::QueryPerformanceCounter(&now);
    return now.QuadPart;
}

inline double NanosecondsOf(LONGLONG ticks)
{
    LARGE_INTEGER frequency;
    ::QueryPerformanceFrequency(&frequency);
    return static_cast<double>(ticks) * 1e9 / static_cast<double>(frequency.QuadPart);
}

inline double Median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    const size_t middle = values.size() / 2;
    return values.size() % 2 != 0 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

inline void PumpQueue()
{
    MSG msg;
    while (::PeekMessageA(&msg, nullptr, 0, 0, PM_REMOVE)) {
        if (!AfxPreTranslateMessage(&msg))
            ::DispatchMessageA(&msg);
    }
}

// Frame: a frame window with a Create() of its own; run measures with it shown.
template <class Frame>
class BenchApp : public CWinApp {
public:
    using Runner = int (*)(Frame&);

    BenchApp(const char* name, Runner run) : CWinApp(name), m_run(run) {}

    BOOL InitInstance() override
    {
        auto* frame = new Frame;
        // A frame that fails to be created has deleted itself.
        if (!frame->Create()) {
            std::printf("The benchmark's window could not be created (is there an X display?).\n");
            return FALSE;
        }
        m_pMainWnd = frame;
        frame->ShowWindow(SW_SHOW);
        frame->UpdateWindow();
        frame->SetForegroundWindow();
        PumpQueue();
        m_exitCode = m_run(*frame);
        std::fflush(stdout);
        frame->PostMessage(WM_CLOSE);
        return TRUE;
    }

    int ExitInstance() override { return m_exitCode; }

private:
    Runner m_run;
    int m_exitCode = 2;
};
