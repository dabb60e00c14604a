// _kvControlColors: the text colour, background colour and background brush
// that the library's edit and list controls paint with, and their answer to the
// reflected colour message. Which colour kinds a control takes is its own rule.
#pragma once

#include "afx/CBrush.h"
#include "library/kvWinExport.h"

class CDC;
class CWnd;

class KVWIN_API _kvControlColors {
public:
    // The kinds a control colours, as a set of bits: KindBit(CTLCOLOR_EDIT) | ...
    static constexpr UINT KindBit(UINT nCtlColor) { return 1u << nCtlColor; }

    // The system's window text and window colours.
    _kvControlColors();
    _kvControlColors(const _kvControlColors&) = delete;
    _kvControlColors& operator=(const _kvControlColors&) = delete;

    COLORREF GetTextColor() const { return m_crText; }
    COLORREF GetBkColor() const { return m_crBk; }
    // Each setter repaints the control when the colour changes and the window exists.
    void SetTextColor(CWnd& control, COLORREF crText);
    void SetBkColor(CWnd& control, COLORREF crBk);

    // For the kinds in the set: the DC takes both colours and the brush is the
    // answer. Null for every other kind, so that the parent decides.
    HBRUSH CtlColor(CDC* pDC, UINT nCtlColor, UINT kinds) const;

private:
    COLORREF m_crText;
    COLORREF m_crBk;
    CBrush m_brBk;
};
