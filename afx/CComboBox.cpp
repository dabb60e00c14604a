// CComboBox: the native combo box control.
#include "afx/CComboBox.h"

#include <cassert>

BOOL CComboBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::Create("COMBOBOX", nullptr, dwStyle, rect, pParentWnd, nID);
}

int CComboBox::GetCount() const
{
    assert(::IsWindow(m_hWnd));
    return static_cast<int>(SendMessage(CB_GETCOUNT));
}

int CComboBox::GetCurSel() const
{
    assert(::IsWindow(m_hWnd));
    return static_cast<int>(SendMessage(CB_GETCURSEL));
}

int CComboBox::SetCurSel(int nSelect)
{
    assert(::IsWindow(m_hWnd));
    return static_cast<int>(SendMessage(CB_SETCURSEL, static_cast<WPARAM>(nSelect)));
}

int CComboBox::AddString(LPCTSTR lpszString)
{
    assert(::IsWindow(m_hWnd));
    return static_cast<int>(SendMessage(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(lpszString)));
}

int CComboBox::InsertString(int nIndex, LPCTSTR lpszString)
{
    assert(::IsWindow(m_hWnd));
    return static_cast<int>(
        SendMessage(CB_INSERTSTRING, static_cast<WPARAM>(nIndex), reinterpret_cast<LPARAM>(lpszString)));
}

int CComboBox::DeleteString(UINT nIndex)
{
    assert(::IsWindow(m_hWnd));
    return static_cast<int>(SendMessage(CB_DELETESTRING, nIndex));
}

void CComboBox::ResetContent()
{
    assert(::IsWindow(m_hWnd));
    SendMessage(CB_RESETCONTENT);
}

int CComboBox::FindString(int nStartAfter, LPCTSTR lpszString) const
{
    assert(::IsWindow(m_hWnd));
    return static_cast<int>(
        SendMessage(CB_FINDSTRING, static_cast<WPARAM>(nStartAfter), reinterpret_cast<LPARAM>(lpszString)));
}

int CComboBox::FindStringExact(int nIndexStart, LPCTSTR lpszFind) const
{
    assert(::IsWindow(m_hWnd));
    return static_cast<int>(
        SendMessage(CB_FINDSTRINGEXACT, static_cast<WPARAM>(nIndexStart), reinterpret_cast<LPARAM>(lpszFind)));
}

int CComboBox::SelectString(int nStartAfter, LPCTSTR lpszString)
{
    assert(::IsWindow(m_hWnd));
    return static_cast<int>(
        SendMessage(CB_SELECTSTRING, static_cast<WPARAM>(nStartAfter), reinterpret_cast<LPARAM>(lpszString)));
}

int CComboBox::GetLBText(int nIndex, LPTSTR lpszText) const
{
    assert(::IsWindow(m_hWnd));
    return static_cast<int>(
        SendMessage(CB_GETLBTEXT, static_cast<WPARAM>(nIndex), reinterpret_cast<LPARAM>(lpszText)));
}

void CComboBox::GetLBText(int nIndex, CString& rString) const
{
    const int nLength = GetLBTextLen(nIndex);
    if (nLength == CB_ERR) {
        rString.Empty();
        return;
    }
    const int nCopied = GetLBText(nIndex, rString.GetBuffer(nLength));
    rString.ReleaseBuffer(nCopied == CB_ERR ? 0 : nCopied);
}

int CComboBox::GetLBTextLen(int nIndex) const
{
    assert(::IsWindow(m_hWnd));
    return static_cast<int>(SendMessage(CB_GETLBTEXTLEN, static_cast<WPARAM>(nIndex)));
}

DWORD_PTR CComboBox::GetItemData(int nIndex) const
{
    assert(::IsWindow(m_hWnd));
    return static_cast<DWORD_PTR>(SendMessage(CB_GETITEMDATA, static_cast<WPARAM>(nIndex)));
}

int CComboBox::SetItemData(int nIndex, DWORD_PTR dwItemData)
{
    assert(::IsWindow(m_hWnd));
    return static_cast<int>(
        SendMessage(CB_SETITEMDATA, static_cast<WPARAM>(nIndex), static_cast<LPARAM>(dwItemData)));
}

DWORD CComboBox::GetEditSel() const
{
    assert(::IsWindow(m_hWnd));
    return static_cast<DWORD>(SendMessage(CB_GETEDITSEL));
}

BOOL CComboBox::SetEditSel(int nStartChar, int nEndChar)
{
    assert(::IsWindow(m_hWnd));
    return static_cast<BOOL>(SendMessage(CB_SETEDITSEL, 0, MAKELONG(nStartChar, nEndChar)));
}

BOOL CComboBox::LimitText(int nMaxChars)
{
    assert(::IsWindow(m_hWnd));
    return static_cast<BOOL>(SendMessage(CB_LIMITTEXT, static_cast<WPARAM>(nMaxChars)));
}

void CComboBox::ShowDropDown(BOOL bShowIt)
{
    assert(::IsWindow(m_hWnd));
    SendMessage(CB_SHOWDROPDOWN, static_cast<WPARAM>(bShowIt));
}

BOOL CComboBox::GetDroppedState() const
{
    assert(::IsWindow(m_hWnd));
    return static_cast<BOOL>(SendMessage(CB_GETDROPPEDSTATE));
}
