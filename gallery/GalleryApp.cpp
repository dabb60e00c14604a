// GalleryApp
#include "gallery/GalleryApp.h"

#include "gallery/MainFrame.h"

#include <cstdlib>
#include <cstring>

GalleryApp theApp;

namespace {

// The file named after "--screenshot", or null.
const char* ScreenshotFile()
{
    for (int i = 1; i + 1 < __argc; ++i) {
        if (std::strcmp(__argv[i], "--screenshot") == 0)
            return __argv[i + 1];
    }
    return nullptr;
}

}  // namespace

BOOL GalleryApp::InitInstance()
{
    // A frame deletes itself when it is destroyed, also when its creation fails.
    auto* frame = new MainFrame;
    if (!frame->Create())
        return FALSE;
    m_pMainWnd = frame;
    frame->ShowWindow(m_nCmdShow);
    frame->UpdateWindow();
    if (const char* file = ScreenshotFile()) {
        m_pictureFailed = true;
        frame->SavePictureAndClose(file);
    }
    return TRUE;
}

int GalleryApp::ExitInstance()
{
    const int code = CWinApp::ExitInstance();
    return m_pictureFailed ? 1 : code;
}
