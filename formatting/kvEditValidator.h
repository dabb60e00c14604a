// kvEditValidator: validation on focus loss, owned by the window that hosts the
// fields (a dialog). The host passes its child-kill-focus message and its
// super-target registration message on; the validator asks the field that lost
// the focus to verify itself and, when the content is invalid, gives the focus
// back with the offending characters selected. Moving the focus to a super
// target (a Cancel button, or a registered window) defers the check to it.
#pragma once

#include "afx/WinTypes.h"
#include "library/kvWinExport.h"

#include <vector>

class CWnd;
class kvChildKillFocus;

class KVWIN_API kvEditValidator {
public:
    // The answers to WM_KV_VERIFY.
    enum VerifyResult : LRESULT { Valid = 0, Invalid = 1, InvalidWithSelection = 2 };

    kvEditValidator();
    ~kvEditValidator();

    // From the host's handler of WM_KV_CHILDKILLFOCUS; forward passes a focus
    // change that leaves the host on to the host's parent. Nonzero when the
    // field was invalid and has the focus again.
    LRESULT OnChildKillFocus(CWnd* pOwner, bool forward, WPARAM wParam, LPARAM lParam);
    // From the host's handler of its RegisterSuperTarget message: wParam is the
    // CWnd* that may take the focus without a check. Returns 0.
    LRESULT OnRegisterSuperTarget(WPARAM wParam, LPARAM lParam);
    // Verifies one field; when it is invalid, puts the focus back into it.
    bool IsValidChild(CWnd* pChild);

private:
    // False when the focus left the application or went to a super target,
    // which then takes the field as its pending control.
    bool _NotSuperTarget(kvChildKillFocus* pRecord) const;
    bool _IsSuperTarget(CWnd* pWnd) const;

    bool m_bBusy;  // a field is being verified: focus messages it causes are ignored
    std::vector<HWND> m_SuperTargets;
};
