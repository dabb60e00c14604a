// DropDownsPage
#include "gallery/DropDownsPage.h"

#include "gallery/resource.h"

#include <iterator>

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

const char* const kStates[] = {
    "Alabama",       "Alaska",         "Arizona",       "Arkansas",     "California",    "Colorado",
    "Connecticut",   "Delaware",       "Florida",       "Georgia",      "Hawaii",        "Idaho",
    "Illinois",      "Indiana",        "Iowa",          "Kansas",       "Kentucky",      "Louisiana",
    "Maine",         "Maryland",       "Massachusetts", "Michigan",     "Minnesota",     "Mississippi",
    "Missouri",      "Montana",        "Nebraska",      "Nevada",       "New Hampshire", "New Jersey",
    "New Mexico",    "New York",       "North Carolina", "North Dakota", "Ohio",         "Oklahoma",
    "Oregon",        "Pennsylvania",   "Rhode Island",  "South Carolina", "South Dakota", "Tennessee",
    "Texas",         "Utah",           "Vermont",       "Virginia",     "Washington",    "West Virginia",
    "Wisconsin",     "Wyoming",
};

const char* const kProducts[] = {"Desk lamp", "Desk organizer", "Filing cabinet", "Office chair",
                                 "Printer paper", "Stapler", "Whiteboard"};
const char* const kUnits[] = {"Box", "Carton", "Each", "Pack", "Pallet"};
const char* const kColors[] = {"Blue", "Charcoal", "Green", "Ivory", "Red"};
const char* const kPopupPictures[] = {"calendar", "list"};

constexpr int kFieldWidth = 110;
constexpr int kFieldHeight = 22;
constexpr int kDroppedHeight = 150;

}  // namespace

BOOL DropDownsPage::Create(CWnd* pParent) { return CDialog::Create(IDD_DROPDOWNS, pParent); }

CRect DropDownsPage::RightOfLabel(UINT nLabelID, int height) const
{
    CRect label;
    GetDlgItem(static_cast<int>(nLabelID))->GetWindowRect(&label);
    ScreenToClient(&label);
    const int left = label.right + 4;
    return CRect(left, label.top - 3, left + kFieldWidth, label.top - 3 + height);
}

BOOL DropDownsPage::OnInitDialog()
{
    CDialog::OnInitDialog();
    CreateCalendars();
    CreateLists();
    return TRUE;
}

void DropDownsPage::CreateCalendars()
{
    m_invoiceDate.SubclassDlgItem(IDC_INVOICE_DATE, this);
    m_invoiceDate.SetWindowText("1/31/2025");
    for (size_t i = 0; i < m_looks.size(); ++i) {
        m_looks[i].Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_BORDER, RightOfLabel(kLooks[i].label, kFieldHeight),
                          this, kLooks[i].id, kLooks[i].effects);
        m_looks[i].SetWindowText(kLooks[i].date);
    }
    m_looks[0].SetBkColor(RGB(255, 250, 220));
    m_looks[0].SetTextColor(RGB(0, 0, 128));
    m_looks[2].SetReadOnly(TRUE);
}

// Created in tab order after the calendars, before the template's combo and list.
void DropDownsPage::CreateLists()
{
    const DWORD style = WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_BORDER;
    m_state.SetAllowEntry(false);
    m_state.Create(style, RightOfLabel(IDC_STATE_LABEL, kDroppedHeight), this, IDC_STATE, 0);
    for (const char* state : kStates)
        m_state.AddString(state);
    m_state.SetCurSel(m_state.FindStringExact(-1, "Ohio"));
    m_product.Create(style, RightOfLabel(IDC_PRODUCT_LABEL, kDroppedHeight), this, IDC_PRODUCT, 0);
    for (const char* product : kProducts)
        m_product.AddString(product);
    m_unit.SubclassDlgItem(IDC_UNIT, this);
    for (const char* unit : kUnits)
        m_unit.AddString(unit);
    m_unit.SetCurSel(2);
    m_colors.SubclassDlgItem(IDC_COLORS, this);
    for (const char* color : kColors)
        m_colors.AddString(color);
    m_colors.SetCurSel(1);
    m_colors.SetBkColor(RGB(235, 245, 255));
    m_colors.SetTextColor(RGB(0, 64, 0));
}

void DropDownsPage::PrepareForPicture() { GotoDlgCtrl(&m_invoiceDate); }

int DropDownsPage::PopupPictureCount() const { return static_cast<int>(std::size(kPopupPictures)); }

const char* DropDownsPage::PreparePopupPicture(int nPicture)
{
    kvDropEditBase& field = nPicture == 0 ? static_cast<kvDropEditBase&>(m_invoiceDate) : m_state;
    GotoDlgCtrl(&field);
    field.ShowPopup(true);
    return kPopupPictures[nPicture];
}
