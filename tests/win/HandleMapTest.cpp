// The handle maps: FromHandle hands out the permanent object of a handle when
// there is one, otherwise one temporary object per handle that lives until the
// application's loop has idle time; temporaries leave their handles alone,
// while a permanent object destroys its handle with itself.
#include "WindowTest.h"

#include "afx/CBitmap.h"
#include "afx/CBrush.h"
#include "afx/CDC.h"
#include "afx/CFont.h"
#include "afx/CImageList.h"
#include "afx/CMenu.h"
#include "afx/CPalette.h"
#include "afx/CPen.h"
#include "afx/CRgn.h"
#include "afx/CWinApp.h"
#include "afx/CWnd.h"

namespace {

enum Wrapping { kForeign, kAttached, kCreated, kDetached };

struct WindowRow {
    const char* name;
    Wrapping wrapping;
    bool permanent;   // FromHandlePermanent knows the window
    bool keptAtIdle;  // FromHandle still gives the same object after idle time
};

const WindowRow kWindows[] = {
    {"foreign window: a temporary object, replaced at idle", kForeign, false, false},
    {"attached window: its object stays", kAttached, true, true},
    {"window created by the framework: its object stays", kCreated, true, true},
    {"detached window: temporary again", kDetached, false, false},
};

void CALLBACK QuitLoop(HWND, UINT, UINT_PTR, DWORD) { ::PostQuitMessage(0); }

// The application's own loop: it idles first, then the timer ends it.
void RunIdleTime()
{
    const UINT_PTR timer = ::SetTimer(nullptr, 0, 50, QuitLoop);
    AfxGetApp()->Run();
    ::KillTimer(nullptr, timer);
}

HWND CreateForeignWindow(const char* title)
{
    return ::CreateWindowExA(0, "STATIC", title, WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
}

class HandleMapTest : public WindowTest {};

TEST_F(HandleMapTest, TemporaryWindowObjectsLastUntilIdleTime)
{
    const HWND hWndMarker = CreateForeignWindow("marker");
    CWnd marker;
    marker.Attach(hWndMarker);
    for (const WindowRow& row : kWindows) {
        SCOPED_TRACE(row.name);
        CWnd object;
        HWND hWnd = nullptr;
        if (row.wrapping == kCreated) {
            ASSERT_TRUE(object.CreateEx(0, nullptr, "created", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr));
            hWnd = object.m_hWnd;
        } else {
            hWnd = CreateForeignWindow("wrapped");
            if (row.wrapping != kForeign)
                object.Attach(hWnd);
            if (row.wrapping == kDetached)
                object.Detach();
        }
        CWnd* pBefore = CWnd::FromHandle(hWnd);
        EXPECT_EQ(CWnd::FromHandlePermanent(hWnd) != nullptr, row.permanent);
        EXPECT_EQ(CWnd::FromHandle(hWnd), pBefore);
        EXPECT_EQ(pBefore->m_hWnd, hWnd);
        // An owner set through the object marks it: a new object has none.
        pBefore->SetOwner(&marker);
        RunIdleTime();
        EXPECT_EQ(CWnd::FromHandle(hWnd)->GetOwner() == &marker, row.keptAtIdle);
        object.Detach();
        ::DestroyWindow(hWnd);
    }
    marker.Detach();
    ::DestroyWindow(hWndMarker);
}

template <class Wrapper, class Handle>
void ExpectWrapperLifetimes(Handle h, bool (*alive)(Handle), bool deathObservable = true)
{
    ASSERT_NE(h, nullptr);
    Wrapper* temporary = Wrapper::FromHandle(h);
    ASSERT_NE(temporary, nullptr);
    EXPECT_EQ(Wrapper::FromHandle(h), temporary) << "one temporary per handle";
    Wrapper::DeleteTempMap();
    EXPECT_TRUE(alive(h)) << "deleting temporaries leaves their handles";
    {
        Wrapper owner;
        ASSERT_TRUE(owner.Attach(h));
        EXPECT_EQ(Wrapper::FromHandle(h), &owner) << "the permanent object comes first";
        owner.Detach();
        EXPECT_NE(Wrapper::FromHandle(h), &owner) << "a detached object is forgotten";
        EXPECT_TRUE(alive(h)) << "detaching leaves the handle";
        owner.Attach(h);
    }
    // An image list's memory is gone with it: its death cannot be observed safely.
    if (deathObservable) {
        EXPECT_FALSE(alive(h)) << "the permanent object destroys its handle";
    }
    Wrapper::DeleteTempMap();
}

template <class Handle>
bool GdiAlive(Handle h)
{
    return ::GetObjectType(h) != 0;
}

struct WrapperRow {
    const char* name;
    void (*check)();
};

// One row per map: every GDI object shares one (its class is checked below).
const WrapperRow kWrappers[] = {
    {"GDI object", [] { ExpectWrapperLifetimes<CPen>(::CreatePen(PS_SOLID, 1, 0), GdiAlive<HPEN>); }},
    {"memory DC", [] { ExpectWrapperLifetimes<CDC>(::CreateCompatibleDC(nullptr), GdiAlive<HDC>); }},
    {"popup menu",
     [] { ExpectWrapperLifetimes<CMenu>(::CreatePopupMenu(), +[](HMENU h) { return ::IsMenu(h) != FALSE; }); }},
    {"image list",
     [] {
         ExpectWrapperLifetimes<CImageList>(ImageList_Create(4, 4, ILC_COLOR32, 0, 1),
                                            +[](HIMAGELIST h) { return ImageList_GetImageCount(h) == 0; }, false);
     }},
};

TEST_F(HandleMapTest, TemporaryWrappersArePerHandleAndPermanentOnesOwnTheirHandles)
{
    for (const WrapperRow& row : kWrappers) {
        SCOPED_TRACE(row.name);
        row.check();
    }
}

template <class T>
bool Is(CGdiObject* pObject)
{
    return dynamic_cast<T*>(pObject) != nullptr;
}

struct GdiKindRow {
    const char* name;
    HGDIOBJ (*create)();
    bool (*hasRightClass)(CGdiObject*);
    bool stock;
};

// So that a temporary that CDC::SelectObject hands back as a CPen* really is one.
const GdiKindRow kGdiKinds[] = {
    {"cosmetic pen", [] { return HGDIOBJ(::CreatePen(PS_DASH, 1, 0)); }, Is<CPen>, false},
    {"geometric pen",
     [] {
         const LOGBRUSH brush{BS_SOLID, RGB(9, 9, 9), 0};
         return HGDIOBJ(::ExtCreatePen(PS_GEOMETRIC | PS_SOLID, 3, &brush, 0, nullptr));
     },
     Is<CPen>, false},
    {"system colour brush", [] { return HGDIOBJ(::GetSysColorBrush(COLOR_BTNFACE)); }, Is<CBrush>, true},
    {"stock font", [] { return ::GetStockObject(DEFAULT_GUI_FONT); }, Is<CFont>, true},
    {"bitmap", [] { return HGDIOBJ(::CreateBitmap(1, 1, 1, 1, nullptr)); }, Is<CBitmap>, false},
    {"stock palette", [] { return ::GetStockObject(DEFAULT_PALETTE); }, Is<CPalette>, true},
    {"region", [] { return HGDIOBJ(::CreateRectRgn(0, 0, 1, 1)); }, Is<CRgn>, false},
};

TEST_F(HandleMapTest, TemporaryGdiWrapperHasTheClassOfTheHandlesKind)
{
    for (const GdiKindRow& kind : kGdiKinds) {
        SCOPED_TRACE(kind.name);
        const HGDIOBJ h = kind.create();
        EXPECT_TRUE(kind.hasRightClass(CGdiObject::FromHandle(h)));
        CGdiObject::DeleteTempMap();
        if (!kind.stock)
            ::DeleteObject(h);
    }
}

}  // namespace
