// kvCalculatorCombo: creation with the calculator, and its result going into
// the field through the formatter.
#include "dropdown/kvCalculatorCombo.h"

#include "dropdown/_kvCalculatorComboPopup.h"
#include "formatting/kvNumEditFormatter.h"
#include "formatting/kvNumericText.h"
#include "formatting/kvStatus.h"

namespace {

constexpr unsigned int kIntegers = 9;
constexpr unsigned int kDecimals = 2;

}  // namespace

kvCalculatorCombo::kvCalculatorCombo()
{
    SetFormatter(new kvNumEditFormatter(kIntegers, kDecimals, kvNumEditFormatter::Separators));
}

kvCalculatorCombo::~kvCalculatorCombo() = default;

void kvCalculatorCombo::SetFormatter(kvNumEditFormatter* pFormatter) { kvEdit::SetFormatter(pFormatter); }

// SubclassDlgItem comes here too, through the base's creation.
BOOL kvCalculatorCombo::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID, DWORD dwEffects)
{
    m_pCalculator = std::make_unique<_kvCalculatorComboPopup>(this);
    if (!m_pCalculator->Create(pParentWnd) ||
        !kvFormattedDropEdit::Create(dwStyle, rect, pParentWnd, nID, dwEffects))
        return FALSE;
    SetPopup(m_pCalculator.get());
    return TRUE;
}

// The calculator works to 12 decimals; the field's rounding is printf's.
bool kvCalculatorCombo::_WriteResult(const CString& result)
{
    const auto& formatter = *static_cast<const kvNumEditFormatter*>(GetFormatter());
    CString text;
    text.Format("%.*f", static_cast<int>(formatter.GetDecimals()), DoubleValue(result));
    kvEditFormatterError err;
    if (!formatter.IsValid(text, &err)) {
        kvBeep();
        kvShowStatusMessage(err.message);
        return false;
    }
    unsigned long sel = 0;
    formatter.DoExitField(text, sel);
    ReplaceText(text);
    return true;
}
