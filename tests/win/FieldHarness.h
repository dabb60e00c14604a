// FieldHarness: what the tests of the formatted edit field, its validation and
// the validating button share: a dialog wired to a validator the way an
// application wires one, and a recorder of the library's beeps.
#pragma once

#include "HostDialog.h"
#include "ImportPatch.h"
#include "MenuDriver.h"
#include "MessageLog.h"
#include "RealInput.h"

#include "formatting/kvEditValidator.h"
#include "formatting/kvStrEditFormatter.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

class kvButton;
class kvEdit;

// The test application's super-target registration message.
extern const UINT WM_TEST_REGISTER_SUPER_TARGET;

// A dialog that validates its fields on focus loss and logs the EN_CHANGE
// notifications its handlers see ("dialog", WM_COMMAND, control id). OK and
// Cancel do not end it.
class FieldDialog : public HostDialog {
public:
    using HostDialog::HostDialog;

    void OnOK() override {}
    void OnCancel() override {}

    bool forward = false;  // focus changes that leave the dialog go to its parent
    MessageLog changes;

protected:
    afx_msg LRESULT OnChildKillFocus(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnRegisterSuperTarget(WPARAM wParam, LPARAM lParam);
    afx_msg void OnFieldChange(UINT nID);

    DECLARE_MESSAGE_MAP()

private:
    kvEditValidator m_validator;
};

// A dialog in front, with the fields and buttons a test adds, one under the other.
class FieldForm {
    DialogTemplate m_template;  // before the dialog, which is built from it

public:
    explicit FieldForm(CWnd* pParentWnd);
    ~FieldForm();
    FieldForm(const FieldForm&) = delete;
    FieldForm& operator=(const FieldForm&) = delete;

    // The field starts with the text and selection given, then takes the
    // formatter (null: none), so the start state is not normalised.
    kvEdit& AddField(UINT nID, kvEditFormatter* pFormatter, const char* text = "", int start = 0, int end = 0,
                     DWORD style = 0);
    kvButton& AddButton(UINT nID, const char* caption);

    FieldDialog dialog;

private:
    RECT _NextRect(int height);

    std::vector<std::unique_ptr<CWnd>> m_controls;
    int m_nextTop = 8;
};

// Passes every key to the native control but "b", which it refuses, with a
// beep and "b is not allowed.".
class RefuseBFormatter : public kvStrEditFormatter {
public:
    bool DoChar(CString& text, unsigned long& sel, bool overtype, unsigned int key, unsigned int repeat,
                unsigned int flags) const override;
};

std::string TextOf(const CWnd& wnd);
// The status messages a row expects: none for "".
std::vector<std::string> MessagesOf(const char* message);
std::pair<int, int> SelOf(const CWnd& edit);
// Sends each character as WM_CHAR, as TranslateMessage would.
void SendChars(CWnd& wnd, const std::string& chars);

// Counts the beeps kvWin.dll sounds while it lives, by taking the library's
// import of MessageBeep over (Windows plays beeps where a test cannot hear them).
class BeepRecorder {
public:
    BeepRecorder();

    int Count() const;

private:
    ImportPatch m_patch;
};
