// CustomerForm: the business form the gallery shows in its main window: a
// customer (name, ID number) and an invoice (date, time, amount), each field
// formatted and validated when the focus leaves it. OK saves the form once
// every field is valid; Cancel brings the saved values back without a check.
#pragma once

#include "buttons/kvButton.h"
#include "formatting/kvEdit.h"
#include "formatting/kvEditValidator.h"
#include "gallery/GalleryPage.h"

#include <array>

class CustomerForm : public GalleryPage {
public:
    BOOL Create(CWnd* pParent);
    // Types an amount above the limit and tabs on, as a person would, so that
    // the form shows how it refuses invalid input.
    void EnterInvalidAmount();

    bool CanLeave() override;
    void PrepareForPicture() override { EnterInvalidAmount(); }

protected:
    BOOL OnInitDialog() override;
    void OnOK() override;
    void OnCancel() override;
    afx_msg LRESULT OnChildKillFocus(WPARAM wParam, LPARAM lParam);

    DECLARE_MESSAGE_MAP()

private:
    void AttachFields();
    // False when a field is invalid: it has the focus again and its message is shown.
    bool AllFieldsValid();
    void SaveFields();
    void RestoreFields();

    // In tab order: name, ID number, date, time, amount.
    std::array<kvEdit, 5> m_fields;
    kvButton m_ok;
    kvButton m_cancel;
    kvEditValidator m_validator;
    std::array<CString, 5> m_saved;  // what Cancel brings back
};
