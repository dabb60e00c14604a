#include "buttons/kvHoverLook.h"

#include "buttons/kvButtonText.h"

#include <algorithm>

namespace {

bool IsSpecial(COLORREF value) { return value == kvHoverColorDefault || value == kvHoverColorNone; }

constexpr int kFitMargin = 2;

}  // namespace

kvHoverState kvHoverDrawnState(bool enabled, bool buttonDown, bool hovering)
{
    if (!enabled)
        return kvHoverDisabled;
    if (hovering)
        return buttonDown ? kvHoverPushed : kvHoverHovering;
    return kvHoverNormal;
}

bool kvHoverBackground(COLORREF value, const kvHoverSystemColors& system, COLORREF& fill)
{
    if (value == kvHoverColorNone)
        return false;
    fill = value == kvHoverColorDefault ? system.face : value;
    return true;
}

kvHoverInk kvHoverTextInk(const COLORREF (&colors)[kvHoverStateCount], bool enabled, bool hovering, bool pushed,
                          const kvHoverSystemColors& system)
{
    if (!enabled && colors[kvHoverDisabled] == kvHoverColorDefault)
        return {true, system.shadow};
    COLORREF color = colors[kvHoverNormal];
    if (hovering)
        color = colors[kvHoverHovering];
    if (pushed)
        color = colors[kvHoverPushed];
    return {false, IsSpecial(color) ? system.text : color};
}

CString kvHoverMeasuredCaption(const CString& caption, bool allowHotkey)
{
    return allowHotkey ? kvRemoveAmpersand(caption.GetString()) : caption;
}

CSize kvHoverFitSize(CSize text, const CSize* bitmaps, int count)
{
    CSize fit = text;
    for (int i = 0; bitmaps != nullptr && i < count; ++i) {
        fit.cx = std::max(fit.cx, bitmaps[i].cx);
        fit.cy = std::max(fit.cy, bitmaps[i].cy);
    }
    return CSize(fit.cx + kFitMargin, fit.cy + kFitMargin);
}
