// CListBox: the native list box control ("LISTBOX").
#pragma once

#include "afx/CWnd.h"

class AFX_API CListBox : public CWnd {
public:
    CListBox() = default;

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int GetCount() const;
    int GetCurSel() const;
    int SetCurSel(int nSelect);
    int GetTopIndex() const;
    int SetTopIndex(int nIndex);
    int GetItemHeight(int nIndex) const;
    int SetItemHeight(int nIndex, UINT cyItemHeight);
    // LB_INITSTORAGE: room for nItems items of nBytes string bytes in all.
    int InitStorage(int nItems, UINT nBytes);
    UINT GetHorizontalExtent() const;
    void SetHorizontalExtent(UINT cxExtent);
    // LB_DIR: the files matching lpszWildCard with the DDL_ attributes.
    int Dir(UINT attr, LPCTSTR lpszWildCard);
    int GetItemRect(int nIndex, LPRECT lpRect) const;
    // The item nearest to pt (client coordinates); bOutside is set when pt lies
    // outside every item.
    UINT ItemFromPoint(CPoint pt, BOOL& bOutside) const;

    int AddString(LPCTSTR lpszItem);
    int InsertString(int nIndex, LPCTSTR lpszItem);
    int DeleteString(UINT nIndex);
    void ResetContent();
    // The searches ignore case and wrap around after nStartAfter (-1: from the top).
    int FindString(int nStartAfter, LPCTSTR lpszItem) const;
    int FindStringExact(int nIndexStart, LPCTSTR lpszFind) const;
    int SelectString(int nStartAfter, LPCTSTR lpszItem);
    int GetText(int nIndex, LPTSTR lpszBuffer) const;
    void GetText(int nIndex, CString& rString) const;
    int GetTextLen(int nIndex) const;
    DWORD_PTR GetItemData(int nIndex) const;
    int SetItemData(int nIndex, DWORD_PTR dwItemData);
};
