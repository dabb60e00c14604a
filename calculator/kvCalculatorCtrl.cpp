// kvCalculatorCtrl: creation with its fonts and display edit, key presses from
// mouse and keyboard with their flash, and the keypad's drawing. The layout
// and the arithmetic are kvCalculatorKeypad's and kvCalculatorState's.
#include "calculator/kvCalculatorCtrl.h"

#include "afx/CBrush.h"
#include "afx/CClientDC.h"
#include "afx/CDC.h"
#include "afx/CPaintDC.h"
#include "afx/CPen.h"
#include "formatting/kvNumericText.h"

#include <cstring>

namespace {

constexpr UINT_PTR kFlashTimer = 1;
constexpr UINT kFlashMilliseconds = 100;
constexpr int kEditMargins = 3;

using Keypad = kvCalculatorKeypad;

}  // namespace

BEGIN_MESSAGE_MAP(kvCalculatorCtrl, CWnd)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_KEYDOWN()
    ON_WM_CHAR()
    ON_WM_TIMER()
    ON_WM_GETDLGCODE()
    ON_WM_SETFOCUS()
END_MESSAGE_MAP()

kvCalculatorCtrl::kvCalculatorCtrl() : m_pTargetEdit(&m_OwnEdit) {}

BOOL kvCalculatorCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    if (!CWnd::Create(nullptr, nullptr, dwStyle & ~WS_BORDER, rect, pParentWnd, nID))
        return FALSE;
    _Initialize();
    return TRUE;
}

BOOL kvCalculatorCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    if (!CWnd::CreateEx(dwExStyle, nullptr, nullptr, dwStyle & ~WS_BORDER, rect, pParentWnd, nID))
        return FALSE;
    _Initialize();
    return TRUE;
}

CRect kvCalculatorCtrl::GetMinReqRect() const
{
    return m_hWnd != nullptr ? m_Keypad.MinReqRect() : CRect();
}

void kvCalculatorCtrl::SetPairedEdit(CWnd* pEdit)
{
    m_pTargetEdit = pEdit != nullptr ? pEdit : &m_OwnEdit;
}

void kvCalculatorCtrl::SetShowCommas(bool show)
{
    m_bShowCommas = show;
    _RewriteDisplay();
}

void kvCalculatorCtrl::SetParenNegative(bool paren)
{
    m_bParenNegative = paren;
    _RewriteDisplay();
}

void kvCalculatorCtrl::SetShowMyEdit(bool show)
{
    m_Keypad.showMyEdit = show;
    if (m_hWnd != nullptr)
        Invalidate();
}

void kvCalculatorCtrl::SetValue(const CString& text) { _SetValue(text, true); }

CString kvCalculatorCtrl::GetValue() const
{
    CString text;
    m_pTargetEdit->GetWindowText(text);
    return text;
}

CRect kvCalculatorCtrl::ButtonRect(int button) const { return m_Keypad.ButtonRect(button); }

void kvCalculatorCtrl::DrawSymbol(CDC* pDC, int button, CRect rect, unsigned long color)
{
    if (button == Keypad::Backspace) {
        const CPoint center = rect.CenterPoint();
        const POINT arrow[] = {{center.x - 3, center.y}, {center.x, center.y - 3}, {center.x, center.y + 3}};
        CPen pen(PS_SOLID, 1, color);
        CBrush brush(color);
        CPen* pOldPen = pDC->SelectObject(&pen);
        CBrush* pOldBrush = pDC->SelectObject(&brush);
        pDC->Polygon(arrow, 3);
        pDC->MoveTo(center);
        pDC->LineTo(center.x + 6, center.y);
        pDC->SelectObject(pOldBrush);
        pDC->SelectObject(pOldPen);
        return;
    }
    const char caption = Keypad::Caption(button);
    CFont* pOldFont = pDC->SelectObject(button == Keypad::Multiply ? &m_LargeFont : &m_SmallFont);
    pDC->SetBkMode(TRANSPARENT);
    pDC->SetTextColor(color);
    CRect textRect(rect.left + 1, rect.top + 4, rect.right, rect.bottom);
    pDC->DrawText(&caption, 1, textRect, DT_CENTER | DT_SINGLELINE);
    pDC->SelectObject(pOldFont);
}

void kvCalculatorCtrl::HandleButtonClick(int button, CRect rect)
{
    if (rect.Height() == 0)
        rect = ButtonRect(button);
    {
        CClientDC dc(this);
        CBrush black(RGB(0, 0, 0));
        CBrush* pOldBrush = dc.SelectObject(&black);
        dc.Rectangle(rect);
        dc.SelectObject(pOldBrush);
        CRect caption = rect;
        caption.OffsetRect(1, 1);
        DrawSymbol(&dc, button, caption, RGB(255, 255, 255));
    }
    SetTimer(kFlashTimer, kFlashMilliseconds);

    CString text;
    m_pTargetEdit->GetWindowText(text);
    const bool result = m_State.Press(button, text);
    _SetValue(text, result);
}

void kvCalculatorCtrl::OnPaint()
{
    CPaintDC dc(this);
    CFont* pOldFont = dc.SelectObject(&m_SmallFont);
    for (int button = 0; button < Keypad::kButtonCount; ++button)
        _DrawButton(dc, button);
    dc.SelectObject(pOldFont);
}

BOOL kvCalculatorCtrl::OnEraseBkgnd(CDC* pDC)
{
    CRect client;
    GetClientRect(client);
    pDC->DrawFrameControl(client, DFC_BUTTON, DFCS_BUTTONPUSH);
    return TRUE;
}

void kvCalculatorCtrl::OnMouseMove(UINT /*nFlags*/, CPoint point)
{
    Default();
    CRect client;
    GetClientRect(client);
    // The capture lets the hot key go dark again when the mouse leaves.
    if (client.PtInRect(point))
        SetCapture();
    else if (GetCapture() == this)
        ::ReleaseCapture();
    const int hot = m_Keypad.ButtonAt(point);
    if (hot != m_nHotButton) {
        m_nHotButton = hot;
        Invalidate(FALSE);
    }
}

void kvCalculatorCtrl::OnLButtonDown(UINT /*nFlags*/, CPoint point)
{
    SetFocus();
    const int button = m_Keypad.ButtonAt(point);
    if (button >= 0)
        HandleButtonClick(button, ButtonRect(button));
}

// The second click of a double click is a press of its own.
void kvCalculatorCtrl::OnLButtonDblClk(UINT nFlags, CPoint point) { OnLButtonDown(nFlags, point); }

void kvCalculatorCtrl::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    const int button = Keypad::ButtonForKey(nChar);
    if (button < 0)
        CWnd::OnKeyDown(nChar, nRepCnt, nFlags);
    else
        HandleButtonClick(button, CRect());
}

void kvCalculatorCtrl::OnChar(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    const int button = Keypad::ButtonForChar(nChar);
    if (button < 0)
        CWnd::OnChar(nChar, nRepCnt, nFlags);
    else
        HandleButtonClick(button, CRect());
}

void kvCalculatorCtrl::OnTimer(UINT_PTR nIDEvent)
{
    if (nIDEvent != kFlashTimer) {
        CWnd::OnTimer(nIDEvent);
        return;
    }
    KillTimer(kFlashTimer);
    Invalidate(FALSE);
}

// Enter and the other dialog keys are keys of the keypad.
UINT kvCalculatorCtrl::OnGetDlgCode() { return DLGC_WANTALLKEYS; }

void kvCalculatorCtrl::OnSetFocus(CWnd* pOldWnd)
{
    m_State.DropOperation();
    CWnd::OnSetFocus(pOldWnd);
}

void kvCalculatorCtrl::_Initialize()
{
    LOGFONT logFont{};
    std::strcpy(logFont.lfFaceName, "Arial");
    logFont.lfWeight = FW_BOLD;
    logFont.lfHeight = 90;
    m_SmallFont.CreatePointFontIndirect(&logFont);
    logFont.lfHeight = 160;
    m_LargeFont.CreatePointFontIndirect(&logFont);
    _MeasureFonts();
    _CreateOwnEdit();
}

void kvCalculatorCtrl::_MeasureFonts()
{
    CClientDC dc(this);
    TEXTMETRIC metrics{};
    CFont* pOldFont = dc.SelectObject(&m_SmallFont);
    dc.GetTextMetrics(&metrics);
    m_Keypad.textHeight = metrics.tmHeight;
    m_Keypad.charWidth = metrics.tmAveCharWidth;
    dc.SelectStockObject(DEFAULT_GUI_FONT);
    dc.GetTextMetrics(&metrics);
    m_Keypad.editHeight = metrics.tmHeight + 4;
    dc.SelectObject(pOldFont);
}

void kvCalculatorCtrl::_CreateOwnEdit()
{
    m_OwnEdit.CreateEx(WS_EX_CLIENTEDGE, "EDIT", "0", WS_CHILD | WS_BORDER | ES_MULTILINE | ES_RIGHT,
                       CRect(0, 0, 0, 0), this, 0);
    m_OwnEdit.SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(::GetStockObject(DEFAULT_GUI_FONT)), TRUE);
    m_OwnEdit.SetMargins(kEditMargins, kEditMargins);
    m_OwnEdit.MoveWindow(m_Keypad.EditRect());
    m_OwnEdit.ShowWindow(m_Keypad.showMyEdit ? SW_SHOW : SW_HIDE);
}

void kvCalculatorCtrl::_SetValue(const CString& text, bool result)
{
    CString display = text;
    kvCalculatorState::Format(display, _FormatFlags(), result);
    m_pTargetEdit->SetWindowText(display);
}

unsigned long kvCalculatorCtrl::_FormatFlags() const
{
    return (m_bShowCommas ? kvNumericSeparators : 0) | (m_bParenNegative ? kvNumericParenNegative : 0);
}

// The display is rewritten from the calculator window's own text, not re-read.
void kvCalculatorCtrl::_RewriteDisplay()
{
    if (!_TargetHasWindow())
        return;
    CString title;
    GetWindowText(title);
    SetValue(title);
}

bool kvCalculatorCtrl::_TargetHasWindow() const
{
    return m_pTargetEdit != nullptr && ::IsWindow(m_pTargetEdit->GetSafeHwnd());
}

void kvCalculatorCtrl::_DrawButton(CDC& dc, int button)
{
    const CRect rect = ButtonRect(button);
    const bool hot = button == m_nHotButton;
    const COLORREF black = RGB(0, 0, 0);
    dc.FillSolidRect(rect, ::GetSysColor(hot ? COLOR_BTNSHADOW : COLOR_BTNFACE));
    CPen topLeft(PS_SOLID, 1, ::GetSysColor(hot ? COLOR_BTNFACE : COLOR_BTNHIGHLIGHT));
    CPen bottomRight(PS_SOLID, 1, hot ? black : ::GetSysColor(COLOR_BTNSHADOW));
    CPen* pOldPen = dc.SelectObject(&topLeft);
    dc.MoveTo(rect.left, rect.bottom - 1);
    dc.LineTo(rect.left, rect.top);
    dc.LineTo(rect.right - 1, rect.top);
    dc.SelectObject(&bottomRight);
    dc.LineTo(rect.right - 1, rect.bottom - 1);
    dc.LineTo(rect.left, rect.bottom - 1);
    dc.SelectObject(pOldPen);
    DrawSymbol(&dc, button, rect, hot ? RGB(255, 255, 255) : black);
}
