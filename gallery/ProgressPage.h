// ProgressPage: buttons that run a job of five seconds under a progress
// window: with a Stop or Cancel button that asks first, stops at once or
// cannot stop, with no button, and as a bar in the status bar. The job shows
// its step; the status bar tells how it ended.
#pragma once

#include "gallery/GalleryPage.h"

class ProgressPage : public GalleryPage {
public:
    BOOL Create(CWnd* pParent);

protected:
    afx_msg void OnRunJob(UINT nID);

    DECLARE_MESSAGE_MAP()
};
