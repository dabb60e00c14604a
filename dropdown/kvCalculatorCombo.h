// kvCalculatorCombo: an amount field whose typing is a number formatter's and
// whose popup is a calculator. Opening puts the field's value into the
// calculator's display; "=" or Enter writes the result into the field in the
// formatter's form and closes, unless the formatter refuses it; Escape and a
// click outside close without writing.
#pragma once

#include "dropdown/kvFormattedDropEdit.h"
#include "library/kvWinExport.h"

#include <memory>

class _kvCalculatorComboPopup;
class kvNumEditFormatter;

class KVWIN_API kvCalculatorCombo : public kvFormattedDropEdit {
public:
    kvCalculatorCombo();
    ~kvCalculatorCombo() override;

    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID, DWORD dwEffects) override;
    using kvFormattedDropEdit::Create;

    // Takes the formatter over; the field holds numbers only.
    void SetFormatter(kvNumEditFormatter* pFormatter);

private:
    friend class _kvCalculatorComboPopup;

    // The calculator's result, with the field's decimals, as the user's
    // change; a refused one beeps, shows why and leaves the field as it was.
    bool _WriteResult(const CString& result);

    std::unique_ptr<_kvCalculatorComboPopup> m_pCalculator;
};
