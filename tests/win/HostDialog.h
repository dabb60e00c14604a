// HostDialog: a dialog from an in-memory template that hosts the controls
// under test, modeless (shown in front, ready for real input) or modal.
#pragma once

#include "DialogTemplate.h"

#include "afx/CDialog.h"

#include <functional>

class HostDialog : public CDialog {
public:
    explicit HostDialog(const DialogTemplate& dialogTemplate) : m_template(dialogTemplate) {}

    // Creates the dialog, shows it in front and drains the queue; false when
    // no window could be created.
    bool CreateModeless(CWnd* pParentWnd = nullptr);
    // DoModal under a watchdog of its own: a loop that does not end in time
    // fails the test and returns ModalWatchdog::kTimedOut.
    INT_PTR RunModal(CWnd* pParentWnd = nullptr);
    static constexpr UINT kModalMilliseconds = 5000;

    // Runs inside OnInitDialog, with the controls in place.
    std::function<void(HostDialog&)> onInitDialog;

    BOOL OnInitDialog() override;

private:
    const DialogTemplate& m_template;
};
