// ButtonsPage
#include "gallery/ButtonsPage.h"

#include "formatting/kvStatus.h"
#include "gallery/resource.h"

namespace {

constexpr COLORREF kTransparent = RGB(255, 0, 255);
constexpr int kGap = 6;

struct BitmapButtonRow {
    UINT id;
    const char* text;  // caption, then the tool tip after a line feed
    kvBmpButton::textPos pos;
    UINT image;
    bool icon;
};

const BitmapButtonRow kBitmapButtons[] = {
    {IDC_BMP_NEW, "&New", kvBmpButton::TextBelow, IDB_NEW, false},
    {IDC_BMP_OPEN, "&Open", kvBmpButton::TextAbove, IDB_OPEN, false},
    {IDC_BMP_SAVE, "&Save\nSaves the customer", kvBmpButton::TextRight, IDB_SAVE, false},
    {IDC_BMP_PRINT, "&Print", kvBmpButton::TextLeft, IDB_PRINT, false},
    {IDC_BMP_HELP, "&Help", kvBmpButton::TextBelow, IDI_HELP, true},
};

// The fit size stacks image and caption; beside each other they need the sum
// of their widths. Every button of the row is as high as a stacked one.
CSize ToolbarSize(const kvBmpButton& button, kvBmpButton::textPos pos)
{
    const CSize fit = button.GetFitButtonSize();
    if (pos != kvBmpButton::TextLeft && pos != kvBmpButton::TextRight)
        return fit;
    return CSize(button.GetImageSize().cx + button.GetTextSize().cx + 18, fit.cy);
}

}  // namespace

BEGIN_MESSAGE_MAP(ButtonsPage, GalleryPage)
    ON_CONTROL_RANGE(BN_CLICKED, IDC_BMP_NEW, IDC_HOVER_STANDARD, OnButtonClicked)
END_MESSAGE_MAP()

BOOL ButtonsPage::Create(CWnd* pParent) { return CDialog::Create(IDD_BUTTONS, pParent); }

BOOL ButtonsPage::OnInitDialog()
{
    CDialog::OnInitDialog();
    CreateBitmapButtons();
    CreateHoverButtons();
    return TRUE;
}

CPoint ButtonsPage::RowStart(UINT nGroupID) const
{
    CRect group;
    GetDlgItem(nGroupID)->GetWindowRect(&group);
    ScreenToClient(&group);
    return CPoint(group.left + 10, group.top + 18);
}

CRect ButtonsPage::NextInRow(CPoint& cursor, CSize size) const
{
    const CRect rect(cursor, size);
    cursor.x += size.cx + kGap;
    return rect;
}

void ButtonsPage::CreateBitmapButtons()
{
    CPoint cursor = RowStart(IDC_BITMAP_GROUP);
    for (const BitmapButtonRow& row : kBitmapButtons) {
        auto button = std::make_unique<kvBmpButton>(row.pos);
        button->Create(row.text, WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(cursor, CSize(10, 10)), this, row.id);
        if (row.icon)
            button->LoadIcon(row.image);
        else
            button->LoadBitmap(row.image, FALSE, kTransparent);
        // A caption below the image would overlap its lower half when centred.
        button->SetVerticalAlignment(row.pos == kvBmpButton::TextBelow ? BS_TOP : BS_VCENTER);
        button->MoveWindow(NextInRow(cursor, ToolbarSize(*button, row.pos)));
        m_bitmapButtons.push_back(std::move(button));
    }
    m_bitmapButtons[2]->SetToolTip(TRUE);
    m_bitmapButtons[3]->EnableWindow(FALSE);
    // Looks disabled, but stays a window that shows its cursor and tool tip.
    m_bitmapButtons[4]->SetPseudoDisableMode(TRUE);
    m_bitmapButtons[4]->EnableWindow(FALSE);
}

void ButtonsPage::CreateHoverButtons()
{
    m_image.LoadBitmap(IDB_SAVE24);
    kvHoverButton::BuildMaskBitmap(&m_image, &m_imageMask, kTransparent);
    kvHoverButton::BuildGrayBitmap(&m_image, &m_grayImage, kTransparent, kvHoverButton::GrayEmbossed);
    kvHoverButton::BuildMaskBitmap(&m_grayImage, &m_grayMask, kTransparent);

    CPoint cursor = RowStart(IDC_HOVER_GROUP);
    const auto add = [&](UINT id, const char* caption, void (kvHoverButton::*look)(), CSize size) {
        auto button = std::make_unique<kvHoverButton>();
        (button.get()->*look)();
        button->Create(caption, WS_CHILD | WS_VISIBLE | WS_TABSTOP, NextInRow(cursor, size), this, id);
        m_hoverButtons.push_back(std::move(button));
        return m_hoverButtons.back().get();
    };
    kvHoverButton* image = add(IDC_HOVER_IMAGE, "", &kvHoverButton::SetStandardHoverLook, CSize(28, 28));
    image->SetBitmap(kvHoverButton::HoverAllStates, &m_image, &m_imageMask);
    image->SetBitmap(kvHoverButton::HoverDisabled, &m_grayImage, &m_grayMask);
    add(IDC_HOVER_FLAT, "&Flat", &kvHoverButton::SetStandardHoverLook, CSize(60, 28));
    kvHoverButton* link = add(IDC_HOVER_LINK, "www.example.com", &kvHoverButton::SetStandardHyperlinkLook, CSize(110, 28));
    link->SizeToContent();
    CRect linkRect;
    link->GetWindowRect(&linkRect);
    ScreenToClient(&linkRect);
    cursor.x = linkRect.right + kGap;
    add(IDC_HOVER_STANDARD, "S&tandard", &kvHoverButton::SetStandardButtonLook, CSize(70, 28));
}

void ButtonsPage::PrepareForPicture() { GotoDlgCtrl(m_bitmapButtons[2].get()); }

void ButtonsPage::OnButtonClicked(UINT nID)
{
    CString caption;
    GetDlgItem(nID)->GetWindowText(caption);
    const CString name = kvBmpButton::RemoveAmpersand(kvBmpButton::GetSubString(caption, 1, '\n'));
    kvShowStatusMessage((name.IsEmpty() ? CString("The image button") : name) + " was clicked.");
}
