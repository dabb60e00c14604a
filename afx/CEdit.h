// CEdit: the native edit control ("EDIT").
#pragma once

#include "afx/CWnd.h"

class AFX_API CEdit : public CWnd {
public:
    CEdit() = default;

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    // Selection: start in the low word, end in the high word.
    DWORD GetSel() const;
    void GetSel(int& nStartChar, int& nEndChar) const;
    // Scrolls the caret into view unless bNoScroll.
    void SetSel(DWORD dwSelection, BOOL bNoScroll = FALSE);
    void SetSel(int nStartChar, int nEndChar, BOOL bNoScroll = FALSE);
    void ReplaceSel(LPCTSTR lpszNewText, BOOL bCanUndo = FALSE);

    void LimitText(int nChars = 0);
    void SetLimitText(UINT nMax);
    BOOL SetReadOnly(BOOL bReadOnly = TRUE);
    BOOL GetModify() const;
    void SetModify(BOOL bModified = TRUE);

    // Left margin in the low word, right margin in the high word.
    DWORD GetMargins() const;
    void SetMargins(UINT nLeft, UINT nRight);
    void GetRect(LPRECT lpRect) const;
    void SetRect(LPCRECT lpRect);
    void SetRectNP(LPCRECT lpRect);
    CPoint PosFromChar(UINT nChar) const;

    BOOL CanUndo() const;
    BOOL Undo();
    void EmptyUndoBuffer();
    void Cut();
    void Copy();
    void Paste();
    void Clear();
};
