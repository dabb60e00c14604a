// kvTabNotebook: pages and their buttons, the tab messages of both styles, the
// user's ways of changing pages, and the drawing of both kinds of tabs.
#include "notebook/kvTabNotebook.h"

#include "afx/CBrush.h"
#include "afx/CClientDC.h"
#include "afx/CDC.h"
#include "afx/CFont.h"
#include "afx/CImageList.h"
#include "afx/CPaintDC.h"
#include "afx/CPen.h"
#include "buttons/kvButtonText.h"
#include "formatting/kvNotifyParent.h"
#include "formatting/kvParentFont.h"
#include "notebook/kvTabPageButton.h"

#include <algorithm>

namespace {

// Set when the last page change was refused by a disabled page or a parent's
// reply of exactly 1; such a refusal ends a Ctrl+Tab walk.
bool s_bLastChangeRefused = false;

constexpr UINT kZOrderOnly = SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE;

// A disabled tab's text is embossed: a highlight one pixel lower right, gray on top.
void DrawTabText(CDC* pDC, const CString& text, CRect rect, UINT nFormat, bool enabled)
{
    if (enabled) {
        pDC->SetTextColor(::GetSysColor(COLOR_BTNTEXT));
        pDC->DrawText(text, rect, nFormat);
        return;
    }
    CRect raised = rect;
    raised.OffsetRect(1, 1);
    pDC->SetTextColor(::GetSysColor(COLOR_3DHILIGHT));
    pDC->DrawText(text, raised, nFormat);
    pDC->SetTextColor(::GetSysColor(COLOR_GRAYTEXT));
    pDC->DrawText(text, rect, nFormat);
}

// The pens and the face of the bottom tabs, in the classic raised look.
struct TabPaint {
    CPen black{PS_SOLID, 1, RGB(0, 0, 0)};
    CPen light{PS_SOLID, 1, ::GetSysColor(COLOR_3DHILIGHT)};
    CPen shadow{PS_SOLID, 1, ::GetSysColor(COLOR_BTNSHADOW)};
    CPen facePen{PS_SOLID, 1, ::GetSysColor(COLOR_BTNFACE)};
    CBrush face{::GetSysColor(COLOR_BTNFACE)};
};

void DrawLine(CDC* pDC, CPen& pen, CPoint from, CPoint to)
{
    pDC->SelectObject(&pen);
    pDC->MoveTo(from);
    pDC->LineTo(to);
}

// Covers whatever a later neighbour drew here, then outlines the tab: the lit
// left side in the highlight, the right side and the bottom in black with a
// shadow inside. The top stays open.
void DrawTabOutline(CDC* pDC, TabPaint& paint, const std::array<CPoint, 4>& corners)
{
    const auto [topLeft, topRight, bottomRight, bottomLeft] = corners;
    pDC->SelectObject(&paint.facePen);
    pDC->SelectObject(&paint.face);
    pDC->Polygon(corners.data(), static_cast<int>(corners.size()));
    DrawLine(pDC, paint.light, topLeft, bottomLeft);
    DrawLine(pDC, paint.light, topLeft + CPoint(1, 0), bottomLeft + CPoint(1, 0));
    DrawLine(pDC, paint.black, topRight, bottomRight);
    DrawLine(pDC, paint.shadow, topRight - CPoint(1, 0), bottomRight - CPoint(1, 0));
    DrawLine(pDC, paint.black, bottomLeft, bottomRight + CPoint(1, 0));
    DrawLine(pDC, paint.shadow, bottomLeft + CPoint(1, -1), bottomRight + CPoint(0, -1));
}

}  // namespace

BEGIN_MESSAGE_MAP(kvTabNotebook, CTabCtrl)
    ON_MESSAGE(TCM_GETITEMCOUNT, OnGetItemCount)
    ON_MESSAGE(TCM_GETITEMA, OnGetItem)
    ON_MESSAGE(TCM_SETITEMA, OnSetItem)
    ON_MESSAGE(TCM_INSERTITEMA, OnInsertItem)
    ON_MESSAGE(TCM_DELETEITEM, OnDeleteItem)
    ON_MESSAGE(TCM_DELETEALLITEMS, OnDeleteAllItems)
    ON_MESSAGE(TCM_GETITEMRECT, OnGetItemRect)
    ON_MESSAGE(TCM_GETCURSEL, OnGetCurSel)
    ON_MESSAGE(TCM_SETCURSEL, OnSetCurSel)
    ON_MESSAGE(TCM_HITTEST, OnHitTest)
    ON_MESSAGE(TCM_ADJUSTRECT, OnAdjustRect)
    ON_MESSAGE(TCM_SETITEMSIZE, OnSetItemSize)
    ON_MESSAGE(TCM_SETPADDING, OnSetPadding)
    ON_MESSAGE(TCM_GETROWCOUNT, OnGetRowCount)
    ON_MESSAGE(TCM_SETMINTABWIDTH, OnSetMinTabWidth)
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    ON_WM_SHOWWINDOW()
    ON_WM_SIZE()
    ON_WM_MOVE()
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_LBUTTONDOWN()
    ON_WM_KEYDOWN()
    ON_WM_GETDLGCODE()
    ON_MESSAGE(WM_NCHITTEST, OnNcHitTestMessage)
END_MESSAGE_MAP()

kvTabNotebook::kvTabNotebook(TabStyle tabStyle) : m_TabStyle(tabStyle) {}

kvTabNotebook::~kvTabNotebook() = default;

BOOL kvTabNotebook::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    const BOOL created = m_TabStyle == StandardTabs
                             ? CTabCtrl::Create(dwStyle | TCS_OWNERDRAWFIXED, rect, pParentWnd, nID)
                             : CWnd::Create(nullptr, nullptr, dwStyle, rect, pParentWnd, nID);
    if (!created)
        return FALSE;
    kvSetParentFont(this, pParentWnd);
    return TRUE;
}

void kvTabNotebook::PreSubclassWindow()
{
    CTabCtrl::PreSubclassWindow();
    ModifyStyle(0, TCS_OWNERDRAWFIXED);
}

BOOL kvTabNotebook::PreTranslateMessage(MSG* pMsg)
{
    BOOL handled = FALSE;
    if (pMsg->message == WM_KEYDOWN && pMsg->wParam == VK_TAB && ::GetKeyState(VK_CONTROL) < 0) {
        CyclePages(::GetKeyState(VK_SHIFT) < 0 ? -1 : 1);
        handled = TRUE;
    } else {
        handled = CTabCtrl::PreTranslateMessage(pMsg);
    }
    s_bLastChangeRefused = false;
    return handled;
}

// ---- pages ----

void kvTabNotebook::AddPage(CWnd* pPage, const CString& title)
{
    const int n = GetItemCount();
    TCITEM item{};
    item.mask = TCIF_TEXT | TCIF_IMAGE;
    item.iImage = -1;
    item.pszText = const_cast<LPTSTR>(title.GetString());
    InsertItem(n, &item);

    if (CWnd* pParent = GetParent(); pParent != nullptr) {
        CRect rect;
        GetWindowRect(rect);
        pParent->ScreenToClient(rect);
        auto button = std::make_unique<kvTabPageButton>(this, n);
        button->Create(title, WS_CHILD | WS_VISIBLE, CRect(rect.left, rect.top, rect.left, rect.top), pParent, 0);
        m_PageButtons.push_back(std::move(button));
        SetPageButtonZOrder(-1);
    }
    m_Pages.push_back(pPage);
    if (pPage != nullptr)
        pPage->ShowWindow(SW_HIDE);
    if (m_nCurrentPage == -1)
        SendMessage(TCM_SETCURSEL, 0);
}

CWnd* kvTabNotebook::GetPageWindow(unsigned short index) const
{
    return index < GetPageCount() ? m_Pages[index] : nullptr;
}

void kvTabNotebook::SetPageWindow(unsigned short index, CWnd* pPage)
{
    if (index >= GetPageCount())
        return;
    const bool current = index == m_nCurrentPage;
    CWnd* pOld = m_Pages[index];
    if (pOld != nullptr && (pPage == nullptr || pPage->m_hWnd != pOld->m_hWnd) && (current || pPage != nullptr))
        pOld->ShowWindow(SW_HIDE);
    m_Pages[index] = pPage;
    if (!current) {
        if (pPage != nullptr)
            pPage->ShowWindow(SW_HIDE);
        return;
    }
    PositionPage(index);
    if (pPage != nullptr && IsWindowVisible())
        pPage->ShowWindow(SW_SHOW);
}

CWnd* kvTabNotebook::CurrentPageWindow() const
{
    return m_nCurrentPage >= 0 && m_nCurrentPage < GetPageCount() ? m_Pages[m_nCurrentPage] : nullptr;
}

bool kvTabNotebook::IsTabEnabled(int nTab) const
{
    const CWnd* pPage = nTab >= 0 && nTab < GetPageCount() ? m_Pages[nTab] : nullptr;
    return pPage == nullptr || pPage->IsWindowEnabled();
}

bool kvTabNotebook::ChangePage(unsigned short index)
{
    if (index >= GetPageCount() || !IsWindowEnabled())
        return false;
    LRESULT result = 0;
    if (index != m_nCurrentPage)
        result = IsTabEnabled(index) ? kvNotifyParentNotify(this, TCN_SELCHANGING) : 1;
    s_bLastChangeRefused = result == 1;
    if (result != 0)
        return false;
    SendMessage(TCM_SETCURSEL, index);
    SetPageButtonZOrder(index);
    SetFocus();
    kvNotifyParentNotify(this, TCN_SELCHANGE);
    return true;
}

void kvTabNotebook::SwapDialogs(unsigned short index)
{
    if (index >= GetPageCount())
        return;
    if (index != m_nCurrentPage) {
        if (CWnd* pCurrent = CurrentPageWindow(); pCurrent != nullptr)
            pCurrent->ShowWindow(SW_HIDE);
        m_nCurrentPage = static_cast<short>(index);
    }
    if (CWnd* pPage = CurrentPageWindow(); pPage != nullptr) {
        PositionPage(index);
        if (IsWindowVisible())
            pPage->ShowWindow(SW_SHOW);
    }
}

void kvTabNotebook::PositionPage(unsigned short index)
{
    CWnd* pPage = index < GetPageCount() ? m_Pages[index] : nullptr;
    if (pPage == nullptr)
        return;
    CRect rect;
    GetWindowRect(rect);
    if (CWnd* pParent = pPage->GetParent(); pParent != nullptr)
        pParent->ScreenToClient(rect);
    SendMessage(TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(static_cast<RECT*>(rect)));
    pPage->MoveWindow(rect, TRUE);
}

void kvTabNotebook::SetPageButtonZOrder(int current)
{
    HWND hWndAfter = m_hWnd;
    for (const auto& button : m_PageButtons) {
        ::SetWindowPos(button->m_hWnd, hWndAfter, 0, 0, 0, 0, kZOrderOnly);
        hWndAfter = button->m_hWnd;
    }
    // The notebook keeps its place: what comes before it stays before it.
    HWND hWndAnchor = ::GetWindow(m_hWnd, GW_HWNDPREV);
    if (hWndAnchor == nullptr)
        hWndAnchor = HWND_TOP;
    bool placed = false;
    for (const auto& button : m_PageButtons) {
        if (!placed && button->GetPage() > current) {
            ::SetWindowPos(m_hWnd, hWndAnchor, 0, 0, 0, 0, kZOrderOnly);
            hWndAnchor = m_hWnd;
            placed = true;
        }
        ::SetWindowPos(button->m_hWnd, hWndAnchor, 0, 0, 0, 0, kZOrderOnly);
        hWndAnchor = button->m_hWnd;
    }
    if (!placed)
        ::SetWindowPos(m_hWnd, hWndAnchor, 0, 0, 0, 0, kZOrderOnly);
}

void kvTabNotebook::OnPageButtonClicked(int nPage)
{
    if (nPage < 0 || !ChangePage(static_cast<unsigned short>(nPage)))
        return;
    SetPageButtonZOrder(nPage);
    SetFocus();
}

void kvTabNotebook::CyclePages(int step)
{
    const int count = GetPageCount();
    if (count == 0)
        return;
    const int start = std::max<int>(m_nCurrentPage, 0);
    for (int index = (start + step + count) % count; index != start; index = (index + step + count) % count) {
        if (ChangePage(static_cast<unsigned short>(index)) || s_bLastChangeRefused)
            return;
    }
}

void kvTabNotebook::StepPages(int step)
{
    for (int index = m_nCurrentPage + step; index >= 0 && index < GetPageCount(); index += step) {
        if (ChangePage(static_cast<unsigned short>(index)))
            return;
    }
}

void kvTabNotebook::ShowCurrentPage(bool bShow)
{
    if (CWnd* pPage = CurrentPageWindow(); pPage != nullptr) {
        PositionPage(static_cast<unsigned short>(m_nCurrentPage));
        pPage->ShowWindow(bShow ? SW_SHOW : SW_HIDE);
    }
}

// ---- the tab messages ----

template <class BottomAnswer>
LRESULT kvTabNotebook::ByStyle(BottomAnswer bottomAnswer, LRESULT otherStyles)
{
    switch (m_TabStyle) {
    case StandardTabs:
        return Default();
    case BottomTabs:
        return bottomAnswer();
    }
    return otherStyles;
}

LRESULT kvTabNotebook::OnGetItemCount(WPARAM, LPARAM)
{
    return ByStyle([this] { return LRESULT(m_Items.GetCount()); });
}

LRESULT kvTabNotebook::OnGetItem(WPARAM wParam, LPARAM lParam)
{
    return ByStyle([&] { return LRESULT(m_Items.GetText(int(wParam), reinterpret_cast<TCITEM*>(lParam))); });
}

LRESULT kvTabNotebook::OnSetItem(WPARAM wParam, LPARAM lParam)
{
    const auto pItem = reinterpret_cast<const TCITEM*>(lParam);
    const LRESULT set = ByStyle([&] {
        const BOOL stored = m_Items.SetText(int(wParam), pItem);
        if (stored)
            Invalidate();
        return LRESULT(stored);
    });
    if (set && pItem != nullptr && (pItem->mask & TCIF_TEXT) != 0 && pItem->pszText != nullptr && wParam < m_PageButtons.size())
        m_PageButtons[wParam]->SetWindowText(pItem->pszText);
    return set ? 1 : 0;
}

LRESULT kvTabNotebook::OnInsertItem(WPARAM wParam, LPARAM lParam)
{
    return ByStyle([&] { return m_Items.Insert(int(wParam), reinterpret_cast<const TCITEM*>(lParam)); }, -1);
}

LRESULT kvTabNotebook::OnDeleteItem(WPARAM wParam, LPARAM)
{
    const int index = int(wParam);
    if (index < 0 || index >= GetItemCount() || !ByStyle([&] { return LRESULT(m_Items.Delete(index)); }))
        return 0;
    if (index < int(m_PageButtons.size())) {
        m_PageButtons.erase(m_PageButtons.begin() + index);
        for (int later = index; later < int(m_PageButtons.size()); ++later)
            m_PageButtons[later]->SetPage(later);
    }
    if (index < GetPageCount()) {
        if (index == m_nCurrentPage && m_Pages[index] != nullptr)
            m_Pages[index]->ShowWindow(SW_HIDE);
        m_Pages.erase(m_Pages.begin() + index);
    }
    // Deliberately: a tab deleted before the current one leaves the index as it
    // was, and no page is shown here.
    if (m_nCurrentPage >= GetItemCount())
        --m_nCurrentPage;
    return 1;
}

LRESULT kvTabNotebook::OnDeleteAllItems(WPARAM, LPARAM)
{
    if (!ByStyle([this] { m_Items.DeleteAll(); return LRESULT(1); }))
        return 0;
    m_PageButtons.clear();
    if (CWnd* pPage = CurrentPageWindow(); pPage != nullptr)
        pPage->ShowWindow(SW_HIDE);
    m_Pages.clear();
    m_nCurrentPage = -1;
    return 1;
}

LRESULT kvTabNotebook::OnGetItemRect(WPARAM wParam, LPARAM lParam)
{
    return ByStyle([&] {
        auto pRect = reinterpret_cast<RECT*>(lParam);
        if (pRect == nullptr)
            return LRESULT(1);
        const std::vector<CRect> rects = BottomTabRects();
        if (wParam >= rects.size())
            return LRESULT(0);
        *pRect = rects[wParam];
        return LRESULT(1);
    });
}

LRESULT kvTabNotebook::OnGetCurSel(WPARAM, LPARAM) { return m_nCurrentPage; }

LRESULT kvTabNotebook::OnSetCurSel(WPARAM wParam, LPARAM)
{
    if (wParam < m_Pages.size())
        SwapDialogs(static_cast<unsigned short>(wParam));
    Invalidate();
    return ByStyle([] { return LRESULT(0); });
}

LRESULT kvTabNotebook::OnHitTest(WPARAM, LPARAM lParam)
{
    return ByStyle([&] { return LRESULT(DoBottomTabHitTest(reinterpret_cast<TCHITTESTINFO*>(lParam))); });
}

LRESULT kvTabNotebook::OnAdjustRect(WPARAM wParam, LPARAM lParam)
{
    return ByStyle([&] {
        if (auto pRect = reinterpret_cast<RECT*>(lParam); pRect != nullptr) {
            MeasureBottomTabs(nullptr);
            m_BottomTabs.AdjustRect(wParam != 0, *pRect);
        }
        return LRESULT(0);
    });
}

LRESULT kvTabNotebook::OnSetItemSize(WPARAM, LPARAM lParam)
{
    return ByStyle([&] {
        const unsigned previous = m_BottomTabs.SetItemSize(LOWORD(lParam), HIWORD(lParam));
        Invalidate();
        return LRESULT(previous);
    });
}

LRESULT kvTabNotebook::OnSetPadding(WPARAM, LPARAM lParam)
{
    return ByStyle([&] {
        const unsigned previous = m_BottomTabs.SetPadding(LOWORD(lParam), HIWORD(lParam));
        Invalidate();
        return LRESULT(previous);
    });
}

LRESULT kvTabNotebook::OnGetRowCount(WPARAM, LPARAM)
{
    return ByStyle([] { return LRESULT(1); });
}

LRESULT kvTabNotebook::OnSetMinTabWidth(WPARAM, LPARAM lParam)
{
    return ByStyle([&] {
        MeasureBottomTabs(nullptr);
        const int previous = m_BottomTabs.SetMinTabWidth(static_cast<int>(lParam));
        Invalidate();
        return LRESULT(previous);
    });
}

// ---- focus, keys and mouse ----

void kvTabNotebook::OnSetFocus(CWnd* pOldWnd)
{
    CTabCtrl::OnSetFocus(pOldWnd);
    if (m_TabStyle == BottomTabs)
        Invalidate();
    SetPageButtonZOrder(m_nCurrentPage);
    // A notebook outside the tab order passes the focus on, into its page.
    if ((GetStyle() & WS_TABSTOP) == 0) {
        if (CWnd* pParent = GetParent(); pParent != nullptr)
            pParent->SendMessage(WM_NEXTDLGCTL, 0, 0);
    }
}

void kvTabNotebook::OnKillFocus(CWnd* pNewWnd)
{
    CTabCtrl::OnKillFocus(pNewWnd);
    if (m_TabStyle == BottomTabs)
        Invalidate();
    SetPageButtonZOrder(-1);
}

void kvTabNotebook::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    if (nChar == VK_LEFT)
        StepPages(-1);
    else if (nChar == VK_RIGHT)
        StepPages(1);
    else
        CTabCtrl::OnKeyDown(nChar, nRepCnt, nFlags);
}

UINT kvTabNotebook::OnGetDlgCode() { return m_TabStyle == BottomTabs ? DLGC_WANTARROWS : CTabCtrl::OnGetDlgCode(); }

// As the platform's tab control does: the mouse goes through the page area to
// the page, wherever the page lies in the sibling order.
LRESULT kvTabNotebook::OnNcHitTestMessage(WPARAM, LPARAM lParam)
{
    const LRESULT hit = Default();
    if (m_TabStyle != BottomTabs || hit != HTCLIENT)
        return hit;
    CPoint point(AFX_X_LPARAM(lParam), AFX_Y_LPARAM(lParam));
    ScreenToClient(&point);
    CRect client;
    GetClientRect(client);
    MeasureBottomTabs(nullptr);
    return m_BottomTabs.StripRect(client).PtInRect(point) ? HTCLIENT : HTTRANSPARENT;
}

void kvTabNotebook::OnLButtonDown(UINT, CPoint point)
{
    TCHITTESTINFO hit{};
    hit.pt = point;
    const int item = static_cast<int>(SendMessage(TCM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit)));
    if (item >= 0)
        ChangePage(static_cast<unsigned short>(item));
}

// ---- showing, sizing, moving ----

void kvTabNotebook::OnShowWindow(BOOL bShow, UINT nStatus)
{
    for (const auto& button : m_PageButtons)
        button->ShowWindow(bShow ? SW_SHOW : SW_HIDE);
    ShowCurrentPage(bShow != FALSE);
    CTabCtrl::OnShowWindow(bShow, nStatus);
}

void kvTabNotebook::OnSize(UINT nType, int cx, int cy)
{
    CTabCtrl::OnSize(nType, cx, cy);
    if (m_nCurrentPage >= 0)
        PositionPage(static_cast<unsigned short>(m_nCurrentPage));
}

void kvTabNotebook::OnMove(int x, int y)
{
    CTabCtrl::OnMove(x, y);
    if (m_nCurrentPage >= 0)
        PositionPage(static_cast<unsigned short>(m_nCurrentPage));
}

// ---- painting ----

void kvTabNotebook::OnPaint()
{
    if (m_TabStyle == BottomTabs) {
        CPaintDC dc(this);
        DoBottomTabDraw(&dc);
    } else {
        // A themed pane would paint over the page lying under the display area.
        if (const CWnd* pPage = CurrentPageWindow(); pPage != nullptr && pPage->IsWindowVisible()) {
            CRect display;
            GetClientRect(display);
            AdjustRect(FALSE, display);
            ValidateRect(display);
        }
        Default();
    }
    const CWnd* pPage = CurrentPageWindow();
    if (pPage != nullptr && IsWindowVisible() && !pPage->IsWindowVisible())
        ShowCurrentPage(true);
}

BOOL kvTabNotebook::OnEraseBkgnd(CDC* pDC)
{
    // The display area is the page's: only the strip above it is erased.
    if (m_TabStyle != StandardTabs || GetItemCount() == 0)
        return TRUE;
    CRect client;
    GetClientRect(client);
    CRect display = client;
    AdjustRect(FALSE, display);
    pDC->FillSolidRect(CRect(client.left, client.top, client.right, display.top), ::GetSysColor(COLOR_BTNFACE));
    return TRUE;
}

void kvTabNotebook::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    if (lpDrawItemStruct->CtlType != ODT_TAB)
        return;
    char text[256] = "";
    TCITEM item{};
    item.mask = TCIF_TEXT | TCIF_IMAGE;
    item.pszText = text;
    item.cchTextMax = 255;
    GetItem(static_cast<int>(lpDrawItemStruct->itemID), &item);

    CDC* pDC = CDC::FromHandle(lpDrawItemStruct->hDC);
    CRect rect(lpDrawItemStruct->rcItem);
    pDC->FillSolidRect(rect, ::GetSysColor(COLOR_BTNFACE));
    const bool selected = (lpDrawItemStruct->itemState & ODS_SELECTED) != 0;
    rect.OffsetRect(selected ? 8 : 4, selected ? -2 : 2);
    pDC->SetBkMode(TRANSPARENT);

    const bool enabled = IsWindowEnabled() && IsTabEnabled(static_cast<int>(lpDrawItemStruct->itemID));
    CImageList* pImages = GetImageList();
    IMAGEINFO image{};
    if (item.iImage >= 0 && pImages != nullptr && pImages->GetImageInfo(item.iImage, &image)) {
        const CPoint origin(rect.left, rect.top + (selected ? 3 : 0));
        const CSize size(image.rcImage.right - image.rcImage.left, image.rcImage.bottom - image.rcImage.top);
        if (IsWindowEnabled()) {
            pImages->Draw(pDC, item.iImage, origin, ILD_TRANSPARENT);
        } else if (HICON hIcon = pImages->ExtractIcon(item.iImage); hIcon != nullptr) {
            pDC->DrawState(origin, size, hIcon, DST_ICON | DSS_DISABLED);
            ::DestroyIcon(hIcon);
        }
        rect.left += size.cx + 2;
    }
    DrawTabText(pDC, text, rect, DT_SINGLELINE | DT_VCENTER, enabled);
}

// ---- the bottom tabs ----

HFONT kvTabNotebook::ParentFont() const
{
    const CWnd* pParent = GetParent();
    auto hFont = pParent != nullptr ? reinterpret_cast<HFONT>(pParent->SendMessage(WM_GETFONT)) : nullptr;
    return hFont != nullptr ? hFont : static_cast<HFONT>(::GetStockObject(DEFAULT_GUI_FONT));
}

void kvTabNotebook::MeasureBottomTabs(std::vector<int>* pTextWidths)
{
    CClientDC dc(this);
    CFont* pOldFont = dc.SelectObject(CFont::FromHandle(ParentFont()));
    TEXTMETRIC metrics{};
    dc.GetTextMetrics(&metrics);
    m_BottomTabs.fontHeight = metrics.tmHeight;
    m_BottomTabs.aveCharWidth = metrics.tmAveCharWidth;
    if (pTextWidths != nullptr) {
        for (int nTab = 0; nTab < m_Items.GetCount(); ++nTab)
            pTextWidths->push_back(dc.GetTextExtent(kvRemoveAmpersand(m_Items.Text(nTab))).cx);
    }
    dc.SelectObject(pOldFont);
}

std::vector<CRect> kvTabNotebook::BottomTabRects()
{
    std::vector<int> textWidths;
    MeasureBottomTabs(&textWidths);
    CRect client;
    GetClientRect(client);
    return m_BottomTabs.ItemRects(textWidths, (GetStyle() & TCS_FIXEDWIDTH) != 0, client);
}

int kvTabNotebook::BottomTabGetHeight()
{
    MeasureBottomTabs(nullptr);
    return m_BottomTabs.TabHeight();
}

double kvTabNotebook::BottomTabGetOverlap()
{
    MeasureBottomTabs(nullptr);
    return m_BottomTabs.Overlap();
}

int kvTabNotebook::BottomTabGetExtraWidth()
{
    MeasureBottomTabs(nullptr);
    return m_BottomTabs.ExtraWidth();
}

int kvTabNotebook::BottomTabDefaultTabWidth()
{
    MeasureBottomTabs(nullptr);
    return m_BottomTabs.DefaultTabWidth();
}

int kvTabNotebook::DoBottomTabHitTest(TCHITTESTINFO* pHitTestInfo)
{
    if (pHitTestInfo == nullptr)
        return -1;
    pHitTestInfo->flags = TCHT_NOWHERE;
    if (m_Items.GetCount() == 0)
        return -1;
    const int item = m_BottomTabs.HitTest(pHitTestInfo->pt, BottomTabRects());
    if (item >= 0)
        pHitTestInfo->flags = TCHT_ONITEM;
    return item;
}

void kvTabNotebook::DoBottomTabDraw(CDC* pDC)
{
    const std::vector<CRect> rects = BottomTabRects();
    const std::vector<kvBottomTabGeometry::Span> spans = m_BottomTabs.Spans(rects);
    CRect client;
    GetClientRect(client);
    const CRect strip = m_BottomTabs.StripRect(client);
    const int height = m_BottomTabs.TabHeight();
    const int tabs = std::min(GetPageCount(), static_cast<int>(spans.size()));
    const int current = m_nCurrentPage < tabs ? m_nCurrentPage : -1;

    const int saved = pDC->SaveDC();
    pDC->SelectObject(CFont::FromHandle(ParentFont()));
    pDC->SetBkMode(TRANSPARENT);
    pDC->FillSolidRect(strip, ::GetSysColor(COLOR_BTNFACE));
    TabPaint paint;
    // Earlier tabs lie over later ones; the current one over all.
    for (int nTab = tabs - 1; nTab >= -1; --nTab) {
        const int drawn = nTab >= 0 ? nTab : current;
        if (drawn < 0 || (nTab >= 0 && nTab == current))
            continue;
        const int depth = height + (drawn == current ? 1 : 0);
        DrawTabOutline(pDC, paint, m_BottomTabs.Trapezoid(spans[drawn], strip.top, depth));
        CRect textRect = m_BottomTabs.TextRect(spans[drawn], strip.top + (drawn == current ? 1 : 0), height);
        const bool enabled = IsWindowEnabled() && IsTabEnabled(drawn);
        DrawTabText(pDC, m_Items.Text(drawn), textRect, DT_CENTER | DT_VCENTER | DT_SINGLELINE, enabled);
        if (drawn == current && ::GetFocus() == m_hWnd) {
            textRect.DeflateRect(0, 2);
            pDC->DrawFocusRect(textRect);
        }
    }
    // The border between page and tabs, open where the current tab joins the page.
    if (tabs > 0) {
        const int right = spans[tabs - 1].right;
        const int gapLeft = current >= 0 ? spans[current].left : right;
        const int gapRight = current >= 0 ? spans[current].right + 1 : right;
        for (int row = 0; row < 2; ++row) {
            CPen& pen = row == 0 ? paint.black : paint.shadow;
            DrawLine(pDC, pen, CPoint(client.left, strip.top + row), CPoint(gapLeft + row, strip.top + row));
            DrawLine(pDC, pen, CPoint(gapRight - row, strip.top + row), CPoint(right + 1, strip.top + row));
        }
    }
    pDC->RestoreDC(saved);
}
