// kvProgressBarState: position, range and the filled share of the text bar.
#include "progress/kvProgressBarState.h"

#include <algorithm>
#include <climits>

int kvProgressBarState::SetPos(int newPos)
{
    if (newPos > upper)
        upper = newPos;
    if (newPos < lower)
        lower = newPos;
    const int previous = pos;
    pos = newPos;
    return previous;
}

// In whole numbers, so that 29 of 100 is 29 percent and not 28.999.
long long kvProgressBarState::Share(long long value) const
{
    const long long span = static_cast<long long>(upper) - lower;
    return span == 0 ? 0 : value * pos / span;
}

int kvProgressBarState::FilledWidth(int width) const { return static_cast<int>(Share(width)); }

CString kvProgressBarState::PercentText() const
{
    CString text;
    const long long percent = std::clamp<long long>(Share(100), INT_MIN, INT_MAX);
    text.Format("%d%%", static_cast<int>(percent));
    return text;
}

bool kvProgressBarState::NeedsRepaint() const
{
    return filledWidth < 0 || FilledWidth(clientWidth) != filledWidth;
}

CPoint kvProgressBarState::CenteredOrigin(CSize client, CSize text)
{
    return CPoint(client.cx / 2 - text.cx / 2, client.cy / 2 - text.cy / 2);
}
