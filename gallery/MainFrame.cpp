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
    ON_COMMAND(ID_APP_EXIT, OnAppExit)
END_MESSAGE_MAP()

BOOL MainFrame::Create()
{
    const CRect initial(40, 40, 440, 420);
    return CFrameWnd::Create(nullptr, "kvWin Gallery", WS_OVERLAPPEDWINDOW, initial, nullptr,
                             MAKEINTRESOURCE(IDR_MAINFRAME));
}

int MainFrame::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (CFrameWnd::OnCreate(lpCreateStruct) == -1)
        return -1;
    if (!m_statusBar.Create(this) || !m_statusBar.SetIndicators(kIndicators, std::size(kIndicators)))
        return -1;
    if (!m_form.Create(this))
        return -1;
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

void MainFrame::SavePictureAndClose(const CString& fileName)
{
    m_pictureFile = fileName;
    m_form.EnterInvalidAmount();
    SetTimer(kPictureTimer, kPictureDelayMs);
}

void MainFrame::OnTimer(UINT_PTR nIDEvent)
{
    if (nIDEvent != kPictureTimer)
        return;
    KillTimer(kPictureTimer);
    RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
    theApp.PictureSaved(SaveWindowBitmap(m_hWnd, m_pictureFile));
    DestroyWindow();
}

void MainFrame::OnAppAbout()
{
    AboutDialog about(this);
    about.DoModal();
}

void MainFrame::OnAppExit() { DestroyWindow(); }
