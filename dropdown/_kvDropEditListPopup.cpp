// _kvDropEditListPopup: opening on the field's item, the mouse and the keys
// inside the open list, and what reaches the field.
#include "dropdown/_kvDropEditListPopup.h"

#include "dropdown/kvDropEditList.h"
#include "dropdown/kvPopupPlacement.h"
#include "formatting/kvMessages.h"
#include "formatting/kvNotifyParent.h"

#include <algorithm>

namespace {

constexpr DWORD kListStyle = WS_POPUP | WS_BORDER | WS_VSCROLL | LBS_NOINTEGRALHEIGHT;

bool IsControlDown() { return ::GetKeyState(VK_CONTROL) < 0; }

bool IsEditingKey(UINT nChar)
{
    return nChar == VK_LEFT || nChar == VK_RIGHT || nChar == VK_HOME || nChar == VK_END;
}

}  // namespace

BEGIN_MESSAGE_MAP(_kvDropEditListPopup, CListBox)
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_NCLBUTTONDOWN()
    ON_WM_KEYDOWN()
    ON_WM_SYSKEYDOWN()
    ON_WM_CHAR()
END_MESSAGE_MAP()

bool _kvDropEditListPopup::Create(DWORD dwComboStyle, CWnd* pParent)
{
    const DWORD sorted = (dwComboStyle & CBS_SORT) ? LBS_SORT : 0;
    return CreateEx(0, "LISTBOX", "", kListStyle | sorted, CRect(), pParent, 0) != FALSE;
}

// The field's item selected, or the list scrolled to the first item it begins.
void _kvDropEditListPopup::Show(CRect field, const CString& text)
{
    const int exact = FindStringExact(-1, text);
    SetCurSel(exact);
    if (exact >= 0) {
        m_pField->SetSel(0, -1);
    } else if (const int prefix = FindString(-1, text); prefix >= 0) {
        SetTopIndex(prefix);
    }
    m_nSelAtOpen = GetCurSel();
    m_nPressedItem = -1;
    SetCapture();
    Place(field);
    ShowWindow(SW_SHOW);
    SetFocus();
}

void _kvDropEditListPopup::Place(const CRect& field)
{
    const int itemsHeight = kvDropListRules::ItemsHeight(GetItemHeight(0), GetCount());
    const int oneItem = kvDropListRules::ItemsHeight(GetItemHeight(0), 1);
    const CSize size(std::max<int>(field.Width(), m_nDroppedWidth),
                     std::min(std::max<int>(m_DroppedSize.cy - field.Height(), oneItem), itemsHeight));
    const CSize screen(::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN));
    const CPoint topLeft = kvPopupPlacement::TopLeft(field, size, screen);
    SetWindowPos(&CWnd::wndTop, topLeft.x, topLeft.y, size.cx, size.cy, SWP_NOACTIVATE);
}

void _kvDropEditListPopup::Hide() { ShowWindow(SW_HIDE); }

int _kvDropEditListPopup::IsVisible() { return IsWindowVisible() ? 1 : 0; }

void _kvDropEditListPopup::_WriteItem(bool selectAll)
{
    CString text;
    if (const int item = GetCurSel(); item >= 0)
        GetText(item, text);
    CString fieldText;
    m_pField->GetWindowText(fieldText);
    if (text != fieldText)
        m_pField->SetWindowText(text);
    if (selectAll)
        m_pField->SetSel(0, -1);
}

void _kvDropEditListPopup::_Close() { m_pField->SendMessage(WM_KV_CLOSEPOPUP); }

void _kvDropEditListPopup::_Confirm()
{
    _WriteItem(true);
    m_pField->_NotifySelection();
}

int _kvDropEditListPopup::_ItemAt(CPoint point) const
{
    BOOL outside = FALSE;
    const int item = static_cast<int>(ItemFromPoint(point, outside));
    return outside ? -1 : item;
}

// ---- the mouse, which the list holds while open ----

void _kvDropEditListPopup::OnMouseMove(UINT nFlags, CPoint point)
{
    if (const int item = _ItemAt(point); item >= 0)
        SetCurSel(item);
    else if ((nFlags & MK_LBUTTON) && m_nPressedItem >= 0)
        SetCurSel(-1);
}

void _kvDropEditListPopup::OnLButtonDown(UINT, CPoint point)
{
    if (const int item = _ItemAt(point); item >= 0) {
        m_nPressedItem = item;
        SetCurSel(item);
        return;
    }
    CPoint screen = point;
    ClientToScreen(&screen);
    const LRESULT hit = SendMessage(WM_NCHITTEST, 0, MAKELPARAM(screen.x, screen.y));
    if (hit == HTVSCROLL || hit == HTHSCROLL) {
        m_bScrollClick = true;
        ::ReleaseCapture();
        PostMessage(WM_NCLBUTTONDOWN, static_cast<WPARAM>(hit), MAKELPARAM(screen.x, screen.y));
        return;
    }
    const bool changed = _SelectionChanged();
    _Close();
    if (changed)
        _Confirm();
}

// The scroll bar tracks the mouse until the button is up; then the list takes
// the capture back.
void _kvDropEditListPopup::OnNcLButtonDown(UINT, CPoint)
{
    Default();
    if (m_bScrollClick && IsWindowVisible())
        SetCapture();
    m_bScrollClick = false;
}

void _kvDropEditListPopup::OnLButtonUp(UINT, CPoint point)
{
    const int pressed = m_nPressedItem;
    m_nPressedItem = -1;
    if (_ItemAt(point) < 0) {
        if (pressed < 0)
            return;
        SetCurSel(pressed);
    }
    _WriteItem(true);
    _Close();
    m_pField->_NotifySelection();
}

// ---- the keys, which the list has while open ----

void _kvDropEditListPopup::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    switch (nChar) {
    case VK_ESCAPE:
        _Close();
        kvNotifyParent(m_pField, CBN_SELENDCANCEL);
        return;
    case VK_TAB:
        _Close();
        kvNotifyParent(m_pField, CBN_SELENDCANCEL);
        m_pField->PostMessage(WM_KEYDOWN, VK_TAB, 1);
        return;
    case VK_RETURN:
    case VK_F4:
        if (_SelectionChanged())
            _Confirm();
        _Close();
        return;
    default:
        break;
    }
    if (nChar == VK_DELETE || (m_pField->AllowEntry() && IsEditingKey(nChar))) {
        m_pField->SendMessage(WM_KEYDOWN, nChar, MAKELPARAM(nRepCnt, nFlags));
        return;
    }
    const int before = GetCurSel();
    Default();
    if (GetCurSel() != before) {
        _WriteItem(true);
        kvNotifyParent(m_pField, CBN_SELCHANGE);
    }
}

void _kvDropEditListPopup::OnSysKeyDown(UINT nChar, UINT, UINT)
{
    if (nChar != VK_UP && nChar != VK_DOWN) {
        Default();
        return;
    }
    if (_SelectionChanged())
        _Confirm();
    _Close();
}

// Typing goes on in the field, completing while the list is open.
void _kvDropEditListPopup::OnChar(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    if (nChar >= ' ' || nChar == '\b' || IsControlDown())
        m_pField->SendMessage(WM_CHAR, nChar, MAKELPARAM(nRepCnt, nFlags));
}
