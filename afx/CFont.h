// CFont: a GDI font.
#pragma once

#include "afx/CGdiObject.h"

class CDC;

class AFX_API CFont : public CGdiObject {
public:
    CFont() noexcept = default;

    static CFont* FromHandle(HFONT hFont);

    BOOL CreateFontIndirect(const LOGFONT* lpLogFont);
    BOOL CreateFont(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight,
                    BYTE bItalic, BYTE bUnderline, BYTE cStrikeOut, BYTE nCharSet,
                    BYTE nOutPrecision, BYTE nClipPrecision, BYTE nQuality, BYTE nPitchAndFamily,
                    LPCTSTR lpszFacename);
    // nPointSize is in tenths of a point, converted to logical units of pDC
    // (the screen when pDC is null).
    BOOL CreatePointFont(int nPointSize, LPCTSTR lpszFaceName, CDC* pDC = nullptr);
    // The same from a LOGFONT whose lfHeight is in tenths of a point.
    BOOL CreatePointFontIndirect(const LOGFONT* lpLogFont, CDC* pDC = nullptr);

    int GetLogFont(LOGFONT* pLogFont) const;

    operator HFONT() const noexcept { return static_cast<HFONT>(m_hObject); }
};
