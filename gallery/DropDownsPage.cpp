// DropDownsPage
#include "gallery/DropDownsPage.h"

#include "gallery/resource.h"

namespace {

struct LookRow {
    UINT label;
    UINT id;
    DWORD effects;
    const char* date;
};

const LookRow kLooks[] = {
    {IDC_FLAT_LABEL, IDC_DUE_DATE, kvDropEditBase::EffectFlatBordered, "2/15/2025"},
    {IDC_BORDERLESS_LABEL, IDC_SHIP_DATE, kvDropEditBase::EffectFlatBorderless, "1/20/2025"},
    {IDC_READONLY_LABEL, IDC_ORDER_DATE, 0, "1/2/2025"},
};

constexpr int kFieldWidth = 110;

}  // namespace

BOOL DropDownsPage::Create(CWnd* pParent) { return CDialog::Create(IDD_DROPDOWNS, pParent); }

CRect DropDownsPage::RightOfLabel(UINT nLabelID) const
{
    CRect label;
    GetDlgItem(static_cast<int>(nLabelID))->GetWindowRect(&label);
    ScreenToClient(&label);
    const int left = label.right + 4;
    return CRect(left, label.top - 3, left + kFieldWidth, label.top + 19);
}

BOOL DropDownsPage::OnInitDialog()
{
    CDialog::OnInitDialog();
    m_invoiceDate.SubclassDlgItem(IDC_INVOICE_DATE, this);
    m_invoiceDate.SetWindowText("1/31/2025");
    for (size_t i = 0; i < m_looks.size(); ++i) {
        m_looks[i].Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_BORDER, RightOfLabel(kLooks[i].label), this,
                          kLooks[i].id, kLooks[i].effects);
        m_looks[i].SetWindowText(kLooks[i].date);
    }
    m_looks[0].SetBkColor(RGB(255, 250, 220));
    m_looks[0].SetTextColor(RGB(0, 0, 128));
    m_looks[2].SetReadOnly(TRUE);
    return TRUE;
}

void DropDownsPage::PrepareForPicture() { GotoDlgCtrl(&m_invoiceDate); }

const char* DropDownsPage::PreparePopupPicture(int)
{
    GotoDlgCtrl(&m_invoiceDate);
    m_invoiceDate.ShowPopup(true);
    return "calendar";
}
