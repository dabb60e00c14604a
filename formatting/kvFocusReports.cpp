#include "formatting/kvFocusReports.h"

#include "afx/CWnd.h"
#include "formatting/kvChildKillFocus.h"
#include "formatting/kvMessages.h"
#include "formatting/kvStatus.h"

void kvReportFocusIn(const CWnd* pCtrl)
{
    kvSendStatus(kvStatusFocusIn, reinterpret_cast<LPARAM>(pCtrl->GetSafeHwnd()));
}

void kvReportFocusOut(const CWnd* pCtrl)
{
    if (const HWND hFocus = ::GetFocus(); hFocus != pCtrl->GetSafeHwnd())
        kvSendStatus(kvStatusFocusOut, reinterpret_cast<LPARAM>(hFocus));
}

LRESULT kvSendChildKillFocus(CWnd* pCtrl, CWnd* pNewWnd)
{
    CWnd* pParent = pCtrl->GetParent();
    if (pParent == nullptr)
        return 0;
    kvChildKillFocus record(pCtrl, pNewWnd);
    return pParent->SendMessage(WM_KV_CHILDKILLFOCUS, reinterpret_cast<WPARAM>(&record), 0);
}
