// CDynLinkLibrary: an extension DLL's entry in the process's module chain.
// Created on the heap in DllMain after AfxInitExtensionModule; it removes
// itself from the chain when deleted (AfxTermExtensionModule does that).
#pragma once

#include "afx/AfxExport.h"
#include "afx/AfxExtension.h"
#include "afx/CCmdTarget.h"

class AFX_API CDynLinkLibrary : public CCmdTarget {
public:
    // bSystem marks the framework's own modules; they are searched last.
    explicit CDynLinkLibrary(AFX_EXTENSION_MODULE& state, BOOL bSystem = FALSE);
    CDynLinkLibrary(HINSTANCE hModule, HINSTANCE hResource);
    ~CDynLinkLibrary() override;

    HMODULE m_hModule = nullptr;
    HMODULE m_hResource = nullptr;
    BOOL m_bSystem = FALSE;
    // The next module in the chain.
    CDynLinkLibrary* m_pNextDLL = nullptr;

    // The first module of the chain (walk it with m_pNextDLL while holding no
    // other lock; the chain changes only while DLLs load and unload).
    static CDynLinkLibrary* GetFirst();
};
