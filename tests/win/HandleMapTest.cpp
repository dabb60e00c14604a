// The handle map: windows the framework owns map to their permanent objects;
// a window nobody wrapped gets a temporary object that lives until the
// application's loop has idle time.
#include "WindowTest.h"

#include "afx/CWinApp.h"
#include "afx/CWnd.h"

namespace {

enum Wrapping { kForeign, kAttached, kCreated, kDetached };

struct HandleRow {
    const char* name;
    Wrapping wrapping;
    bool permanent;   // FromHandlePermanent knows the window
    bool keptAtIdle;  // FromHandle still gives the same object after idle time
};

const HandleRow kHandles[] = {
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

TEST_F(HandleMapTest, TemporaryObjectsLastUntilIdleTime)
{
    const HWND hWndMarker = CreateForeignWindow("marker");
    CWnd marker;
    marker.Attach(hWndMarker);
    for (const HandleRow& row : kHandles) {
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

}  // namespace
