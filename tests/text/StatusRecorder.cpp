#include "StatusRecorder.h"

#if defined(_WIN32)

#include "afx/CFrameWnd.h"
#include "afx/CWinApp.h"

// The hidden main window: hands every status message to its recorder.
class StatusRecorder::Frame : public CFrameWnd {
public:
    explicit Frame(StatusRecorder& recorder) : m_recorder(recorder) {}

protected:
    afx_msg LRESULT OnStatus(WPARAM wParam, LPARAM lParam) { return m_recorder.Receive(wParam, lParam); }

    DECLARE_MESSAGE_MAP()

private:
    StatusRecorder& m_recorder;
};

BEGIN_MESSAGE_MAP(StatusRecorder::Frame, CFrameWnd)
    ON_MESSAGE(WM_KV_STATUS, OnStatus)
END_MESSAGE_MAP()

namespace {
// Text test programs have no application object of their own: the recorder's
// main window needs a thread object to belong to.
CWinThread& ThreadObject()
{
    if (CWinThread* pThread = AfxGetThread())
        return *pThread;
    static CWinApp testApplication("kvWin tests");
    return testApplication;
}
}  // namespace

StatusRecorder::StatusRecorder() : m_pFrame(new Frame(*this))
{
    // A frame that could not be created (no display) has deleted itself.
    if (!m_pFrame->Create(nullptr, "Status", WS_OVERLAPPEDWINDOW))
        m_pFrame = nullptr;
    CWinThread& thread = ThreadObject();
    m_pPreviousMainWnd = thread.m_pMainWnd;
    thread.m_pMainWnd = m_pFrame;
}

StatusRecorder::~StatusRecorder()
{
    // The previous main window comes back first: destroying the thread's main
    // window would end its message loop.
    ThreadObject().m_pMainWnd = m_pPreviousMainWnd;
    if (m_pFrame != nullptr)
        m_pFrame->DestroyWindow();
}

CWnd* StatusRecorder::MainWindow() const { return m_pFrame; }
bool StatusRecorder::CanObserveBeeps() { return false; }

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

CWnd* StatusRecorder::MainWindow() const { return nullptr; }
bool StatusRecorder::CanObserveBeeps() { return true; }

#endif

LRESULT StatusRecorder::Receive(WPARAM wParam, LPARAM lParam)
{
    switch (wParam) {
    case kvStatusShow:
        if (lParam != 0)
            messages.push_back(reinterpret_cast<const kvWinAMCtrlValidateInfo*>(lParam)->message.GetString());
        else
            ++clears;
        break;
    case kvStatusQuery: {
        queries.push_back(lParam);
        const auto answer = m_answers.find(lParam);
        return answer == m_answers.end() ? 0 : answer->second;
    }
    case kvStatusGetOvertype:
        return overtype ? 1 : 0;
    case kvStatusSetOvertype:
        overtype = lParam != 0;
        break;
    }
    return 0;
}
