// kvDropEditList: a combo-box replacement on a drop edit: its list pops up
// below the field, and the field completes typed text from the items. Allow
// entry keeps any text (completion only helps); without it the text must stay
// an item, or empty where allow blank says so. The interface is the combo
// box's; the list lives, hidden, as long as the field, so that the keys move
// through it while it is closed.
#pragma once

#include "dropdown/kvDropEditBase.h"
#include "dropdown/kvDropListRules.h"
#include "library/kvWinExport.h"

#include <memory>

class _kvDropEditListPopup;

class KVWIN_API kvDropEditList : public kvDropEditBase {
public:
    kvDropEditList();
    ~kvDropEditList() override;

    // The rectangle is the dropped-down size, as for a combo box; the field
    // takes one line of it. SubclassDlgItem comes here too, and keeps the
    // replaced combo box's items.
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID, DWORD dwEffects) override;
    using kvDropEditBase::Create;
    BOOL SubclassDlgItem(UINT nID, CWnd* pParent);

    // The combo box's interface, answered by the list.
    int InitStorage(int nItems, UINT nBytes);
    int GetCount() const;
    int GetCurSel() const;
    // Also writes the item into the field, or empties it when none is selected.
    int SetCurSel(int nSelect);
    int SetItemData(int nIndex, DWORD_PTR dwItemData);
    DWORD_PTR GetItemData(int nIndex) const;
    int GetTopIndex() const;
    int SetTopIndex(int nIndex);
    void SetHorizontalExtent(UINT nExtent);
    UINT GetHorizontalExtent() const;
    // Index 0: the items' height; -1: the field's, with room for its border.
    int SetItemHeight(int nIndex, UINT cyItemHeight);
    int GetItemHeight(int nIndex) const;
    int GetLBText(int nIndex, LPTSTR lpszText) const;
    void GetLBText(int nIndex, CString& rString) const;
    int AddString(LPCTSTR lpszString);
    int InsertString(int nIndex, LPCTSTR lpszString);
    int DeleteString(UINT nIndex);
    void ResetContent();
    int Dir(UINT attr, LPCTSTR lpszWildCard);
    int FindString(int nStartAfter, LPCTSTR lpszString) const;
    int FindStringExact(int nIndexStart, LPCTSTR lpszFind) const;
    int SelectString(int nStartAfter, LPCTSTR lpszString);
    void GetDroppedControlRect(LPRECT lprect) const;
    int SetDroppedWidth(UINT nWidth);
    int GetDroppedWidth() const;
    // The list as high as its items need, within the dropped height.
    void SizeToFitData();

    DWORD GetEditSel() const;
    BOOL SetEditSel(int nStartChar, int nEndChar);
    BOOL LimitText(int nMaxChars);

    void SetAllowEntry(bool allow) { m_bAllowEntry = allow; }
    bool AllowEntry() const { return m_bAllowEntry; }
    void SetAllowBlank(bool allow) { m_bAllowBlank = allow; }
    bool AllowBlank() const { return m_bAllowBlank; }

protected:
    void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags) override;
    void OnKillFocus(CWnd* pNewWnd) override;
    void OnSize(UINT nType, int cx, int cy) override;
    void OnMove(int x, int y) override;
    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnWindowPosChanging(WINDOWPOS* lpwndpos);
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg LRESULT OnCut(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnPaste(WPARAM wParam, LPARAM lParam);

    DECLARE_MESSAGE_MAP()

private:
    friend class _kvDropEditListPopup;

    kvDropListItems _Items() const;
    kvDropListRules::Edit _Edit() const;
    // The field and the list as the rules decided; a changed text is a new selection.
    void _Apply(const kvDropListRules::Outcome& outcome, const CString& before);
    void _SelectInList(int listSel);
    void _NotifySelection();
    int _FieldHeight() const;

    std::unique_ptr<_kvDropEditListPopup> m_pList;
    bool m_bAllowEntry = true;
    bool m_bAllowBlank = false;
    int m_nSelFieldHeight = -1;
};
