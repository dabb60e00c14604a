// CButton: the native button control ("BUTTON"). An owner-drawn button
// (BS_OWNERDRAW) draws itself: its parent's WM_DRAWITEM is reflected to DrawItem.
#pragma once

#include "afx/CWnd.h"

class AFX_API CButton : public CWnd {
public:
    CButton() = default;

    virtual BOOL Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                        UINT nID);

    UINT GetState() const;
    void SetState(BOOL bHighlight);
    int GetCheck() const;
    void SetCheck(int nCheck);
    // The BS_ type bits of the window style.
    UINT GetButtonStyle() const;
    void SetButtonStyle(UINT nStyle, BOOL bRedraw = TRUE);

    // Owner-drawn buttons override this; the default draws nothing.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    DECLARE_MESSAGE_MAP()
};
