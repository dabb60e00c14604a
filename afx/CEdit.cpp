// CEdit: the native edit control.
#include "afx/CEdit.h"

#include <cassert>

BOOL CEdit::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::Create("EDIT", nullptr, dwStyle, rect, pParentWnd, nID);
}

DWORD CEdit::GetSel() const
{
    assert(::IsWindow(m_hWnd));
    return static_cast<DWORD>(SendMessage(EM_GETSEL));
}

void CEdit::GetSel(int& nStartChar, int& nEndChar) const
{
    assert(::IsWindow(m_hWnd));
    DWORD start = 0, end = 0;
    SendMessage(EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    nStartChar = static_cast<int>(start);
    nEndChar = static_cast<int>(end);
}

void CEdit::SetSel(DWORD dwSelection, BOOL bNoScroll)
{
    SetSel(LOWORD(dwSelection), HIWORD(dwSelection), bNoScroll);
}

void CEdit::SetSel(int nStartChar, int nEndChar, BOOL bNoScroll)
{
    assert(::IsWindow(m_hWnd));
    SendMessage(EM_SETSEL, static_cast<WPARAM>(nStartChar), nEndChar);
    if (!bNoScroll)
        SendMessage(EM_SCROLLCARET);
}

void CEdit::ReplaceSel(LPCTSTR lpszNewText, BOOL bCanUndo)
{
    assert(::IsWindow(m_hWnd));
    SendMessage(EM_REPLACESEL, static_cast<WPARAM>(bCanUndo), reinterpret_cast<LPARAM>(lpszNewText));
}

void CEdit::LimitText(int nChars)
{
    assert(::IsWindow(m_hWnd));
    SendMessage(EM_LIMITTEXT, static_cast<WPARAM>(nChars));
}

void CEdit::SetLimitText(UINT nMax)
{
    assert(::IsWindow(m_hWnd));
    SendMessage(EM_SETLIMITTEXT, nMax);
}

BOOL CEdit::SetReadOnly(BOOL bReadOnly)
{
    assert(::IsWindow(m_hWnd));
    return static_cast<BOOL>(SendMessage(EM_SETREADONLY, static_cast<WPARAM>(bReadOnly)));
}

BOOL CEdit::GetModify() const
{
    assert(::IsWindow(m_hWnd));
    return static_cast<BOOL>(SendMessage(EM_GETMODIFY));
}

void CEdit::SetModify(BOOL bModified)
{
    assert(::IsWindow(m_hWnd));
    SendMessage(EM_SETMODIFY, static_cast<WPARAM>(bModified));
}

DWORD CEdit::GetMargins() const
{
    assert(::IsWindow(m_hWnd));
    return static_cast<DWORD>(SendMessage(EM_GETMARGINS));
}

void CEdit::SetMargins(UINT nLeft, UINT nRight)
{
    assert(::IsWindow(m_hWnd));
    SendMessage(EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELONG(nLeft, nRight));
}

void CEdit::GetRect(LPRECT lpRect) const
{
    assert(::IsWindow(m_hWnd));
    SendMessage(EM_GETRECT, 0, reinterpret_cast<LPARAM>(lpRect));
}

void CEdit::SetRect(LPCRECT lpRect)
{
    assert(::IsWindow(m_hWnd));
    SendMessage(EM_SETRECT, 0, reinterpret_cast<LPARAM>(lpRect));
}

void CEdit::SetRectNP(LPCRECT lpRect)
{
    assert(::IsWindow(m_hWnd));
    SendMessage(EM_SETRECTNP, 0, reinterpret_cast<LPARAM>(lpRect));
}

// The coordinates are signed words: characters scrolled out to the left have
// negative x.
CPoint CEdit::PosFromChar(UINT nChar) const
{
    assert(::IsWindow(m_hWnd));
    const LRESULT pos = SendMessage(EM_POSFROMCHAR, nChar);
    return CPoint(static_cast<short>(LOWORD(pos)), static_cast<short>(HIWORD(pos)));
}

BOOL CEdit::CanUndo() const
{
    assert(::IsWindow(m_hWnd));
    return static_cast<BOOL>(SendMessage(EM_CANUNDO));
}

BOOL CEdit::Undo()
{
    assert(::IsWindow(m_hWnd));
    return static_cast<BOOL>(SendMessage(EM_UNDO));
}

void CEdit::EmptyUndoBuffer()
{
    assert(::IsWindow(m_hWnd));
    SendMessage(EM_EMPTYUNDOBUFFER);
}

void CEdit::Cut()
{
    assert(::IsWindow(m_hWnd));
    SendMessage(WM_CUT);
}

void CEdit::Copy()
{
    assert(::IsWindow(m_hWnd));
    SendMessage(WM_COPY);
}

void CEdit::Paste()
{
    assert(::IsWindow(m_hWnd));
    SendMessage(WM_PASTE);
}

void CEdit::Clear()
{
    assert(::IsWindow(m_hWnd));
    SendMessage(WM_CLEAR);
}
