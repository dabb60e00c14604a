// CPalette: a GDI logical palette.
#pragma once

#include "afx/CGdiObject.h"

class AFX_API CPalette : public CGdiObject {
public:
    CPalette() noexcept = default;

    static CPalette* FromHandle(HPALETTE hPalette);

    BOOL CreatePalette(LPLOGPALETTE lpLogPalette);
    int GetEntryCount() const;
    UINT GetPaletteEntries(UINT nStartIndex, UINT nNumEntries, LPPALETTEENTRY lpPaletteColors) const;

    operator HPALETTE() const noexcept { return static_cast<HPALETTE>(m_hObject); }
};
