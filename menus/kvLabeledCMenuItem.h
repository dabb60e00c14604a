// kvLabeledCMenuItem: a text entry ("&" before the mnemonic letter) that takes
// the next command id when the popup is built.
#pragma once

#include "menus/kvCMenuActionItem.h"

class KVWIN_API kvLabeledCMenuItem : public kvCMenuActionItem {
public:
    kvLabeledCMenuItem(const CString& label, const Action& action, const Advisor& advisor);
    kvLabeledCMenuItem(const kvLabeledCMenuItem&) = default;
    kvLabeledCMenuItem& operator=(const kvLabeledCMenuItem&) = default;
    ~kvLabeledCMenuItem() override;

    bool MyLabel(const CString& label) const override;
    void SetLabel(const CString& label);

protected:
    void _DoMakeContextMenu(CWnd* pWnd, CPoint& point, CMenu& menu, ActionMap& actions,
                            unsigned long nFlags) const override;

private:
    CString m_Label;
};
