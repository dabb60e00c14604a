// kvCMenuActionItem: holds the action and registers it for a command id.
#include "menus/kvCMenuActionItem.h"

kvCMenuActionItem::kvCMenuActionItem(const Action& action, const Advisor& advisor)
    : kvContextMenuItem(advisor), m_Action(action)
{
}

kvCMenuActionItem::~kvCMenuActionItem() = default;

void kvCMenuActionItem::SetActionItem(const Action& action)
{
    m_Action = action;
}

void kvCMenuActionItem::_RegisterAction(ActionMap& actions, unsigned int nID) const
{
    actions[static_cast<int>(nID)] = m_Action;
}
