// MainFrame: the gallery's main window: the customer form as its view and a
// status bar that answers the library's status message as an application does.
#pragma once

#include "afx/CFrameWnd.h"
#include "afx/CStatusBar.h"
#include "gallery/CustomerForm.h"

class kvWinAMCtrlValidateInfo;

class MainFrame : public CFrameWnd {
public:
    BOOL Create();
    // Enters an invalid amount and, once the window has been drawn with the
    // field's message, saves a picture of it to fileName and closes; the
    // outcome goes to the application.
    void SavePictureAndClose(const CString& fileName);

protected:
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg LRESULT OnStatusMessage(WPARAM wParam, LPARAM lParam);
    afx_msg void OnTimer(UINT_PTR nIDEvent);
    afx_msg void OnAppAbout();
    afx_msg void OnAppExit();

    DECLARE_MESSAGE_MAP()

private:
    void ShowFieldMessage(const kvWinAMCtrlValidateInfo* info);
    void ShowOvertype();

    CStatusBar m_statusBar;
    CustomerForm m_form;
    bool m_overtype = false;
    CString m_pictureFile;
};
