// What a hover button shows, decided without a window: the state it draws, the
// colours its special colour values stand for, the ink of its text, the inset of
// its focus rectangle and the size its content needs.
#pragma once

#include "afx/CSize.h"
#include "afx/CString.h"
#include "afx/WinTypes.h"
#include "library/kvWinExport.h"

// The states, as indexes of the per-state values; a state's mask bit is 1 << index.
enum kvHoverState : int { kvHoverNormal = 0, kvHoverHovering = 1, kvHoverDisabled = 2, kvHoverPushed = 3 };
constexpr int kvHoverStateCount = 4;

// Colour values beside the ordinary ones: the system's colour, and (for a
// background) no fill at all, so that the parent shows through.
constexpr COLORREF kvHoverColorDefault = 0xF0000000;
constexpr COLORREF kvHoverColorNone = 0xF1000000;

// The system colours the special values and the disabled look fall back on.
struct kvHoverSystemColors {
    COLORREF face;       // COLOR_BTNFACE
    COLORREF text;       // COLOR_BTNTEXT
    COLORREF highlight;  // COLOR_3DHILIGHT
    COLORREF shadow;     // COLOR_BTNSHADOW
};

// How the text is inked: embossed text is drawn in the highlight first, then in
// the final colour.
struct kvHoverInk {
    bool embossed;
    COLORREF color;
};

// Sets the value of every state whose mask bit is in mask.
template <typename Value>
void kvSetHoverStates(Value (&values)[kvHoverStateCount], unsigned long mask, Value value)
{
    for (int state = 0; state < kvHoverStateCount; ++state) {
        if ((mask & (1ul << state)) != 0)
            values[state] = value;
    }
}

// The state a button draws in.
KVWIN_API kvHoverState kvHoverDrawnState(bool enabled, bool buttonDown, bool hovering);

// A background value's fill; false when nothing is to be filled.
KVWIN_API bool kvHoverBackground(COLORREF value, const kvHoverSystemColors& system, COLORREF& fill);

// The ink of the text: the normal colour, the hovering one while hovered, the
// pushed one when drawn pushed; a special value is the system's text colour. A
// disabled button whose disabled colour is the default is embossed.
KVWIN_API kvHoverInk kvHoverTextInk(const COLORREF (&colors)[kvHoverStateCount], bool enabled, bool hovering,
                                    bool pushed, const kvHoverSystemColors& system);

// The focus rectangle keeps clear of a frame drawn in any state.
template <typename FrameStyle>
int kvHoverFocusInset(const FrameStyle (&frames)[kvHoverStateCount])
{
    for (const FrameStyle frame : frames) {
        if (frame != 0)
            return 3;
    }
    return 0;
}

// The text measured for the fit size: the caption as it shows when "&" is a
// mnemonic prefix, else the caption itself.
KVWIN_API CString kvHoverMeasuredCaption(const CString& caption, bool allowHotkey);

// The larger of the text and each bitmap in each direction, with a pixel of
// room on every side.
KVWIN_API CSize kvHoverFitSize(CSize text, const CSize* bitmaps, int count);
