// kvEdit: the formatted edit field's handlers, its clipboard, focus and
// verification paths, and the paths of the older kvFormatter interface.
//
// For that older interface, kvEdit settles these meanings: LegacyKeyDown,
// LegacyDeleteChars and LegacyBackspace return true when they handled the key
// (their text and selection are then the field's new content), false to leave
// it to the native control; LegacySetText returns false to refuse a text.
#include "formatting/kvEdit.h"

#include "formatting/kvEditValidator.h"
#include "formatting/kvFocusReports.h"
#include "formatting/kvMessages.h"
#include "formatting/kvNotifyParent.h"
#include "formatting/kvParentFont.h"
#include "formatting/kvSelection.h"
#include "formatting/kvStatus.h"
#include "formatting/kvWinAMCtrlValidateInfo.h"
#include "menus/kvEditContextMenu.h"
#include "menus/kvShowContextMenu.h"

#include <cstring>

namespace {

constexpr UINT kBackspace = 8;
// Far enough left that no text of a field reaches it: long right-aligned text
// stays anchored at the right border instead of scrolling.
constexpr int kFarLeft = -20000;
// Tab and Enter stay with the dialog.
constexpr UINT kFieldDlgCode = DLGC_WANTARROWS | DLGC_HASSETSEL | DLGC_WANTCHARS;

// Tab, Enter, and the Ctrl+A, C, V, X, Y, Z shortcuts, which the native control
// turns into its own messages (and so into this field's handlers).
bool IsNativeChar(UINT nChar)
{
    switch (nChar) {
    case '\t':
    case '\r':
    case 1:
    case 3:
    case 22:
    case 24:
    case 25:
    case 26:
        return true;
    default:
        return false;
    }
}

bool IsArrowKey(UINT nChar)
{
    return nChar == VK_LEFT || nChar == VK_UP || nChar == VK_RIGHT || nChar == VK_DOWN;
}

bool IsSignKey(UINT nChar) { return nChar == '-' || nChar == '+'; }

bool IsEmptySelection(unsigned long sel) { return kvSelStart(sel) == kvSelEnd(sel); }

CString SelectedChars(const CString& text, int start, int end) { return text.Mid(start, end - start); }

CString SelectedChars(const CString& text, unsigned long sel)
{
    return SelectedChars(text, kvSelStart(sel), kvSelEnd(sel));
}

// These controls' own colour kinds: a read-only field paints as static
// (CTLCOLOR_STATIC) and keeps the system look.
constexpr UINT kColouredKinds = _kvControlColors::KindBit(CTLCOLOR_MSGBOX) | _kvControlColors::KindBit(CTLCOLOR_EDIT);

CString TextOfMessage(LPARAM lParam)
{
    return CString(lParam != 0 ? reinterpret_cast<LPCTSTR>(lParam) : "");
}

// The clipboard's text; false when it holds none. The clipboard is open.
bool ReadClipboardText(CString& text)
{
    if (!::IsClipboardFormatAvailable(CF_TEXT))
        return false;
    const HANDLE hData = ::GetClipboardData(CF_TEXT);
    const auto* pchData = hData != nullptr ? static_cast<const char*>(::GlobalLock(hData)) : nullptr;
    if (pchData == nullptr)
        return false;
    text = pchData;
    ::GlobalUnlock(hData);
    return true;
}

}  // namespace

BEGIN_MESSAGE_MAP(kvEdit, CEdit)
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    ON_WM_KEYDOWN()
    ON_WM_CHAR()
    ON_WM_CONTEXTMENU()
    ON_WM_GETDLGCODE()
    ON_MESSAGE(WM_SETTEXT, OnSetText)
    ON_MESSAGE(WM_KV_VERIFY, OnVerify)
    ON_WM_CTLCOLOR_REFLECT()
    ON_MESSAGE(WM_CUT, OnCut)
    ON_MESSAGE(WM_COPY, OnCopy)
    ON_MESSAGE(WM_PASTE, OnPaste)
    ON_MESSAGE(WM_CLEAR, OnClear)
    ON_CONTROL_REFLECT_EX(EN_CHANGE, OnChangeReflect)
END_MESSAGE_MAP()

kvEdit::kvEdit() : kvEdit(static_cast<kvFormatter*>(nullptr)) {}

kvEdit::kvEdit(kvFormatter* pFormatter)
    : m_pFormatter(nullptr),
      m_bSetTextPassThrough(true),
      m_pOldFormatter(pFormatter)
{
}

kvEdit::~kvEdit()
{
    delete m_pOldFormatter;
    delete m_pFormatter;
}

BOOL kvEdit::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    if (m_pOldFormatter != nullptr)
        dwStyle |= m_pOldFormatter->LegacyExtraStyle();
    const BOOL created = (dwStyle & WS_BORDER)
                             ? CreateEx(WS_EX_CLIENTEDGE, "EDIT", "", (dwStyle & ~WS_BORDER) | WS_CHILD, rect,
                                        pParentWnd, nID)
                             : CEdit::Create(dwStyle, rect, pParentWnd, nID);
    if (!created)
        return FALSE;
    kvSetParentFont(this, pParentWnd);
    LimitText(m_pOldFormatter != nullptr ? m_pOldFormatter->LegacyMaxLength() : 0);
    return TRUE;
}

// Both pointers are cleared, so that neither can outlive its formatter.
void kvEdit::_DeleteFormatters()
{
    delete m_pFormatter;
    m_pFormatter = nullptr;
    delete m_pOldFormatter;
    m_pOldFormatter = nullptr;
}

void kvEdit::SetFormatter(kvEditFormatter* pFormatter)
{
    _DeleteFormatters();
    m_pFormatter = pFormatter;
}

void kvEdit::SetFormatter(kvFormatter* pFormatter)
{
    _DeleteFormatters();
    m_pOldFormatter = pFormatter;
}

void kvEdit::SetTextColor(COLORREF crText) { m_Colors.SetTextColor(*this, crText); }

void kvEdit::SetBkColor(COLORREF crBk) { m_Colors.SetBkColor(*this, crBk); }

HBRUSH kvEdit::CtlColor(CDC* pDC, UINT nCtlColor) { return m_Colors.CtlColor(pDC, nCtlColor, kColouredKinds); }

// ---- common steps ----

CString kvEdit::_Text() const
{
    CString text;
    GetWindowText(text);
    return text;
}

bool kvEdit::_IsReadOnly() const { return (GetStyle() & ES_READONLY) != 0; }

bool kvEdit::_IsPassword() const { return (GetStyle() & ES_PASSWORD) != 0; }

bool kvEdit::_IsSelectionEmpty() const
{
    int start = 0, end = 0;
    GetSel(start, end);
    return start == end;
}

CString kvEdit::_SelectedText() const
{
    int start = 0, end = 0;
    GetSel(start, end);
    return SelectedChars(_Text(), start, end);
}

// Cut, paste and clear of a read-only field stay native: the native control
// copies but does not change the text.
bool kvEdit::_TakesFormattedEdits() const { return m_pFormatter != nullptr && !_IsReadOnly(); }

void kvEdit::_WriteText(const CString& text)
{
    m_bSetTextPassThrough = false;
    SetWindowText(text);
    m_bSetTextPassThrough = true;
}

// The native control clears its modified flag on every text it is given; the
// field's own writes must not make the user's changes look unchanged.
void kvEdit::_SetWindowText(const CString& text)
{
    const BOOL modified = GetModify();
    _WriteText(text);
    SetModify(modified);
}

void kvEdit::_Select(unsigned long sel) { SetSel(kvSelStart(sel), kvSelEnd(sel)); }

// A changed text is the user's change: it marks the field modified whatever
// the flag was, so there is nothing to keep.
void kvEdit::_ShowEdit(const CString& before, const CString& text, unsigned long sel)
{
    if (text == before) {
        _SetWindowText(text);
        _Select(sel);
        return;
    }
    _WriteText(text);
    _Select(sel);
    SetModify(TRUE);
    kvNotifyParent(this, EN_CHANGE);
}

// The native control announces every text it is given; the field's own writes
// are announced by _ShowEdit, and only when they change the text.
BOOL kvEdit::OnChangeReflect() { return m_bSetTextPassThrough ? FALSE : TRUE; }

// ---- keyboard ----

UINT kvEdit::OnGetDlgCode()
{
    if (GetStyle() & ES_WANTRETURN)
        return CEdit::OnGetDlgCode();
    return kFieldDlgCode;
}

// The native control handles Delete, Home, End and the arrows itself.
void kvEdit::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    if (_IsReadOnly()) {
        if (!IsArrowKey(nChar))
            CEdit::OnKeyDown(nChar, nRepCnt, nFlags);
        return;
    }
    if (nChar == VK_INSERT)
        kvToggleOvertype();
    if (m_pOldFormatter != nullptr)
        _FormatterOnKeyDown(nChar);
    else
        CEdit::OnKeyDown(nChar, nRepCnt, nFlags);
}

bool kvEdit::FormatterKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    const CString before = _Text();
    CString text(before);
    unsigned long sel = GetSel();
    if (m_pFormatter->DoKeyDown(text, sel, kvIsOvertypeOn(), nChar, nRepCnt, nFlags))
        return false;
    _ShowEdit(before, text, sel);
    return true;
}

void kvEdit::ReplaceText(const CString& text) { _ShowEdit(_Text(), text, kvPackSel(0, text.GetLength())); }

void kvEdit::OnChar(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    if (_IsReadOnly() || IsNativeChar(nChar)) {
        CEdit::OnChar(nChar, nRepCnt, nFlags);
        return;
    }
    if (m_pOldFormatter != nullptr) {
        _FormatterOnChar(nChar);
        return;
    }
    const bool overtype = kvIsOvertypeOn();
    if (m_pFormatter != nullptr) {
        const CString before = _Text();
        CString text(before);
        unsigned long sel = GetSel();
        if (!m_pFormatter->DoChar(text, sel, overtype, nChar, nRepCnt, nFlags)) {
            _ShowEdit(before, text, sel);
            return;
        }
    }
    _EmulateOvertype(overtype, nChar);
    CEdit::OnChar(nChar, nRepCnt, nFlags);
}

// The native control only inserts: overtype replaces the character after the
// caret by selecting it first.
void kvEdit::_EmulateOvertype(bool overtype, UINT nChar)
{
    if (!overtype || nChar == kBackspace)
        return;
    int start = 0, end = 0;
    GetSel(start, end);
    if (start == end && end < GetWindowTextLength())
        SetSel(start, end + 1, TRUE);
}

// ---- text from outside ----

// Text set from outside shows in the formatter's display form, and in its
// editing form while the field has the focus. A text it rejects is refused.
LRESULT kvEdit::OnSetText(WPARAM wParam, LPARAM lParam)
{
    if (!m_bSetTextPassThrough)
        return Default();
    if (m_pOldFormatter != nullptr)
        return _FormatterOnSetText(wParam, lParam);
    if (m_pFormatter == nullptr)
        return Default();
    CString text = TextOfMessage(lParam);
    if (!m_pFormatter->IsValid(text, nullptr))
        return FALSE;
    unsigned long scratch = 0;
    m_pFormatter->DoExitField(text, scratch);
    if (::GetFocus() == m_hWnd)
        m_pFormatter->DoEnterField(text, scratch);
    return DefWindowProc(WM_SETTEXT, wParam, reinterpret_cast<LPARAM>(text.GetString()));
}

// ---- focus and verification ----

void kvEdit::OnSetFocus(CWnd* pOldWnd)
{
    CEdit::OnSetFocus(pOldWnd);
    CString text = _Text();
    if (m_pOldFormatter != nullptr)
        _FormatterOnSetFocus(text);
    else if (m_pFormatter != nullptr)
        EnterField();
    if ((GetStyle() & ES_RIGHT) && !_Text().IsEmpty())
        _AnchorRightAlignedText();
    kvReportFocusIn(this);
}

void kvEdit::EnterField()
{
    CString text = _Text();
    unsigned long sel = GetSel();
    m_pFormatter->DoEnterField(text, sel);
    _SetWindowText(text);
    _Select(sel);
}

void kvEdit::OnKillFocus(CWnd* pNewWnd)
{
    CEdit::OnKillFocus(pNewWnd);
    kvSendChildKillFocus(this, pNewWnd);
    // Setting the text again scrolls a long text back to its beginning.
    const CString text = _Text();
    int start = 0, end = 0;
    GetSel(start, end);
    if (start >= text.GetLength())
        _SetWindowText(text);
    kvReportFocusOut(this);
}

LRESULT kvEdit::OnVerify(WPARAM wParam, LPARAM)
{
    if (m_pOldFormatter != nullptr)
        return _FormatterDoOnVerify();
    if (m_pFormatter == nullptr)
        return kvEditValidator::Valid;
    CString text = _Text();
    unsigned long sel = GetSel();
    kvEditFormatterError err;
    if (m_pFormatter->IsValid(text, &err)) {
        m_pFormatter->DoExitField(text, sel);
        _SetWindowText(text);
        _Select(sel);
        kvSendStatus(kvStatusShow, 0);
        return kvEditValidator::Valid;
    }
    kvWinAMCtrlValidateInfo info(err.message);
    info.control = this;
    info.code = err.code;
    kvSendStatus(kvStatusShow, reinterpret_cast<LPARAM>(&info));
    _SetWindowText(text);
    if (wParam != 0)
        *reinterpret_cast<DWORD*>(wParam) = static_cast<DWORD>(err.selection);
    return kvEditValidator::InvalidWithSelection;
}

// ---- right-aligned text ----

void kvEdit::_AnchorRightAlignedText()
{
    CRect client;
    GetClientRect(&client);
    CRect format;
    GetRect(&format);
    format.left = kFarLeft;
    format.right = client.right - HIWORD(GetMargins());
    SetRectNP(&format);
}

void kvEdit::FixRightJustifiedText()
{
    const int end = HIWORD(GetSel());
    if (end >= GetWindowTextLength()) {
        _AnchorRightAlignedText();
        return;
    }
    const int rightMargin = HIWORD(GetMargins());
    const int x = PosFromChar(static_cast<UINT>(end)).x;
    CRect client;
    GetClientRect(&client);
    CRect format;
    GetRect(&format);
    if (x > rightMargin && x >= client.right - rightMargin) {
        format.right -= rightMargin + (x - client.right);
        SetRectNP(&format);
    } else if (x <= rightMargin) {
        format.right += rightMargin - x;
        SetRectNP(&format);
    }
}

// ---- clipboard ----

bool kvEdit::_PutOnClipboard(const CString& text)
{
    if (!OpenClipboard())
        return false;
    bool placed = false;
    if (::EmptyClipboard()) {
        // Moveable, as SetClipboardData requires; shared, as the clipboard has always had it.
        const SIZE_T size = static_cast<SIZE_T>(text.GetLength()) + 1;
        if (const HGLOBAL hData = ::GlobalAlloc(GMEM_MOVEABLE | GMEM_DDESHARE, size); hData != nullptr) {
            std::memcpy(::GlobalLock(hData), text.GetString(), size);
            ::GlobalUnlock(hData);
            placed = ::SetClipboardData(CF_TEXT, hData) != nullptr;
            if (!placed)
                ::GlobalFree(hData);
        }
    }
    ::CloseClipboard();
    return placed;
}

bool kvEdit::_DeleteThroughFormatter(CString& text, unsigned long& sel) const
{
    return !m_pFormatter->DoKeyDown(text, sel, false, VK_DELETE, 1, 0);
}

// A password never reaches the clipboard, as with the native control.
LRESULT kvEdit::OnCopy(WPARAM, LPARAM)
{
    if (_IsPassword())
        return 0;
    const CString chars = _SelectedText();
    return _PutOnClipboard(chars) ? chars.GetLength() : 0;
}

LRESULT kvEdit::OnCut(WPARAM, LPARAM)
{
    if (_IsPassword())
        return 0;
    if (!_TakesFormattedEdits())
        return Default();
    if (_IsSelectionEmpty())
        return 0;
    const CString before = _Text();
    const unsigned long sel = GetSel();
    CString text(before);
    unsigned long newSel = sel;
    if (!_DeleteThroughFormatter(text, newSel))
        return Default();
    if (!_PutOnClipboard(SelectedChars(before, sel)))
        return 0;
    _ShowEdit(before, text, newSel);
    return 0;
}

LRESULT kvEdit::OnClear(WPARAM, LPARAM)
{
    if (_IsSelectionEmpty())
        return 0;
    if (!_TakesFormattedEdits())
        return Default();
    const CString before = _Text();
    unsigned long sel = GetSel();
    CString text(before);
    if (!_DeleteThroughFormatter(text, sel))
        return Default();
    _ShowEdit(before, text, sel);
    return 0;
}

// Each pasted character is typed through the formatter, so that the ones it
// refuses are left out and the rest are formatted as if typed.
LRESULT kvEdit::OnPaste(WPARAM, LPARAM)
{
    if (!_TakesFormattedEdits())
        return Default();
    if (!OpenClipboard())
        return 0;
    CString pasted;
    if (!ReadClipboardText(pasted)) {
        ::CloseClipboard();
        return 0;
    }
    const CString before = _Text();
    CString text(before);
    unsigned long sel = GetSel();
    for (int i = 0; i < pasted.GetLength(); ++i)
        _PasteChar(text, sel, pasted[i]);
    _ShowEdit(before, text, sel);
    ::CloseClipboard();
    return 0;
}

// A character the formatter leaves alone goes in as it is, over the selection.
void kvEdit::_PasteChar(CString& text, unsigned long& sel, char ch) const
{
    CString typed(text);
    unsigned long typedSel = sel;
    if (!m_pFormatter->DoChar(typed, typedSel, false, static_cast<unsigned char>(ch), 1, 0)) {
        text = typed;
        sel = typedSel;
        return;
    }
    const int start = kvSelStart(sel);
    text = text.Left(start) + ch + text.Mid(kvSelEnd(sel));
    sel = kvPackSel(start + 1, start + 1);
}

// ---- context menu ----

void kvEdit::OnContextMenu(CWnd*, CPoint point) { kvShowContextMenu<kvEditContextMenu>(this, point); }

// ---- the older formatter interface ----

void kvEdit::_FormatterOnKeyDown(UINT nChar)
{
    const CString before = _Text();
    CString text(before);
    unsigned long sel = GetSel();
    bool handled = false;
    if (nChar == VK_DELETE) {
        int start = kvSelStart(sel), end = kvSelEnd(sel);
        handled = m_pOldFormatter->LegacyDeleteChars(text, start, end);
        sel = kvPackSel(start, end);
    } else {
        handled = m_pOldFormatter->LegacyKeyDown(text, sel, nChar);
    }
    if (handled)
        _ShowEdit(before, text, sel);
    else
        Default();
}

void kvEdit::_FormatterOnChar(UINT nChar)
{
    kvFormatter& formatter = *m_pOldFormatter;
    const CString before = _Text();
    CString text(before);
    const unsigned long selBefore = GetSel();
    unsigned long sel = selBefore;
    if (formatter.LegacyPreprocessKey(text, sel, nChar)) {
        _ShowEdit(before, text, sel);
        // A sign typed over a selection has done its work on the number.
        if (!IsEmptySelection(selBefore) && IsSignKey(nChar))
            return;
    }
    if (nChar == kBackspace) {
        _FormatterBackspace();
        return;
    }
    if (!formatter.LegacyIsAllowedKey(nChar)) {
        kvBeep(0);
        return;
    }
    if (_LegacyTextFull()) {
        formatter.LegacyLengthRefused();
        formatter.LegacyShowStatus("Too many characters.");
        return;
    }
    _InsertNatively(formatter.LegacyWantsUpperCase());
    if (formatter.LegacyReformatEachKey())
        _FormatterReformat(nChar);
}

void kvEdit::_FormatterBackspace()
{
    const CString before = _Text();
    CString text(before);
    int start = 0, end = 0;
    GetSel(start, end);
    if (m_pOldFormatter->LegacyBackspace(text, start, end))
        _ShowEdit(before, text, kvPackSel(start, end));
    else
        Default();
}

// Full when a typed character could not replace the selection without going
// past the maximum length.
bool kvEdit::_LegacyTextFull() const
{
    const int maxLength = m_pOldFormatter->LegacyMaxLength();
    const unsigned long sel = GetSel();
    const int kept = GetWindowTextLength() - (kvSelEnd(sel) - kvSelStart(sel));
    return maxLength > 0 && kept >= maxLength;
}

// The native control honours ES_UPPERCASE changed on the fly.
void kvEdit::_InsertNatively(bool upperCase)
{
    const bool addUpperCase = upperCase && !(GetStyle() & ES_UPPERCASE);
    if (addUpperCase)
        ModifyStyle(0, ES_UPPERCASE);
    Default();
    if (addUpperCase)
        ModifyStyle(ES_UPPERCASE, 0);
}

void kvEdit::_FormatterReformat(UINT nChar)
{
    const CString before = _Text();
    CString text(before);
    int start = 0, end = 0;
    GetSel(start, end);
    m_pOldFormatter->LegacyReformat(text, nChar, start, end);
    _ShowEdit(before, text, kvPackSel(start, end));
}

LRESULT kvEdit::_FormatterOnSetText(WPARAM wParam, LPARAM lParam)
{
    CString text = TextOfMessage(lParam);
    if (!m_pOldFormatter->LegacySetText(text))
        return FALSE;
    return DefWindowProc(WM_SETTEXT, wParam, reinterpret_cast<LPARAM>(text.GetString()));
}

void kvEdit::_FormatterOnSetFocus(CString& text)
{
    LimitText(m_pOldFormatter->LegacyMaxLength());
    if (!m_pOldFormatter->LegacyIsEmpty(text))
        return;
    text = m_pOldFormatter->LegacyEmptyText();
    _SetWindowText(text);
}

LRESULT kvEdit::_FormatterDoOnVerify()
{
    SetSel(0, 0);
    if (m_pOldFormatter->LegacyIsEmpty(_Text())) {
        _SetWindowText(CString());
        return kvEditValidator::Valid;
    }
    if (!IsValidExitField()) {
        SetSel(0, -1);
        return kvEditValidator::Invalid;
    }
    m_pOldFormatter->LegacyShowStatus("Ready");
    return kvEditValidator::Valid;
}

bool kvEdit::IsValidExitField()
{
    if (m_pOldFormatter == nullptr)
        return true;
    CString text = _Text();
    if (text.IsEmpty())
        return true;
    if (!m_pOldFormatter->LegacyIsValidText(text, text.GetLength() - 1))
        return false;
    _SetWindowText(text);
    return true;
}
