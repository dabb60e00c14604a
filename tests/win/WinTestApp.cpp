// The window tests run inside an application, as the controls expect: this is
// its application object (the process's thread object and main-window owner).
#include "afx/CWinApp.h"

CWinApp theApp("kvWin window tests");
