// The extension-module chain: every DLL that extends the framework enters
// itself (a CDynLinkLibrary) so that resource lookups search it after the
// application. The chain, the application's instance and its resource handle
// are one per process.
#pragma once

#include "afx/AfxExport.h"
#include "afx/WinTypes.h"

struct AFX_EXTENSION_MODULE {
    BOOL bInitialized = FALSE;
    HMODULE hModule = nullptr;
    HMODULE hResource = nullptr;
};

// Called from the extension DLL's DllMain on DLL_PROCESS_ATTACH.
AFX_API BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hModule);
// Called on DLL_PROCESS_DETACH: deletes the module's CDynLinkLibrary objects.
// bAll also deletes the chain entries of every other module.
AFX_API void AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL bAll = FALSE);

// The module whose resources hold lpszName of lpszType: the application's
// resource handle first, then each extension module in the chain; the
// application's resource handle when none has it.
AFX_API HINSTANCE AfxFindResourceHandle(LPCTSTR lpszName, LPCTSTR lpszType);
// The application's resource module (the executable unless changed).
AFX_API HINSTANCE AfxGetResourceHandle();
AFX_API void AfxSetResourceHandle(HINSTANCE hInstResource);
// The application's instance (the executable).
AFX_API HINSTANCE AfxGetInstanceHandle();
