// kvResourceCMenu: an empty menu whatever it is constructed from.
#include "menus/kvResourceCMenu.h"

kvResourceCMenu::kvResourceCMenu(unsigned int, const Advisor&) {}

kvResourceCMenu::kvResourceCMenu(CString&, const Advisor&) {}

kvResourceCMenu::~kvResourceCMenu() = default;

void kvResourceCMenu::SetAction(unsigned int, const Action&) {}
