// kvContextMenu: a labelled, ordered list of items, rebuilt into a native popup
// every time it is shown, so that the advisors see the control's current state.
// A menu is also an item: nested in another menu it becomes a submenu.
#pragma once

#include "kvbase/SmartPtr.h"
#include "menus/kvCMenuSeparator.h"
#include "menus/kvContextMenuItem.h"

#include <vector>

class KVWIN_API kvContextMenu : public kvContextMenuItem {
public:
    typedef kvBase::SmartPtr<kvContextMenuItem> ItemPtr;

    // A separator with an empty advisor for clients to copy. Copy it into a new
    // item: a smart pointer to this object would try to delete it.
    static kvCMenuSeparator SEPARATOR;

    explicit kvContextMenu(const Advisor& advisor = Advisor());
    explicit kvContextMenu(const CString& label, const Advisor& advisor = Advisor());
    // Copies share the items.
    kvContextMenu(const kvContextMenu&) = default;
    kvContextMenu& operator=(const kvContextMenu&) = default;
    ~kvContextMenu() override;

    bool MyLabel(const CString& label) const override;

    // The item must not be null: building the popup calls through every item.
    virtual void Append(const ItemPtr& item);
    virtual void Append(const CString& label, const Action& action, const Advisor& advisor);
    // Both insert next to the first item carrying the label, or nowhere, and
    // answer true either way.
    virtual bool InsertAfter(const CString& label, const ItemPtr& item);
    virtual bool InsertBefore(const CString& label, const ItemPtr& item);
    virtual void Delete(const CString& label);
    virtual void DeleteAll();
    // Shows the menu at a screen point for the window and runs the chosen
    // action after the popup is gone. Returns the chosen command id, 0 when
    // the menu was dismissed.
    virtual unsigned int DisplayPopup(CWnd* pWnd, CPoint point);

    void SetLabel(const CString& label);

protected:
    void _DoMakeContextMenu(CWnd* pWnd, CPoint& point, CMenu& menu, ActionMap& actions,
                            unsigned long nFlags) const override;
    // Creates the native popup and numbers the command ids from 1. The menu's
    // own advisor only matters when it is nested.
    void _CreatePopup(CWnd* pWnd, CPoint& point, CMenu& menu, ActionMap& actions);

private:
    typedef std::vector<ItemPtr> ItemList;

    ItemList::iterator _FindLabel(const CString& label);
    void _AppendItems(CWnd* pWnd, CPoint& point, CMenu& menu, ActionMap& actions) const;

    CString m_Label;
    ItemList m_Items;
};
