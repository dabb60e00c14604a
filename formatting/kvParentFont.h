// kvSetParentFont: the font rule of every control of the library: the parent's
// font, or the stock GUI font when the parent has none (a window created outside
// a dialog would otherwise draw with the system font).
#pragma once

#include "afx/CWnd.h"

inline void kvSetParentFont(CWnd* pControl, const CWnd* pParent)
{
    HGDIOBJ hFont = pParent != nullptr ? reinterpret_cast<HGDIOBJ>(pParent->SendMessage(WM_GETFONT)) : nullptr;
    if (hFont == nullptr)
        hFont = ::GetStockObject(DEFAULT_GUI_FONT);
    pControl->SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(hFont), TRUE);
}
