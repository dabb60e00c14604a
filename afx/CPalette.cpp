// CPalette: a GDI logical palette.
#include "afx/CPalette.h"

#include <cassert>

CPalette* CPalette::FromHandle(HPALETTE hPalette)
{
    return static_cast<CPalette*>(CGdiObject::FromHandle(hPalette));
}

BOOL CPalette::CreatePalette(LPLOGPALETTE lpLogPalette) { return Attach(::CreatePalette(lpLogPalette)); }

int CPalette::GetEntryCount() const
{
    WORD nEntries = 0;
    GetObject(sizeof(nEntries), &nEntries);
    return nEntries;
}

UINT CPalette::GetPaletteEntries(UINT nStartIndex, UINT nNumEntries,
                                 LPPALETTEENTRY lpPaletteColors) const
{
    assert(m_hObject != nullptr);
    return ::GetPaletteEntries(*this, nStartIndex, nNumEntries, lpPaletteColors);
}
