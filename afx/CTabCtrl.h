// CTabCtrl: the common-controls tab control. With TCS_OWNERDRAWFIXED the
// control draws its tabs itself: its parent's WM_DRAWITEM is reflected to DrawItem.
#pragma once

#include "afx/CSize.h"
#include "afx/CWnd.h"

#include <commctrl.h>

class CImageList;

class AFX_API CTabCtrl : public CWnd {
public:
    CTabCtrl() = default;

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int GetItemCount() const;
    BOOL GetItem(int nItem, TCITEM* pTabCtrlItem) const;
    BOOL SetItem(int nItem, TCITEM* pTabCtrlItem);
    LONG InsertItem(int nItem, TCITEM* pTabCtrlItem);
    LONG InsertItem(int nItem, LPCTSTR lpszItem);
    BOOL DeleteItem(int nItem);
    BOOL DeleteAllItems();
    BOOL GetItemRect(int nItem, LPRECT lpRect) const;
    int GetCurSel() const;
    int SetCurSel(int nItem);
    int HitTest(TCHITTESTINFO* pHitTestInfo) const;
    // bLarger: from a display area to the window rectangle; otherwise back.
    void AdjustRect(BOOL bLarger, LPRECT lpRect);
    CSize SetItemSize(CSize size);
    void SetPadding(CSize size);
    int GetRowCount() const;
    int SetMinTabWidth(int cx);
    CImageList* GetImageList() const;
    CImageList* SetImageList(CImageList* pImageList);

    // Owner-drawn tab controls override this; the default draws nothing.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    DECLARE_MESSAGE_MAP()
};
