#include "GuiObjectCounter.h"

#include <set>
#include <tuple>

namespace {

// Handles created through the watched imports and not yet released.
std::set<HANDLE> g_gdiObjects;
std::set<HMENU> g_menus;

template <typename Handle>
Handle Keep(std::set<Handle>& live, Handle handle)
{
    if (handle != nullptr)
        live.insert(handle);
    return handle;
}

template <typename Handle>
BOOL Release(std::set<Handle>& live, Handle handle, BOOL released)
{
    if (released)
        live.erase(handle);
    return released;
}

// One replacement per creating function: the real call, then the handle kept.
template <auto Create, typename... Args>
auto WINAPI CreateGdi(Args... args)
{
    return Keep<HANDLE>(g_gdiObjects, Create(args...));
}

template <auto Create, typename... Args>
HMENU WINAPI CreateMenuHandle(Args... args)
{
    return Keep(g_menus, Create(args...));
}

BOOL WINAPI DeleteGdiObject(HGDIOBJ hObject) { return Release<HANDLE>(g_gdiObjects, hObject, ::DeleteObject(hObject)); }
BOOL WINAPI DeleteMemoryDC(HDC hDC) { return Release<HANDLE>(g_gdiObjects, hDC, ::DeleteDC(hDC)); }
int WINAPI ReleaseWindowDC(HWND hWnd, HDC hDC) { return Release<HANDLE>(g_gdiObjects, hDC, ::ReleaseDC(hWnd, hDC)); }
BOOL WINAPI DestroyMenuHandle(HMENU hMenu) { return Release(g_menus, hMenu, ::DestroyMenu(hMenu)); }

HANDLE WINAPI GetWindowDC(HWND hWnd) { return Keep<HANDLE>(g_gdiObjects, ::GetDC(hWnd)); }

struct WatchedImport {
    const char* dll;
    const char* function;
    void* replacement;
};

template <typename Function>
void* Address(Function function)
{
    return reinterpret_cast<void*>(function);
}

const WatchedImport kWatched[] = {
    {"gdi32.dll", "CreateSolidBrush", Address(&CreateGdi<&::CreateSolidBrush, COLORREF>)},
    {"gdi32.dll", "CreatePatternBrush", Address(&CreateGdi<&::CreatePatternBrush, HBITMAP>)},
    {"gdi32.dll", "CreatePen", Address(&CreateGdi<&::CreatePen, int, int, COLORREF>)},
    {"gdi32.dll", "CreateFontIndirectA", Address(&CreateGdi<&::CreateFontIndirectA, const LOGFONTA*>)},
    {"gdi32.dll", "CreateFontA",
     Address(&CreateGdi<&::CreateFontA, int, int, int, int, int, DWORD, DWORD, DWORD, DWORD, DWORD, DWORD, DWORD,
                        DWORD, LPCSTR>)},
    {"gdi32.dll", "CreateBitmap", Address(&CreateGdi<&::CreateBitmap, int, int, UINT, UINT, const void*>)},
    {"gdi32.dll", "CreateCompatibleBitmap", Address(&CreateGdi<&::CreateCompatibleBitmap, HDC, int, int>)},
    {"gdi32.dll", "CreateCompatibleDC", Address(&CreateGdi<&::CreateCompatibleDC, HDC>)},
    {"gdi32.dll", "CreatePalette", Address(&CreateGdi<&::CreatePalette, const LOGPALETTE*>)},
    {"gdi32.dll", "CreateRectRgn", Address(&CreateGdi<&::CreateRectRgn, int, int, int, int>)},
    {"gdi32.dll", "CreateRectRgnIndirect", Address(&CreateGdi<&::CreateRectRgnIndirect, const RECT*>)},
    {"gdi32.dll", "DeleteObject", Address(&DeleteGdiObject)},
    {"gdi32.dll", "DeleteDC", Address(&DeleteMemoryDC)},
    {"user32.dll", "LoadBitmapA", Address(&CreateGdi<&::LoadBitmapA, HINSTANCE, LPCSTR>)},
    {"user32.dll", "GetDC", Address(&GetWindowDC)},
    {"user32.dll", "ReleaseDC", Address(&ReleaseWindowDC)},
    {"user32.dll", "CreateMenu", Address(&CreateMenuHandle<&::CreateMenu>)},
    {"user32.dll", "CreatePopupMenu", Address(&CreateMenuHandle<&::CreatePopupMenu>)},
    {"user32.dll", "DestroyMenu", Address(&DestroyMenuHandle)},
};

const char* const kWatchedModules[] = {"afx.dll", "kvWin.dll"};

BOOL CALLBACK CountChildWindow(HWND, LPARAM count)
{
    ++*reinterpret_cast<size_t*>(count);
    return TRUE;
}

BOOL CALLBACK CountTopLevelWindow(HWND hWnd, LPARAM count)
{
    ++*reinterpret_cast<size_t*>(count);
    ::EnumChildWindows(hWnd, CountChildWindow, count);
    return TRUE;
}

}  // namespace

bool GuiObjectCounts::operator==(const GuiObjectCounts& other) const
{
    return std::tie(systemGdi, systemUser, libraryGdi, libraryMenus, threadWindows) ==
           std::tie(other.systemGdi, other.systemUser, other.libraryGdi, other.libraryMenus, other.threadWindows);
}

std::ostream& operator<<(std::ostream& out, const GuiObjectCounts& counts)
{
    return out << "system GDI " << counts.systemGdi << ", system USER " << counts.systemUser << ", library GDI "
               << counts.libraryGdi << ", library menus " << counts.libraryMenus << ", windows "
               << counts.threadWindows;
}

GuiObjectCounter::GuiObjectCounter()
{
    for (const char* module : kWatchedModules) {
        for (const WatchedImport& import : kWatched)
            m_patches.push_back(std::make_unique<ImportPatch>(module, import.dll, import.function, import.replacement));
    }
}

GuiObjectCounter::~GuiObjectCounter() = default;

GuiObjectCounts GuiObjectCounter::Count() const
{
    GuiObjectCounts counts;
    counts.systemGdi = ::GetGuiResources(::GetCurrentProcess(), GR_GDIOBJECTS);
    counts.systemUser = ::GetGuiResources(::GetCurrentProcess(), GR_USEROBJECTS);
    counts.libraryGdi = g_gdiObjects.size();
    counts.libraryMenus = g_menus.size();
    ::EnumThreadWindows(::GetCurrentThreadId(), CountTopLevelWindow, reinterpret_cast<LPARAM>(&counts.threadWindows));
    return counts;
}
