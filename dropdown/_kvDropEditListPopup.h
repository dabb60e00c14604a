// _kvDropEditListPopup: the drop edit list's list, a popup list box that holds
// the items for the whole life of the field, opens below it with the field's
// item selected, tracks the mouse with the capture while open, and writes what
// is chosen into the field.
#pragma once

#include "afx/CListBox.h"
#include "dropdown/kvDropEditPopup.h"

class kvDropEditList;

class _kvDropEditListPopup : public CListBox, public kvDropEditPopup {
public:
    explicit _kvDropEditListPopup(kvDropEditList* pField) : m_pField(pField) {}

    // The hidden list, owned by the field's parent; the field's combo styles
    // give it its list styles.
    bool Create(DWORD dwComboStyle, CWnd* pParent);

    void Show(CRect field, const CString& text) override;
    void Hide() override;
    int IsVisible() override;
    // Below the field again, after the field moved.
    void Place(const CRect& field);

protected:
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnNcLButtonDown(UINT nHitTest, CPoint point);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnSysKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);

    DECLARE_MESSAGE_MAP()

private:
    friend class kvDropEditList;

    // The selected item's text (empty when none) into the field, when it differs.
    void _WriteItem(bool selectAll);
    int _ItemAt(CPoint point) const;
    bool _SelectionChanged() const { return GetCurSel() != m_nSelAtOpen; }
    void _Close();
    // The selection since opening, into the field and reported.
    void _Confirm();

    kvDropEditList* m_pField;
    CSize m_DroppedSize;  // as for a combo box, the field included
    int m_nDroppedWidth = 0;
    int m_nPressedItem = -1;
    int m_nSelAtOpen = -1;
    bool m_bScrollClick = false;
};
