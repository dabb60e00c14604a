#include "formatting/kvNotifyParent.h"

#include "afx/CWnd.h"

void kvNotifyParent(const CWnd* pCtrl, UINT nCode)
{
    if (CWnd* pParent = pCtrl->GetParent(); pParent != nullptr)
        pParent->SendMessage(WM_COMMAND, MAKEWPARAM(pCtrl->GetDlgCtrlID() & 0xFFFF, nCode),
                             reinterpret_cast<LPARAM>(pCtrl->GetSafeHwnd()));
}

LRESULT kvNotifyParentNotify(const CWnd* pCtrl, UINT nCode)
{
    CWnd* pParent = pCtrl->GetParent();
    if (pParent == nullptr)
        return 0;
    NMHDR header{};
    header.hwndFrom = pCtrl->GetSafeHwnd();
    header.idFrom = static_cast<UINT_PTR>(pCtrl->GetDlgCtrlID());
    header.code = nCode;
    return pParent->SendMessage(WM_NOTIFY, header.idFrom, reinterpret_cast<LPARAM>(&header));
}
