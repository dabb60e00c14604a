// kvCalculatorCtrl: a four-function calculator drawn as a keypad of 19 keys,
// with its own display edit above the keys or a paired edit elsewhere in the
// dialog whose text it reads and writes. Each key press, by mouse or keyboard,
// flashes the key, changes the display text by the calculator's rules and
// writes it back in display form.
#pragma once

#include "afx/CEdit.h"
#include "afx/CFont.h"
#include "afx/CWnd.h"
#include "calculator/kvCalculatorKeypad.h"
#include "calculator/kvCalculatorState.h"
#include "library/kvWinExport.h"

class CDC;

class KVWIN_API kvCalculatorCtrl : public CWnd {
public:
    kvCalculatorCtrl();

    // WS_BORDER is taken out of the style; 0 when no window was made.
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    // The size every key needs; empty before the window exists.
    CRect GetMinReqRect() const;
    // The display becomes that window; null gives the display back to the own edit.
    void SetPairedEdit(CWnd* pEdit);
    // Both rewrite the display from the calculator window's own text.
    void SetShowCommas(bool show);
    void SetParenNegative(bool paren);
    // Moves the keys below the own edit or up to the top; the edit itself is
    // shown or hidden when the control is created.
    void SetShowMyEdit(bool show);
    // Puts the text into the display in display form.
    void SetValue(const CString& text);
    // The display's text.
    CString GetValue() const;

protected:
    CRect ButtonRect(int button) const;
    void DrawSymbol(CDC* pDC, int button, CRect rect, unsigned long color);
    // A key pressed by mouse or keyboard; an empty rect means the key's own.
    virtual void HandleButtonClick(int button, CRect rect);

    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnTimer(UINT_PTR nIDEvent);
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnSetFocus(CWnd* pOldWnd);

    DECLARE_MESSAGE_MAP()

private:
    void _Initialize();
    void _SetValue(const CString& text, bool result);
    void _MeasureFonts();
    void _CreateOwnEdit();
    unsigned long _FormatFlags() const;
    void _RewriteDisplay();
    void _DrawButton(CDC& dc, int button);
    bool _TargetHasWindow() const;

    CFont m_SmallFont;
    CFont m_LargeFont;
    int m_nHotButton = -1;
    CEdit m_OwnEdit;
    CWnd* m_pTargetEdit;
    kvCalculatorKeypad m_Keypad;
    kvCalculatorState m_State;
    bool m_bShowCommas = true;
    bool m_bParenNegative = false;
};
