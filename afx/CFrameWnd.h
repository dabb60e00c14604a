// CFrameWnd: an application's main window: a top-level frame with an optional
// status bar (the child with id AFX_IDW_STATUS_BAR) kept at its bottom, and an
// optional view (AFX_IDW_PANE_FIRST) filling the rest. Create it with new: it
// deletes itself when its window is destroyed, as framework frames do.
#pragma once

#include "afx/AfxExport.h"
#include "afx/CWnd.h"

#define AFX_IDW_STATUS_BAR 0xE801
#define AFX_IDW_PANE_FIRST 0xE900

class AFX_API CFrameWnd : public CWnd {
public:
    static const CRect rectDefault;

    CFrameWnd() = default;

    virtual BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName,
                        DWORD dwStyle = WS_OVERLAPPEDWINDOW, const RECT& rect = rectDefault,
                        CWnd* pParentWnd = nullptr, LPCTSTR lpszMenuName = nullptr,
                        DWORD dwExStyle = 0, void* pContext = nullptr);

    // Places the status bar along the bottom and the view in the rest.
    virtual void RecalcLayout(BOOL bNotify = TRUE);
    // Shows text in the status bar's first pane.
    void SetMessageText(LPCTSTR lpszText);
    void SetMessageText(UINT nID);
    virtual CWnd* GetMessageBar();

    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    void PostNcDestroy() override;

protected:
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnSetFocus(CWnd* pOldWnd);

    DECLARE_MESSAGE_MAP()
};
