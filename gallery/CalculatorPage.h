// CalculatorPage: the gallery's calculators: a keypad with its own display,
// one whose display is an amount field beside it, and an amount field that
// drops a calculator.
#pragma once

#include "afx/CEdit.h"
#include "calculator/kvCalculatorCtrl.h"
#include "dropdown/kvCalculatorCombo.h"
#include "gallery/GalleryPage.h"

class CalculatorPage : public GalleryPage {
public:
    BOOL Create(CWnd* pParent);
    // Each calculator shows a sum worked out on it.
    void PrepareForPicture() override;

protected:
    BOOL OnInitDialog() override;

private:
    // A keypad at the top left of a group box, as large as it needs.
    void CreateIn(kvCalculatorCtrl& calculator, UINT nGroupID, UINT nID);
    void CreateTotal();

    kvCalculatorCtrl m_own;
    kvCalculatorCtrl m_paired;
    // The paired display must outlive the calculator's use of it.
    CEdit m_amount;
    kvCalculatorCombo m_total;
};
