// kvProgressWnd: creation in its two modes, the timing of showing and pumping
// (kvProgressSchedule's), the stop request with its confirmation, the layout
// (kvProgressLayout's) and the main window taken over while it lives.
#include "progress/kvProgressWnd.h"

#include "afx/CBrush.h"
#include "afx/CClientDC.h"
#include "afx/CDC.h"
#include "afx/CFrameWnd.h"
#include "afx/CMFCStatusBar.h"
#include "afx/CWinThread.h"
#include "progress/kvProgressLayout.h"

#include <cstdarg>
#include <cstdio>
#include <ctime>

namespace {

constexpr UINT kButtonId = 10, kMessageId = 11, kBarId = 12;
constexpr int kTextBufferSize = 1024;
const CRect kPlaceholder(0, 0, 10, 10);

long Now() { return static_cast<long>(std::clock() * 1000 / CLOCKS_PER_SEC); }

CMFCStatusBar* MessageBarOf(CWnd* pMainWnd)
{
    auto* pFrame = dynamic_cast<CFrameWnd*>(pMainWnd);
    return pFrame != nullptr ? dynamic_cast<CMFCStatusBar*>(pFrame->GetMessageBar()) : nullptr;
}

// "M" on each of the lines, to measure their height in a font.
CString LinesProbe(int lines)
{
    CString probe = "M";
    for (int line = 1; line < lines; ++line)
        probe += "\nM";
    return probe;
}

}  // namespace

WNDPROC kvProgressWnd::m_OldWndproc = nullptr;

BEGIN_MESSAGE_MAP(kvProgressWnd, CWnd)
    ON_BN_CLICKED(kButtonId, OnStop)
    ON_WM_CLOSE()
    ON_WM_SETCURSOR()
    ON_WM_ERASEBKGND()
END_MESSAGE_MAP()

kvProgressWnd::kvProgressWnd(const char* title, float delay, kvpwStopOpt stopOpt, bool showBar,
                             kvpwConfOpt confOpt, int lines, int width)
    : kvProgressWnd(title, delay, stopOpt, showBar, confOpt, lines, width, nullptr)
{
}

kvProgressWnd::kvProgressWnd(const char* text, CMFCStatusBar* bar)
    : kvProgressWnd(text, 0.0f, kvpwNoButton, true, kvpwImmediate, 0, 0, bar)
{
}

kvProgressWnd::kvProgressWnd(const char* title, float delay, kvpwStopOpt stopOpt, bool showBar,
                             kvpwConfOpt confOpt, int lines, int width, CMFCStatusBar* bar)
    : m_bShowBar(showBar), m_StopOpt(stopOpt), m_nLines(lines != 0 ? lines : 4),
      m_nWidth(width != 0 ? width : 200), m_pMainWnd(AfxGetMainWnd())
{
    m_Schedule.delay = delay;
    if (bar == nullptr && m_pMainWnd != nullptr && m_pMainWnd->IsWindowVisible())
        bar = MessageBarOf(m_pMainWnd);
    m_bStatusBarMode = showBar && stopOpt == kvpwNoButton && m_pMainWnd != nullptr && bar != nullptr;
    if (m_bStatusBarMode)
        m_pStatusBar = bar;
    m_strTitle = title != nullptr ? title : m_bStatusBarMode ? "" : "Progress";
    _Create();
    SetConfirmationHandling(confOpt);
}

kvProgressWnd::~kvProgressWnd()
{
    _RestoreMainWindow();
    DestroyWindow();
}

void kvProgressWnd::SetRange(int nLower, int nUpper)
{
    if (m_pBar != nullptr && !m_bStopped)
        m_pBar->SetRange(nLower, nUpper);
}

int kvProgressWnd::SetPos(int nPos)
{
    if (m_pBar == nullptr || m_bStopped)
        return 0;
    Continue();
    return m_pBar->SetPos(nPos);
}

int kvProgressWnd::OffsetPos(int nPos)
{
    if (m_pBar == nullptr || m_bStopped)
        return 0;
    Continue();
    return m_pBar->OffsetPos(nPos);
}

int kvProgressWnd::StepIt()
{
    if (m_pBar == nullptr || m_bStopped)
        return 0;
    Continue();
    return m_pBar->StepIt();
}

int kvProgressWnd::SetStep(int nStep)
{
    if (m_pBar == nullptr || m_bStopped)
        return 0;
    m_pBar->SetStep(nStep);
    return nStep;
}

void kvProgressWnd::SetText(const char* format, ...)
{
    if (m_bStopped)
        return;
    char text[kTextBufferSize];
    va_list args;
    va_start(args, format);
    std::vsnprintf(text, sizeof text, format, args);
    va_end(args);
    if (m_bStatusBarMode) {
        if (m_pBar != nullptr) {
            CRect pane;
            m_pStatusBar->GetItemRect(0, pane);
            m_pBar->MoveWindow(pane);
            m_pBar->SetWindowText(text);
        }
    } else {
        m_Message.SetWindowText(text);
    }
    Continue();
}

void kvProgressWnd::SetWindowSize(int lines, int width)
{
    if (m_bStatusBarMode || m_hWnd == nullptr)
        return;
    m_nLines = lines;
    m_nWidth = width;
    CClientDC dc(this);
    CFont* pOldFont = dc.SelectObject(&m_Font);
    CRect measured(10, 10, width - 20, 120);
    dc.DrawText(LinesProbe(lines), measured, DT_CALCRECT | DT_NOPREFIX | DT_EXTERNALLEADING);
    const kvProgressLayout layout{width, measured.Height(), dc.GetTextExtent(CString(m_pszCancel)),
                                  CSize(::GetSystemMetrics(SM_CXEDGE), ::GetSystemMetrics(SM_CYEDGE)),
                                  m_pBar != nullptr, _HasButton()};
    dc.SelectObject(pOldFont);

    const CSize client = layout.ClientSize();
    CRect frame(0, 0, client.cx, client.cy);
    ::AdjustWindowRectEx(frame, GetStyle(), FALSE, GetExStyle());
    MoveWindow(0, 0, frame.Width(), frame.Height());
    if (m_pBar != nullptr)
        m_pBar->MoveWindow(layout.BarRect());
    if (_HasButton())
        m_StopButton.MoveWindow(layout.ButtonRect());
    m_Message.MoveWindow(layout.MessageRect());
}

void kvProgressWnd::SetConfirmationHandling(kvpwConfOpt option)
{
    if (_HasButton() && m_StopButton.m_hWnd != nullptr && (option == kvpwStopDisabled) != (m_ConfOpt == kvpwStopDisabled))
        m_StopButton.EnableWindow(option != kvpwStopDisabled);
    m_ConfOpt = option;
}

bool kvProgressWnd::Continue()
{
    if (m_bStopped)
        return false;
    const long now = Now();
    if (m_Schedule.ShouldDisplay(now))
        _Display();
    if (m_Schedule.ShouldPump(now)) {
        if (_Pump())
            m_bStopped = true;
        else if (m_bStatusBarMode)
            m_pStatusBar->SetWindowText(m_strTitle);
        m_Schedule.startTime = now;
    }
    return !m_bStopped;
}

void kvProgressWnd::OnStop() { _StopRequest(); }

void kvProgressWnd::OnClose() { _StopRequest(); }

// The controls too show that the application is busy but still answers.
BOOL kvProgressWnd::OnSetCursor(CWnd* /*pWnd*/, UINT /*nHitTest*/, UINT /*message*/)
{
    ::SetCursor(::LoadCursor(nullptr, IDC_APPSTARTING));
    return TRUE;
}

BOOL kvProgressWnd::OnEraseBkgnd(CDC* pDC)
{
    CRect clip;
    pDC->GetClipBox(clip);
    CBrush face(::GetSysColor(COLOR_BTNFACE));
    CBrush* pOldBrush = pDC->SelectObject(&face);
    pDC->PatBlt(clip.left, clip.top, clip.Width(), clip.Height(), PATCOPY);
    pDC->SelectObject(pOldBrush);
    return TRUE;
}

LRESULT CALLBACK kvProgressWnd::_MainWndProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_SETCURSOR) {
        ::SetCursor(::LoadCursor(nullptr, IDC_WAIT));
        return TRUE;
    }
    return ::CallWindowProc(m_OldWndproc, hWnd, message, wParam, lParam);
}

void kvProgressWnd::_Create()
{
    if (!m_bStatusBarMode)
        _CreateWindow();
    if (m_bShowBar) {
        m_pBar = std::make_unique<kvTextProgressCtrl>();
        m_pBar->Create(WS_CHILD | WS_VISIBLE | PBS_SMOOTH, kPlaceholder,
                       m_bStatusBarMode ? static_cast<CWnd*>(m_pStatusBar) : this, kBarId);
    }
    if (m_bStatusBarMode)
        SetText("%s", m_strTitle.GetString());
    else
        SetWindowSize(m_nLines, m_nWidth);
    m_Schedule.startTime = Now();
    if (m_Schedule.delay == 0.0f)
        _Display();
}

void kvProgressWnd::_CreateWindow()
{
    _TakeOverMainWindow();
    LPCTSTR className = AfxRegisterWndClass(CS_VREDRAW | CS_HREDRAW | CS_OWNDC,
                                            ::LoadCursor(nullptr, IDC_APPSTARTING),
                                            reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1));
    NONCLIENTMETRICS metrics{};
    metrics.cbSize = sizeof metrics;
    ::SystemParametersInfo(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    m_Font.CreateFontIndirect(&metrics.lfStatusFont);

    const DWORD style = WS_POPUP | WS_CAPTION | (_HasButton() ? WS_SYSMENU : 0);
    if (!CreateEx(WS_EX_DLGMODALFRAME, className, m_strTitle, style, 0, 0, 100, 100, m_pMainWnd->GetSafeHwnd(),
                  nullptr))
        return;
    m_Message.Create("", WS_CHILD | WS_VISIBLE | SS_LEFTNOWORDWRAP | SS_NOPREFIX, kPlaceholder, this, kMessageId);
    m_Message.SetFont(&m_Font);
    if (_HasButton()) {
        m_StopButton.Create(m_StopOpt == kvpwStopButton ? m_pszStop : m_pszCancel,
                            WS_CHILD | WS_VISIBLE | WS_TABSTOP, kPlaceholder, this, kButtonId);
        m_StopButton.SetFont(&m_Font);
    }
}

void kvProgressWnd::_TakeOverMainWindow()
{
    if (m_pMainWnd == nullptr || m_pMainWnd->m_hWnd == nullptr)
        return;
    const auto override = reinterpret_cast<LONG_PTR>(&kvProgressWnd::_MainWndProc);
    // A second progress window finds the procedure replaced already.
    if (::GetWindowLongPtr(*m_pMainWnd, GWLP_WNDPROC) != override)
        m_OldWndproc = reinterpret_cast<WNDPROC>(::SetWindowLongPtr(*m_pMainWnd, GWLP_WNDPROC, override));
    m_pMainWnd->EnableWindow(FALSE);
    m_bTookOverMainWnd = true;
}

void kvProgressWnd::_RestoreMainWindow()
{
    if (!m_bTookOverMainWnd || !::IsWindow(m_pMainWnd->GetSafeHwnd()))
        return;
    m_pMainWnd->EnableWindow(TRUE);
    ::SetWindowLongPtr(*m_pMainWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(m_OldWndproc));
}

void kvProgressWnd::_Display()
{
    m_Schedule.displayed = true;
    if (m_bStatusBarMode || m_hWnd == nullptr)
        return;
    CenterWindow();
    if (!IsWindowVisible()) {
        ShowWindow(SW_SHOWNA);
        RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME);
    }
    SetActiveWindow();
    if (_Pump())
        m_bStopped = true;
}

bool kvProgressWnd::_Pump()
{
    MSG msg;
    while (!m_bStopped && ::PeekMessage(&msg, nullptr, 0, 0, PM_NOREMOVE)) {
        if (_HasButton() && msg.message == WM_CHAR && msg.wParam == VK_ESCAPE)
            _StopRequest();
        // The confirmation's own loop may have taken the message already.
        if (!::PeekMessage(&msg, nullptr, 0, 0, PM_REMOVE))
            continue;
        if (msg.message == WM_QUIT) {
            // The application's own loop must still see it.
            ::PostQuitMessage(0);
            return true;
        }
        ::TranslateMessage(&msg);
        ::DispatchMessage(&msg);
    }
    return false;
}

void kvProgressWnd::_StopRequest()
{
    if (m_ConfOpt == kvpwStopDisabled)
        return;
    if (m_ConfOpt == kvpwConfirm && !_ConfirmStop()) {
        m_bStopped = false;
        return;
    }
    m_bStopped = true;
}

bool kvProgressWnd::_ConfirmStop() const
{
    const HWND hActive = ::GetActiveWindow();
    const HWND hFocus = ::GetFocus();
    CString question;
    question.Format("Are you sure you want to %s this process?", m_StopOpt == kvpwStopButton ? "stop" : "cancel");
    const int answer = ::MessageBox(hActive, question, m_strTitle, MB_YESNO | MB_ICONQUESTION);
    ::SetActiveWindow(hActive);
    ::SetFocus(hFocus);
    return answer != IDNO;
}
