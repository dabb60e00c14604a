// kvDropEditLayout: the drop button's placement and the text's rectangle.
#include "dropdown/kvDropEditLayout.h"

#include <algorithm>

kvDropEditLayout kvDropEditLayout::For(Look look, int width, int height, int buttonWidth, int fontHeight)
{
    kvDropEditLayout layout;
    // A bordered flat button stays inside the border; a borderless one takes
    // the whole right end; the 3-D one sits against the sunken edge.
    switch (look) {
    case FlatBordered:
        layout.button = CRect(CPoint(std::max(width - buttonWidth - 1, 1), 1), CSize(buttonWidth, height - 2));
        break;
    case FlatBorderless:
        layout.button = CRect(CPoint(std::max(width - buttonWidth + 1, 0), 0), CSize(buttonWidth, height));
        break;
    case ThreeD:
        layout.button = CRect(CPoint(std::max(width - buttonWidth, 1), 0), CSize(buttonWidth, height));
        break;
    }
    layout.leftMargin = 0;
    layout.rightMargin = buttonWidth + 1;
    const int top = (height - fontHeight - 1) / 2;
    layout.format = CRect(2, top, width - buttonWidth - 3, top + fontHeight);
    return layout;
}
