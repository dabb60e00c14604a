// The library's version, in the forms the version resource and the load
// messages need. Included by kvWin.rc, so it holds preprocessor definitions only.
#pragma once

#define KVWIN_VERSION_MAJOR 13
#define KVWIN_VERSION_MINOR 1
#define KVWIN_VERSION_BUILD 24
#define KVWIN_VERSION_TEXT "13.1.24"
