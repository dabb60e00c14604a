// CGdiObject: handle ownership and the per-thread map of GDI wrappers.
#include "afx/CGdiObject.h"

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

// Temporaries get the class of the handle's kind, so that the typed FromHandle
// of CPen, CBrush ... and the typed CDC::SelectObject overloads hand out
// objects that really are of the type they are cast to.
std::unique_ptr<CGdiObject> MakeTemporary(HGDIOBJ hObject)
{
    switch (::GetObjectType(hObject)) {
    case OBJ_PEN:
    case OBJ_EXTPEN:
        return std::make_unique<CPen>();
    case OBJ_BRUSH:
        return std::make_unique<CBrush>();
    case OBJ_FONT:
        return std::make_unique<CFont>();
    case OBJ_BITMAP:
        return std::make_unique<CBitmap>();
    case OBJ_PAL:
        return std::make_unique<CPalette>();
    case OBJ_REGION:
        return std::make_unique<CRgn>();
    default:
        return std::make_unique<CGdiObject>();
    }
}

using GdiHandleMap = CHandleMap<CGdiObject, HGDIOBJ, &CGdiObject::m_hObject>;

GdiHandleMap& ThreadMap() { return GdiHandleMap::OfThisThread(MakeTemporary); }

}  // namespace

CGdiObject::~CGdiObject() { DeleteObject(); }

CGdiObject* CGdiObject::FromHandle(HGDIOBJ hObject) { return ThreadMap().FromHandle(hObject); }

void CGdiObject::DeleteTempMap() noexcept { ThreadMap().DeleteTemp(); }

BOOL CGdiObject::Attach(HGDIOBJ hObject)
{
    assert(m_hObject == nullptr);
    if (hObject == nullptr)
        return FALSE;
    m_hObject = hObject;
    ThreadMap().SetPermanent(hObject, this);
    return TRUE;
}

HGDIOBJ CGdiObject::Detach()
{
    HGDIOBJ hObject = m_hObject;
    if (hObject != nullptr)
        ThreadMap().RemoveHandle(hObject);
    m_hObject = nullptr;
    return hObject;
}

BOOL CGdiObject::DeleteObject()
{
    if (m_hObject == nullptr)
        return FALSE;
    return ::DeleteObject(Detach());
}

BOOL CGdiObject::CreateStockObject(int nIndex) { return Attach(::GetStockObject(nIndex)); }

int CGdiObject::GetObject(int nCount, LPVOID lpObject) const
{
    assert(m_hObject != nullptr);
    return ::GetObject(m_hObject, nCount, lpObject);
}

UINT CGdiObject::GetObjectType() const { return static_cast<UINT>(::GetObjectType(m_hObject)); }
