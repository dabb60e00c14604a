#include "formatting/kvNotifyParent.h"

#include "afx/CWnd.h"

void kvNotifyParent(const CWnd* pCtrl, UINT nCode)
{
    if (CWnd* pParent = pCtrl->GetParent(); pParent != nullptr)
        pParent->SendMessage(WM_COMMAND, MAKEWPARAM(pCtrl->GetDlgCtrlID() & 0xFFFF, nCode),
                             reinterpret_cast<LPARAM>(pCtrl->GetSafeHwnd()));
}
