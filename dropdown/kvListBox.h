// kvListBox: the native list box with the library's colours, font and
// control context menu.
#pragma once

#include "afx/CListBox.h"
#include "formatting/_kvControlColors.h"
#include "library/kvWinExport.h"

class KVWIN_API kvListBox : public CListBox {
public:
    // With the parent's font.
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) override;
    void SetTextColor(COLORREF crText) { m_Colors.SetTextColor(*this, crText); }
    void SetBkColor(COLORREF crBk) { m_Colors.SetBkColor(*this, crBk); }

protected:
    afx_msg void OnContextMenu(CWnd* pWnd, CPoint point);
    afx_msg HBRUSH CtlColor(CDC* pDC, UINT nCtlColor);

    DECLARE_MESSAGE_MAP()

private:
    _kvControlColors m_Colors;
};
