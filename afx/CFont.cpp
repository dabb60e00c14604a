// CFont: a GDI font.
#include "afx/CFont.h"

#include "afx/CDC.h"

#include <cstdlib>
#include <cstring>

namespace {

// The height of a font of the given size in tenths of a point, in the logical
// units of hDC: 720 tenths of a point make one inch of LOGPIXELSY device pixels.
LONG LogicalHeightOfPointSize(HDC hDC, int nPointSize)
{
    POINT pt{0, ::MulDiv(::GetDeviceCaps(hDC, LOGPIXELSY), nPointSize, 720)};
    POINT origin{0, 0};
    ::DPtoLP(hDC, &pt, 1);
    ::DPtoLP(hDC, &origin, 1);
    return -std::labs(pt.y - origin.y);
}

}  // namespace

CFont* CFont::FromHandle(HFONT hFont) { return static_cast<CFont*>(CGdiObject::FromHandle(hFont)); }

BOOL CFont::CreateFontIndirect(const LOGFONT* lpLogFont)
{
    return Attach(::CreateFontIndirect(lpLogFont));
}

BOOL CFont::CreateFont(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight,
                       BYTE bItalic, BYTE bUnderline, BYTE cStrikeOut, BYTE nCharSet,
                       BYTE nOutPrecision, BYTE nClipPrecision, BYTE nQuality,
                       BYTE nPitchAndFamily, LPCTSTR lpszFacename)
{
    return Attach(::CreateFont(nHeight, nWidth, nEscapement, nOrientation, nWeight, bItalic,
                               bUnderline, cStrikeOut, nCharSet, nOutPrecision, nClipPrecision,
                               nQuality, nPitchAndFamily, lpszFacename));
}

BOOL CFont::CreatePointFont(int nPointSize, LPCTSTR lpszFaceName, CDC* pDC)
{
    LOGFONT logFont{};
    logFont.lfCharSet = DEFAULT_CHARSET;
    if (lpszFaceName != nullptr)
        std::strncpy(logFont.lfFaceName, lpszFaceName, LF_FACESIZE - 1);
    logFont.lfHeight = nPointSize;
    return CreatePointFontIndirect(&logFont, pDC);
}

BOOL CFont::CreatePointFontIndirect(const LOGFONT* lpLogFont, CDC* pDC)
{
    LOGFONT logFont = *lpLogFont;
    HDC hDC = pDC != nullptr ? pDC->GetSafeHdc() : ::GetDC(nullptr);
    logFont.lfHeight = LogicalHeightOfPointSize(hDC, lpLogFont->lfHeight);
    if (pDC == nullptr)
        ::ReleaseDC(nullptr, hDC);
    return CreateFontIndirect(&logFont);
}

int CFont::GetLogFont(LOGFONT* pLogFont) const { return GetObject(sizeof(LOGFONT), pLogFont); }
