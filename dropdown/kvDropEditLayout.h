// kvDropEditLayout: where a drop edit puts its button, its right margin and the
// formatting rectangle that centres its one line of text, from the field's
// client size, the button width and the font height alone.
#pragma once

#include "afx/CRect.h"
#include "library/kvWinExport.h"

class KVWIN_API kvDropEditLayout {
public:
    // The three looks of the button.
    enum Look { ThreeD, FlatBordered, FlatBorderless };

    // buttonWidth is already resolved (no -1).
    static kvDropEditLayout For(Look look, int width, int height, int buttonWidth, int fontHeight);

    CRect button;     // in the field's client coordinates
    int leftMargin;
    int rightMargin;
    CRect format;     // the formatting rectangle
};
