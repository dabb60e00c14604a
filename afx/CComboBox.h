// CComboBox: the native combo box control ("COMBOBOX").
#pragma once

#include "afx/CWnd.h"

class AFX_API CComboBox : public CWnd {
public:
    CComboBox() = default;

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int GetCount() const;
    int GetCurSel() const;
    int SetCurSel(int nSelect);
    int AddString(LPCTSTR lpszString);
    int InsertString(int nIndex, LPCTSTR lpszString);
    int DeleteString(UINT nIndex);
    void ResetContent();
    // The searches ignore case and wrap around after nStartAfter (-1: from the top).
    int FindString(int nStartAfter, LPCTSTR lpszString) const;
    int FindStringExact(int nIndexStart, LPCTSTR lpszFind) const;
    int SelectString(int nStartAfter, LPCTSTR lpszString);
    int GetLBText(int nIndex, LPTSTR lpszText) const;
    void GetLBText(int nIndex, CString& rString) const;
    int GetLBTextLen(int nIndex) const;
    DWORD_PTR GetItemData(int nIndex) const;
    int SetItemData(int nIndex, DWORD_PTR dwItemData);

    // The edit part's selection: start in the low word, end in the high word.
    DWORD GetEditSel() const;
    BOOL SetEditSel(int nStartChar, int nEndChar);
    BOOL LimitText(int nMaxChars);
    void ShowDropDown(BOOL bShowIt = TRUE);
    BOOL GetDroppedState() const;
};
