// kvCalculatorKeypad: the calculator's key rectangles and key mapping.
#include "calculator/kvCalculatorKeypad.h"

#include "afx/WinTypes.h"

#include <cstring>

namespace {

constexpr char kCaptions[] = "789/456*123-0.\xB1+C =";
static_assert(sizeof kCaptions - 1 == kvCalculatorKeypad::kButtonCount, "one caption a button");

// Margins around the keys and the gaps between them, in pixels.
constexpr int kMargin = 7;
constexpr int kColumnGap = 5;
constexpr int kRowGap = 10;
constexpr int kEditGap = 10;
constexpr int kEditMargin = 5;
constexpr int kOuterMargin = 8;

}  // namespace

char kvCalculatorKeypad::Caption(int button)
{
    return button >= 0 && button < kButtonCount ? kCaptions[button] : '\0';
}

CRect kvCalculatorKeypad::ButtonRect(int button) const
{
    const int width = 3 * charWidth;
    const int row = button / 4, column = button % 4;
    const int left = (width + kColumnGap) * column + kMargin;
    const int right = left + (button == Equals ? 2 * width + kColumnGap : width);
    const int top = (textHeight + kRowGap) * row + kMargin + (showMyEdit ? editHeight + kEditGap : 0);
    return CRect(left, top, right, top + textHeight + 5);
}

CRect kvCalculatorKeypad::EditRect() const
{
    const CRect lastOfRow = ButtonRect(Divide);
    return CRect(kEditMargin, kEditMargin, lastOfRow.right, lastOfRow.top - kEditMargin);
}

CRect kvCalculatorKeypad::MinReqRect() const
{
    const CRect equals = ButtonRect(Equals);
    return CRect(0, 0, equals.right + kOuterMargin, equals.bottom + kOuterMargin);
}

int kvCalculatorKeypad::ButtonAt(CPoint point) const
{
    for (int button = 0; button < kButtonCount; ++button) {
        if (ButtonRect(button).PtInRect(point))
            return button;
    }
    return -1;
}

int kvCalculatorKeypad::ButtonForChar(unsigned int ch)
{
    // The sign and clear keys have no character; backspace's caption is a blank.
    if (ch == ',')
        return Point;
    if (ch == 0 || ch > 0x7F || ch == 'C' || ch == ' ')
        return -1;
    const char* found = std::strchr(kCaptions, static_cast<char>(ch));
    return found ? static_cast<int>(found - kCaptions) : -1;
}

int kvCalculatorKeypad::ButtonForKey(unsigned int vk)
{
    switch (vk) {
    case VK_BACK: return Backspace;
    case VK_RETURN: return Equals;
    case VK_DELETE: return Clear;
    default: return -1;
    }
}
