// Caption text rules shared by the owner-drawn buttons, which need no window.
#pragma once

#include "afx/CString.h"
#include "library/kvWinExport.h"

// The caption as it shows: each "&" mnemonic prefix dropped, and "&&" shown as
// "&". A null text gives an empty string.
KVWIN_API CString kvRemoveAmpersand(const char* text);
