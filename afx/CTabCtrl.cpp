// CTabCtrl: the common-controls tab control.
#include "afx/CTabCtrl.h"

#include "afx/AfxInitCommonControls.h"
#include "afx/CImageList.h"

#include <cassert>

BEGIN_MESSAGE_MAP(CTabCtrl, CWnd)
    ON_WM_DRAWITEM_REFLECT()
END_MESSAGE_MAP()

BOOL CTabCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    AfxInitCommonControls(ICC_TAB_CLASSES);
    return CWnd::Create(WC_TABCONTROL, nullptr, dwStyle, rect, pParentWnd, nID);
}

int CTabCtrl::GetItemCount() const
{
    assert(::IsWindow(m_hWnd));
    return static_cast<int>(SendMessage(TCM_GETITEMCOUNT));
}

BOOL CTabCtrl::GetItem(int nItem, TCITEM* pTabCtrlItem) const
{
    assert(::IsWindow(m_hWnd));
    return static_cast<BOOL>(
        SendMessage(TCM_GETITEM, static_cast<WPARAM>(nItem), reinterpret_cast<LPARAM>(pTabCtrlItem)));
}

BOOL CTabCtrl::SetItem(int nItem, TCITEM* pTabCtrlItem)
{
    assert(::IsWindow(m_hWnd));
    return static_cast<BOOL>(
        SendMessage(TCM_SETITEM, static_cast<WPARAM>(nItem), reinterpret_cast<LPARAM>(pTabCtrlItem)));
}

LONG CTabCtrl::InsertItem(int nItem, TCITEM* pTabCtrlItem)
{
    assert(::IsWindow(m_hWnd));
    return static_cast<LONG>(
        SendMessage(TCM_INSERTITEM, static_cast<WPARAM>(nItem), reinterpret_cast<LPARAM>(pTabCtrlItem)));
}

LONG CTabCtrl::InsertItem(int nItem, LPCTSTR lpszItem)
{
    TCITEM item{};
    item.mask = TCIF_TEXT;
    item.pszText = const_cast<LPTSTR>(lpszItem);
    return InsertItem(nItem, &item);
}

BOOL CTabCtrl::DeleteItem(int nItem)
{
    assert(::IsWindow(m_hWnd));
    return static_cast<BOOL>(SendMessage(TCM_DELETEITEM, static_cast<WPARAM>(nItem)));
}

BOOL CTabCtrl::DeleteAllItems()
{
    assert(::IsWindow(m_hWnd));
    return static_cast<BOOL>(SendMessage(TCM_DELETEALLITEMS));
}

BOOL CTabCtrl::GetItemRect(int nItem, LPRECT lpRect) const
{
    assert(::IsWindow(m_hWnd));
    return static_cast<BOOL>(
        SendMessage(TCM_GETITEMRECT, static_cast<WPARAM>(nItem), reinterpret_cast<LPARAM>(lpRect)));
}

int CTabCtrl::GetCurSel() const
{
    assert(::IsWindow(m_hWnd));
    return static_cast<int>(SendMessage(TCM_GETCURSEL));
}

int CTabCtrl::SetCurSel(int nItem)
{
    assert(::IsWindow(m_hWnd));
    return static_cast<int>(SendMessage(TCM_SETCURSEL, static_cast<WPARAM>(nItem)));
}

int CTabCtrl::HitTest(TCHITTESTINFO* pHitTestInfo) const
{
    assert(::IsWindow(m_hWnd));
    return static_cast<int>(SendMessage(TCM_HITTEST, 0, reinterpret_cast<LPARAM>(pHitTestInfo)));
}

void CTabCtrl::AdjustRect(BOOL bLarger, LPRECT lpRect)
{
    assert(::IsWindow(m_hWnd));
    SendMessage(TCM_ADJUSTRECT, static_cast<WPARAM>(bLarger), reinterpret_cast<LPARAM>(lpRect));
}

CSize CTabCtrl::SetItemSize(CSize size)
{
    assert(::IsWindow(m_hWnd));
    const LRESULT previous = SendMessage(TCM_SETITEMSIZE, 0, MAKELPARAM(size.cx, size.cy));
    return CSize(LOWORD(previous), HIWORD(previous));
}

void CTabCtrl::SetPadding(CSize size)
{
    assert(::IsWindow(m_hWnd));
    SendMessage(TCM_SETPADDING, 0, MAKELPARAM(size.cx, size.cy));
}

int CTabCtrl::GetRowCount() const
{
    assert(::IsWindow(m_hWnd));
    return static_cast<int>(SendMessage(TCM_GETROWCOUNT));
}

int CTabCtrl::SetMinTabWidth(int cx)
{
    assert(::IsWindow(m_hWnd));
    return static_cast<int>(SendMessage(TCM_SETMINTABWIDTH, 0, cx));
}

CImageList* CTabCtrl::GetImageList() const
{
    assert(::IsWindow(m_hWnd));
    return CImageList::FromHandle(reinterpret_cast<HIMAGELIST>(SendMessage(TCM_GETIMAGELIST)));
}

CImageList* CTabCtrl::SetImageList(CImageList* pImageList)
{
    assert(::IsWindow(m_hWnd));
    const HIMAGELIST hImageList = pImageList != nullptr ? pImageList->m_hImageList : nullptr;
    return CImageList::FromHandle(
        reinterpret_cast<HIMAGELIST>(SendMessage(TCM_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(hImageList))));
}

void CTabCtrl::DrawItem(LPDRAWITEMSTRUCT) {}
