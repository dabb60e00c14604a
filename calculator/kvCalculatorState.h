// kvCalculatorState: the calculator's arithmetic. It works on the display text
// alone plus the pending operator, the saved left operand and whether the
// second operand's entry has begun; the display lives in the edit, not here.
// Operators complete the previous one (left to right, no precedence), "=" does
// not repeat, and dividing by zero gives 0.
#pragma once

#include "afx/CString.h"
#include "library/kvWinExport.h"

struct KVWIN_API kvCalculatorState {
    enum Operator { Divide = 0, Multiply = 1, Subtract = 2, Add = 3, None = 4 };

    int decimalPlaces = 12;
    int pendingOperator = None;
    double leftOperand = 0.0;
    bool operandStarted = false;

    // Applies a key (a kvCalculatorKeypad button) to the display text; true when
    // the text is now a computed result.
    bool Press(int button, CString& text);
    // Focus coming back drops an operation half entered.
    void DropOperation();
    // The first digit after an operator starts a fresh number; the displayed
    // one becomes the left operand.
    void SaveValue(CString& text);
    // The pending operation on the left operand and the display, in fixed
    // notation with decimalPlaces digits.
    void Calculate(CString& text) const;

    // The display form of a text: separators and negative style from the
    // flags of FormatNumeric; a computed result loses its trailing zeros.
    static void Format(CString& text, unsigned long flags, bool result);
};
