// AfxInitCommonControls: registers a family of common-controls window classes
// (ICC_ flags) before the first control of the family is created. Repeating
// it is cheap and harmless.
#pragma once

#include "afx/WinTypes.h"

#include <commctrl.h>

inline BOOL AfxInitCommonControls(DWORD dwClasses)
{
    INITCOMMONCONTROLSEX init{sizeof(INITCOMMONCONTROLSEX), dwClasses};
    return ::InitCommonControlsEx(&init);
}
