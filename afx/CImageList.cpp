// CImageList: a common-controls image list.
#include "afx/CImageList.h"

#include "afx/CBitmap.h"
#include "afx/CDC.h"
#include "afx/CHandleMap.h"
#include "afx/AfxExtension.h"

#include <cassert>
#include <memory>

namespace {

std::unique_ptr<CImageList> MakeTemporary(HIMAGELIST) { return std::make_unique<CImageList>(); }

using ImageListHandleMap = CHandleMap<CImageList, HIMAGELIST, &CImageList::m_hImageList>;

ImageListHandleMap& ThreadMap() { return ImageListHandleMap::OfThisThread(MakeTemporary); }

HBITMAP BitmapOf(const CBitmap* pBitmap) { return pBitmap != nullptr ? static_cast<HBITMAP>(*pBitmap) : nullptr; }

}  // namespace

CImageList::~CImageList() { DeleteImageList(); }

CImageList* CImageList::FromHandle(HIMAGELIST hImageList) { return ThreadMap().FromHandle(hImageList); }

void CImageList::DeleteTempMap() noexcept { ThreadMap().DeleteTemp(); }

BOOL CImageList::Create(int cx, int cy, UINT nFlags, int nInitial, int nGrow)
{
    return Attach(ImageList_Create(cx, cy, nFlags, nInitial, nGrow));
}

BOOL CImageList::Create(UINT nBitmapID, int cx, int nGrow, COLORREF crMask)
{
    return Create(MAKEINTRESOURCE(nBitmapID), cx, nGrow, crMask);
}

BOOL CImageList::Create(LPCTSTR lpszBitmapID, int cx, int nGrow, COLORREF crMask)
{
    HINSTANCE hInst = AfxFindResourceHandle(lpszBitmapID, RT_BITMAP);
    return Attach(ImageList_LoadImage(hInst, lpszBitmapID, cx, nGrow, crMask, IMAGE_BITMAP, 0));
}

BOOL CImageList::Attach(HIMAGELIST hImageList)
{
    assert(m_hImageList == nullptr);
    if (hImageList == nullptr)
        return FALSE;
    m_hImageList = hImageList;
    ThreadMap().SetPermanent(hImageList, this);
    return TRUE;
}

HIMAGELIST CImageList::Detach()
{
    HIMAGELIST hImageList = m_hImageList;
    if (hImageList != nullptr)
        ThreadMap().RemoveHandle(hImageList);
    m_hImageList = nullptr;
    return hImageList;
}

BOOL CImageList::DeleteImageList()
{
    if (m_hImageList == nullptr)
        return FALSE;
    return ImageList_Destroy(Detach());
}

int CImageList::Add(CBitmap* pbmImage, CBitmap* pbmMask)
{
    assert(m_hImageList != nullptr);
    return ImageList_Add(m_hImageList, BitmapOf(pbmImage), BitmapOf(pbmMask));
}

int CImageList::Add(CBitmap* pbmImage, COLORREF crMask)
{
    assert(m_hImageList != nullptr);
    return ImageList_AddMasked(m_hImageList, BitmapOf(pbmImage), crMask);
}

int CImageList::Add(HICON hIcon)
{
    assert(m_hImageList != nullptr);
    return ImageList_AddIcon(m_hImageList, hIcon);
}

BOOL CImageList::Replace(int nImage, CBitmap* pbmImage, CBitmap* pbmMask)
{
    assert(m_hImageList != nullptr);
    return ImageList_Replace(m_hImageList, nImage, BitmapOf(pbmImage), BitmapOf(pbmMask));
}

int CImageList::Replace(int nImage, HICON hIcon)
{
    assert(m_hImageList != nullptr);
    return ImageList_ReplaceIcon(m_hImageList, nImage, hIcon);
}

int CImageList::GetImageCount() const { return ImageList_GetImageCount(m_hImageList); }

BOOL CImageList::GetImageInfo(int nImage, IMAGEINFO* pImageInfo) const
{
    assert(m_hImageList != nullptr);
    return ImageList_GetImageInfo(m_hImageList, nImage, pImageInfo);
}

COLORREF CImageList::SetBkColor(COLORREF cr)
{
    assert(m_hImageList != nullptr);
    return ImageList_SetBkColor(m_hImageList, cr);
}

COLORREF CImageList::GetBkColor() const { return ImageList_GetBkColor(m_hImageList); }

BOOL CImageList::Draw(CDC* pDC, int nImage, POINT pt, UINT nStyle)
{
    assert(m_hImageList != nullptr && pDC != nullptr);
    return ImageList_Draw(m_hImageList, nImage, pDC->GetSafeHdc(), pt.x, pt.y, nStyle);
}

HICON CImageList::ExtractIcon(int nImage)
{
    assert(m_hImageList != nullptr);
    return ImageList_ExtractIcon(nullptr, m_hImageList, nImage);
}
