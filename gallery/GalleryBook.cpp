// GalleryBook
#include "gallery/GalleryBook.h"

#include "afx/CFrameWnd.h"
#include "formatting/kvMessages.h"
#include "gallery/resource.h"

namespace {

struct PageRow {
    const char* title;
    const char* name;
};

const PageRow kPages[] = {
    {"&Form", "form"},
    {"&Buttons", "buttons"},
    {"&Drop-downs", "dropdowns"},
    {"&Calculator", "calculator"},
    {"&Progress", "progress"},
};

constexpr int kMargin = 6;

}  // namespace

BEGIN_MESSAGE_MAP(GalleryBook, CDialog)
    ON_WM_SIZE()
    ON_NOTIFY(TCN_SELCHANGING, IDC_NOTEBOOK, OnSelChanging)
    ON_MESSAGE(WM_KV_CHILDKILLFOCUS, OnChildKillFocus)
END_MESSAGE_MAP()

BOOL GalleryBook::Create(CWnd* pFrame, kvTabNotebook::TabStyle tabStyle)
{
    m_initialStyle = tabStyle;
    if (!CDialog::Create(IDD_GALLERY, pFrame))
        return FALSE;
    SetDlgCtrlID(AFX_IDW_PANE_FIRST);
    return TRUE;
}

const char* GalleryBook::PageName(int nPage) { return kPages[nPage].name; }

BOOL GalleryBook::OnInitDialog()
{
    CDialog::OnInitDialog();
    CreateNotebook(m_initialStyle);
    m_form.Create(this);
    m_buttons.Create(this);
    m_dropdowns.Create(this);
    m_calculator.Create(this);
    m_progress.Create(this);
    AddPages();
    return TRUE;
}

void GalleryBook::AddPages()
{
    for (size_t i = 0; i < m_pages.size(); ++i) {
        m_pages[i]->SetNotebook(m_pNotebook.get());
        m_pNotebook->AddPage(m_pages[i], kPages[i].title);
    }
}

// The notebook comes first among its siblings, so that the tab order runs from
// the tabs into the current page.
void GalleryBook::CreateNotebook(kvTabNotebook::TabStyle tabStyle)
{
    m_pNotebook = std::make_unique<kvTabNotebook>(tabStyle);
    m_pNotebook->Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_CLIPSIBLINGS, CRect(0, 0, 10, 10), this,
                        IDC_NOTEBOOK);
    m_pNotebook->SetWindowPos(&CWnd::wndTop, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    PlaceNotebook();
}

void GalleryBook::SetTabStyle(kvTabNotebook::TabStyle tabStyle)
{
    if (tabStyle == GetTabStyle())
        return;
    const int current = m_pNotebook->GetCurSel();
    m_pNotebook->DestroyWindow();
    CreateNotebook(tabStyle);
    AddPages();
    m_pNotebook->SetCurSel(current);
}

void GalleryBook::PlaceNotebook()
{
    CRect client;
    GetClientRect(&client);
    client.DeflateRect(kMargin, kMargin);
    m_pNotebook->MoveWindow(&client);
}

void GalleryBook::OnSize(UINT nType, int cx, int cy)
{
    CDialog::OnSize(nType, cx, cy);
    if (m_pNotebook != nullptr && m_pNotebook->GetSafeHwnd() != nullptr)
        PlaceNotebook();
}

// From a page: the focus left it for the notebook, or for another page.
LRESULT GalleryBook::OnChildKillFocus(WPARAM wParam, LPARAM lParam)
{
    return m_validator.OnChildKillFocus(this, false, wParam, lParam);
}

// A page with an invalid field keeps the focus there, with the field's message.
void GalleryBook::OnSelChanging(NMHDR*, LRESULT* pResult)
{
    const int current = m_pNotebook->GetCurSel();
    *pResult = current >= 0 && !m_pages[current]->CanLeave() ? TRUE : FALSE;
}

void GalleryBook::ShowPageForPicture(int nPage)
{
    m_pNotebook->SetCurSel(nPage);
    m_pages[nPage]->PrepareForPicture();
}

CString GalleryBook::ShowPopupForPicture(int nPage, int nPicture)
{
    return CString(kPages[nPage].name) + "-" + m_pages[nPage]->PreparePopupPicture(nPicture);
}
