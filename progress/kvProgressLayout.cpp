// kvProgressLayout: the progress window's rectangles.
#include "progress/kvProgressLayout.h"

namespace {

constexpr int kMargin = 10;

}  // namespace

CRect kvProgressLayout::MessageRect() const
{
    return CRect(kMargin, kMargin, kMargin + width, kMargin + textHeight);
}

CSize kvProgressLayout::ButtonSize() const
{
    const int buttonWidth = hasButton ? static_cast<int>(1.5 * (buttonText.cx + 4 * edge.cx)) : 0;
    return CSize(buttonWidth, buttonText.cy + 3 * edge.cy);
}

CRect kvProgressLayout::BarRect() const
{
    if (!hasBar)
        return CRect();
    const CRect message = MessageRect();
    const int top = message.bottom + kMargin;
    return CRect(message.left, top, message.right, top + ButtonSize().cy);
}

CRect kvProgressLayout::ButtonRect() const
{
    const CRect message = MessageRect();
    const CSize size = ButtonSize();
    const int left = message.Width() / 2 - size.cx / 2 + kMargin;
    const int top = (hasBar ? BarRect().bottom : message.bottom) + kMargin;
    return CRect(left, top, left + size.cx, top + size.cy);
}

CSize kvProgressLayout::ClientSize() const
{
    const CSize button = ButtonSize();
    const int barHeight = hasBar ? button.cy : 0;
    const int buttonRow = hasButton ? button.cy + kMargin : 0;
    return CSize(width + 2 * kMargin, textHeight + 3 * kMargin + barHeight + buttonRow);
}
