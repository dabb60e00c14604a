#include "StatusRecorder.h"

#if defined(_WIN32)

StatusRecorder::StatusRecorder() = default;
StatusRecorder::~StatusRecorder() = default;
bool StatusRecorder::CanObserve() { return false; }

#else

StatusRecorder::StatusRecorder()
{
    kvSetStatusReceiver([this](WPARAM w, LPARAM l) { return Receive(w, l); });
    kvSetBeepHook([this](unsigned int) { ++beeps; });
}

StatusRecorder::~StatusRecorder()
{
    kvSetStatusReceiver({});
    kvSetBeepHook({});
}

bool StatusRecorder::CanObserve() { return true; }

#endif

LRESULT StatusRecorder::Receive(WPARAM wParam, LPARAM lParam)
{
    if (wParam == kvStatusShow && lParam != 0) {
        messages.push_back(reinterpret_cast<const kvWinAMCtrlValidateInfo*>(lParam)->message.GetString());
        return 0;
    }
    if (wParam == kvStatusQuery) {
        queries.push_back(lParam);
        const auto answer = m_answers.find(lParam);
        return answer == m_answers.end() ? 0 : answer->second;
    }
    return 0;
}
