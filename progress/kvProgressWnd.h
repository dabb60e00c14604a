// kvProgressWnd: progress reporting for a long operation that runs on the
// user-interface thread, without a modal loop. The caller creates it, reports
// with SetPos/StepIt/SetText and asks Continue() whether to go on. The window
// appears only after a delay, lets the application's messages through at most
// every 250 ms, and offers a Stop or Cancel button, with or without a
// confirmation. While it lives the main window is disabled and shows the wait
// cursor. Given a status bar and no button it shows no window and puts the bar
// over the status bar's first pane instead.
#pragma once

#include "afx/CButton.h"
#include "afx/CFont.h"
#include "afx/CStatic.h"
#include "afx/CWnd.h"
#include "library/kvWinExport.h"
#include "progress/kvProgressSchedule.h"
#include "progress/kvTextProgressCtrl.h"

#include <memory>

class CMFCStatusBar;

class KVWIN_API kvProgressWnd : public CWnd {
public:
    enum kvpwStopOpt { kvpwStopButton = 0, kvpwCancelButton = 1, kvpwNoButton = 2 };
    enum kvpwConfOpt { kvpwConfirm = 0, kvpwImmediate = 1, kvpwStopDisabled = 2 };

    static constexpr const char* m_pszStop = "Stop";
    static constexpr const char* m_pszCancel = "Cancel";
    // The main window's own procedure while a progress window has replaced it.
    static WNDPROC m_OldWndproc;

    // lines 0 means 4, width 0 means 200 pixels; a null title is "Progress".
    kvProgressWnd(const char* title, float delay = 0.0f, kvpwStopOpt stopOpt = kvpwStopButton, bool showBar = true,
                  kvpwConfOpt confOpt = kvpwConfirm, int lines = 0, int width = 0);
    // The bar in a status bar (the main window's when bar is null), showing text.
    kvProgressWnd(const char* text, CMFCStatusBar* bar);
    ~kvProgressWnd() override;
    kvProgressWnd(const kvProgressWnd&) = delete;
    kvProgressWnd& operator=(const kvProgressWnd&) = delete;

    void SetRange(int nLower, int nUpper);
    // Each checks Continue() first and returns the previous position; 0 without
    // a bar or once stopped.
    int SetPos(int nPos);
    int OffsetPos(int nPos);
    int StepIt();
    // Returns the new step; 0 without a bar or once stopped.
    int SetStep(int nStep);
    // The message (at most 1023 characters), then Continue().
    void SetText(const char* format, ...) __attribute__((format(printf, 2, 3)));
    void SetWindowSize(int lines, int width);
    void SetConfirmationHandling(kvpwConfOpt option);
    // False once the user stopped the process or the application is quitting.
    bool Continue();

protected:
    afx_msg void OnStop();
    afx_msg void OnClose();
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message);
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);

    DECLARE_MESSAGE_MAP()

private:
    kvProgressWnd(const char* title, float delay, kvpwStopOpt stopOpt, bool showBar, kvpwConfOpt confOpt,
                  int lines, int width, CMFCStatusBar* bar);
    static LRESULT CALLBACK _MainWndProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);
    void _Create();
    void _CreateWindow();
    void _TakeOverMainWindow();
    void _RestoreMainWindow();
    void _Display();
    // Dispatches what is waiting; true when the application is quitting.
    bool _Pump();
    void _StopRequest();
    bool _ConfirmStop() const;
    bool _HasButton() const { return m_StopOpt != kvpwNoButton; }

    bool m_bShowBar;
    kvpwStopOpt m_StopOpt;
    kvpwConfOpt m_ConfOpt = kvpwImmediate;
    bool m_bStopped = false;
    int m_nLines;
    int m_nWidth;
    bool m_bStatusBarMode = false;
    CMFCStatusBar* m_pStatusBar = nullptr;
    kvProgressSchedule m_Schedule;
    CStatic m_Message;
    std::unique_ptr<kvTextProgressCtrl> m_pBar;
    CButton m_StopButton;
    CString m_strTitle;
    CFont m_Font;
    CWnd* m_pMainWnd;
    bool m_bTookOverMainWnd = false;
};
