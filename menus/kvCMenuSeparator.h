// kvCMenuSeparator: a separator line. It is never grayed, only hidden.
#pragma once

#include "menus/kvContextMenuItem.h"

class KVWIN_API kvCMenuSeparator : public kvContextMenuItem {
public:
    explicit kvCMenuSeparator(const Advisor& advisor);
    kvCMenuSeparator(const kvCMenuSeparator&) = default;
    kvCMenuSeparator& operator=(const kvCMenuSeparator&) = default;
    ~kvCMenuSeparator() override;

protected:
    void _DoMakeContextMenu(CWnd* pWnd, CPoint& point, CMenu& menu, ActionMap& actions,
                            unsigned long nFlags) const override;
};
