// kvCalculatorKeypad: where the calculator's 19 keys lie and which key a
// character, a virtual key or a point stands for. Four keys a row, the "=" key
// two wide; the rows start below the display edit when the control shows its
// own. Pure arithmetic on the font metrics, so that the window only measures.
#pragma once

#include "afx/CPoint.h"
#include "afx/CRect.h"
#include "library/kvWinExport.h"

struct KVWIN_API kvCalculatorKeypad {
    static constexpr int kButtonCount = 19;
    enum Button {
        Divide = 3, Multiply = 7, Subtract = 11, Zero = 12, Point = 13, Sign = 14, Add = 15,
        Clear = 16, Backspace = 17, Equals = 18,
    };

    int textHeight = 0;     // tmHeight of the key font
    int charWidth = 0;      // tmAveCharWidth of the key font
    int editHeight = 0;     // tmHeight of the display font + 4
    bool showMyEdit = true;

    // The caption of a button: "789/456*123-0.", the plus-minus sign, "+C =".
    static char Caption(int button);
    CRect ButtonRect(int button) const;
    // The own display edit: above the keys, as wide as the first row.
    CRect EditRect() const;
    // Room for every key with a margin of 8 right and below.
    CRect MinReqRect() const;
    // The first button (lowest index) holding the point, or -1.
    int ButtonAt(CPoint point) const;

    // The button a typed character presses, or -1.
    static int ButtonForChar(unsigned int ch);
    // The button a key press stands for (Backspace, Enter, Delete), or -1.
    static int ButtonForKey(unsigned int vk);
};
