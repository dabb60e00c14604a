// CustomerForm
#include "gallery/CustomerForm.h"

#include "afx/CFrameWnd.h"
#include "gallery/resource.h"

namespace {

struct SampleField {
    UINT id;
    const char* text;
};

// A filled-in customer, so that the form shows what its fields hold.
const SampleField kSampleCustomer[] = {
    {IDC_NAME, "Ada Lovelace"},
    {IDC_AMOUNT, "1,234.50"},
    {IDC_DATE, "12/10/1815"},
    {IDC_IDNUMBER, "123-45-6789"},
};

}  // namespace

BOOL CustomerForm::Create(CWnd* pFrame)
{
    if (!CDialog::Create(IDD_CUSTOMER, pFrame))
        return FALSE;
    SetDlgCtrlID(AFX_IDW_PANE_FIRST);
    return TRUE;
}

BOOL CustomerForm::OnInitDialog()
{
    CDialog::OnInitDialog();
    m_name.SubclassDlgItem(IDC_NAME, this);
    m_amount.SubclassDlgItem(IDC_AMOUNT, this);
    m_date.SubclassDlgItem(IDC_DATE, this);
    m_idNumber.SubclassDlgItem(IDC_IDNUMBER, this);
    for (const SampleField& field : kSampleCustomer)
        SetDlgItemText(field.id, field.text);
    return TRUE;
}
