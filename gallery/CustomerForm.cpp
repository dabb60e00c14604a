// CustomerForm
#include "gallery/CustomerForm.h"

#include "formatting/kvDateEditFormatter.h"
#include "formatting/kvMessages.h"
#include "formatting/kvNumEditFormatter.h"
#include "formatting/kvSocSecEditFormatter.h"
#include "formatting/kvStatus.h"
#include "formatting/kvStrEditFormatter.h"
#include "formatting/kvTimeEditFormatter.h"
#include "gallery/resource.h"

namespace {

// The form's fields in tab order, with the customer it starts with.
struct FieldRow {
    UINT id;
    const char* sample;
};

const FieldRow kFields[] = {
    {IDC_NAME, "Ada Lovelace"},
    {IDC_IDNUMBER, "123-45-6789"},
    {IDC_DATE, "12/10/1815"},
    {IDC_TIME, "09:30"},
    {IDC_AMOUNT, "1,234.50"},
};
constexpr size_t kAmountField = 4;

kvEditFormatter* AmountFormatter()
{
    auto* formatter = new kvNumEditFormatter(
        9, 2, kvNumEditFormatter::Separators | kvNumEditFormatter::PadDecimals | kvNumEditFormatter::RoundDecimals);
    formatter->SetLowerLimit(0, kvNumEditFormatter::LowerExclusive);
    formatter->SetUpperLimit(1000000, kvNumEditFormatter::UpperInclusive);
    return formatter;
}

kvEditFormatter* FormatterFor(UINT id)
{
    switch (id) {
    case IDC_NAME:
        return new kvStrEditFormatter(30, 2);
    case IDC_IDNUMBER:
        return new kvSocSecEditFormatter;
    case IDC_DATE:
        return new kvDateEditFormatter(kvDateEditFormatter::MonthDayYearSlash);
    case IDC_TIME:
        return new kvTimeEditFormatter(kvTimeEditFormatter::ClockHourMinute);
    default:
        return AmountFormatter();
    }
}

}  // namespace

BEGIN_MESSAGE_MAP(CustomerForm, CDialog)
    ON_MESSAGE(WM_KV_CHILDKILLFOCUS, OnChildKillFocus)
END_MESSAGE_MAP()

BOOL CustomerForm::Create(CWnd* pParent) { return CDialog::Create(IDD_CUSTOMER, pParent); }

BOOL CustomerForm::OnInitDialog()
{
    CDialog::OnInitDialog();
    AttachFields();
    m_ok.SubclassDlgItem(IDOK, this);
    m_cancel.SubclassDlgItem(IDCANCEL, this);
    for (size_t i = 0; i < m_saved.size(); ++i)
        m_saved[i] = kFields[i].sample;
    RestoreFields();
    return TRUE;
}

void CustomerForm::AttachFields()
{
    for (size_t i = 0; i < m_fields.size(); ++i) {
        m_fields[i].SubclassDlgItem(kFields[i].id, this);
        m_fields[i].SetFormatter(FormatterFor(kFields[i].id));
    }
}

// In a notebook, a focus change that leaves the form (to a tab) is checked by
// the notebook's host; alone, the form holds every field there is.
LRESULT CustomerForm::OnChildKillFocus(WPARAM wParam, LPARAM lParam)
{
    return m_validator.OnChildKillFocus(this, IsInNotebook(), wParam, lParam);
}

// Ctrl+Tab changes pages with the focus still in a field: check that field.
bool CustomerForm::CanLeave()
{
    CWnd* pFocus = GetFocus();
    return pFocus == nullptr || !IsChild(pFocus) || m_validator.IsValidChild(pFocus);
}

bool CustomerForm::AllFieldsValid()
{
    for (kvEdit& field : m_fields) {
        if (!m_validator.IsValidChild(&field))
            return false;
    }
    return true;
}

void CustomerForm::SaveFields()
{
    for (size_t i = 0; i < m_saved.size(); ++i)
        m_fields[i].GetWindowText(m_saved[i]);
}

void CustomerForm::RestoreFields()
{
    for (size_t i = 0; i < m_saved.size(); ++i)
        m_fields[i].SetWindowText(m_saved[i]);
}

// OK and Enter save; a field still waiting for its check is checked first.
void CustomerForm::OnOK()
{
    if (!m_ok.ValidatePendingCtrl() || !AllFieldsValid())
        return;
    SaveFields();
    kvShowStatusMessage("Customer saved.");
}

// Cancel and Escape bring the saved customer back; nothing is checked.
void CustomerForm::OnCancel()
{
    RestoreFields();
    kvShowStatusMessage("Changes discarded.");
    GotoDlgCtrl(&m_fields.front());
}

void CustomerForm::EnterInvalidAmount()
{
    kvEdit& amount = m_fields[kAmountField];
    GotoDlgCtrl(&amount);
    amount.SetSel(0, -1);
    for (const char* key = "2500000"; *key != '\0'; ++key)
        amount.SendMessage(WM_CHAR, static_cast<unsigned char>(*key), 1);
    GotoDlgCtrl(GetNextDlgTabItem(&amount));
}
