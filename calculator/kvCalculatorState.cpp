// kvCalculatorState: the calculator's key rules on the display text.
#include "calculator/kvCalculatorState.h"

#include "calculator/kvCalculatorKeypad.h"
#include "formatting/kvNumericText.h"

namespace {

using Keypad = kvCalculatorKeypad;

int OperatorOf(int button)
{
    switch (button) {
    case Keypad::Divide: return kvCalculatorState::Divide;
    case Keypad::Multiply: return kvCalculatorState::Multiply;
    case Keypad::Subtract: return kvCalculatorState::Subtract;
    case Keypad::Add: return kvCalculatorState::Add;
    default: return kvCalculatorState::None;
    }
}

// The sign key flips whatever is shown, a result too.
void ToggleSign(CString& text)
{
    ConvertParenNegative(text);
    if (text.Find('-') < 0)
        text.Insert(0, '-');
    else
        text.Delete(0);
}

}  // namespace

bool kvCalculatorState::Press(int button, CString& text)
{
    const int op = OperatorOf(button);
    if (op != None || button == Keypad::Equals) {
        Calculate(text);
        operandStarted = false;
        pendingOperator = op;
        return true;
    }
    switch (button) {
    case Keypad::Point:
        SaveValue(text);
        if (text.Find('.') < 0)
            text += '.';
        break;
    case Keypad::Sign:
        ToggleSign(text);
        break;
    case Keypad::Clear:
        text = "0";
        DropOperation();
        break;
    case Keypad::Backspace:
        // With an operator pending the display is an operand already taken.
        if (pendingOperator == None && !text.IsEmpty()) {
            ConvertParenNegative(text);
            text.Delete(text.GetLength() - 1);
        }
        break;
    default:
        if (button >= 0 && button < Keypad::kButtonCount) {
            SaveValue(text);
            text += Keypad::Caption(button);
        }
        break;
    }
    return false;
}

void kvCalculatorState::DropOperation()
{
    pendingOperator = None;
    operandStarted = false;
}

void kvCalculatorState::SaveValue(CString& text)
{
    if (pendingOperator == None || operandStarted)
        return;
    operandStarted = true;
    leftOperand = DoubleValue(text);
    text.Empty();
}

void kvCalculatorState::Calculate(CString& text) const
{
    if (pendingOperator == None)
        return;
    const double x = DoubleValue(text);
    double result = 0.0;
    switch (pendingOperator) {
    case Divide: result = x == 0.0 ? 0.0 : leftOperand / x; break;
    case Multiply: result = x * leftOperand; break;
    case Subtract: result = leftOperand - x; break;
    default: result = x + leftOperand; break;
    }
    CString format;
    format.Format("%%.%df", decimalPlaces);
    text.Format(format, result);
}

void kvCalculatorState::Format(CString& text, unsigned long flags, bool result)
{
    FormatNumeric(text, -1, flags, result);
}
