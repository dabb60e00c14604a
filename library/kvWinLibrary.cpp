// kvWin.dll's entry point: the load and unload messages, the extension-module
// record, and the moment the library joins the application's framework.
#include "afx/AfxExtension.h"
#include "afx/CWinApp.h"
#include "library/DynLinkObject.h"
#include "library/kvLibraryModule.h"
#include "library/kvLibraryVersion.h"

#include <optional>

namespace {

AFX_EXTENSION_MODULE g_extensionModule = {};
std::optional<kvWin::DynLinkObject> g_dynLinkObject;
HHOOK g_applicationWatch = nullptr;

void AnnounceProcess(const char* event)
{
    CString message;
    message.Format("%s %s %s.\n", kvWin::LibraryFileName().GetString(), KVWIN_VERSION_TEXT, event);
    ::OutputDebugStringA(message);
}

void CreateDynLinkObject()
{
    g_dynLinkObject.emplace(g_extensionModule);
    g_dynLinkObject->Initialize();
}

void StopWatching()
{
    if (g_applicationWatch) {
        ::UnhookWindowsHookEx(g_applicationWatch);
        g_applicationWatch = nullptr;
    }
}

LRESULT CALLBACK WatchWindowCreation(int code, WPARAM wParam, LPARAM lParam)
{
    HHOOK hook = g_applicationWatch;
    if (code == HCBT_CREATEWND && AfxGetApp()) {
        StopWatching();
        CreateDynLinkObject();
    }
    return ::CallNextHookEx(hook, code, wParam, lParam);
}

// The DynLinkObject needs the application object. A library that a running
// application loads finds it at once, on attach. A library that the
// application imports is attached before the application object is
// constructed: it watches the windows created on the thread that loaded it and
// joins when the first one is created after the application object exists,
// before that window or any later one can ask for the library's resources.
void JoinWhenApplicationExists()
{
    if (AfxGetApp())
        CreateDynLinkObject();
    else
        g_applicationWatch = ::SetWindowsHookExA(WH_CBT, WatchWindowCreation, nullptr, ::GetCurrentThreadId());
}

BOOL ProcessAttach(HINSTANCE instance)
{
    AnnounceProcess("process attach");
    if (!AfxInitExtensionModule(g_extensionModule, instance))
        return FALSE;
    JoinWhenApplicationExists();
    return TRUE;
}

void ProcessDetach()
{
    AnnounceProcess("process detach");
    // A library unloaded before it joined must not leave its hook behind.
    StopWatching();
    AfxTermExtensionModule(g_extensionModule, FALSE);
}

}  // namespace

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID)
{
    switch (reason) {
    case DLL_PROCESS_ATTACH:
        return ProcessAttach(instance);
    case DLL_PROCESS_DETACH:
        ProcessDetach();
        return TRUE;
    default:
        return TRUE;
    }
}
