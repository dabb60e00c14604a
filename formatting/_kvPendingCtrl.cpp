#include "formatting/_kvPendingCtrl.h"

#include "afx/CWnd.h"
#include "formatting/kvChildKillFocus.h"
#include "formatting/kvEditValidator.h"
#include "formatting/kvMessages.h"
#include "formatting/kvVerifyControl.h"

CWnd* _kvPendingCtrl::Get() const { return CWnd::FromHandle(m_hCtrl); }

bool _kvPendingCtrl::_Exists() const { return ::IsWindow(m_hCtrl) != FALSE; }

LRESULT _kvPendingCtrl::_Check(CWnd* pButton, CWnd* pNewWnd, LPARAM lParam) const
{
    CWnd* pParent = pButton->GetParent();
    if (pParent == nullptr)
        return 0;
    kvChildKillFocus record(Get(), pNewWnd);
    return pParent->SendMessage(WM_KV_CHILDKILLFOCUS, reinterpret_cast<WPARAM>(&record), lParam);
}

LRESULT _kvPendingCtrl::OnChildKillFocus(WPARAM wParam)
{
    if (const auto* pRecord = reinterpret_cast<const kvChildKillFocus*>(wParam); pRecord != nullptr)
        m_hCtrl = pRecord->ChildWnd()->GetSafeHwnd();
    return 0;
}

void _kvPendingCtrl::OnKillFocus(CWnd* pButton, CWnd* pNewWnd)
{
    if (m_hCtrl == nullptr || pNewWnd == nullptr)
        return;
    if (!_Exists() || pNewWnd->GetSafeHwnd() == m_hCtrl) {
        Clear();
        return;
    }
    if (_Check(pButton, pNewWnd, 0) != 0)
        Clear();
}

bool _kvPendingCtrl::Validate(CWnd* pButton)
{
    if (m_hCtrl == nullptr)
        return true;
    if (!_Exists()) {
        Clear();
        return true;
    }
    // Forced: the super-target exemption that brought the field here is skipped.
    if (_Check(pButton, pButton, 1) == 0)
        return true;
    Clear();
    return false;
}

LRESULT _kvPendingCtrl::OnVerify(WPARAM wParam)
{
    if (m_hCtrl == nullptr || !_Exists())
        return kvEditValidator::Valid;
    DWORD sel = 0;
    if (kvVerifyControl(Get(), sel) == kvEditValidator::Valid)
        return kvEditValidator::Valid;
    if (wParam != 0)
        *reinterpret_cast<DWORD*>(wParam) = sel;
    return kvEditValidator::Invalid;
}
