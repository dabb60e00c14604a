// CWinApp: the application object, its entry (AfxWinMain) and the help entry.
#include "afx/CWinApp.h"

#include "afx/AfxExtension.h"
#include "afx/AfxInitCommonControls.h"
#include "afx/AfxState.h"
#include "afx/CWnd.h"

namespace {

CWinApp* g_pApp = nullptr;

// Dialog templates may name any common control (tabs, progress bars, status
// bars, tool tips, month calendars): their classes must exist before.
constexpr DWORD kTemplateControlClasses = ICC_WIN95_CLASSES | ICC_DATE_CLASSES | ICC_TAB_CLASSES
                                          | ICC_PROGRESS_CLASS | ICC_BAR_CLASSES | ICC_STANDARD_CLASSES;

// The nearest WinHelp command for an HtmlHelp command.
UINT WinHelpCommand(UINT nHtmlHelpCmd)
{
    constexpr UINT hhHelpContext = 0x000F;
    constexpr UINT hhCloseAll = 0x0012;
    switch (nHtmlHelpCmd) {
    case hhHelpContext:
        return HELP_CONTEXT;
    case hhCloseAll:
        return HELP_QUIT;
    default:
        return HELP_FINDER;
    }
}

}  // namespace

void AfxCallHtmlHelp(HWND hWnd, LPCTSTR lpszHelpFile, UINT nCmd, DWORD_PTR dwData)
{
    using HtmlHelpProc = HWND(WINAPI*)(HWND, LPCSTR, UINT, DWORD_PTR);
    // hhctrl.ocx is optional: looked up once, on first use.
    static const HtmlHelpProc htmlHelp = []() -> HtmlHelpProc {
        const HMODULE hModule = ::LoadLibraryA("hhctrl.ocx");
        if (hModule == nullptr)
            return nullptr;
        return reinterpret_cast<HtmlHelpProc>(reinterpret_cast<void (*)()>(::GetProcAddress(hModule, "HtmlHelpA")));
    }();
    if (htmlHelp != nullptr)
        htmlHelp(hWnd, lpszHelpFile, nCmd, dwData);
    else
        ::WinHelpA(hWnd, lpszHelpFile, WinHelpCommand(nCmd), dwData);
}

CWinApp::CWinApp(LPCTSTR lpszAppName) : m_hInstance(::GetModuleHandleA(nullptr))
{
    if (g_pApp == nullptr)
        g_pApp = this;
    char modulePath[MAX_PATH] = {};
    ::GetModuleFileNameA(nullptr, modulePath, MAX_PATH);
    const CString path(modulePath);
    const int nameStart = path.ReverseFind('\\') + 1;
    const int dot = path.ReverseFind('.');
    const int nameEnd = dot > nameStart ? dot : path.GetLength();
    m_strAppName = lpszAppName != nullptr ? CString(lpszAppName) : path.Mid(nameStart, nameEnd - nameStart);
    m_pszAppName = m_strAppName;
    // The help file sits beside the executable, under its name.
    m_strHelpFilePath = path.Left(nameEnd) + ".chm";
    m_pszHelpFilePath = m_strHelpFilePath;
    AfxInitCommonControls(kTemplateControlClasses);
}

CWinApp::~CWinApp()
{
    if (g_pApp == this)
        g_pApp = nullptr;
}

BOOL CWinApp::InitApplication() { return TRUE; }

int CWinApp::Run()
{
    // Nothing on screen: nothing to wait for.
    if (m_pMainWnd == nullptr)
        ::PostQuitMessage(0);
    return CWinThread::Run();
}

void CWinApp::HtmlHelp(DWORD_PTR dwData, UINT nCmd)
{
    if (CWnd* pMainWnd = AfxGetMainWnd())
        pMainWnd->HtmlHelp(dwData, nCmd);
    else
        AfxCallHtmlHelp(nullptr, m_pszHelpFilePath, nCmd, dwData);
}

void CWinApp::WinHelp(DWORD_PTR dwData, UINT nCmd)
{
    if (CWnd* pMainWnd = AfxGetMainWnd())
        pMainWnd->WinHelp(dwData, nCmd);
    else
        ::WinHelpA(nullptr, m_pszHelpFilePath, nCmd, dwData);
}

CWinApp* AfxGetApp() { return g_pApp; }

BOOL AfxWinInit(HINSTANCE hInstance, HINSTANCE, LPTSTR lpCmdLine, int nCmdShow)
{
    CWinApp* pApp = AfxGetApp();
    if (pApp == nullptr)
        return FALSE;
    pApp->m_hInstance = hInstance;
    pApp->m_lpCmdLine = lpCmdLine;
    pApp->m_nCmdShow = nCmdShow;
    AfxSetResourceHandle(hInstance);
    return TRUE;
}

int AfxWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow)
{
    CWinApp* pApp = AfxGetApp();
    if (pApp == nullptr || !AfxWinInit(hInstance, hPrevInstance, lpCmdLine, nCmdShow) || !pApp->InitApplication())
        return -1;
    if (!pApp->InitInstance()) {
        if (pApp->m_pMainWnd != nullptr)
            pApp->m_pMainWnd->DestroyWindow();
        return pApp->ExitInstance();
    }
    return pApp->Run();
}
