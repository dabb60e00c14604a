// kvLabeledCMenuItem: appends a text entry under the next command id.
#include "menus/kvLabeledCMenuItem.h"

#include "afx/CMenu.h"

kvLabeledCMenuItem::kvLabeledCMenuItem(const CString& label, const Action& action, const Advisor& advisor)
    : kvCMenuActionItem(action, advisor), m_Label(label)
{
}

kvLabeledCMenuItem::~kvLabeledCMenuItem() = default;

bool kvLabeledCMenuItem::MyLabel(const CString& label) const
{
    return m_Label == label;
}

void kvLabeledCMenuItem::SetLabel(const CString& label)
{
    m_Label = label;
}

void kvLabeledCMenuItem::_DoMakeContextMenu(CWnd*, CPoint&, CMenu& menu, ActionMap& actions,
                                            unsigned long nFlags) const
{
    menu.AppendMenu(MF_STRING | nFlags, m_ActionID, m_Label);
    _RegisterAction(actions, m_ActionID);
    ++m_ActionID;
}
