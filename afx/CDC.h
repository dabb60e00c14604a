// CDC: a device context. The object deletes a DC it created (CreateCompatibleDC)
// when it is destroyed; FromHandle wraps a DC nobody owns in a temporary object,
// deleted at idle time (DeleteTempMap) without touching the DC. The typed
// SelectObject overloads return the object that was selected before, so that
// drawing code can put it back.
#pragma once

#include "afx/AfxExport.h"
#include "afx/CPoint.h"
#include "afx/CSize.h"
#include "afx/CString.h"
#include "afx/WinTypes.h"

class CBitmap;
class CBrush;
class CFont;
class CGdiObject;
class CPalette;
class CPen;
class CRgn;

class AFX_API CDC {
public:
    CDC() noexcept = default;
    CDC(const CDC&) = delete;
    CDC& operator=(const CDC&) = delete;
    virtual ~CDC();

    static CDC* FromHandle(HDC hDC);
    static void DeleteTempMap() noexcept;

    operator HDC() const noexcept { return m_hDC; }
    HDC GetSafeHdc() const noexcept { return m_hDC; }

    BOOL Attach(HDC hDC);
    HDC Detach();
    BOOL CreateCompatibleDC(CDC* pDC);
    BOOL DeleteDC();

    virtual int SaveDC();
    virtual BOOL RestoreDC(int nSavedDC);
    int GetDeviceCaps(int nIndex) const;

    // Objects
    CPen* SelectObject(CPen* pPen);
    CBrush* SelectObject(CBrush* pBrush);
    virtual CFont* SelectObject(CFont* pFont);
    CBitmap* SelectObject(CBitmap* pBitmap);
    int SelectObject(CRgn* pRgn);  // the region's kind, as SelectClipRgn
    CGdiObject* SelectObject(CGdiObject* pObject);
    virtual CGdiObject* SelectStockObject(int nIndex);
    CPalette* SelectPalette(CPalette* pPalette, BOOL bForceBackground);
    UINT RealizePalette();

    // Text
    virtual COLORREF SetTextColor(COLORREF crColor);
    COLORREF GetTextColor() const;
    virtual COLORREF SetBkColor(COLORREF crColor);
    COLORREF GetBkColor() const;
    int SetBkMode(int nBkMode);
    int GetBkMode() const;
    virtual BOOL TextOut(int x, int y, LPCTSTR lpszString, int nCount);
    BOOL TextOut(int x, int y, const CString& str);
    virtual BOOL ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, LPCTSTR lpszString,
                            UINT nCount, LPINT lpDxWidths);
    virtual int DrawText(LPCTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat);
    int DrawText(const CString& str, LPRECT lpRect, UINT nFormat);
    virtual BOOL GrayString(CBrush* pBrush, BOOL(CALLBACK* lpfnOutput)(HDC, LPARAM, int),
                            LPARAM lpData, int nCount, int x, int y, int nWidth, int nHeight);
    CSize GetTextExtent(LPCTSTR lpszString, int nCount) const;
    CSize GetTextExtent(const CString& str) const;
    BOOL GetTextMetrics(LPTEXTMETRIC lpMetrics) const;

    // Lines and shapes
    CPoint MoveTo(int x, int y);
    CPoint MoveTo(POINT point) { return MoveTo(point.x, point.y); }
    BOOL LineTo(int x, int y);
    BOOL LineTo(POINT point) { return LineTo(point.x, point.y); }
    void FillRect(LPCRECT lpRect, CBrush* pBrush);
    void FrameRect(LPCRECT lpRect, CBrush* pBrush);
    void FillSolidRect(LPCRECT lpRect, COLORREF clr);
    void FillSolidRect(int x, int y, int cx, int cy, COLORREF clr);
    BOOL Rectangle(int x1, int y1, int x2, int y2);
    BOOL Rectangle(LPCRECT lpRect);
    BOOL Ellipse(int x1, int y1, int x2, int y2);
    BOOL Ellipse(LPCRECT lpRect);
    BOOL Polygon(const POINT* lpPoints, int nCount);
    void Draw3dRect(LPCRECT lpRect, COLORREF clrTopLeft, COLORREF clrBottomRight);
    void Draw3dRect(int x, int y, int cx, int cy, COLORREF clrTopLeft, COLORREF clrBottomRight);
    BOOL DrawEdge(LPRECT lpRect, UINT nEdge, UINT nFlags);
    void DrawFocusRect(LPCRECT lpRect);
    BOOL DrawFrameControl(LPRECT lpRect, UINT nType, UINT nState);

    // Bitmaps and icons
    BOOL BitBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, DWORD dwRop);
    BOOL StretchBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc,
                    int nSrcWidth, int nSrcHeight, DWORD dwRop);
    BOOL PatBlt(int x, int y, int nWidth, int nHeight, DWORD dwRop);
    BOOL DrawIcon(int x, int y, HICON hIcon);
    BOOL DrawIcon(POINT point, HICON hIcon) { return DrawIcon(point.x, point.y, hIcon); }
    BOOL DrawState(CPoint pt, CSize size, HBITMAP hBitmap, UINT nFlags, HBRUSH hBrush = nullptr);
    BOOL DrawState(CPoint pt, CSize size, HICON hIcon, UINT nFlags, HBRUSH hBrush = nullptr);
    BOOL DrawState(CPoint pt, CSize size, LPCTSTR lpszText, UINT nFlags, BOOL bPrefixText = TRUE,
                   int nTextLen = 0, HBRUSH hBrush = nullptr);
    COLORREF GetPixel(int x, int y) const;
    COLORREF GetPixel(POINT point) const { return GetPixel(point.x, point.y); }
    COLORREF SetPixel(int x, int y, COLORREF crColor);
    COLORREF SetPixel(POINT point, COLORREF crColor) { return SetPixel(point.x, point.y, crColor); }

    // Clipping and coordinates
    int IntersectClipRect(int x1, int y1, int x2, int y2);
    int IntersectClipRect(LPCRECT lpRect);
    int SelectClipRgn(CRgn* pRgn);
    int SelectClipRgn(CRgn* pRgn, int nMode);
    virtual int GetClipBox(LPRECT lpRect) const;
    void LPtoDP(LPPOINT lpPoints, int nCount = 1) const;
    void LPtoDP(LPRECT lpRect) const;
    void DPtoLP(LPPOINT lpPoints, int nCount = 1) const;
    void DPtoLP(LPRECT lpRect) const;

    HDC m_hDC = nullptr;
};
