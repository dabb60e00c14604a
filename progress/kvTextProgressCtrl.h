// kvTextProgressCtrl: a progress bar that draws its own fill with the
// percentage, or the caller's text (its window text), over it: the text in
// the highlight colours on the filled part and in the menu colours on the rest.
#pragma once

#include "afx/CFont.h"
#include "afx/CProgressCtrl.h"
#include "library/kvWinExport.h"
#include "progress/kvProgressBarState.h"

class KVWIN_API kvTextProgressCtrl : public CProgressCtrl {
public:
    kvTextProgressCtrl();

    // Stores the bounds without repainting.
    void SetRange(int nLower, int nUpper);
    // Each returns the previous position; -1 when the bar has no window.
    int SetPos(int nPos);
    int OffsetPos(int nPos);
    int StepIt();
    int GetPos() const;
    // Returns the previous step.
    int SetStep(int nStep);

protected:
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnSysColorChange();
    afx_msg LRESULT OnSetText(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnGetText(WPARAM wParam, LPARAM lParam);

    DECLARE_MESSAGE_MAP()

private:
    void _LoadColors();

    CFont m_Font;
    kvProgressBarState m_State;
    CString m_strText;
    COLORREF m_crText = 0;
    COLORREF m_crBackground = 0;
    COLORREF m_crFilledText = 0;
    COLORREF m_crFilledBackground = 0;
};
