// CWinApp: the application object, the process's main thread object. One per
// process; AfxWinMain runs it.
#pragma once

#include "afx/AfxExport.h"
#include "afx/CString.h"
#include "afx/CWinThread.h"

class AFX_API CWinApp : public CWinThread {
public:
    // Without a name the application is called after its executable.
    explicit CWinApp(LPCTSTR lpszAppName = nullptr);
    ~CWinApp() override;

    LPCTSTR m_pszAppName = nullptr;
    HINSTANCE m_hInstance = nullptr;
    LPTSTR m_lpCmdLine = nullptr;
    int m_nCmdShow = SW_SHOWNORMAL;
    // The help file HtmlHelp and WinHelp open: the executable's name with .chm.
    LPCTSTR m_pszHelpFilePath = nullptr;

    virtual BOOL InitApplication();
    int Run() override;

    // Opens the application's help (HtmlHelp from hhctrl.ocx, WinHelp when that is
    // missing) on the main window; does nothing when neither is available.
    virtual void HtmlHelp(DWORD_PTR dwData, UINT nCmd = 0x000F);
    virtual void WinHelp(DWORD_PTR dwData, UINT nCmd = HELP_CONTEXT);

private:
    CString m_strAppName;
    CString m_strHelpFilePath;
};

// The application object, or null.
AFX_API CWinApp* AfxGetApp();
// Fills the application object's instance, command line and resource handle.
AFX_API BOOL AfxWinInit(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow);
// The body of WinMain: initialise, InitInstance, Run, the process's exit code.
AFX_API int AfxWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow);
