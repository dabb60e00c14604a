// The library's own module handle and file name.
#include "library/kvLibraryModule.h"

// The linker's symbol at the start of this image: its address is the module handle.
extern "C" IMAGE_DOS_HEADER __ImageBase;

namespace kvWin {

HMODULE LibraryModule() { return reinterpret_cast<HMODULE>(&__ImageBase); }

CString LibraryFileName()
{
    CString name;
    DWORD length = ::GetModuleFileNameA(LibraryModule(), name.GetBuffer(MAX_PATH), MAX_PATH);
    name.ReleaseBuffer(length < MAX_PATH ? static_cast<int>(length) : MAX_PATH - 1);
    return name;
}

}  // namespace kvWin
