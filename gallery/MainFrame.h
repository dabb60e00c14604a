// MainFrame: the gallery's main window: the notebook of the gallery's pages as
// its view and a status bar that answers the library's status message as an
// application does.
#pragma once

#include "afx/CFrameWnd.h"
#include "afx/CMFCStatusBar.h"
#include "gallery/GalleryBook.h"

class kvWinAMCtrlValidateInfo;

class MainFrame : public CFrameWnd {
public:
    explicit MainFrame(kvTabNotebook::TabStyle tabStyle) : m_initialTabStyle(tabStyle) {}
    BOOL Create();
    // Saves a picture of the window with each page shown, as folder/<page>.bmp,
    // and closes; the outcome goes to the application. The customer form's
    // picture shows a refused amount with its message.
    void SavePicturesAndClose(const CString& folder);

protected:
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg LRESULT OnStatusMessage(WPARAM wParam, LPARAM lParam);
    afx_msg void OnTimer(UINT_PTR nIDEvent);
    afx_msg void OnAppAbout();
    afx_msg void OnViewBottomTabs();
    afx_msg void OnAppExit();

    DECLARE_MESSAGE_MAP()

private:
    void ShowFieldMessage(const kvWinAMCtrlValidateInfo* info);
    void ShowOvertype();
    void ShowTabStyleInMenu();
    void ShowNextPicturePage();
    bool SavePopupPicture();

    CMFCStatusBar m_statusBar;
    GalleryBook m_book;
    kvTabNotebook::TabStyle m_initialTabStyle;
    bool m_overtype = false;
    CString m_pictureFolder;
    int m_pictureCount = 0;  // pages whose pictures are saved or on their way
    bool m_picturesSaved = true;
    int m_popupPicture = 0;  // the current page's popup pictures saved or on their way
    CString m_popupPictureName;
};
