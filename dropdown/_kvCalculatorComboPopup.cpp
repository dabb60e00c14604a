// _kvCalculatorComboPopup: the keypad below the field, started from the
// field's value, and its ways of closing.
#include "dropdown/_kvCalculatorComboPopup.h"

#include "dropdown/kvCalculatorCombo.h"
#include "dropdown/kvPopupWindow.h"
#include "formatting/kvMessages.h"

BEGIN_MESSAGE_MAP(_kvCalculatorComboPopup, kvCalculatorCtrl)
    ON_WM_KEYDOWN()
    ON_WM_SYSKEYDOWN()
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONDOWN()
    ON_WM_RBUTTONDOWN()
    ON_WM_KILLFOCUS()
END_MESSAGE_MAP()

bool _kvCalculatorComboPopup::Create(CWnd* pParent)
{
    if (!CreateEx(0, WS_POPUP, CRect(), pParent, 0))
        return false;
    const CRect keypad = GetMinReqRect();
    SetWindowPos(nullptr, 0, 0, keypad.Width(), keypad.Height(), SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    return true;
}

void _kvCalculatorComboPopup::Show(CRect field, const CString& text)
{
    SetValue(text);
    kvShowPopupWindow(*this, field);
}

void _kvCalculatorComboPopup::Hide() { ShowWindow(SW_HIDE); }

int _kvCalculatorComboPopup::IsVisible() { return IsWindowVisible() ? 1 : 0; }

// "=" ends the calculation, from the mouse, "=" or Enter alike.
void _kvCalculatorComboPopup::HandleButtonClick(int button, CRect rect)
{
    kvCalculatorCtrl::HandleButtonClick(button, rect);
    if (button == kvCalculatorKeypad::Equals && m_pField->_WriteResult(GetValue()))
        _Close();
}

void _kvCalculatorComboPopup::_Close() { m_pField->SendMessage(WM_KV_CLOSEPOPUP); }

void _kvCalculatorComboPopup::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    if (nChar == VK_ESCAPE || nChar == VK_F4)
        _Close();
    else
        kvCalculatorCtrl::OnKeyDown(nChar, nRepCnt, nFlags);
}

void _kvCalculatorComboPopup::OnSysKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    if (nChar == VK_UP || nChar == VK_DOWN)
        _Close();
    else
        CWnd::OnSysKeyDown(nChar, nRepCnt, nFlags);
}

// The keypad lets the capture go when the mouse leaves it, but the open popup
// keeps it, so that a click outside still comes here: outside, the keypad is
// shown its own corner, which holds no key, and its hot key goes dark.
void _kvCalculatorComboPopup::OnMouseMove(UINT nFlags, CPoint point)
{
    kvCalculatorCtrl::OnMouseMove(nFlags, kvIsOutsidePopup(*this, point) ? CPoint(0, 0) : point);
}

void _kvCalculatorComboPopup::OnLButtonDown(UINT nFlags, CPoint point)
{
    if (kvIsOutsidePopup(*this, point))
        _Close();
    else
        kvCalculatorCtrl::OnLButtonDown(nFlags, point);
}

void _kvCalculatorComboPopup::OnRButtonDown(UINT nFlags, CPoint point)
{
    if (kvIsOutsidePopup(*this, point))
        _Close();
    else
        CWnd::OnRButtonDown(nFlags, point);
}

void _kvCalculatorComboPopup::OnKillFocus(CWnd* pNewWnd)
{
    CWnd::OnKillFocus(pNewWnd);
    if (kvIsMessageOutsidePopup(*this))
        _Close();
}
