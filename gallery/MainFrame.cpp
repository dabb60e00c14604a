// MainFrame
#include "gallery/MainFrame.h"

#include "afx/AfxExtension.h"
#include "formatting/kvMessages.h"
#include "formatting/kvWinAMCtrlValidateInfo.h"
#include "gallery/AboutDialog.h"
#include "gallery/GalleryApp.h"
#include "gallery/WindowBitmap.h"
#include "gallery/resource.h"

namespace {

const UINT kIndicators[] = {ID_SEPARATOR, ID_INDICATOR_OVR};
const int kOvertypePane = 1;
const UINT_PTR kPictureTimer = 1;
// Time for the display to show what the window drew before it is copied.
const UINT kPictureDelayMs = 500;

CString IdleMessage()
{
    CString text;
    char buffer[128];
    if (::LoadStringA(AfxGetResourceHandle(), AFX_IDS_IDLEMESSAGE, buffer, sizeof buffer) > 0)
        text = buffer;
    return text;
}

}  // namespace

BEGIN_MESSAGE_MAP(MainFrame, CFrameWnd)
    ON_WM_CREATE()
    ON_WM_TIMER()
    ON_MESSAGE(WM_KV_STATUS, OnStatusMessage)
    ON_COMMAND(ID_APP_ABOUT, OnAppAbout)
    ON_COMMAND(ID_VIEW_BOTTOM_TABS, OnViewBottomTabs)
    ON_COMMAND(ID_APP_EXIT, OnAppExit)
END_MESSAGE_MAP()

BOOL MainFrame::Create()
{
    const CRect initial(40, 40, 460, 470);
    return CFrameWnd::Create(nullptr, "kvWin Gallery", WS_OVERLAPPEDWINDOW, initial, nullptr,
                             MAKEINTRESOURCE(IDR_MAINFRAME));
}

int MainFrame::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (CFrameWnd::OnCreate(lpCreateStruct) == -1)
        return -1;
    if (!m_statusBar.Create(this) || !m_statusBar.SetIndicators(kIndicators, std::size(kIndicators)))
        return -1;
    if (!m_book.Create(this, m_initialTabStyle))
        return -1;
    ShowTabStyleInMenu();
    ShowFieldMessage(nullptr);
    ShowOvertype();
    RecalcLayout();
    return 0;
}

// The status message: the fields' messages, their queries and the overtype state.
LRESULT MainFrame::OnStatusMessage(WPARAM wParam, LPARAM lParam)
{
    switch (wParam) {
    case kvStatusShow:
        ShowFieldMessage(reinterpret_cast<const kvWinAMCtrlValidateInfo*>(lParam));
        return 0;
    case kvStatusGetOvertype:
        return m_overtype;
    case kvStatusSetOvertype:
        m_overtype = lParam != 0;
        ShowOvertype();
        return 0;
    default:
        // Queries answered 0 leave the fields with their own defaults.
        return 0;
    }
}

void MainFrame::ShowFieldMessage(const kvWinAMCtrlValidateInfo* info)
{
    m_statusBar.SetPaneText(0, info ? info->message : IdleMessage());
}

void MainFrame::ShowOvertype()
{
    m_statusBar.SetPaneText(kOvertypePane, m_overtype ? "OVR" : "");
}

void MainFrame::OnViewBottomTabs()
{
    const bool bottom = m_book.GetTabStyle() == kvTabNotebook::BottomTabs;
    m_book.SetTabStyle(bottom ? kvTabNotebook::StandardTabs : kvTabNotebook::BottomTabs);
    ShowTabStyleInMenu();
}

void MainFrame::ShowTabStyleInMenu()
{
    const bool bottom = m_book.GetTabStyle() == kvTabNotebook::BottomTabs;
    ::CheckMenuItem(::GetMenu(m_hWnd), ID_VIEW_BOTTOM_TABS, MF_BYCOMMAND | (bottom ? MF_CHECKED : MF_UNCHECKED));
}

// The form comes last: its picture ends with the refused amount in the field.
void MainFrame::SavePicturesAndClose(const CString& folder)
{
    m_pictureFolder = folder;
    m_pictureCount = 0;
    ShowNextPicturePage();
}

void MainFrame::ShowNextPicturePage()
{
    m_book.ShowPageForPicture(m_book.GetPageCount() - 1 - m_pictureCount);
    SetTimer(kPictureTimer, kPictureDelayMs);
}

void MainFrame::OnTimer(UINT_PTR nIDEvent)
{
    if (nIDEvent != kPictureTimer)
        return;
    KillTimer(kPictureTimer);
    RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
    const int page = m_book.GetPageCount() - 1 - m_pictureCount;
    const bool saved = m_popupPicture == 0
                           ? SaveWindowBitmap(m_hWnd, m_pictureFolder + "/" + GalleryBook::PageName(page) + ".bmp")
                           : SavePopupPicture();
    m_picturesSaved = saved && m_picturesSaved;
    if (m_popupPicture < m_book.GetPopupPictureCount(page)) {
        m_popupPictureName = m_book.ShowPopupForPicture(page, m_popupPicture++);
        SetTimer(kPictureTimer, kPictureDelayMs);
        return;
    }
    m_popupPicture = 0;
    if (++m_pictureCount < m_book.GetPageCount()) {
        ShowNextPicturePage();
        return;
    }
    theApp.PictureSaved(m_picturesSaved);
    DestroyWindow();
}

// The frame with the open popup, which has the focus, over it or beside it;
// Escape closes the popup again.
bool MainFrame::SavePopupPicture()
{
    CRect shown, popup;
    GetWindowRect(&shown);
    const HWND hPopup = ::GetFocus();
    ::GetWindowRect(hPopup, &popup);
    shown.UnionRect(CRect(shown), popup);
    const bool saved = SaveScreenBitmap(shown, m_pictureFolder + "/" + m_popupPictureName + ".bmp");
    ::SendMessage(hPopup, WM_KEYDOWN, VK_ESCAPE, 1);
    return saved;
}

void MainFrame::OnAppAbout()
{
    AboutDialog about(this);
    about.DoModal();
}

void MainFrame::OnAppExit() { DestroyWindow(); }
