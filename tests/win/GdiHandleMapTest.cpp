// The per-thread maps of wrapper objects for GDI objects, device contexts,
// menus and image lists: FromHandle hands out the permanent object of a handle
// when there is one, otherwise one temporary object per handle; temporaries go
// at idle time without touching their handles, while a permanent object
// destroys its handle with itself.
#include "afx/CBitmap.h"
#include "afx/CBrush.h"
#include "afx/CDC.h"
#include "afx/CFont.h"
#include "afx/CImageList.h"
#include "afx/CMenu.h"
#include "afx/CPalette.h"
#include "afx/CPen.h"
#include "afx/CRgn.h"

#include <gtest/gtest.h>

namespace {

template <class Wrapper, class Handle>
struct WrapperKind {
    const char* name;
    Handle (*create)();
    bool (*alive)(Handle);
    // Whether a destroyed handle can be told apart safely (an image list's
    // memory is gone with it).
    bool deathObservable;
};

template <class Wrapper, class Handle>
void ExpectTemporaryAndPermanentLifetimes(const WrapperKind<Wrapper, Handle>& kind)
{
    SCOPED_TRACE(kind.name);
    const Handle h = kind.create();
    ASSERT_NE(h, nullptr);

    Wrapper* temporary = Wrapper::FromHandle(h);
    ASSERT_NE(temporary, nullptr);
    EXPECT_EQ(Wrapper::FromHandle(h), temporary) << "one temporary per handle";
    Wrapper::DeleteTempMap();
    EXPECT_TRUE(kind.alive(h)) << "deleting temporaries leaves their handles";

    {
        Wrapper owner;
        ASSERT_TRUE(owner.Attach(h));
        EXPECT_EQ(Wrapper::FromHandle(h), &owner) << "the permanent object comes first";
        owner.Detach();
        EXPECT_NE(Wrapper::FromHandle(h), &owner) << "a detached object is forgotten";
        EXPECT_TRUE(kind.alive(h)) << "detaching leaves the handle";
        owner.Attach(h);
    }
    if (kind.deathObservable) {
        EXPECT_FALSE(kind.alive(h)) << "the permanent object destroys its handle";
    }
    Wrapper::DeleteTempMap();
}

template <class Handle>
bool GdiHandleAlive(Handle h)
{
    return ::GetObjectType(h) != 0;
}

HPALETTE CreateOneColourPalette()
{
    const LOGPALETTE palette{0x300, 1, {{255, 0, 0, 0}}};
    return ::CreatePalette(&palette);
}

TEST(GdiHandleMap, TemporariesArePerHandleAndPermanentObjectsOwnTheirHandles)
{
    ExpectTemporaryAndPermanentLifetimes<CPen, HPEN>(
        {"pen", [] { return ::CreatePen(PS_SOLID, 1, RGB(1, 2, 3)); }, GdiHandleAlive<HPEN>, true});
    ExpectTemporaryAndPermanentLifetimes<CBrush, HBRUSH>(
        {"brush", [] { return ::CreateSolidBrush(RGB(1, 2, 3)); }, GdiHandleAlive<HBRUSH>, true});
    ExpectTemporaryAndPermanentLifetimes<CFont, HFONT>(
        {"font", [] { return ::CreateFontA(13, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, "Arial"); },
         GdiHandleAlive<HFONT>, true});
    ExpectTemporaryAndPermanentLifetimes<CBitmap, HBITMAP>(
        {"bitmap", [] { return ::CreateBitmap(2, 2, 1, 32, nullptr); }, GdiHandleAlive<HBITMAP>, true});
    ExpectTemporaryAndPermanentLifetimes<CPalette, HPALETTE>(
        {"palette", CreateOneColourPalette, GdiHandleAlive<HPALETTE>, true});
    ExpectTemporaryAndPermanentLifetimes<CRgn, HRGN>(
        {"region", [] { return ::CreateRectRgn(0, 0, 4, 4); }, GdiHandleAlive<HRGN>, true});
    ExpectTemporaryAndPermanentLifetimes<CDC, HDC>(
        {"memory DC", [] { return ::CreateCompatibleDC(nullptr); }, GdiHandleAlive<HDC>, true});
    ExpectTemporaryAndPermanentLifetimes<CMenu, HMENU>(
        {"popup menu", [] { return ::CreatePopupMenu(); }, [](HMENU h) { return ::IsMenu(h) != FALSE; }, true});
    ExpectTemporaryAndPermanentLifetimes<CImageList, HIMAGELIST>(
        {"image list", [] { return ImageList_Create(4, 4, ILC_COLOR32, 0, 1); },
         [](HIMAGELIST h) { return ImageList_GetImageCount(h) == 0; }, false});
}

struct GdiKindCase {
    const char* name;
    HGDIOBJ (*create)();
    bool (*hasRightClass)(CGdiObject*);
    bool stock;
};

template <class T>
bool Is(CGdiObject* pObject)
{
    return dynamic_cast<T*>(pObject) != nullptr;
}

// So that a temporary that CDC::SelectObject hands back as a CPen* really is one.
const GdiKindCase kGdiKinds[] = {
    {"cosmetic pen", [] { return HGDIOBJ(::CreatePen(PS_DASH, 1, 0)); }, Is<CPen>, false},
    {"geometric pen",
     [] {
         const LOGBRUSH brush{BS_SOLID, RGB(9, 9, 9), 0};
         return HGDIOBJ(::ExtCreatePen(PS_GEOMETRIC | PS_SOLID, 3, &brush, 0, nullptr));
     },
     Is<CPen>, false},
    {"stock pen", [] { return ::GetStockObject(WHITE_PEN); }, Is<CPen>, true},
    {"solid brush", [] { return HGDIOBJ(::CreateSolidBrush(0)); }, Is<CBrush>, false},
    {"system colour brush", [] { return HGDIOBJ(::GetSysColorBrush(COLOR_BTNFACE)); }, Is<CBrush>, true},
    {"stock font", [] { return ::GetStockObject(DEFAULT_GUI_FONT); }, Is<CFont>, true},
    {"bitmap", [] { return HGDIOBJ(::CreateBitmap(1, 1, 1, 1, nullptr)); }, Is<CBitmap>, false},
    {"stock palette", [] { return ::GetStockObject(DEFAULT_PALETTE); }, Is<CPalette>, true},
    {"region", [] { return HGDIOBJ(::CreateRectRgn(0, 0, 1, 1)); }, Is<CRgn>, false},
};

TEST(GdiHandleMap, TemporaryGdiWrapperHasTheClassOfTheHandlesKind)
{
    for (const GdiKindCase& kind : kGdiKinds) {
        SCOPED_TRACE(kind.name);
        const HGDIOBJ h = kind.create();
        EXPECT_TRUE(kind.hasRightClass(CGdiObject::FromHandle(h)));
        CGdiObject::DeleteTempMap();
        if (!kind.stock)
            ::DeleteObject(h);
    }
}

}  // namespace
