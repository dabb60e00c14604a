// _kvPendingCtrl: the validating buttons' side of validation on focus loss.
// A field that loses the focus to a super target (a Cancel button, or any
// registered button) is not checked at once: the button keeps it as its
// pending control and has it checked when the button is used, or when the
// focus moves on from the button.
#pragma once

#include "afx/WinTypes.h"
#include "library/kvWinExport.h"

class CWnd;

class KVWIN_API _kvPendingCtrl {
public:
    // The field, or null; the field may have been destroyed meanwhile.
    CWnd* Get() const;
    void Clear() { m_hCtrl = nullptr; }

    // The button's WM_KV_CHILDKILLFOCUS: the record's field becomes pending. Result 0.
    LRESULT OnChildKillFocus(WPARAM wParam);
    // After the button's own kill-focus handling: the field's check goes ahead
    // as if the focus had gone straight from the field to the new window.
    void OnKillFocus(CWnd* pButton, CWnd* pNewWnd);
    // Forces the field's check; false when it was invalid and has the focus
    // again, so that the button's action must not go ahead.
    bool Validate(CWnd* pButton);
    // The button's WM_KV_VERIFY: verifying the button verifies its field.
    LRESULT OnVerify(WPARAM wParam);

private:
    bool _Exists() const;
    // The field's check through the button's parent; nonzero when it was invalid.
    LRESULT _Check(CWnd* pButton, CWnd* pNewWnd, LPARAM lParam) const;

    // A handle: the field's CWnd may go away with the field while the check waits.
    HWND m_hCtrl = nullptr;
};
