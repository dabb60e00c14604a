// CustomerForm: the business form the gallery shows in its main window: a
// customer's name, an amount, a date and an ID number.
#pragma once

#include "afx/CDialog.h"
#include "afx/CEdit.h"

class CustomerForm : public CDialog {
public:
    // Creates the form as the view of its frame.
    BOOL Create(CWnd* pFrame);

protected:
    BOOL OnInitDialog() override;
    // Enter and Escape in a field must not close a form that is not a dialog box.
    void OnOK() override {}
    void OnCancel() override {}

private:
    CEdit m_name;
    CEdit m_amount;
    CEdit m_date;
    CEdit m_idNumber;
};
