// kvDropEditList: creation with its list, typing with completion, the keys
// and mouse of the closed field, the clipboard's item rules, and the combo
// box's interface forwarded to the list.
#include "dropdown/kvDropEditList.h"

#include "dropdown/_kvDropEditListPopup.h"
#include "formatting/kvNotifyParent.h"
#include "formatting/kvParentFont.h"
#include "formatting/kvStatus.h"

#include <algorithm>
#include <vector>

namespace {

// Ctrl+C, V, X and Z as the characters they type.
constexpr UINT kCtrlC = 3, kCtrlV = 22, kCtrlX = 24, kCtrlZ = 26;

bool IsControlDown() { return ::GetKeyState(VK_CONTROL) < 0; }

UINT ClipboardMessageOf(UINT nChar)
{
    switch (nChar) {
    case kCtrlC:
        return WM_COPY;
    case kCtrlV:
        return WM_PASTE;
    case kCtrlX:
        return WM_CUT;
    case kCtrlZ:
        return EM_UNDO;
    default:
        return 0;
    }
}

// The keys that move through the list; without free entry the caret keys too.
bool IsListKey(UINT nChar, bool allowEntry)
{
    switch (nChar) {
    case VK_UP:
    case VK_DOWN:
    case VK_PRIOR:
    case VK_NEXT:
        return true;
    case VK_HOME:
    case VK_END:
    case VK_LEFT:
    case VK_RIGHT:
        return !allowEntry;
    default:
        return false;
    }
}

// The padding of the field's own height around an item's, by its border.
int FieldPadding(DWORD effects, DWORD style)
{
    if (effects == kvDropEditBase::EffectFlatBordered)
        return 4;
    if (effects == kvDropEditBase::EffectFlatBorderless)
        return 2;
    return (style & WS_BORDER) ? 6 : 2;
}

constexpr int kAutomaticPadding = 8;

}  // namespace

BEGIN_MESSAGE_MAP(kvDropEditList, kvDropEditBase)
    ON_WM_WINDOWPOSCHANGING()
    ON_WM_SETCURSOR()
    ON_WM_LBUTTONDOWN()
    ON_WM_CHAR()
    ON_WM_CONTEXTMENU()
    ON_MESSAGE(WM_CUT, OnCut)
    ON_MESSAGE(WM_CLEAR, OnCut)
    ON_MESSAGE(WM_COPY, OnCopy)
    ON_MESSAGE(WM_PASTE, OnPaste)
END_MESSAGE_MAP()

kvDropEditList::kvDropEditList() = default;

kvDropEditList::~kvDropEditList() = default;

BOOL kvDropEditList::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID, DWORD dwEffects)
{
    m_pList = std::make_unique<_kvDropEditListPopup>(this);
    if (!m_pList->Create(dwStyle, pParentWnd))
        return FALSE;
    const CRect dropped(rect);
    if (m_pList->m_DroppedSize == CSize(0, 0))
        m_pList->m_DroppedSize = dropped.Size();
    kvSetParentFont(m_pList.get(), pParentWnd);
    CRect field(dropped);
    field.bottom = field.top + m_pList->GetItemHeight(0) + kAutomaticPadding;
    // A combo's scroll bars are its list's; on the one-line field they would
    // only cost every text it is given.
    if (!kvDropEditBase::Create(dwStyle & ~(WS_VSCROLL | WS_HSCROLL), field, pParentWnd, nID, dwEffects))
        return FALSE;
    SetPopup(m_pList.get());
    return TRUE;
}

BOOL kvDropEditList::SubclassDlgItem(UINT nID, CWnd* pParent)
{
    std::vector<CString> items;
    if (const CWnd* pOld = pParent->GetDlgItem(static_cast<int>(nID))) {
        const int count = static_cast<int>(pOld->SendMessage(CB_GETCOUNT));
        for (int i = 0; i < count; ++i) {
            CString item;
            const int length = static_cast<int>(pOld->SendMessage(CB_GETLBTEXTLEN, static_cast<WPARAM>(i)));
            pOld->SendMessage(CB_GETLBTEXT, static_cast<WPARAM>(i),
                              reinterpret_cast<LPARAM>(item.GetBuffer(length + 1)));
            item.ReleaseBuffer();
            items.push_back(item);
        }
    }
    if (!kvDropEditBase::SubclassDlgItem(nID, pParent))
        return FALSE;
    for (const CString& item : items)
        AddString(item);
    return TRUE;
}

// ---- the list's searches and the rules' decisions ----

kvDropListItems kvDropEditList::_Items() const
{
    return {[this](const CString& text) { return FindString(-1, text); },
            [this](const CString& text) { return FindStringExact(-1, text); },
            [this](int item) {
                CString text;
                GetLBText(item, text);
                return text;
            }};
}

kvDropListRules::Edit kvDropEditList::_Edit() const
{
    kvDropListRules::Edit edit;
    GetWindowText(edit.text);
    GetSel(edit.start, edit.end);
    return edit;
}

void kvDropEditList::_SelectInList(int listSel)
{
    if (listSel != kvDropListRules::m_ListUnchanged)
        m_pList->SetCurSel(listSel);
}

void kvDropEditList::_Apply(const kvDropListRules::Outcome& outcome, const CString& before)
{
    if (outcome.refused)
        kvBeep(0);
    CString text;
    GetWindowText(text);
    if (outcome.field.text != text)
        SetWindowText(outcome.field.text);
    SetSel(outcome.field.start, outcome.field.end);
    _SelectInList(outcome.listSel);
    if (outcome.field.text != before)
        _NotifySelection();
}

void kvDropEditList::_NotifySelection()
{
    kvNotifyParent(this, CBN_SELCHANGE);
    kvNotifyParent(this, CBN_SELENDOK);
}

// ---- typing ----

void kvDropEditList::OnChar(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    if (IsControlDown()) {
        if (const UINT message = ClipboardMessageOf(nChar); message != 0)
            SendMessage(message);
        return;
    }
    if (nChar == '\t')
        return;
    const kvDropListRules::Edit before = _Edit();
    kvEdit::OnChar(nChar, nRepCnt, nFlags);
    _Apply(kvDropListRules::AfterChar(before, _Edit(), nChar == '\b', m_bAllowEntry, m_bAllowBlank, _Items()),
           before.text);
}

void kvDropEditList::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    if (IsListKey(nChar, m_bAllowEntry)) {
        m_pList->SendMessage(WM_KEYDOWN, nChar, MAKELPARAM(nRepCnt, nFlags));
        return;
    }
    if (nChar != VK_DELETE) {
        kvDropEditBase::OnKeyDown(nChar, nRepCnt, nFlags);
        return;
    }
    const kvDropListRules::Edit before = _Edit();
    kvDropEditBase::OnKeyDown(nChar, nRepCnt, nFlags);
    const kvDropListRules::Edit after = _Edit();
    if (after.text == before.text)
        return;
    const kvDropListRules::Outcome outcome =
        kvDropListRules::Accept(after, false, m_bAllowEntry, m_bAllowBlank, _Items());
    _Apply(outcome.refused ? kvDropListRules::Outcome{true, before, kvDropListRules::m_ListUnchanged} : outcome,
           before.text);
}

// ---- the clipboard ----

LRESULT kvDropEditList::OnCut(WPARAM, LPARAM)
{
    const kvDropListRules::Edit before = _Edit();
    const CString rest = before.text.Left(before.start) + before.text.Mid(before.end);
    if (rest == before.text)
        return 0;
    const kvDropListRules::Outcome outcome =
        kvDropListRules::Accept({rest, before.start, before.start}, true, m_bAllowEntry, m_bAllowBlank, _Items());
    if (outcome.refused) {
        kvBeep(0);
        return 0;
    }
    _SelectInList(outcome.listSel);
    return Default();
}

// A paste that empties the field is not checked against allow blank.
LRESULT kvDropEditList::OnPaste(WPARAM, LPARAM)
{
    const kvDropListRules::Edit before = _Edit();
    Default();
    const kvDropListRules::Edit after = _Edit();
    if (after.text == before.text || after.text.IsEmpty())
        return 0;
    const kvDropListRules::Outcome outcome =
        kvDropListRules::Accept(after, true, m_bAllowEntry, m_bAllowBlank, _Items());
    if (outcome.refused) {
        kvBeep(0);
        SetWindowText(before.text);
        SetSel(before.start, before.end);
        EmptyUndoBuffer();
        return 0;
    }
    _SelectInList(outcome.listSel);
    return 0;
}

// ---- the field's mouse, focus and size ----

// Without free entry the field acts like a drop-down list: a click toggles the list.
void kvDropEditList::OnLButtonDown(UINT, CPoint)
{
    if (m_bAllowEntry) {
        Default();
        return;
    }
    SetFocus();
    if (::GetFocus() == m_hWnd)
        TogglePopup();
}

BOOL kvDropEditList::OnSetCursor(CWnd*, UINT nHitTest, UINT)
{
    if (m_bAllowEntry || nHitTest != HTCLIENT)
        return static_cast<BOOL>(Default());
    ::SetCursor(::LoadCursor(nullptr, IDC_ARROW));
    return TRUE;
}

// The focus going into the open list stays within the field.
void kvDropEditList::OnKillFocus(CWnd* pNewWnd)
{
    if (pNewWnd != nullptr && m_pList && pNewWnd->m_hWnd == m_pList->m_hWnd)
        Default();
    else
        kvDropEditBase::OnKillFocus(pNewWnd);
}

int kvDropEditList::_FieldHeight() const
{
    return m_nSelFieldHeight >= 0 ? m_nSelFieldHeight : m_pList->GetItemHeight(0) + kAutomaticPadding;
}

// A combo-sized rectangle sets the dropped size; the field stays one line high.
void kvDropEditList::OnWindowPosChanging(WINDOWPOS* lpwndpos)
{
    if (m_pList && !(lpwndpos->flags & SWP_NOSIZE)) {
        m_pList->m_DroppedSize = CSize(lpwndpos->cx, lpwndpos->cy);
        lpwndpos->cy = _FieldHeight();
        CRect window;
        GetWindowRect(&window);
        if (window.Size() == CSize(lpwndpos->cx, lpwndpos->cy))
            lpwndpos->flags |= SWP_NOSIZE;
    }
    Default();
}

void kvDropEditList::OnSize(UINT nType, int cx, int cy)
{
    kvDropEditBase::OnSize(nType, cx, cy);
    if (GetPopupState()) {
        CRect window;
        GetWindowRect(&window);
        m_pList->Place(window);
    }
}

void kvDropEditList::OnMove(int x, int y)
{
    kvDropEditBase::OnMove(x, y);
    if (GetPopupState()) {
        CRect window;
        GetWindowRect(&window);
        m_pList->Place(window);
    }
}

void kvDropEditList::SizeToFitData()
{
    CRect popup, field;
    m_pList->GetWindowRect(&popup);
    GetWindowRect(&field);
    // Dialog units of the field's font: a line is 8 vertical units.
    const int line = FontHeight();
    const int height = kvDropListRules::FitHeight(m_pList->m_DroppedSize.cy, field.Height(), GetItemHeight(0),
                                                  GetCount(), ::MulDiv(16, line, 8), ::MulDiv(68, line, 8));
    m_pList->MoveWindow(popup.left, popup.top, field.Width(), height, TRUE);
}

// ---- the combo box's interface ----

int kvDropEditList::InitStorage(int nItems, UINT nBytes) { return m_pList->InitStorage(nItems, nBytes); }
int kvDropEditList::GetCount() const { return m_pList->GetCount(); }
int kvDropEditList::GetCurSel() const { return m_pList->GetCurSel(); }

int kvDropEditList::SetCurSel(int nSelect)
{
    const int result = m_pList->SetCurSel(nSelect);
    CString text;
    if (result >= 0)
        GetLBText(result, text);
    SetWindowText(text);
    return result;
}

int kvDropEditList::SetItemData(int nIndex, DWORD_PTR dwItemData) { return m_pList->SetItemData(nIndex, dwItemData); }
DWORD_PTR kvDropEditList::GetItemData(int nIndex) const { return m_pList->GetItemData(nIndex); }
int kvDropEditList::GetTopIndex() const { return m_pList->GetTopIndex(); }
int kvDropEditList::SetTopIndex(int nIndex) { return m_pList->SetTopIndex(nIndex); }
void kvDropEditList::SetHorizontalExtent(UINT nExtent) { m_pList->SetHorizontalExtent(nExtent); }
UINT kvDropEditList::GetHorizontalExtent() const { return m_pList->GetHorizontalExtent(); }

int kvDropEditList::SetItemHeight(int nIndex, UINT cyItemHeight)
{
    if (nIndex == 0)
        return m_pList->SetItemHeight(0, cyItemHeight);
    if (nIndex != -1)
        return -1;
    const int height = static_cast<int>(cyItemHeight) + FieldPadding(GetSpecialEffects(), GetCreatedStyle());
    if (height != m_nSelFieldHeight) {
        m_nSelFieldHeight = height;
        CRect window;
        GetWindowRect(&window);
        SetWindowPos(nullptr, 0, 0, window.Width(), m_pList->m_DroppedSize.cy,
                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
    return 0;
}

int kvDropEditList::GetItemHeight(int nIndex) const
{
    if (nIndex == -1) {
        CRect window;
        GetWindowRect(&window);
        return window.Height();
    }
    return m_pList->GetItemHeight(nIndex);
}

int kvDropEditList::GetLBText(int nIndex, LPTSTR lpszText) const { return m_pList->GetText(nIndex, lpszText); }
void kvDropEditList::GetLBText(int nIndex, CString& rString) const { m_pList->GetText(nIndex, rString); }
int kvDropEditList::AddString(LPCTSTR lpszString) { return m_pList->AddString(lpszString); }
int kvDropEditList::InsertString(int nIndex, LPCTSTR lpszString) { return m_pList->InsertString(nIndex, lpszString); }
int kvDropEditList::DeleteString(UINT nIndex) { return m_pList->DeleteString(nIndex); }
void kvDropEditList::ResetContent() { m_pList->ResetContent(); }
int kvDropEditList::Dir(UINT attr, LPCTSTR lpszWildCard) { return m_pList->Dir(attr, lpszWildCard); }

int kvDropEditList::FindString(int nStartAfter, LPCTSTR lpszString) const
{
    return m_pList->FindString(nStartAfter, lpszString);
}

int kvDropEditList::FindStringExact(int nIndexStart, LPCTSTR lpszFind) const
{
    return m_pList->FindStringExact(nIndexStart, lpszFind);
}

int kvDropEditList::SelectString(int nStartAfter, LPCTSTR lpszString)
{
    return m_pList->SelectString(nStartAfter, lpszString);
}

// The field and the dropped list together, in screen coordinates.
void kvDropEditList::GetDroppedControlRect(LPRECT lprect) const
{
    CRect window;
    GetWindowRect(&window);
    *lprect = CRect(window.TopLeft(), CSize(std::max<int>(window.Width(), m_pList->m_nDroppedWidth),
                                            m_pList->m_DroppedSize.cy));
}

int kvDropEditList::SetDroppedWidth(UINT nWidth)
{
    m_pList->m_nDroppedWidth = static_cast<int>(nWidth);
    return m_pList->m_nDroppedWidth;
}

int kvDropEditList::GetDroppedWidth() const { return m_pList->m_nDroppedWidth; }

DWORD kvDropEditList::GetEditSel() const { return GetSel(); }

BOOL kvDropEditList::SetEditSel(int nStartChar, int nEndChar)
{
    SetSel(nStartChar, nEndChar);
    return TRUE;
}

BOOL kvDropEditList::LimitText(int nMaxChars)
{
    SendMessage(EM_LIMITTEXT, static_cast<WPARAM>(nMaxChars));
    return TRUE;
}
