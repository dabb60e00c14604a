// CDialog: a dialog box from a template resource (by id or name) or from a
// template in memory, modal (DoModal runs the framework's own loop, so that
// PreTranslateMessage sees the dialog's messages) or modeless (Create).
#pragma once

#include "afx/AfxExport.h"
#include "afx/CWnd.h"

class AFX_API CDialog : public CWnd {
public:
    CDialog() = default;
    explicit CDialog(LPCTSTR lpszTemplateName, CWnd* pParentWnd = nullptr);
    explicit CDialog(UINT nIDTemplate, CWnd* pParentWnd = nullptr);
    ~CDialog() override;

    // Modeless creation.
    virtual BOOL Create(LPCTSTR lpszTemplateName, CWnd* pParentWnd = nullptr);
    virtual BOOL Create(UINT nIDTemplate, CWnd* pParentWnd = nullptr);
    virtual BOOL CreateIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd = nullptr);
    // Prepares DoModal to run from a template in memory (the caller keeps it alive).
    BOOL InitModalIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd = nullptr);

    // Runs the dialog modally: the parent is disabled, the loop runs until
    // EndDialog, the window is destroyed. Returns EndDialog's result, or -1
    // when the dialog could not be created.
    virtual INT_PTR DoModal();
    void EndDialog(int nResult);

    // Moves the focus to the next (or previous) control in tab order, or to pWndCtrl.
    void NextDlgCtrl() const;
    void PrevDlgCtrl() const;
    void GotoDlgCtrl(CWnd* pWndCtrl);
    void SetDefID(UINT nID);
    DWORD GetDefID() const;

    virtual BOOL OnInitDialog();
    virtual void OnOK();
    virtual void OnCancel();
    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    // The template-based creation both paths share; the creation hook attaches
    // this object before WM_INITDIALOG.
    BOOL CreateDlgIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd, HINSTANCE hInst);
    // Runs messages until EndDialog; returns its result.
    int RunModalLoop();
    void EndModalLoop(int nResult);
    // The template named by m_lpszTemplateName, or the in-memory one.
    LPCDLGTEMPLATE LoadTemplate(HINSTANCE* phInst) const;

    afx_msg LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);

    LPCTSTR m_lpszTemplateName = nullptr;
    LPCDLGTEMPLATE m_lpDialogTemplate = nullptr;
    CWnd* m_pParentWnd = nullptr;

    DECLARE_MESSAGE_MAP()

private:
    // The window DoModal disables and gives the activation back to.
    HWND ModalOwner() const;

    int m_nModalResult = -1;
    bool m_bContinueModal = false;  // DoModal's loop runs while set
};
