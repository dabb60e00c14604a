#include "formatting/kvVerifyControl.h"

#include "afx/CWnd.h"
#include "formatting/kvEditValidator.h"
#include "formatting/kvMessages.h"
#include "formatting/kvSelection.h"

namespace {
// Through the dialog manager, so that the dialog remembers where its focus is.
void GiveFocusBack(CWnd* pCtrl)
{
    if (CWnd* pParent = pCtrl->GetParent(); pParent != nullptr)
        pParent->SendMessage(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(pCtrl->GetSafeHwnd()), 1);
    else
        pCtrl->SetFocus();
}
}  // namespace

LRESULT kvVerifyControl(CWnd* pCtrl, DWORD& sel)
{
    const LRESULT verdict = pCtrl->SendMessage(WM_KV_VERIFY, reinterpret_cast<WPARAM>(&sel), 0);
    if (verdict == kvEditValidator::Valid || pCtrl->GetDlgCtrlID() == IDCANCEL)
        return verdict;
    GiveFocusBack(pCtrl);
    if (verdict == kvEditValidator::InvalidWithSelection)
        pCtrl->SendMessage(EM_SETSEL, static_cast<WPARAM>(kvSelStart(sel)), kvSelEnd(sel));
    return verdict;
}
