// kvProgressLayout: where the progress window puts its message, bar and button
// for a message area of a given width and measured height: 10 pixels of margin
// and gap, the bar as tall as the button, the button centred under the bar.
#pragma once

#include "afx/CRect.h"
#include "afx/CSize.h"
#include "library/kvWinExport.h"

struct KVWIN_API kvProgressLayout {
    // What the window measures.
    int width = 0;              // of the message area
    int textHeight = 0;         // of the message's lines, measured in the font
    CSize buttonText;           // extent of the longest caption, "Cancel"
    CSize edge;                 // SM_CXEDGE, SM_CYEDGE
    bool hasBar = true;
    bool hasButton = true;

    CRect MessageRect() const;
    // Its height is the button's even when there is no button.
    CRect BarRect() const;
    CRect ButtonRect() const;
    CSize ClientSize() const;

private:
    CSize ButtonSize() const;
};
