// CStatusBar: a frame's status line on the common-controls status window: a
// row of panes, each known by an indicator id. A pane of id ID_SEPARATOR has no
// text of its own; when it is the first pane it takes the width the others
// leave, so that they stay right-aligned. Every other pane shows the string
// resource of its id and is as wide as that text.
#pragma once

#include "afx/CFrameWnd.h"
#include "afx/CWnd.h"

#include <commctrl.h>

#include <vector>

#ifndef ID_SEPARATOR
#define ID_SEPARATOR 0
#endif

class AFX_API CStatusBar : public CWnd {
public:
    CStatusBar() = default;

    virtual BOOL Create(CWnd* pParentWnd, DWORD dwStyle = WS_CHILD | WS_VISIBLE | CCS_BOTTOM,
                        UINT nID = AFX_IDW_STATUS_BAR);

    // FALSE when the string resource of an indicator is missing.
    BOOL SetIndicators(const UINT* lpIDArray, int nIDCount);
    // -1 when no pane has the id.
    int CommandToIndex(UINT nIDFind) const;
    UINT GetItemID(int nIndex) const;
    void GetItemRect(int nIndex, LPRECT lpRect) const;

    // The status window repaints the pane at once, whatever bUpdate says.
    BOOL SetPaneText(int nIndex, LPCTSTR lpszNewText, BOOL bUpdate = TRUE);
    CString GetPaneText(int nIndex) const;
    void GetPaneText(int nIndex, CString& rString) const;

protected:
    afx_msg void OnSize(UINT nType, int cx, int cy);

    DECLARE_MESSAGE_MAP()

private:
    struct Pane {
        UINT nID;
        int cxWidth;
    };

    int TextWidth(const CString& text);
    void LayOutPanes();

    std::vector<Pane> m_panes;
};
