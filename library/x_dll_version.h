// x_dll_version: which build of kvWin an application has loaded, as the
// library file's version resource tells it.
#pragma once

#include "library/kvWinExport.h"

// Writes the file description ("kvWin Library" when the file carries no version
// resource) into name and the file version ("XX.XX.XX" likewise) into version,
// each cut to the buffer's size including the terminator. Exported unmangled.
extern "C" KVWIN_API void x_dll_version(char* name, short nameSize, char* version, short versionSize);
