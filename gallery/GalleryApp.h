// GalleryApp: the gallery, kvWin's demo application. With "--pictures FOLDER"
// it saves a picture of its main window with each page shown into FOLDER and
// exits, so that it can run unattended; "--bottom-tabs" starts it with the
// notebook's tabs below its pages.
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
