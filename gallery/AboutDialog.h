// AboutDialog: the gallery's About box, with the kvWin build that is loaded.
#pragma once

#include "afx/CDialog.h"

class AboutDialog : public CDialog {
public:
    explicit AboutDialog(CWnd* pParent);

protected:
    BOOL OnInitDialog() override;
};
