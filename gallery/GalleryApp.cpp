// GalleryApp
#include "gallery/GalleryApp.h"

#include "gallery/MainFrame.h"

#include <cstdlib>
#include <cstring>

GalleryApp theApp;

namespace {

// The argument after the option, or null.
const char* OptionValue(const char* option)
{
    for (int i = 1; i + 1 < __argc; ++i) {
        if (std::strcmp(__argv[i], option) == 0)
            return __argv[i + 1];
    }
    return nullptr;
}

bool HasOption(const char* option)
{
    for (int i = 1; i < __argc; ++i) {
        if (std::strcmp(__argv[i], option) == 0)
            return true;
    }
    return false;
}

}  // namespace

BOOL GalleryApp::InitInstance()
{
    // A frame deletes itself when it is destroyed, also when its creation fails.
    auto* frame = new MainFrame(HasOption("--bottom-tabs") ? kvTabNotebook::BottomTabs : kvTabNotebook::StandardTabs);
    if (!frame->Create())
        return FALSE;
    m_pMainWnd = frame;
    frame->ShowWindow(m_nCmdShow);
    frame->UpdateWindow();
    if (const char* folder = OptionValue("--pictures")) {
        m_pictureFailed = true;
        frame->SavePicturesAndClose(folder);
    }
    return TRUE;
}

int GalleryApp::ExitInstance()
{
    const int code = CWinApp::ExitInstance();
    return m_pictureFailed ? 1 : code;
}
