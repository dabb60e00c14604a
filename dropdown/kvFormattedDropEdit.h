// kvFormattedDropEdit: a drop edit whose typing, pasting, text set from outside,
// entry and verification are its formatter's, as in kvEdit; the fields with a
// popup that picks or works out a value (a date, an amount) stand on it.
#pragma once

#include "dropdown/kvDropEditBase.h"
#include "library/kvWinExport.h"

class KVWIN_API kvFormattedDropEdit : public kvDropEditBase {
protected:
    void OnSetFocus(CWnd* pOldWnd) override;
    void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags) override;
    afx_msg LRESULT OnVerify(WPARAM wParam, LPARAM lParam);

    DECLARE_MESSAGE_MAP()
};
