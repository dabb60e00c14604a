// kvResourceCMenu: kept for programs written against menu resources. It loads
// nothing: both constructors make an empty, unlabelled menu without an advisor,
// to be filled like any other kvContextMenu.
#pragma once

#include "menus/kvContextMenu.h"

class KVWIN_API kvResourceCMenu : public kvContextMenu {
public:
    kvResourceCMenu(unsigned int nResourceID, const Advisor& advisor);
    kvResourceCMenu(CString& name, const Advisor& advisor);
    kvResourceCMenu(const kvResourceCMenu&) = default;
    kvResourceCMenu& operator=(const kvResourceCMenu&) = default;
    ~kvResourceCMenu() override;

    // Does nothing: there are no resource entries to give an action to.
    virtual void SetAction(unsigned int nID, const Action& action);
};
