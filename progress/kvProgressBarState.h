// kvProgressBarState: the text progress bar's numbers. The filled share is the
// position over the span of the range, the lower bound deliberately not
// subtracted from the position; a position outside the range widens it. The
// bar repaints only when the filled width in pixels changes, so that a long
// run of small steps costs no drawing.
#pragma once

#include "afx/CPoint.h"
#include "afx/CSize.h"
#include "afx/CString.h"
#include "library/kvWinExport.h"

struct KVWIN_API kvProgressBarState {
    int pos = 0;
    int step = 10;
    int upper = 100;
    int lower = 0;
    int filledWidth = -1;       // as last drawn; -1 before the first drawing
    int clientWidth = -1;       // as last drawn

    // Stores the position, widening the range to hold it; returns the previous one.
    int SetPos(int newPos);
    // The filled part of a client width; 0 for an empty range.
    int FilledWidth(int width) const;
    // "%d%%" of the filled share, truncated.
    CString PercentText() const;
    bool NeedsRepaint() const;
    // The percentage is centred: half the client less half the text.
    static CPoint CenteredOrigin(CSize client, CSize text);

private:
    // value times the filled share, truncated toward zero.
    long long Share(long long value) const;
};
