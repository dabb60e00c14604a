// GalleryApp: the gallery, kvWin's demo application. With "--screenshot FILE"
// it saves a picture of its main window to FILE and exits, so that it can run
// unattended.
#pragma once

#include "afx/CWinApp.h"

class GalleryApp : public CWinApp {
public:
    BOOL InitInstance() override;
    // The exit code tells whether a requested picture was saved.
    int ExitInstance() override;

    void PictureSaved(bool saved) { m_pictureFailed = !saved; }

private:
    bool m_pictureFailed = false;
};

extern GalleryApp theApp;
