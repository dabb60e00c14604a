// _kvCalendarComboPopup: the month calendar below the field, synchronised with
// the field's date when it opens, and its ways of closing.
#include "dropdown/_kvCalendarComboPopup.h"

#include "afx/AfxInitCommonControls.h"
#include "dropdown/kvCalendarCombo.h"
#include "dropdown/kvPopupWindow.h"
#include "formatting/kvDateEditFormatter.h"
#include "formatting/kvMessages.h"

namespace {

constexpr DWORD kCalendarStyle = WS_POPUP | WS_BORDER | MCS_NOTODAY;

bool IsShiftDown() { return ::GetKeyState(VK_SHIFT) < 0; }

}  // namespace

BEGIN_MESSAGE_MAP(_kvCalendarComboPopup, CWnd)
    ON_WM_SHOWWINDOW()
    ON_NOTIFY_REFLECT(MCN_SELCHANGE, OnSelChange)
    ON_NOTIFY_REFLECT(MCN_SELECT, OnSelect)
    ON_WM_KEYDOWN()
    ON_WM_SYSKEYDOWN()
    ON_WM_LBUTTONDOWN()
    ON_WM_RBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_KILLFOCUS()
END_MESSAGE_MAP()

bool _kvCalendarComboPopup::Create(CWnd* pParent)
{
    AfxInitCommonControls(ICC_DATE_CLASSES);
    if (!CreateEx(0, MONTHCAL_CLASSA, "", kCalendarStyle, CRect(), pParent, 0))
        return false;
    CRect minimum;
    SendMessage(MCM_GETMINREQRECT, 0, reinterpret_cast<LPARAM>(&minimum));
    SetWindowPos(nullptr, 0, 0, minimum.Width(), minimum.Height(), SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    SendMessage(MCM_SETCOLOR, MCSC_TITLEBK, static_cast<LPARAM>(::GetSysColor(COLOR_BTNFACE)));
    SendMessage(MCM_SETCOLOR, MCSC_TITLETEXT, RGB(0, 0, 0));
    return true;
}

void _kvCalendarComboPopup::Show(CRect field, const CString& text)
{
    SetWindowText(text);
    kvShowPopupWindow(*this, field);
}

void _kvCalendarComboPopup::Hide() { ShowWindow(SW_HIDE); }

int _kvCalendarComboPopup::IsVisible() { return IsWindowVisible() ? 1 : 0; }

// An empty or impossible date in the field becomes today's, deliberately.
void _kvCalendarComboPopup::OnShowWindow(BOOL bShow, UINT)
{
    Default();
    if (!bShow)
        return;
    CString fieldText;
    m_pField->GetWindowText(fieldText);
    const kvDateEditFormatter& formatter = m_pField->_Formatter();
    SYSTEMTIME date{};
    CString text(fieldText);
    if (text.IsEmpty() || !formatter.IsValid(text, nullptr) || !formatter.Data(date, text, nullptr)) {
        ::GetLocalTime(&date);
        text = formatter.FormatData(date);
    }
    if (text != fieldText)
        m_pField->_ShowDate(text);
    SendMessage(MCM_SETCURSEL, 0, reinterpret_cast<LPARAM>(&date));
    m_bClosing = false;
}

void _kvCalendarComboPopup::_ShowDate(const SYSTEMTIME& date)
{
    m_pField->_ShowDate(m_pField->_Formatter().FormatData(date));
}

// Browsing writes each date into the field at once; Escape keeps the last one.
void _kvCalendarComboPopup::OnSelChange(NMHDR* pNotifyStruct, LRESULT*)
{
    if (IsWindowVisible())
        _ShowDate(reinterpret_cast<NMSELCHANGE*>(pNotifyStruct)->stSelStart);
}

void _kvCalendarComboPopup::OnSelect(NMHDR* pNotifyStruct, LRESULT*)
{
    _ShowDate(reinterpret_cast<NMSELCHANGE*>(pNotifyStruct)->stSelStart);
    _Close();
}

void _kvCalendarComboPopup::_Close()
{
    m_bClosing = true;
    m_pField->SendMessage(WM_KV_CLOSEPOPUP);
}

void _kvCalendarComboPopup::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    switch (nChar) {
    case VK_ESCAPE:
    case VK_F4:
        _Close();
        break;
    case VK_RETURN:
    case VK_TAB:
        // They act on the dialog as if typed in the field.
        _Close();
        m_pField->PostMessage(WM_KEYDOWN, nChar, 1);
        break;
    default:
        if (!IsShiftDown())
            CWnd::OnKeyDown(nChar, nRepCnt, nFlags);
    }
}

void _kvCalendarComboPopup::OnSysKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    if (nChar == VK_UP || nChar == VK_DOWN)
        m_pField->SendMessage(WM_KV_CLOSEPOPUP);
    else
        CWnd::OnSysKeyDown(nChar, nRepCnt, nFlags);
}

// With the capture, the popup sees clicks anywhere on the screen.
void _kvCalendarComboPopup::_CloseOnClickOutside(CPoint point)
{
    if (kvIsOutsidePopup(*this, point))
        m_pField->SendMessage(WM_KV_CLOSEPOPUP);
    else
        Default();
}

void _kvCalendarComboPopup::OnLButtonDown(UINT, CPoint point) { _CloseOnClickOutside(point); }

void _kvCalendarComboPopup::OnRButtonDown(UINT, CPoint point) { _CloseOnClickOutside(point); }

// The calendar releases the capture on clicks of its own.
void _kvCalendarComboPopup::OnLButtonUp(UINT, CPoint)
{
    Default();
    if (!m_bClosing && ::GetFocus() == m_hWnd && IsWindowVisible())
        SetCapture();
}

void _kvCalendarComboPopup::OnKillFocus(CWnd*)
{
    Default();
    if (kvIsMessageOutsidePopup(*this))
        m_pField->SendMessage(WM_KV_CLOSEPOPUP);
}
