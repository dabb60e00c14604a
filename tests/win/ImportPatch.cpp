#include "ImportPatch.h"

#include <cstring>

namespace {

// The import address table entry through which module calls dll!function.
void** FindImportSlot(HMODULE hModule, const char* dll, const char* function)
{
    if (hModule == nullptr)
        return nullptr;
    auto* base = reinterpret_cast<BYTE*>(hModule);
    const auto* dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
    const auto* nt = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
    const IMAGE_DATA_DIRECTORY& imports = nt->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    auto* entry = reinterpret_cast<IMAGE_IMPORT_DESCRIPTOR*>(base + imports.VirtualAddress);
    for (; entry->Name != 0; ++entry) {
        if (::lstrcmpiA(reinterpret_cast<const char*>(base + entry->Name), dll) != 0)
            continue;
        auto* name = reinterpret_cast<IMAGE_THUNK_DATA*>(base + entry->OriginalFirstThunk);
        auto* slot = reinterpret_cast<IMAGE_THUNK_DATA*>(base + entry->FirstThunk);
        for (; name->u1.AddressOfData != 0; ++name, ++slot) {
            if (IMAGE_SNAP_BY_ORDINAL(name->u1.Ordinal))
                continue;
            const auto* byName = reinterpret_cast<const IMAGE_IMPORT_BY_NAME*>(base + name->u1.AddressOfData);
            if (std::strcmp(reinterpret_cast<const char*>(byName->Name), function) == 0)
                return reinterpret_cast<void**>(&slot->u1.Function);
        }
    }
    return nullptr;
}

void WriteSlot(void** pSlot, void* value)
{
    DWORD protection = 0;
    ::VirtualProtect(pSlot, sizeof value, PAGE_READWRITE, &protection);
    *pSlot = value;
    ::VirtualProtect(pSlot, sizeof value, protection, &protection);
}

}  // namespace

ImportPatch::ImportPatch(const char* module, const char* dll, const char* function, void* replacement)
    : m_pSlot(FindImportSlot(::GetModuleHandleA(module), dll, function))
{
    if (m_pSlot == nullptr)
        return;
    m_pOriginal = *m_pSlot;
    WriteSlot(m_pSlot, replacement);
}

ImportPatch::~ImportPatch()
{
    if (m_pSlot != nullptr)
        WriteSlot(m_pSlot, m_pOriginal);
}
