// GuiObjectCounter: the GDI and USER objects the process holds, counted two
// ways. The system's own count (GetGuiResources) where the platform keeps one;
// and, because Wine does not, the GDI objects, device contexts and menus that
// the framework and kvWin.dll have created and not yet released (their imports
// are watched while the counter lives), plus the windows of the thread.
#pragma once

#include "win/ImportPatch.h"

#include <memory>
#include <ostream>
#include <vector>

struct GuiObjectCounts {
    DWORD systemGdi = 0;
    DWORD systemUser = 0;
    size_t libraryGdi = 0;
    size_t libraryMenus = 0;
    size_t threadWindows = 0;

    bool operator==(const GuiObjectCounts& other) const;
};

std::ostream& operator<<(std::ostream& out, const GuiObjectCounts& counts);

class GuiObjectCounter {
public:
    GuiObjectCounter();
    ~GuiObjectCounter();
    GuiObjectCounter(const GuiObjectCounter&) = delete;
    GuiObjectCounter& operator=(const GuiObjectCounter&) = delete;

    GuiObjectCounts Count() const;

private:
    std::vector<std::unique_ptr<ImportPatch>> m_patches;
};
