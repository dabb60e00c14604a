// The calculator without a window: key sequences typed on the keypad's
// captions with the display each leaves, and the keypad's layout numbers.
#include "calculator/kvCalculatorKeypad.h"
#include "calculator/kvCalculatorState.h"

#include "formatting/kvNumericText.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using Keypad = kvCalculatorKeypad;

// Keys by caption; 's' is the sign key, 'b' backspace and 'f' the focus
// coming back, which have no caption.
struct Calculator {
    unsigned long flags = kvNumericSeparators;
    kvCalculatorState state;
    CString display = "0";

    void Type(const std::string& keys)
    {
        for (char key : keys) {
            if (key == 'f') {
                state.DropOperation();
                continue;
            }
            const int button = key == 's' ? Keypad::Sign : key == 'b' ? Keypad::Backspace
                                : key == 'C' ? Keypad::Clear : Keypad::ButtonForChar(static_cast<unsigned char>(key));
            ASSERT_GE(button, 0) << key;
            const bool result = state.Press(button, display);
            kvCalculatorState::Format(display, flags, result);
        }
    }
};

struct SequenceRow { const char* name; const char* keys; unsigned long flags; const char* display; };
const SequenceRow kSequences[] = {
    {"digits append, the leading zero goes", "0012", 1, "12"},
    {"separators placed while typing", "1234567", 1, "1,234,567"},
    {"a point twice shows one", "1..5", 1, "1.5"},
    {"a point on a fresh operand", "2+.5=", 1, "2.5"},
    {"addition", "12+3=", 1, "15"},
    {"a negative result in parentheses", "3-5=", 3, "(2)"},
    {"chaining left to right, no precedence", "2*3+4=", 1, "10"},
    {"an operator shows the running result", "5+3+", 1, "8"},
    {"equals after an operator adds the shown value to the kept operand", "5+3+=", 1, "13"},
    {"equals with nothing pending changes nothing", "5=", 1, "5"},
    {"equals does not repeat", "2+3==", 1, "5"},
    {"two operators in a row use the kept operand", "2+3=++", 1, "7"},
    {"an operator with no saved operand uses the initial one", "2+*", 1, "2"},
    {"dividing by zero shows 0", "8/0=", 1, "0"},
    {"one third to twelve decimals", "1/3=", 1, "0.333333333333"},
    {"a large result grouped", "1000*1000=", 1, "1,000,000"},
    {"backspace drops the last digit", "123b", 1, "12"},
    {"backspace ignored with an operator pending", "12+b", 1, "12"},
    {"backspace on a result", "12+3=b", 1, "1"},
    {"backspace of a parenthesised negative", "5s6b", 2, "(5)"},
    {"sign toggles", "5s", 1, "-5"},
    {"sign in parentheses", "5s", 3, "(5)"},
    {"sign flips a result", "2+3=s", 1, "-5"},
    {"a negative operand", "7-2s=", 1, "9"},
    {"clear shows 0 and drops the operator", "12+3C4=", 1, "4"},
    {"focus drops a half-entered operation", "12+f3=", 1, "123"},
};

TEST(Calculator, KeySequences)
{
    for (const SequenceRow& row : kSequences) {
        SCOPED_TRACE(row.name);
        Calculator calculator;
        calculator.flags = row.flags;
        calculator.Type(row.keys);
        EXPECT_STREQ(calculator.display, row.display) << row.keys;
    }
}

TEST(Calculator, CaptionsAndKeys)
{
    std::string captions;
    for (int button = 0; button < Keypad::kButtonCount; ++button)
        captions += Keypad::Caption(button);
    EXPECT_EQ(captions, "789/456*123-0.\xB1+C =");
    EXPECT_EQ(Keypad::Caption(19), '\0');

    // The typed keys run through the sequences; these are no keys.
    const std::pair<unsigned int, int> chars[] = {{',', 13}, {'C', -1}, {' ', -1}, {0xB1, -1}, {0, -1}, {'\r', -1}};
    for (const auto& [ch, button] : chars)
        EXPECT_EQ(Keypad::ButtonForChar(ch), button) << ch;
    const std::pair<unsigned int, int> keys[] = {{VK_BACK, 17}, {VK_RETURN, 18}, {VK_DELETE, 16}, {'A', -1}};
    for (const auto& [vk, button] : keys)
        EXPECT_EQ(Keypad::ButtonForKey(vk), button) << vk;
}

// Keys 15 high and 7 wide on average, a display font 13 high: edit height 17.
struct LayoutRow { const char* name; bool showMyEdit; int button; CRect rect; };
const LayoutRow kLayout[] = {
    {"first key below the edit", true, 0, CRect(7, 34, 28, 54)},
    {"fourth column", true, 3, CRect(85, 34, 106, 54)},
    {"second row", true, 4, CRect(7, 59, 28, 79)},
    {"backspace", true, 17, CRect(33, 134, 54, 154)},
    {"equals spans two columns", true, 18, CRect(59, 134, 106, 154)},
    {"without the edit the first row starts at 7", false, 0, CRect(7, 7, 28, 27)},
    {"equals without the edit", false, 18, CRect(59, 107, 106, 127)},
};

TEST(Calculator, Layout)
{
    Keypad keypad{15, 7, 17, true};
    for (const LayoutRow& row : kLayout) {
        SCOPED_TRACE(row.name);
        keypad.showMyEdit = row.showMyEdit;
        EXPECT_EQ(keypad.ButtonRect(row.button), row.rect);
    }
    keypad.showMyEdit = true;
    EXPECT_EQ(keypad.EditRect(), CRect(5, 5, 106, 29));
    EXPECT_EQ(keypad.MinReqRect(), CRect(0, 0, 114, 162));
    const std::pair<CPoint, int> hits[] = {{{7, 34}, 0}, {{27, 53}, 0}, {{28, 34}, -1}, {{105, 150}, 18},
                                           {{30, 40}, -1}, {{0, 0}, -1}};
    for (const auto& [point, button] : hits)
        EXPECT_EQ(keypad.ButtonAt(point), button) << point.x << "," << point.y;
}

}  // namespace
