// kvTabNotebook: a tab control that owns one page window per tab and shows the
// current tab's page over its display area. The pages (typically modeless child
// dialogs) are siblings of the notebook, moved over it when their tab becomes
// current and hidden otherwise. Two styles, fixed at construction: the
// platform's tab control drawn by the notebook (tabs on top), or a plain window
// that keeps its own items and draws its tabs below the page.
#pragma once

#include "afx/CTabCtrl.h"
#include "library/kvWinExport.h"
#include "notebook/_kvBottomTabItems.h"
#include "notebook/kvBottomTabGeometry.h"

#include <memory>
#include <vector>

class kvTabPageButton;

class KVWIN_API kvTabNotebook : public CTabCtrl {
public:
    enum TabStyle { StandardTabs = 0, BottomTabs = 1 };

    explicit kvTabNotebook(TabStyle tabStyle);
    ~kvTabNotebook() override;

    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) override;
    void PreSubclassWindow() override;
    // Ctrl+Tab and Ctrl+Shift+Tab change pages wherever the focus is: a host
    // gives its pages' keys to the notebook first.
    BOOL PreTranslateMessage(MSG* pMsg) override;
    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override;

    // Adds a tab titled title (an "&" marks its mnemonic) for page, which may be
    // null; the first page added becomes current.
    void AddPage(CWnd* pPage, const CString& title);
    CWnd* GetPageWindow(unsigned short index) const;
    void SetPageWindow(unsigned short index, CWnd* pPage);
    TabStyle GetTabStyle() const { return m_TabStyle; }

protected:
    // The one path by which the user changes tabs: asks the parent
    // (TCN_SELCHANGING), switches and reports it (TCN_SELCHANGE).
    bool ChangePage(unsigned short index);
    void SwapDialogs(unsigned short index);
    void PositionPage(unsigned short index);
    // Keeps the page buttons beside the notebook in the sibling order: those up
    // to current before it, the others after it.
    void SetPageButtonZOrder(int current);

    int BottomTabGetHeight();
    double BottomTabGetOverlap();
    int BottomTabGetExtraWidth();
    int BottomTabDefaultTabWidth();
    int DoBottomTabHitTest(TCHITTESTINFO* pHitTestInfo);
    void DoBottomTabDraw(CDC* pDC);

    afx_msg LRESULT OnGetItemCount(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnGetItem(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnSetItem(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnInsertItem(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnDeleteItem(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnDeleteAllItems(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnGetItemRect(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnGetCurSel(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnSetCurSel(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnHitTest(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnAdjustRect(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnSetItemSize(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnSetPadding(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnGetRowCount(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnSetMinTabWidth(WPARAM wParam, LPARAM lParam);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg void OnShowWindow(BOOL bShow, UINT nStatus);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnMove(int x, int y);
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg UINT OnGetDlgCode();
    afx_msg LRESULT OnNcHitTestMessage(WPARAM wParam, LPARAM lParam);

    DECLARE_MESSAGE_MAP()

private:
    friend class kvTabPageButton;
    void OnPageButtonClicked(int nPage);

    int GetPageCount() const { return static_cast<int>(m_Pages.size()); }
    CWnd* CurrentPageWindow() const;
    // Ctrl+Tab's walk: each page in turn, wrapping around, until one is taken
    // or a refusal ends the walk.
    void CyclePages(int step);
    // The arrows' walk: no wrapping around.
    void StepPages(int step);
    void ShowCurrentPage(bool bShow);
    bool IsTabEnabled(int nTab) const;

    // The platform's answer in the standard style, bottomAnswer() in the bottom
    // style, otherStyles in any other.
    template <class BottomAnswer>
    LRESULT ByStyle(BottomAnswer bottomAnswer, LRESULT otherStyles = 0);

    // The bottom tabs are measured in the parent's font.
    HFONT ParentFont() const;
    void MeasureBottomTabs(std::vector<int>* pTextWidths);
    std::vector<CRect> BottomTabRects();

    std::vector<CWnd*> m_Pages;                                  // not owned; may hold null
    std::vector<std::unique_ptr<kvTabPageButton>> m_PageButtons;
    short m_nCurrentPage = -1;
    TabStyle m_TabStyle;
    kvBottomTabGeometry m_BottomTabs;
    _kvBottomTabItems m_Items;  // bottom style only
};
