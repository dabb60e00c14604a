// CalculatorPage
#include "gallery/CalculatorPage.h"

#include "formatting/kvNumEditFormatter.h"
#include "gallery/resource.h"

BOOL CalculatorPage::Create(CWnd* pParent) { return CDialog::Create(IDD_CALCULATOR, pParent); }

BOOL CalculatorPage::OnInitDialog()
{
    CDialog::OnInitDialog();
    CreateIn(m_own, IDC_CALC_OWN_GROUP, IDC_CALC_OWN);
    m_paired.SetShowMyEdit(false);
    CreateIn(m_paired, IDC_CALC_PAIRED_GROUP, IDC_CALC_PAIRED);
    m_amount.SubclassDlgItem(IDC_CALC_AMOUNT, this);
    m_paired.SetPairedEdit(&m_amount);
    CreateTotal();
    return TRUE;
}

void CalculatorPage::CreateIn(kvCalculatorCtrl& calculator, UINT nGroupID, UINT nID)
{
    CRect group;
    GetDlgItem(nGroupID)->GetWindowRect(&group);
    ScreenToClient(&group);
    const CPoint topLeft(group.left + 10, group.top + 18);
    calculator.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(topLeft, CSize(10, 10)), this, nID);
    calculator.MoveWindow(CRect(topLeft, calculator.GetMinReqRect().Size()));
}

// The invoice amount's rules: positive, at most a million.
void CalculatorPage::CreateTotal()
{
    auto* pFormatter = new kvNumEditFormatter(9, 2, kvNumEditFormatter::Separators | kvNumEditFormatter::PadDecimals);
    pFormatter->SetLowerLimit(0, kvNumEditFormatter::LowerExclusive);
    pFormatter->SetUpperLimit(1000000, kvNumEditFormatter::UpperInclusive);
    m_total.SetFormatter(pFormatter);
    m_total.SetSpecialEffects(kvDropEditBase::EffectRightAligned);
    m_total.SubclassDlgItem(IDC_CALC_COMBO, this);
    m_total.SetWindowText("1,250.00");
}

void CalculatorPage::PrepareForPicture()
{
    for (const auto& [calculator, keys] : {std::pair{&m_own, "1234.5*2="}, std::pair{&m_paired, "1250*1.08="}}) {
        for (const char* key = keys; *key != '\0'; ++key)
            calculator->SendMessage(WM_CHAR, static_cast<unsigned char>(*key));
    }
}
