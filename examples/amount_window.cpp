// amount_window: an amount field in a window, for Windows. It prints which kvWin
// it loaded and what the field shows after an amount above the field's limit
// was refused. With --check it closes right away; its exit status then tells
// whether the field showed the amount it kept.
#include "kvwin.h"

#include <cstdio>
#include <cstring>

class AmountFrame : public CFrameWnd {
public:
    kvEdit m_amount;
};

class AmountApp : public CWinApp {
public:
    BOOL InitInstance() override
    {
        auto* frame = new AmountFrame;  // a frame deletes itself with its window
        if (!frame->Create(nullptr, "kvWin example", WS_OVERLAPPEDWINDOW, CRect(100, 100, 380, 180)))
            return FALSE;
        m_pMainWnd = frame;

        auto* rules = new kvNumEditFormatter(9, 2, kvNumEditFormatter::Separators | kvNumEditFormatter::PadDecimals);
        rules->SetUpperLimit(1000000, kvNumEditFormatter::UpperInclusive);
        kvEdit& amount = frame->m_amount;
        amount.Create(WS_CHILD | WS_VISIBLE | WS_BORDER | ES_RIGHT, CRect(20, 10, 240, 32), frame, 1);
        amount.SetFormatter(rules);  // the field owns it
        amount.SetWindowText("1234.5");
        amount.SetWindowText("2000000");  // above the limit: refused

        char name[64], version[32];
        x_dll_version(name, sizeof name, version, sizeof version);
        CString shown;
        amount.GetWindowText(shown);
        std::printf("%s %s: the field shows %s\n", name, version, shown.GetString());
        m_shownRight = shown == "1,234.50";

        frame->ShowWindow(m_nCmdShow);
        frame->UpdateWindow();
        if (__argc > 1 && std::strcmp(__argv[1], "--check") == 0)
            frame->PostMessage(WM_CLOSE);
        return TRUE;
    }

    int ExitInstance() override
    {
        const int code = CWinApp::ExitInstance();
        return m_shownRight ? code : 1;
    }

private:
    bool m_shownRight = false;
};

AmountApp theApp;
