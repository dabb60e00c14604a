// kvCMenuActionItem: an item that runs an action when chosen. Abstract: its
// subclasses decide how the item appears in the native menu.
#pragma once

#include "menus/kvContextMenuItem.h"

class KVWIN_API kvCMenuActionItem : public kvContextMenuItem {
public:
    kvCMenuActionItem(const Action& action, const Advisor& advisor);
    kvCMenuActionItem(const kvCMenuActionItem&) = default;
    kvCMenuActionItem& operator=(const kvCMenuActionItem&) = default;
    ~kvCMenuActionItem() override;

    void SetActionItem(const Action& action);

protected:
    // Registers the action under a command id, replacing what was there.
    void _RegisterAction(ActionMap& actions, unsigned int nID) const;

private:
    Action m_Action;
};
