// CToolTipCtrl: the common-controls tool tip window. Tools are windows (nIDTool
// 0: the window itself) or rectangles of a window (nIDTool non-zero); the owner
// feeds it the mouse messages with RelayEvent.
#pragma once

#include "afx/CWnd.h"

#include <commctrl.h>

class AFX_API CToolTipCtrl : public CWnd {
public:
    CToolTipCtrl() = default;

    virtual BOOL Create(CWnd* pParentWnd, DWORD dwStyle = 0);

    BOOL AddTool(CWnd* pWnd, LPCTSTR lpszText = LPSTR_TEXTCALLBACK, LPCRECT lpRectTool = nullptr,
                 UINT_PTR nIDTool = 0);
    void DelTool(CWnd* pWnd, UINT_PTR nIDTool = 0);
    void UpdateTipText(LPCTSTR lpszText, CWnd* pWnd, UINT_PTR nIDTool = 0);
    void Activate(BOOL bActivate);
    void RelayEvent(LPMSG lpMsg);
    void SetDelayTime(UINT nDelay);

private:
    TOOLINFO ToolInfo(CWnd* pWnd, UINT_PTR nIDTool) const;
};
