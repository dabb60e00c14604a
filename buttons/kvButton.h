// kvButton: a push button that takes part in validation on focus loss. When the
// focus comes to it from a field that still holds unvalidated input, the
// field's check is deferred: the button keeps the field as its pending control,
// and the owner validates it (ValidatePendingCtrl) before acting on the click.
#pragma once

#include "afx/CButton.h"
#include "formatting/_kvPendingCtrl.h"
#include "library/kvWinExport.h"

class KVWIN_API kvButton : public CButton {
public:
    kvButton();
    ~kvButton() override;

    // Creates the button with its parent's font.
    BOOL Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) override;
    BOOL DestroyWindow() override;

    // Validates the pending control; false when it was invalid and has the
    // focus again, so the button's action must not go ahead.
    bool ValidatePendingCtrl();
    // The control whose check waits for this button, or null.
    CWnd* GetPendingCtrl() const;

protected:
    afx_msg LRESULT OnChildKillFocus(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnVerify(WPARAM wParam, LPARAM lParam);
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg void OnContextMenu(CWnd* pWnd, CPoint point);

    DECLARE_MESSAGE_MAP()

private:
    _kvPendingCtrl m_PendingCtrl;
};
