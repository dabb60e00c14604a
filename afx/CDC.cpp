// CDC: a device context and its drawing operations.
#include "afx/CDC.h"

#include "afx/CBitmap.h"
#include "afx/CBrush.h"
#include "afx/CFont.h"
#include "afx/CHandleMap.h"
#include "afx/CPalette.h"
#include "afx/CPen.h"
#include "afx/CRgn.h"

#include <cassert>
#include <memory>

namespace {

std::unique_ptr<CDC> MakeTemporary(HDC) { return std::make_unique<CDC>(); }

using DCHandleMap = CHandleMap<CDC, HDC, &CDC::m_hDC>;

DCHandleMap& ThreadMap() { return DCHandleMap::OfThisThread(MakeTemporary); }

// A null object pointer stands for "no object", as everywhere in the framework.
HGDIOBJ HandleOf(const CGdiObject* pObject) { return pObject != nullptr ? pObject->m_hObject : nullptr; }

CGdiObject* SelectGdiObject(HDC hDC, HGDIOBJ hObject)
{
    assert(hDC != nullptr);
    return CGdiObject::FromHandle(::SelectObject(hDC, hObject));
}

}  // namespace

CDC::~CDC()
{
    if (m_hDC != nullptr)
        ::DeleteDC(Detach());
}

CDC* CDC::FromHandle(HDC hDC) { return ThreadMap().FromHandle(hDC); }

void CDC::DeleteTempMap() noexcept { ThreadMap().DeleteTemp(); }

BOOL CDC::Attach(HDC hDC)
{
    assert(m_hDC == nullptr);
    if (hDC == nullptr)
        return FALSE;
    m_hDC = hDC;
    ThreadMap().SetPermanent(hDC, this);
    return TRUE;
}

HDC CDC::Detach()
{
    HDC hDC = m_hDC;
    if (hDC != nullptr)
        ThreadMap().RemoveHandle(hDC);
    m_hDC = nullptr;
    return hDC;
}

BOOL CDC::CreateCompatibleDC(CDC* pDC)
{
    return Attach(::CreateCompatibleDC(pDC != nullptr ? pDC->m_hDC : nullptr));
}

BOOL CDC::DeleteDC()
{
    if (m_hDC == nullptr)
        return FALSE;
    return ::DeleteDC(Detach());
}

int CDC::SaveDC() { return ::SaveDC(m_hDC); }

BOOL CDC::RestoreDC(int nSavedDC) { return ::RestoreDC(m_hDC, nSavedDC); }

int CDC::GetDeviceCaps(int nIndex) const { return ::GetDeviceCaps(m_hDC, nIndex); }

// --- Objects ---------------------------------------------------------------

CPen* CDC::SelectObject(CPen* pPen) { return static_cast<CPen*>(SelectGdiObject(m_hDC, HandleOf(pPen))); }

CBrush* CDC::SelectObject(CBrush* pBrush)
{
    return static_cast<CBrush*>(SelectGdiObject(m_hDC, HandleOf(pBrush)));
}

CFont* CDC::SelectObject(CFont* pFont) { return static_cast<CFont*>(SelectGdiObject(m_hDC, HandleOf(pFont))); }

CBitmap* CDC::SelectObject(CBitmap* pBitmap)
{
    return static_cast<CBitmap*>(SelectGdiObject(m_hDC, HandleOf(pBitmap)));
}

int CDC::SelectObject(CRgn* pRgn)
{
    assert(m_hDC != nullptr);
    return static_cast<int>(reinterpret_cast<INT_PTR>(::SelectObject(m_hDC, HandleOf(pRgn))));
}

CGdiObject* CDC::SelectObject(CGdiObject* pObject) { return SelectGdiObject(m_hDC, HandleOf(pObject)); }

CGdiObject* CDC::SelectStockObject(int nIndex) { return SelectGdiObject(m_hDC, ::GetStockObject(nIndex)); }

CPalette* CDC::SelectPalette(CPalette* pPalette, BOOL bForceBackground)
{
    assert(m_hDC != nullptr);
    HPALETTE hPalette = static_cast<HPALETTE>(HandleOf(pPalette));
    return CPalette::FromHandle(::SelectPalette(m_hDC, hPalette, bForceBackground));
}

UINT CDC::RealizePalette() { return ::RealizePalette(m_hDC); }

// --- Text ------------------------------------------------------------------

COLORREF CDC::SetTextColor(COLORREF crColor) { return ::SetTextColor(m_hDC, crColor); }

COLORREF CDC::GetTextColor() const { return ::GetTextColor(m_hDC); }

COLORREF CDC::SetBkColor(COLORREF crColor) { return ::SetBkColor(m_hDC, crColor); }

COLORREF CDC::GetBkColor() const { return ::GetBkColor(m_hDC); }

int CDC::SetBkMode(int nBkMode) { return ::SetBkMode(m_hDC, nBkMode); }

int CDC::GetBkMode() const { return ::GetBkMode(m_hDC); }

BOOL CDC::TextOut(int x, int y, LPCTSTR lpszString, int nCount)
{
    return ::TextOut(m_hDC, x, y, lpszString, nCount);
}

BOOL CDC::TextOut(int x, int y, const CString& str) { return TextOut(x, y, str, str.GetLength()); }

BOOL CDC::ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, LPCTSTR lpszString, UINT nCount,
                     LPINT lpDxWidths)
{
    return ::ExtTextOut(m_hDC, x, y, nOptions, lpRect, lpszString, nCount, lpDxWidths);
}

int CDC::DrawText(LPCTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat)
{
    return ::DrawText(m_hDC, lpszString, nCount, lpRect, nFormat);
}

int CDC::DrawText(const CString& str, LPRECT lpRect, UINT nFormat)
{
    return DrawText(str, str.GetLength(), lpRect, nFormat);
}

BOOL CDC::GrayString(CBrush* pBrush, BOOL(CALLBACK* lpfnOutput)(HDC, LPARAM, int), LPARAM lpData,
                     int nCount, int x, int y, int nWidth, int nHeight)
{
    return ::GrayString(m_hDC, static_cast<HBRUSH>(HandleOf(pBrush)), lpfnOutput, lpData, nCount, x,
                        y, nWidth, nHeight);
}

CSize CDC::GetTextExtent(LPCTSTR lpszString, int nCount) const
{
    SIZE size{0, 0};
    ::GetTextExtentPoint32(m_hDC, lpszString, nCount, &size);
    return size;
}

CSize CDC::GetTextExtent(const CString& str) const { return GetTextExtent(str, str.GetLength()); }

BOOL CDC::GetTextMetrics(LPTEXTMETRIC lpMetrics) const { return ::GetTextMetrics(m_hDC, lpMetrics); }

// --- Lines and shapes ------------------------------------------------------

CPoint CDC::MoveTo(int x, int y)
{
    POINT previous{0, 0};
    ::MoveToEx(m_hDC, x, y, &previous);
    return previous;
}

BOOL CDC::LineTo(int x, int y) { return ::LineTo(m_hDC, x, y); }

void CDC::FillRect(LPCRECT lpRect, CBrush* pBrush)
{
    ::FillRect(m_hDC, lpRect, static_cast<HBRUSH>(HandleOf(pBrush)));
}

void CDC::FrameRect(LPCRECT lpRect, CBrush* pBrush)
{
    ::FrameRect(m_hDC, lpRect, static_cast<HBRUSH>(HandleOf(pBrush)));
}

// An opaque text output of nothing fills with the background colour, which is
// left set to clr.
void CDC::FillSolidRect(LPCRECT lpRect, COLORREF clr)
{
    ::SetBkColor(m_hDC, clr);
    ::ExtTextOut(m_hDC, 0, 0, ETO_OPAQUE, lpRect, nullptr, 0, nullptr);
}

void CDC::FillSolidRect(int x, int y, int cx, int cy, COLORREF clr)
{
    const RECT rect{x, y, x + cx, y + cy};
    FillSolidRect(&rect, clr);
}

BOOL CDC::Rectangle(int x1, int y1, int x2, int y2) { return ::Rectangle(m_hDC, x1, y1, x2, y2); }

BOOL CDC::Rectangle(LPCRECT lpRect)
{
    return Rectangle(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

BOOL CDC::Ellipse(int x1, int y1, int x2, int y2) { return ::Ellipse(m_hDC, x1, y1, x2, y2); }

BOOL CDC::Ellipse(LPCRECT lpRect) { return Ellipse(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom); }

BOOL CDC::Polygon(const POINT* lpPoints, int nCount) { return ::Polygon(m_hDC, lpPoints, nCount); }

void CDC::Draw3dRect(LPCRECT lpRect, COLORREF clrTopLeft, COLORREF clrBottomRight)
{
    Draw3dRect(lpRect->left, lpRect->top, lpRect->right - lpRect->left, lpRect->bottom - lpRect->top,
               clrTopLeft, clrBottomRight);
}

// The top-right and bottom-left corner pixels belong to the bottom-right colour.
void CDC::Draw3dRect(int x, int y, int cx, int cy, COLORREF clrTopLeft, COLORREF clrBottomRight)
{
    FillSolidRect(x, y, cx - 1, 1, clrTopLeft);
    FillSolidRect(x, y, 1, cy - 1, clrTopLeft);
    FillSolidRect(x + cx - 1, y, 1, cy, clrBottomRight);
    FillSolidRect(x, y + cy - 1, cx, 1, clrBottomRight);
}

BOOL CDC::DrawEdge(LPRECT lpRect, UINT nEdge, UINT nFlags) { return ::DrawEdge(m_hDC, lpRect, nEdge, nFlags); }

void CDC::DrawFocusRect(LPCRECT lpRect) { ::DrawFocusRect(m_hDC, lpRect); }

BOOL CDC::DrawFrameControl(LPRECT lpRect, UINT nType, UINT nState)
{
    return ::DrawFrameControl(m_hDC, lpRect, nType, nState);
}

// --- Bitmaps and icons -----------------------------------------------------

BOOL CDC::BitBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, DWORD dwRop)
{
    return ::BitBlt(m_hDC, x, y, nWidth, nHeight, pSrcDC != nullptr ? pSrcDC->m_hDC : nullptr, xSrc,
                    ySrc, dwRop);
}

BOOL CDC::StretchBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc,
                     int nSrcWidth, int nSrcHeight, DWORD dwRop)
{
    return ::StretchBlt(m_hDC, x, y, nWidth, nHeight, pSrcDC != nullptr ? pSrcDC->m_hDC : nullptr,
                        xSrc, ySrc, nSrcWidth, nSrcHeight, dwRop);
}

BOOL CDC::PatBlt(int x, int y, int nWidth, int nHeight, DWORD dwRop)
{
    return ::PatBlt(m_hDC, x, y, nWidth, nHeight, dwRop);
}

BOOL CDC::DrawIcon(int x, int y, HICON hIcon) { return ::DrawIcon(m_hDC, x, y, hIcon); }

BOOL CDC::DrawState(CPoint pt, CSize size, HBITMAP hBitmap, UINT nFlags, HBRUSH hBrush)
{
    return ::DrawState(m_hDC, hBrush, nullptr, reinterpret_cast<LPARAM>(hBitmap), 0, pt.x, pt.y,
                       size.cx, size.cy, nFlags | DST_BITMAP);
}

BOOL CDC::DrawState(CPoint pt, CSize size, HICON hIcon, UINT nFlags, HBRUSH hBrush)
{
    return ::DrawState(m_hDC, hBrush, nullptr, reinterpret_cast<LPARAM>(hIcon), 0, pt.x, pt.y,
                       size.cx, size.cy, nFlags | DST_ICON);
}

BOOL CDC::DrawState(CPoint pt, CSize size, LPCTSTR lpszText, UINT nFlags, BOOL bPrefixText,
                    int nTextLen, HBRUSH hBrush)
{
    const UINT kind = bPrefixText ? DST_PREFIXTEXT : DST_TEXT;
    return ::DrawState(m_hDC, hBrush, nullptr, reinterpret_cast<LPARAM>(lpszText),
                       static_cast<WPARAM>(nTextLen), pt.x, pt.y, size.cx, size.cy, nFlags | kind);
}

COLORREF CDC::GetPixel(int x, int y) const { return ::GetPixel(m_hDC, x, y); }

COLORREF CDC::SetPixel(int x, int y, COLORREF crColor) { return ::SetPixel(m_hDC, x, y, crColor); }

// --- Clipping and coordinates ----------------------------------------------

int CDC::IntersectClipRect(int x1, int y1, int x2, int y2) { return ::IntersectClipRect(m_hDC, x1, y1, x2, y2); }

int CDC::IntersectClipRect(LPCRECT lpRect)
{
    return IntersectClipRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

int CDC::SelectClipRgn(CRgn* pRgn) { return ::SelectClipRgn(m_hDC, static_cast<HRGN>(HandleOf(pRgn))); }

int CDC::SelectClipRgn(CRgn* pRgn, int nMode)
{
    return ::ExtSelectClipRgn(m_hDC, static_cast<HRGN>(HandleOf(pRgn)), nMode);
}

int CDC::GetClipBox(LPRECT lpRect) const { return ::GetClipBox(m_hDC, lpRect); }

void CDC::LPtoDP(LPPOINT lpPoints, int nCount) const { ::LPtoDP(m_hDC, lpPoints, nCount); }

void CDC::LPtoDP(LPRECT lpRect) const { ::LPtoDP(m_hDC, reinterpret_cast<LPPOINT>(lpRect), 2); }

void CDC::DPtoLP(LPPOINT lpPoints, int nCount) const { ::DPtoLP(m_hDC, lpPoints, nCount); }

void CDC::DPtoLP(LPRECT lpRect) const { ::DPtoLP(m_hDC, reinterpret_cast<LPPOINT>(lpRect), 2); }
