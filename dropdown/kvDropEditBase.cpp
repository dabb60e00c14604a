// kvDropEditBase: creation with its button, the button's placement, opening
// and closing the popup, the combo-box notifications and the focus.
#include "dropdown/kvDropEditBase.h"

#include "afx/CClientDC.h"
#include "afx/CFont.h"
#include "dropdown/_kvDropEditButton.h"
#include "dropdown/kvDropEditLayout.h"
#include "dropdown/kvDropEditPopup.h"
#include "formatting/kvFocusReports.h"
#include "formatting/kvMessages.h"
#include "formatting/kvNotifyParent.h"
#include "formatting/kvParentFont.h"
#include "formatting/kvStatus.h"

namespace {

// The edit styles are the field's own: one line of a multi-line edit, so that
// its formatting rectangle can be set beside the button.
constexpr DWORD kFieldEditStyle = ES_MULTILINE | ES_AUTOHSCROLL;

}  // namespace

BEGIN_MESSAGE_MAP(kvDropEditBase, CEdit)
    ON_WM_ENABLE()
    ON_WM_SIZE()
    ON_WM_MOVE()
    ON_WM_KEYDOWN()
    ON_WM_SYSKEYDOWN()
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    ON_MESSAGE(WM_KV_VERIFY, OnVerify)
    ON_CONTROL_REFLECT(EN_CHANGE, OnChange)
    ON_CONTROL_REFLECT(EN_UPDATE, OnUpdate)
    ON_MESSAGE(EM_SETREADONLY, OnSetReadOnly)
    ON_MESSAGE(WM_KV_CLOSEPOPUP, OnClosePopup)
    ON_BN_CLICKED(m_ButtonID, OnDropDownClick)
    ON_WM_CTLCOLOR_REFLECT()
END_MESSAGE_MAP()

kvDropEditBase::kvDropEditBase() = default;

kvDropEditBase::~kvDropEditBase() = default;

bool kvDropEditBase::_IsFlat() const { return (m_dwEffects & (EffectFlatBordered | EffectFlatBorderless)) != 0; }

bool kvDropEditBase::IsReadOnly() const { return (GetStyle() & ES_READONLY) != 0; }

DWORD kvDropEditBase::SetSpecialEffects(DWORD dwEffects)
{
    const DWORD previous = m_dwEffects;
    if (!::IsWindow(m_hWnd))
        m_dwEffects = dwEffects;
    return previous;
}

BOOL kvDropEditBase::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return Create(dwStyle, rect, pParentWnd, nID, m_dwEffects);
}

// The caller's edit styles (read-only, upper case, alignment ...) are dropped:
// read-only comes later, through EM_SETREADONLY.
BOOL kvDropEditBase::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID, DWORD dwEffects)
{
    if (dwEffects & EffectFlatBordered)
        dwStyle |= WS_BORDER;
    else if (dwEffects & EffectFlatBorderless)
        dwStyle &= ~WS_BORDER;
    m_dwEffects = dwEffects;
    m_dwStyle = dwStyle;
    const DWORD style = (dwStyle & 0xFFFF0000) | kFieldEditStyle | ((dwEffects & EffectRightAligned) ? ES_RIGHT : 0);
    const bool sunken = !_IsFlat() && (style & WS_BORDER) != 0;
    if (!CreateEx(sunken ? WS_EX_CLIENTEDGE : 0, "EDIT", "", sunken ? style & ~WS_BORDER : style, rect, pParentWnd,
                  nID))
        return FALSE;
    kvSetParentFont(this, pParentWnd);
    _CreateDropButton();
    return TRUE;
}

void kvDropEditBase::_CreateDropButton()
{
    m_pButton = std::make_unique<_kvDropEditButton>(this, _IsFlat(), (m_dwStyle & WS_BORDER) != 0);
    m_pButton->Create("", WS_CHILD | WS_VISIBLE | BS_CENTER | BS_VCENTER, CRect(), this, m_ButtonID);
    LocateButton();
}

BOOL kvDropEditBase::SubclassDlgItem(UINT nID, CWnd* pParent)
{
    CWnd* pOld = pParent->GetDlgItem(static_cast<int>(nID));
    if (pOld == nullptr)
        return FALSE;
    const HWND hOld = pOld->m_hWnd;
    CRect rect;
    pOld->GetWindowRect(&rect);
    pParent->ScreenToClient(&rect);
    if (!Create(pOld->GetStyle() | WS_BORDER, rect, pParent, nID))
        return FALSE;
    // Right behind the old control, so that the tab order stays.
    SetWindowPos(CWnd::FromHandle(hOld), 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE);
    ::DestroyWindow(hOld);
    return TRUE;
}

// ---- the button ----

void kvDropEditBase::SetBitmap(CBitmap* pBitmap, DWORD transparent)
{
    if (m_pButton)
        m_pButton->SetImage(pBitmap, transparent);
}

void kvDropEditBase::SetButtonWidth(int width)
{
    m_nButtonWidth = width < 0 ? -1 : width;
    LocateButton();
}

int kvDropEditBase::FontHeight()
{
    CClientDC dc(this);
    CFont* pOldFont = dc.SelectObject(GetFont());
    TEXTMETRIC metrics{};
    dc.GetTextMetrics(&metrics);
    dc.SelectObject(pOldFont);
    return metrics.tmHeight;
}

void kvDropEditBase::LocateButton()
{
    if (!m_pButton || !::IsWindow(m_pButton->m_hWnd))
        return;
    CRect client;
    GetClientRect(&client);
    const int buttonWidth = m_nButtonWidth < 0 ? ::GetSystemMetrics(SM_CXVSCROLL) : m_nButtonWidth;
    const bool bordered = (m_dwStyle & WS_BORDER) != 0;
    const auto look = !_IsFlat() ? kvDropEditLayout::ThreeD
                      : bordered ? kvDropEditLayout::FlatBordered
                                 : kvDropEditLayout::FlatBorderless;
    const kvDropEditLayout layout =
        kvDropEditLayout::For(look, client.Width(), client.Height(), buttonWidth, FontHeight());
    SetMargins(layout.leftMargin, layout.rightMargin);
    m_pButton->MoveWindow(&layout.button, FALSE);
    SetRect(&layout.format);
}

void kvDropEditBase::OnSize(UINT, int, int)
{
    Default();
    LocateButton();
}

void kvDropEditBase::OnMove(int, int)
{
    Default();
    LocateButton();
}

// ---- colours ----

void kvDropEditBase::SetTextColor(COLORREF crText)
{
    kvEdit::SetTextColor(crText);
    if (m_pButton)
        m_pButton->SetColors(GetTextColor(), GetBkColor());
}

void kvDropEditBase::SetBkColor(COLORREF crBk)
{
    kvEdit::SetBkColor(crBk);
    if (m_pButton)
        m_pButton->SetColors(GetTextColor(), GetBkColor());
}

// ---- the popup ----

kvDropEditPopup* kvDropEditBase::SetPopup(kvDropEditPopup* pPopup)
{
    kvDropEditPopup* pPrevious = m_pPopup;
    m_pPopup = pPopup;
    return pPrevious;
}

bool kvDropEditBase::GetPopupState() const { return m_pPopup != nullptr && m_pPopup->IsVisible() > 0; }

void kvDropEditBase::ShowPopup(bool show)
{
    if (show) {
        if (m_pPopup == nullptr) {
            kvBeep(MB_ICONASTERISK);
            return;
        }
        if (GetPopupState())
            return;
        CRect rect;
        GetWindowRect(&rect);
        CString text;
        GetWindowText(text);
        m_pPopup->Show(rect, text);
    } else if (GetPopupState()) {
        ::ReleaseCapture();
        m_pPopup->Hide();
        SetFocus();
    }
}

void kvDropEditBase::TogglePopup()
{
    const bool open = GetPopupState();
    if (!open)
        kvNotifyParent(this, CBN_DROPDOWN);
    ShowPopup(!open);
}

void kvDropEditBase::OnDropDownClick()
{
    const HWND hFocus = ::GetFocus();
    if (GetPopupState() || (hFocus != m_hWnd && !::IsChild(m_hWnd, hFocus)))
        return;
    kvNotifyParent(this, CBN_DROPDOWN);
    ShowPopup(true);
}

LRESULT kvDropEditBase::OnClosePopup(WPARAM, LPARAM)
{
    ShowPopup(false);
    kvNotifyParent(this, CBN_CLOSEUP);
    return 0;
}

// ---- keyboard ----

void kvDropEditBase::OnKeyDown(UINT nChar, UINT, UINT)
{
    Default();
    if (nChar == VK_F4)
        TogglePopup();
    else if (nChar == VK_INSERT)
        kvToggleOvertype();
}

void kvDropEditBase::OnSysKeyDown(UINT nChar, UINT, UINT)
{
    if (nChar == VK_UP || nChar == VK_DOWN)
        TogglePopup();
    else
        Default();
}

// ---- focus ----

void kvDropEditBase::OnSetFocus(CWnd*)
{
    Default();
    // A thin caret, placed by the selection that follows.
    ::CreateCaret(m_hWnd, nullptr, 1, FontHeight());
    ::ShowCaret(m_hWnd);
    if (IsReadOnly())
        SetSel(0, 0);
    else
        SetSel(0, -1);
    SendMessage(EM_SCROLLCARET);
    kvNotifyParent(this, CBN_SETFOCUS);
    kvReportFocusIn(this);
}

void kvDropEditBase::OnKillFocus(CWnd* pNewWnd)
{
    Default();
    if (pNewWnd == nullptr || pNewWnd->m_hWnd != m_hWnd) {
        kvNotifyParent(this, CBN_KILLFOCUS);
        kvSendChildKillFocus(this, pNewWnd);
    }
    kvReportFocusOut(this);
}

// ---- state ----

void kvDropEditBase::OnEnable(BOOL bEnable)
{
    if (m_pButton)
        m_pButton->Enable(bEnable && !IsReadOnly());
    Default();
}

// A read-only field never opens its popup with the mouse.
LRESULT kvDropEditBase::OnSetReadOnly(WPARAM wParam, LPARAM)
{
    const LRESULT result = Default();
    if (m_pButton)
        m_pButton->Enable(wParam == 0 && IsWindowEnabled());
    return result;
}

// A plain drop edit holds any text.
LRESULT kvDropEditBase::OnVerify(WPARAM, LPARAM) { return 0; }

void kvDropEditBase::OnChange() { kvNotifyParent(this, CBN_EDITCHANGE); }

void kvDropEditBase::OnUpdate() { kvNotifyParent(this, CBN_EDITUPDATE); }
