// ImportPatch: takes one import of a loaded module over while it lives: the
// module's calls to dll!function go to a replacement, and the original entry is
// put back on destruction. Tests use it to observe what a library asks of the
// system (beeps, GDI objects) without changing the library.
#pragma once

#include "afx/WinTypes.h"

class ImportPatch {
public:
    ImportPatch(const char* module, const char* dll, const char* function, void* replacement);
    ~ImportPatch();
    ImportPatch(const ImportPatch&) = delete;
    ImportPatch& operator=(const ImportPatch&) = delete;

    // False when the module is not loaded or does not import the function.
    bool Active() const { return m_pSlot != nullptr; }

private:
    void** m_pSlot = nullptr;
    void* m_pOriginal = nullptr;
};
