// kvButton: the pending control, its deferred check, and the button's font and
// context menu.
#include "buttons/kvButton.h"

#include "formatting/kvChildKillFocus.h"
#include "formatting/kvEditValidator.h"
#include "formatting/kvMessages.h"
#include "formatting/kvParentFont.h"
#include "menus/kvCtrlContextMenu.h"

BEGIN_MESSAGE_MAP(kvButton, CButton)
    ON_WM_CONTEXTMENU()
    ON_WM_KILLFOCUS()
    ON_MESSAGE(WM_KV_CHILDKILLFOCUS, OnChildKillFocus)
    ON_MESSAGE(WM_KV_VERIFY, OnVerify)
END_MESSAGE_MAP()

kvButton::kvButton() : m_hPendingCtrl(nullptr) {}

kvButton::~kvButton() = default;

BOOL kvButton::Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    if (!CButton::Create(lpszCaption, dwStyle, rect, pParentWnd, nID))
        return FALSE;
    kvSetParentFont(this, pParentWnd);
    return TRUE;
}

BOOL kvButton::DestroyWindow()
{
    m_hPendingCtrl = nullptr;
    return CButton::DestroyWindow();
}

CWnd* kvButton::GetPendingCtrl() const { return CWnd::FromHandle(m_hPendingCtrl); }

bool kvButton::_PendingCtrlExists() const { return ::IsWindow(m_hPendingCtrl) != FALSE; }

LRESULT kvButton::_CheckPendingCtrl(CWnd* pNewWnd, LPARAM lParam)
{
    CWnd* pParent = GetParent();
    if (pParent == nullptr)
        return 0;
    kvChildKillFocus record(GetPendingCtrl(), pNewWnd);
    return pParent->SendMessage(WM_KV_CHILDKILLFOCUS, reinterpret_cast<WPARAM>(&record), lParam);
}

// The dialog's validator sends this when the focus comes here from a field.
LRESULT kvButton::OnChildKillFocus(WPARAM wParam, LPARAM)
{
    if (const auto* pRecord = reinterpret_cast<const kvChildKillFocus*>(wParam); pRecord != nullptr)
        m_hPendingCtrl = pRecord->ChildWnd()->GetSafeHwnd();
    return 0;
}

// The focus moves on without a click: the field's check goes ahead now, as if
// the focus had gone straight from the field to the new window.
void kvButton::OnKillFocus(CWnd* pNewWnd)
{
    CButton::OnKillFocus(pNewWnd);
    if (m_hPendingCtrl == nullptr || pNewWnd == nullptr)
        return;
    if (!_PendingCtrlExists() || pNewWnd->GetSafeHwnd() == m_hPendingCtrl) {
        m_hPendingCtrl = nullptr;
        return;
    }
    if (_CheckPendingCtrl(pNewWnd, 0) != 0)
        m_hPendingCtrl = nullptr;
}

bool kvButton::ValidatePendingCtrl()
{
    if (m_hPendingCtrl == nullptr)
        return true;
    if (!_PendingCtrlExists()) {
        m_hPendingCtrl = nullptr;
        return true;
    }
    // Forced: the super-target exemption that brought the field here is skipped.
    if (_CheckPendingCtrl(this, 1) == 0)
        return true;
    m_hPendingCtrl = nullptr;
    return false;
}

// Verifying the button verifies the field it is holding.
LRESULT kvButton::OnVerify(WPARAM wParam, LPARAM lParam)
{
    if (m_hPendingCtrl == nullptr || !_PendingCtrlExists())
        return kvEditValidator::Valid;
    const LRESULT verdict = ::SendMessageA(m_hPendingCtrl, WM_KV_VERIFY, wParam, lParam);
    if (verdict == kvEditValidator::Valid)
        return kvEditValidator::Valid;
    if (const HWND hDialog = ::GetParent(m_hPendingCtrl); hDialog != nullptr)
        ::SendMessageA(hDialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(m_hPendingCtrl), TRUE);
    if (verdict == kvEditValidator::InvalidWithSelection && wParam != 0) {
        const DWORD sel = *reinterpret_cast<const DWORD*>(wParam);
        ::SendMessageA(m_hPendingCtrl, EM_SETSEL, LOWORD(sel), HIWORD(sel));
    }
    return kvEditValidator::Invalid;
}

void kvButton::OnContextMenu(CWnd*, CPoint point)
{
    kvCtrlContextMenu menu;
    menu.AppendDefaultMenu();
    menu.DisplayPopup(this, point);
}
