// CImageList: a common-controls image list. The object destroys its list when
// it is destroyed; FromHandle wraps a list nobody owns (a control's list) in a
// temporary object, deleted at idle time (DeleteTempMap).
#pragma once

#include "afx/AfxExport.h"
#include "afx/WinTypes.h"

#include <commctrl.h>
// ExtractIcon is a macro of the shell header; including it here keeps the name
// of the member the same for every file that sees this class.
#include <shellapi.h>

class CBitmap;
class CDC;

class AFX_API CImageList {
public:
    CImageList() noexcept = default;
    CImageList(const CImageList&) = delete;
    CImageList& operator=(const CImageList&) = delete;
    virtual ~CImageList();

    static CImageList* FromHandle(HIMAGELIST hImageList);
    static void DeleteTempMap() noexcept;

    operator HIMAGELIST() const noexcept { return m_hImageList; }
    HIMAGELIST GetSafeHandle() const noexcept { return m_hImageList; }

    BOOL Create(int cx, int cy, UINT nFlags, int nInitial, int nGrow);
    // A strip of images of width cx from a bitmap resource of the resource chain.
    BOOL Create(UINT nBitmapID, int cx, int nGrow, COLORREF crMask);
    BOOL Create(LPCTSTR lpszBitmapID, int cx, int nGrow, COLORREF crMask);
    BOOL Attach(HIMAGELIST hImageList);
    HIMAGELIST Detach();
    BOOL DeleteImageList();

    int Add(CBitmap* pbmImage, CBitmap* pbmMask);
    int Add(CBitmap* pbmImage, COLORREF crMask);
    int Add(HICON hIcon);
    BOOL Replace(int nImage, CBitmap* pbmImage, CBitmap* pbmMask);
    int Replace(int nImage, HICON hIcon);

    int GetImageCount() const;
    BOOL GetImageInfo(int nImage, IMAGEINFO* pImageInfo) const;
    COLORREF SetBkColor(COLORREF cr);
    COLORREF GetBkColor() const;
    BOOL Draw(CDC* pDC, int nImage, POINT pt, UINT nStyle);
    // The caller destroys the icon.
    HICON ExtractIcon(int nImage);

    HIMAGELIST m_hImageList = nullptr;
};
