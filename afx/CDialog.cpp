// CDialog: dialogs from templates, modal through the framework's own loop.
#include "afx/CDialog.h"

#include "afx/AfxExtension.h"
#include "afx/AfxState.h"
#include "afx/CWinThread.h"

namespace {
// The dialog procedure behind the map: the window procedure (CWnd's) sends
// what the map leaves to the dialog manager, which asks this only for
// WM_INITDIALOG.
INT_PTR CALLBACK AfxDlgProc(HWND hWnd, UINT message, WPARAM, LPARAM)
{
    if (message != WM_INITDIALOG)
        return FALSE;
    auto* pDialog = dynamic_cast<CDialog*>(CWnd::FromHandlePermanent(hWnd));
    return pDialog != nullptr ? pDialog->OnInitDialog() : TRUE;
}
}  // namespace

BEGIN_MESSAGE_MAP(CDialog, CWnd)
    ON_MESSAGE(WM_INITDIALOG, HandleInitDialog)
    ON_COMMAND(IDOK, OnOK)
    ON_COMMAND(IDCANCEL, OnCancel)
END_MESSAGE_MAP()

CDialog::CDialog(LPCTSTR lpszTemplateName, CWnd* pParentWnd)
    : m_lpszTemplateName(lpszTemplateName), m_pParentWnd(pParentWnd)
{
}

CDialog::CDialog(UINT nIDTemplate, CWnd* pParentWnd)
    : CDialog(MAKEINTRESOURCEA(nIDTemplate), pParentWnd)
{
}

CDialog::~CDialog() = default;

BOOL CDialog::Create(LPCTSTR lpszTemplateName, CWnd* pParentWnd)
{
    m_lpszTemplateName = lpszTemplateName;
    m_lpDialogTemplate = nullptr;
    m_pParentWnd = pParentWnd;
    HINSTANCE hInst = nullptr;
    const LPCDLGTEMPLATE lpTemplate = LoadTemplate(&hInst);
    return lpTemplate != nullptr && CreateDlgIndirect(lpTemplate, pParentWnd, hInst);
}

BOOL CDialog::Create(UINT nIDTemplate, CWnd* pParentWnd)
{
    return Create(MAKEINTRESOURCEA(nIDTemplate), pParentWnd);
}

BOOL CDialog::CreateIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd)
{
    m_pParentWnd = pParentWnd;
    return CreateDlgIndirect(lpDialogTemplate, pParentWnd, AfxGetInstanceHandle());
}

BOOL CDialog::InitModalIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd)
{
    m_lpDialogTemplate = lpDialogTemplate;
    m_lpszTemplateName = nullptr;
    m_pParentWnd = pParentWnd;
    return lpDialogTemplate != nullptr;
}

LPCDLGTEMPLATE CDialog::LoadTemplate(HINSTANCE* phInst) const
{
    if (m_lpDialogTemplate != nullptr) {
        *phInst = AfxGetInstanceHandle();
        return m_lpDialogTemplate;
    }
    *phInst = AfxFindResourceHandle(m_lpszTemplateName, RT_DIALOG);
    const HRSRC hResource = ::FindResourceA(*phInst, m_lpszTemplateName, RT_DIALOG);
    const HGLOBAL hTemplate = hResource != nullptr ? ::LoadResource(*phInst, hResource) : nullptr;
    return hTemplate != nullptr ? static_cast<LPCDLGTEMPLATE>(::LockResource(hTemplate)) : nullptr;
}

BOOL CDialog::CreateDlgIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd, HINSTANCE hInst)
{
    AfxHookWindowCreate(this);
    const HWND hWnd = ::CreateDialogIndirectParamA(hInst, lpDialogTemplate, pParentWnd->GetSafeHwnd(),
                                                   AfxDlgProc, 0);
    if (!AfxUnhookWindowCreate())
        PostNcDestroy();
    return hWnd != nullptr;
}

HWND CDialog::ModalOwner() const
{
    CWnd* pParent = m_pParentWnd != nullptr ? m_pParentWnd : AfxGetMainWnd();
    const HWND hWndTop = pParent != nullptr ? pParent->GetTopLevelParent()->GetSafeHwnd() : nullptr;
    return hWndTop != nullptr ? ::GetLastActivePopup(hWndTop) : nullptr;
}

INT_PTR CDialog::DoModal()
{
    HINSTANCE hInst = nullptr;
    const LPCDLGTEMPLATE lpTemplate = LoadTemplate(&hInst);
    if (lpTemplate == nullptr)
        return -1;
    const HWND hWndOwner = ModalOwner();
    const bool bDisableOwner = hWndOwner != nullptr && ::IsWindowEnabled(hWndOwner);
    if (bDisableOwner)
        ::EnableWindow(hWndOwner, FALSE);
    m_nModalResult = -1;
    // Set before creation: EndDialog in OnInitDialog skips the loop.
    m_bContinueModal = true;
    if (CreateDlgIndirect(lpTemplate, CWnd::FromHandle(hWndOwner), hInst)) {
        if (m_bContinueModal)
            RunModalLoop();
        // Hidden before the owner comes back, so that the owner gets the activation.
        if (m_hWnd != nullptr)
            SetWindowPos(nullptr, 0, 0, 0, 0, SWP_HIDEWINDOW | SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE | SWP_NOZORDER);
    }
    m_bContinueModal = false;
    if (bDisableOwner)
        ::EnableWindow(hWndOwner, TRUE);
    if (hWndOwner != nullptr && ::GetActiveWindow() == m_hWnd)
        ::SetActiveWindow(hWndOwner);
    DestroyWindow();
    return m_nModalResult;
}

int CDialog::RunModalLoop()
{
    // A template without WS_VISIBLE is shown once its first messages are through.
    bool bShowWhenIdle = (GetStyle() & WS_VISIBLE) == 0;
    while (m_bContinueModal) {
        MSG msg;
        if (bShowWhenIdle && !::PeekMessageA(&msg, nullptr, 0, 0, PM_NOREMOVE)) {
            ShowWindow(SW_SHOWNORMAL);
            UpdateWindow();
            bShowWhenIdle = false;
        }
        if (!AfxPumpMessage()) {
            // WM_QUIT belongs to the loop outside this one.
            ::PostQuitMessage(0);
            m_bContinueModal = false;
        }
    }
    return m_nModalResult;
}

void CDialog::EndModalLoop(int nResult)
{
    m_nModalResult = nResult;
    if (m_bContinueModal) {
        m_bContinueModal = false;
        PostMessage(WM_NULL);  // wakes the loop up
    }
}

void CDialog::EndDialog(int nResult)
{
    EndModalLoop(nResult);
    ::EndDialog(m_hWnd, nResult);
}

void CDialog::NextDlgCtrl() const { SendMessage(WM_NEXTDLGCTL, 0, 0); }
void CDialog::PrevDlgCtrl() const { SendMessage(WM_NEXTDLGCTL, 1, 0); }

void CDialog::GotoDlgCtrl(CWnd* pWndCtrl)
{
    SendMessage(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(pWndCtrl->GetSafeHwnd()), TRUE);
}

void CDialog::SetDefID(UINT nID) { SendMessage(DM_SETDEFID, nID); }

DWORD CDialog::GetDefID() const { return static_cast<DWORD>(SendMessage(DM_GETDEFID)); }

BOOL CDialog::OnInitDialog() { return TRUE; }
void CDialog::OnOK() { EndDialog(IDOK); }
void CDialog::OnCancel() { EndDialog(IDCANCEL); }

LRESULT CDialog::HandleInitDialog(WPARAM, LPARAM)
{
    // The dialog manager asks AfxDlgProc, which calls OnInitDialog.
    return Default();
}

BOOL CDialog::PreTranslateMessage(MSG* pMsg)
{
    return CWnd::PreTranslateMessage(pMsg) || PreTranslateInput(pMsg);
}
