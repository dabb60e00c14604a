// The module the library's code is linked into, as the loader knows it. The
// frame asks for it outside DllMain too (the version entry, the late
// initialisation), so it comes from the image itself rather than a saved handle.
#pragma once

#include "afx/CString.h"

#include <windows.h>

namespace kvWin {

HMODULE LibraryModule();
// Full path of the library file.
CString LibraryFileName();

}  // namespace kvWin
