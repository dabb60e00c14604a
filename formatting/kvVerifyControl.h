// kvVerifyControl: asks a control to verify itself and, when it is invalid,
// gives it the focus back with the offending characters selected. A Cancel
// button (IDCANCEL) is never given the focus back.
#pragma once

#include "afx/WinTypes.h"

class CWnd;

// The control's verdict (kvEditValidator::VerifyResult); sel receives the
// selection of the offending characters when the verdict carries one.
LRESULT kvVerifyControl(CWnd* pCtrl, DWORD& sel);
