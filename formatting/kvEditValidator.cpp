// kvEditValidator: deciding which focus changes validate a field, and putting
// the focus back into an invalid one.
#include "formatting/kvEditValidator.h"

#include "afx/CWnd.h"
#include "formatting/kvChildKillFocus.h"
#include "formatting/kvMessages.h"
#include "formatting/kvVerifyControl.h"

#include <algorithm>

namespace {

bool SameWindow(const CWnd* a, const CWnd* b)
{
    return a->GetSafeHwnd() == b->GetSafeHwnd();
}

}  // namespace

kvEditValidator::kvEditValidator() : m_bBusy(false) {}

kvEditValidator::~kvEditValidator() = default;

LRESULT kvEditValidator::OnRegisterSuperTarget(WPARAM wParam, LPARAM)
{
    if (const CWnd* pTarget = reinterpret_cast<CWnd*>(wParam); pTarget != nullptr)
        m_SuperTargets.push_back(pTarget->GetSafeHwnd());
    return 0;
}

bool kvEditValidator::_IsSuperTarget(CWnd* pWnd) const
{
    return pWnd->GetDlgCtrlID() == IDCANCEL
           || std::find(m_SuperTargets.begin(), m_SuperTargets.end(), pWnd->GetSafeHwnd()) != m_SuperTargets.end();
}

bool kvEditValidator::_NotSuperTarget(kvChildKillFocus* pRecord) const
{
    CWnd* pNewWnd = pRecord->NewWnd();
    if (pNewWnd == nullptr)
        return false;
    if (!_IsSuperTarget(pNewWnd))
        return true;
    pNewWnd->SendMessage(WM_KV_CHILDKILLFOCUS, reinterpret_cast<WPARAM>(pRecord), 0);
    return false;
}

LRESULT kvEditValidator::OnChildKillFocus(CWnd* pOwner, bool forward, WPARAM wParam, LPARAM lParam)
{
    auto* pRecord = reinterpret_cast<kvChildKillFocus*>(wParam);
    if (m_bBusy || pRecord == nullptr)
        return 0;
    const bool forced = lParam != 0;
    if (!forced && !_NotSuperTarget(pRecord))
        return 0;
    CWnd* pNewWnd = pRecord->NewWnd();
    if (pNewWnd == nullptr || SameWindow(pNewWnd, pRecord->ChildWnd()))
        return 0;
    if (!SameWindow(pNewWnd, pOwner) && !pOwner->IsChild(pNewWnd)) {
        // The focus left the host: its parent may host a validator of its own.
        CWnd* pParent = pOwner->GetParent();
        if (!forward || pParent == nullptr)
            return 0;
        return pParent->SendMessage(WM_KV_CHILDKILLFOCUS, wParam, 0);
    }
    return IsValidChild(pRecord->ChildWnd()) ? 0 : 1;
}

bool kvEditValidator::IsValidChild(CWnd* pChild)
{
    if (pChild == nullptr || m_bBusy)
        return true;
    m_bBusy = true;
    DWORD sel = 0;
    const bool valid = kvVerifyControl(pChild, sel) == Valid;
    m_bBusy = false;
    return valid;
}
