// _kvCalculatorComboPopup: the calculator combo's popup, a keypad with its own
// display that holds the mouse capture while open, hands its result to the
// field on "=" or Enter and closes on Escape, F4, Alt+Up/Down, a click outside
// and a focus lost outside.
#pragma once

#include "calculator/kvCalculatorCtrl.h"
#include "dropdown/kvDropEditPopup.h"

class kvCalculatorCombo;

class _kvCalculatorComboPopup : public kvCalculatorCtrl, public kvDropEditPopup {
public:
    explicit _kvCalculatorComboPopup(kvCalculatorCombo* pField) : m_pField(pField) {}

    // The hidden keypad, owned by the field's parent.
    bool Create(CWnd* pParent);

    void Show(CRect field, const CString& text) override;
    void Hide() override;
    int IsVisible() override;

protected:
    void HandleButtonClick(int button, CRect rect) override;

    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnSysKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnRButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnKillFocus(CWnd* pNewWnd);

    DECLARE_MESSAGE_MAP()

private:
    void _Close();

    kvCalculatorCombo* m_pField;
};
