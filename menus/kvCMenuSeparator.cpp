// kvCMenuSeparator: appends a native separator.
#include "menus/kvCMenuSeparator.h"

#include "afx/CMenu.h"

kvCMenuSeparator::kvCMenuSeparator(const Advisor& advisor) : kvContextMenuItem(advisor) {}

kvCMenuSeparator::~kvCMenuSeparator() = default;

void kvCMenuSeparator::_DoMakeContextMenu(CWnd*, CPoint&, CMenu& menu, ActionMap&, unsigned long) const
{
    menu.AppendMenu(MF_SEPARATOR);
}
