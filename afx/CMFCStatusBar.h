// CMFCStatusBar: the status bar of the framework's newer frames. It offers the
// status line's operations under the same names (panes by indicator id, their
// rectangles and texts), so here it is that status line.
#pragma once

#include "afx/CStatusBar.h"

class CMFCStatusBar : public CStatusBar {
public:
    CMFCStatusBar() = default;
};
