// kvButton: the button's font, context menu and its part in validation, which
// the pending control carries.
#include "buttons/kvButton.h"

#include "buttons/kvCreateButton.h"
#include "formatting/kvMessages.h"
#include "menus/kvCtrlContextMenu.h"
#include "menus/kvShowContextMenu.h"

BEGIN_MESSAGE_MAP(kvButton, CButton)
    ON_WM_CONTEXTMENU()
    ON_WM_KILLFOCUS()
    ON_MESSAGE(WM_KV_CHILDKILLFOCUS, OnChildKillFocus)
    ON_MESSAGE(WM_KV_VERIFY, OnVerify)
END_MESSAGE_MAP()

kvButton::kvButton() = default;

kvButton::~kvButton() = default;

BOOL kvButton::Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return kvCreateButton(*this, lpszCaption, dwStyle, rect, pParentWnd, nID);
}

BOOL kvButton::DestroyWindow()
{
    m_PendingCtrl.Clear();
    return CButton::DestroyWindow();
}

CWnd* kvButton::GetPendingCtrl() const { return m_PendingCtrl.Get(); }

bool kvButton::ValidatePendingCtrl() { return m_PendingCtrl.Validate(this); }

// The dialog's validator sends this when the focus comes here from a field.
LRESULT kvButton::OnChildKillFocus(WPARAM wParam, LPARAM) { return m_PendingCtrl.OnChildKillFocus(wParam); }

void kvButton::OnKillFocus(CWnd* pNewWnd)
{
    CButton::OnKillFocus(pNewWnd);
    m_PendingCtrl.OnKillFocus(this, pNewWnd);
}

LRESULT kvButton::OnVerify(WPARAM wParam, LPARAM) { return m_PendingCtrl.OnVerify(wParam); }

void kvButton::OnContextMenu(CWnd*, CPoint point) { kvShowContextMenu<kvCtrlContextMenu>(this, point); }
