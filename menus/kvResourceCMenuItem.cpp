// kvResourceCMenuItem: registers its action under its own command id.
#include "menus/kvResourceCMenuItem.h"

kvResourceCMenuItem::kvResourceCMenuItem(unsigned int nID, const Action& action, const Advisor& advisor)
    : kvCMenuActionItem(action, advisor), m_nID(nID)
{
}

kvResourceCMenuItem::~kvResourceCMenuItem() = default;

void kvResourceCMenuItem::_DoMakeContextMenu(CWnd*, CPoint&, CMenu&, ActionMap& actions, unsigned long) const
{
    _RegisterAction(actions, m_nID);
}
