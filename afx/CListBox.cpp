// CListBox: the native list box control.
#include "afx/CListBox.h"

#include <cassert>

BOOL CListBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::Create("LISTBOX", nullptr, dwStyle, rect, pParentWnd, nID);
}

int CListBox::GetCount() const
{
    assert(::IsWindow(m_hWnd));
    return static_cast<int>(SendMessage(LB_GETCOUNT));
}

int CListBox::GetCurSel() const
{
    assert(::IsWindow(m_hWnd));
    return static_cast<int>(SendMessage(LB_GETCURSEL));
}

int CListBox::SetCurSel(int nSelect)
{
    assert(::IsWindow(m_hWnd));
    return static_cast<int>(SendMessage(LB_SETCURSEL, static_cast<WPARAM>(nSelect)));
}

int CListBox::GetTopIndex() const
{
    assert(::IsWindow(m_hWnd));
    return static_cast<int>(SendMessage(LB_GETTOPINDEX));
}

int CListBox::SetTopIndex(int nIndex)
{
    assert(::IsWindow(m_hWnd));
    return static_cast<int>(SendMessage(LB_SETTOPINDEX, static_cast<WPARAM>(nIndex)));
}

int CListBox::GetItemHeight(int nIndex) const
{
    assert(::IsWindow(m_hWnd));
    return static_cast<int>(SendMessage(LB_GETITEMHEIGHT, static_cast<WPARAM>(nIndex)));
}

int CListBox::SetItemHeight(int nIndex, UINT cyItemHeight)
{
    assert(::IsWindow(m_hWnd));
    return static_cast<int>(SendMessage(LB_SETITEMHEIGHT, static_cast<WPARAM>(nIndex), MAKELPARAM(cyItemHeight, 0)));
}

int CListBox::InitStorage(int nItems, UINT nBytes)
{
    assert(::IsWindow(m_hWnd));
    return static_cast<int>(SendMessage(LB_INITSTORAGE, static_cast<WPARAM>(nItems), nBytes));
}

UINT CListBox::GetHorizontalExtent() const
{
    assert(::IsWindow(m_hWnd));
    return static_cast<UINT>(SendMessage(LB_GETHORIZONTALEXTENT));
}

void CListBox::SetHorizontalExtent(UINT cxExtent)
{
    assert(::IsWindow(m_hWnd));
    SendMessage(LB_SETHORIZONTALEXTENT, cxExtent);
}

int CListBox::Dir(UINT attr, LPCTSTR lpszWildCard)
{
    assert(::IsWindow(m_hWnd));
    return static_cast<int>(SendMessage(LB_DIR, attr, reinterpret_cast<LPARAM>(lpszWildCard)));
}

int CListBox::GetItemRect(int nIndex, LPRECT lpRect) const
{
    assert(::IsWindow(m_hWnd));
    return static_cast<int>(
        SendMessage(LB_GETITEMRECT, static_cast<WPARAM>(nIndex), reinterpret_cast<LPARAM>(lpRect)));
}

UINT CListBox::ItemFromPoint(CPoint pt, BOOL& bOutside) const
{
    assert(::IsWindow(m_hWnd));
    const LRESULT result = SendMessage(LB_ITEMFROMPOINT, 0, MAKELONG(pt.x, pt.y));
    bOutside = HIWORD(result) != 0;
    return LOWORD(result);
}

int CListBox::AddString(LPCTSTR lpszItem)
{
    assert(::IsWindow(m_hWnd));
    return static_cast<int>(SendMessage(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(lpszItem)));
}

int CListBox::InsertString(int nIndex, LPCTSTR lpszItem)
{
    assert(::IsWindow(m_hWnd));
    return static_cast<int>(
        SendMessage(LB_INSERTSTRING, static_cast<WPARAM>(nIndex), reinterpret_cast<LPARAM>(lpszItem)));
}

int CListBox::DeleteString(UINT nIndex)
{
    assert(::IsWindow(m_hWnd));
    return static_cast<int>(SendMessage(LB_DELETESTRING, nIndex));
}

void CListBox::ResetContent()
{
    assert(::IsWindow(m_hWnd));
    SendMessage(LB_RESETCONTENT);
}

int CListBox::FindString(int nStartAfter, LPCTSTR lpszItem) const
{
    assert(::IsWindow(m_hWnd));
    return static_cast<int>(
        SendMessage(LB_FINDSTRING, static_cast<WPARAM>(nStartAfter), reinterpret_cast<LPARAM>(lpszItem)));
}

int CListBox::FindStringExact(int nIndexStart, LPCTSTR lpszFind) const
{
    assert(::IsWindow(m_hWnd));
    return static_cast<int>(
        SendMessage(LB_FINDSTRINGEXACT, static_cast<WPARAM>(nIndexStart), reinterpret_cast<LPARAM>(lpszFind)));
}

int CListBox::SelectString(int nStartAfter, LPCTSTR lpszItem)
{
    assert(::IsWindow(m_hWnd));
    return static_cast<int>(
        SendMessage(LB_SELECTSTRING, static_cast<WPARAM>(nStartAfter), reinterpret_cast<LPARAM>(lpszItem)));
}

int CListBox::GetText(int nIndex, LPTSTR lpszBuffer) const
{
    assert(::IsWindow(m_hWnd));
    return static_cast<int>(
        SendMessage(LB_GETTEXT, static_cast<WPARAM>(nIndex), reinterpret_cast<LPARAM>(lpszBuffer)));
}

void CListBox::GetText(int nIndex, CString& rString) const
{
    const int nLength = GetTextLen(nIndex);
    if (nLength == LB_ERR) {
        rString.Empty();
        return;
    }
    const int nCopied = GetText(nIndex, rString.GetBuffer(nLength));
    rString.ReleaseBuffer(nCopied == LB_ERR ? 0 : nCopied);
}

int CListBox::GetTextLen(int nIndex) const
{
    assert(::IsWindow(m_hWnd));
    return static_cast<int>(SendMessage(LB_GETTEXTLEN, static_cast<WPARAM>(nIndex)));
}

DWORD_PTR CListBox::GetItemData(int nIndex) const
{
    assert(::IsWindow(m_hWnd));
    return static_cast<DWORD_PTR>(SendMessage(LB_GETITEMDATA, static_cast<WPARAM>(nIndex)));
}

int CListBox::SetItemData(int nIndex, DWORD_PTR dwItemData)
{
    assert(::IsWindow(m_hWnd));
    return static_cast<int>(
        SendMessage(LB_SETITEMDATA, static_cast<WPARAM>(nIndex), static_cast<LPARAM>(dwItemData)));
}
