// AboutDialog
#include "gallery/AboutDialog.h"

#include "gallery/resource.h"
#include "library/x_dll_version.h"

AboutDialog::AboutDialog(CWnd* pParent) : CDialog(IDD_ABOUTBOX, pParent) {}

BOOL AboutDialog::OnInitDialog()
{
    CDialog::OnInitDialog();
    char name[128];
    char version[64];
    x_dll_version(name, sizeof name, version, sizeof version);
    SetDlgItemText(IDC_LIBRARY_NAME, name);
    SetDlgItemText(IDC_LIBRARY_VERSION, CString("Version ") + version);
    return TRUE;
}
