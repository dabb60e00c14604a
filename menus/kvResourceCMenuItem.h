// kvResourceCMenuItem: gives an action to an entry that already exists in the
// native menu under a fixed command id. It adds no entry of its own and takes
// no id from the counter.
#pragma once

#include "menus/kvCMenuActionItem.h"

class KVWIN_API kvResourceCMenuItem : public kvCMenuActionItem {
public:
    kvResourceCMenuItem(unsigned int nID, const Action& action, const Advisor& advisor);
    kvResourceCMenuItem(const kvResourceCMenuItem&) = default;
    kvResourceCMenuItem& operator=(const kvResourceCMenuItem&) = default;
    ~kvResourceCMenuItem() override;

protected:
    void _DoMakeContextMenu(CWnd* pWnd, CPoint& point, CMenu& menu, ActionMap& actions,
                            unsigned long nFlags) const override;

private:
    unsigned int m_nID;
};
