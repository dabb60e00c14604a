// The process's extension-module chain and resource handles.
#include "afx/AfxExtension.h"

#include "afx/CDynLinkLibrary.h"
#include "afx/CWinApp.h"

#include <mutex>

namespace {

// The chain changes while DLLs load and unload (under the loader lock) and is
// read by resource lookups on any thread.
std::mutex& ChainGuard()
{
    static std::mutex guard;
    return guard;
}

CDynLinkLibrary* g_pFirstDLL = nullptr;
HINSTANCE g_hResource = nullptr;

bool HasResource(HINSTANCE hInstance, LPCTSTR lpszName, LPCTSTR lpszType)
{
    return hInstance != nullptr && ::FindResourceA(hInstance, lpszName, lpszType) != nullptr;
}

}  // namespace

BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hModule)
{
    if (state.bInitialized)
        return TRUE;
    state.hModule = hModule;
    state.hResource = hModule;
    state.bInitialized = TRUE;
    return TRUE;
}

void AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL bAll)
{
    for (;;) {
        CDynLinkLibrary* pVictim = nullptr;
        {
            std::lock_guard<std::mutex> lock(ChainGuard());
            for (CDynLinkLibrary* p = g_pFirstDLL; p != nullptr && pVictim == nullptr; p = p->m_pNextDLL) {
                if (bAll || p->m_hModule == state.hModule)
                    pVictim = p;
            }
        }
        if (pVictim == nullptr)
            break;
        delete pVictim;  // unlinks itself
    }
    state.bInitialized = FALSE;
}

CDynLinkLibrary::CDynLinkLibrary(AFX_EXTENSION_MODULE& state, BOOL bSystem)
    : CDynLinkLibrary(state.hModule, state.hResource)
{
    m_bSystem = bSystem;
}

CDynLinkLibrary::CDynLinkLibrary(HINSTANCE hModule, HINSTANCE hResource)
    : m_hModule(hModule), m_hResource(hResource)
{
    std::lock_guard<std::mutex> lock(ChainGuard());
    m_pNextDLL = g_pFirstDLL;
    g_pFirstDLL = this;
}

CDynLinkLibrary::~CDynLinkLibrary()
{
    std::lock_guard<std::mutex> lock(ChainGuard());
    for (CDynLinkLibrary** pp = &g_pFirstDLL; *pp != nullptr; pp = &(*pp)->m_pNextDLL) {
        if (*pp == this) {
            *pp = m_pNextDLL;
            break;
        }
    }
}

CDynLinkLibrary* CDynLinkLibrary::GetFirst() { return g_pFirstDLL; }

HINSTANCE AfxFindResourceHandle(LPCTSTR lpszName, LPCTSTR lpszType)
{
    const HINSTANCE hApplication = AfxGetResourceHandle();
    if (HasResource(hApplication, lpszName, lpszType))
        return hApplication;
    std::lock_guard<std::mutex> lock(ChainGuard());
    // Extension modules first, the framework's own (system) modules last.
    for (const bool system : {false, true}) {
        for (const CDynLinkLibrary* p = g_pFirstDLL; p != nullptr; p = p->m_pNextDLL) {
            if ((p->m_bSystem != FALSE) == system && HasResource(p->m_hResource, lpszName, lpszType))
                return p->m_hResource;
        }
    }
    return hApplication;
}

HINSTANCE AfxGetResourceHandle() { return g_hResource != nullptr ? g_hResource : AfxGetInstanceHandle(); }

void AfxSetResourceHandle(HINSTANCE hInstResource) { g_hResource = hInstResource; }

HINSTANCE AfxGetInstanceHandle()
{
    const CWinApp* pApp = AfxGetApp();
    return pApp != nullptr && pApp->m_hInstance != nullptr ? pApp->m_hInstance : ::GetModuleHandleA(nullptr);
}
