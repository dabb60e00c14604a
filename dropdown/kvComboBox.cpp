// kvComboBox: the edit part taken over, completion on update, colours and menus.
#include "dropdown/kvComboBox.h"

#include "formatting/kvEdit.h"
#include "formatting/kvParentFont.h"
#include "menus/kvCtrlContextMenu.h"
#include "menus/kvEditContextMenu.h"
#include "menus/kvShowContextMenu.h"

namespace {

// A drop-down list's selection field and a disabled edit part paint as static.
constexpr UINT kColouredKinds = _kvControlColors::KindBit(CTLCOLOR_EDIT) | _kvControlColors::KindBit(CTLCOLOR_STATIC);
// Inside the edit part of every combo with one.
const CPoint kEditPoint(4, 4);

}  // namespace

BEGIN_MESSAGE_MAP(kvComboBox, CComboBox)
    ON_CONTROL_REFLECT(CBN_EDITUPDATE, OnEditUpdate)
    ON_WM_CONTEXTMENU()
    ON_WM_CTLCOLOR_REFLECT()
END_MESSAGE_MAP()

kvComboBox::kvComboBox() : m_pEdit(std::make_unique<kvEdit>()) {}

kvComboBox::~kvComboBox() = default;

// The edit is left alone while the combo is being made: Create decides.
BOOL kvComboBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    m_bEditSubclassed = true;
    if (!CComboBox::Create(dwStyle, rect, pParentWnd, nID))
        return FALSE;
    if ((dwStyle & 3) == CBS_DROPDOWN)
        _AttachEdit();
    else
        kvSetParentFont(this, pParentWnd);
    return TRUE;
}

void kvComboBox::PreSubclassWindow()
{
    if (!IsDropDownList() && !m_bEditSubclassed) {
        _AttachEdit();
        m_bEditSubclassed = true;
    }
    CComboBox::PreSubclassWindow();
}

void kvComboBox::_AttachEdit()
{
    if (const HWND hEdit = ::ChildWindowFromPoint(m_hWnd, kEditPoint); hEdit != nullptr && hEdit != m_hWnd)
        m_pEdit->SubclassWindow(hEdit);
}

bool kvComboBox::_HasEditWindow() const { return ::IsWindow(m_pEdit->m_hWnd) != FALSE; }

BOOL kvComboBox::PreTranslateMessage(MSG* pMsg)
{
    if (pMsg->message == WM_KEYDOWN)
        m_bCompleteOnUpdate = pMsg->wParam != VK_DELETE && pMsg->wParam != VK_BACK;
    return CComboBox::PreTranslateMessage(pMsg);
}

// The first item the text begins, with the completed tail selected.
void kvComboBox::OnEditUpdate()
{
    if (!m_bCompleteOnUpdate)
        return;
    CString text;
    GetWindowText(text);
    const int length = text.GetLength();
    const DWORD sel = GetEditSel();
    const bool valid = sel != static_cast<DWORD>(CB_ERR);
    const int start = LOWORD(sel), end = HIWORD(sel);
    if (SelectString(-1, text) == CB_ERR) {
        SetWindowText(text);
        if (valid)
            SetEditSel(start, end);
    }
    if (!valid || end >= length)
        SetEditSel(length, -1);
    else
        SetEditSel(start, end);
}

void kvComboBox::OnContextMenu(CWnd*, CPoint point)
{
    if (IsDropDownList() || !_HasEditWindow())
        kvShowContextMenu<kvCtrlContextMenu>(this, point);
    else
        kvShowContextMenu<kvEditContextMenu>(m_pEdit.get(), point);
}

void kvComboBox::SetTextColor(COLORREF crText)
{
    m_Colors.SetTextColor(*this, crText);
    if (_HasEditWindow())
        m_pEdit->SetTextColor(crText);
}

void kvComboBox::SetBkColor(COLORREF crBk)
{
    m_Colors.SetBkColor(*this, crBk);
    if (_HasEditWindow())
        m_pEdit->SetBkColor(crBk);
}

HBRUSH kvComboBox::CtlColor(CDC* pDC, UINT nCtlColor) { return m_Colors.CtlColor(pDC, nCtlColor, kColouredKinds); }
