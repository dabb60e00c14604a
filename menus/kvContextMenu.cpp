// kvContextMenu: the item list, submenus and the popup's round trip.
#include "menus/kvContextMenu.h"

#include "afx/CMenu.h"
#include "menus/kvLabeledCMenuItem.h"

#include <algorithm>

kvCMenuSeparator kvContextMenu::SEPARATOR{kvContextMenuItem::Advisor()};

kvContextMenu::kvContextMenu(const Advisor& advisor) : kvContextMenuItem(advisor) {}

kvContextMenu::kvContextMenu(const CString& label, const Advisor& advisor)
    : kvContextMenuItem(advisor), m_Label(label)
{
}

kvContextMenu::~kvContextMenu() = default;

bool kvContextMenu::MyLabel(const CString& label) const
{
    return m_Label == label;
}

void kvContextMenu::SetLabel(const CString& label)
{
    m_Label = label;
}

void kvContextMenu::Append(const ItemPtr& item)
{
    m_Items.push_back(item);
}

void kvContextMenu::Append(const CString& label, const Action& action, const Advisor& advisor)
{
    Append(ItemPtr(new kvLabeledCMenuItem(label, action, advisor)));
}

kvContextMenu::ItemList::iterator kvContextMenu::_FindLabel(const CString& label)
{
    return std::find_if(m_Items.begin(), m_Items.end(),
                        [&label](const ItemPtr& item) { return item->MyLabel(label); });
}

bool kvContextMenu::InsertAfter(const CString& label, const ItemPtr& item)
{
    const ItemList::iterator found = _FindLabel(label);
    if (found != m_Items.end())
        m_Items.insert(found + 1, item);
    return true;
}

bool kvContextMenu::InsertBefore(const CString& label, const ItemPtr& item)
{
    const ItemList::iterator found = _FindLabel(label);
    if (found != m_Items.end())
        m_Items.insert(found, item);
    return true;
}

void kvContextMenu::Delete(const CString& label)
{
    const ItemList::iterator found = _FindLabel(label);
    if (found != m_Items.end())
        m_Items.erase(found);
}

void kvContextMenu::DeleteAll()
{
    m_Items.clear();
}

void kvContextMenu::_AppendItems(CWnd* pWnd, CPoint& point, CMenu& menu, ActionMap& actions) const
{
    for (const ItemPtr& item : m_Items)
        item->MakeContextMenu(pWnd, point, menu, actions);
}

// An empty submenu is left out; one whose items are all hidden still shows,
// empty, because its entry was decided before its items were asked.
void kvContextMenu::_DoMakeContextMenu(CWnd* pWnd, CPoint& point, CMenu& menu, ActionMap& actions,
                                       unsigned long nFlags) const
{
    if (m_Items.empty())
        return;
    CMenu popup;
    popup.CreatePopupMenu();
    _AppendItems(pWnd, point, popup, actions);
    menu.AppendMenu(nFlags | MF_POPUP, reinterpret_cast<UINT_PTR>(popup.Detach()), m_Label);
}

void kvContextMenu::_CreatePopup(CWnd* pWnd, CPoint& point, CMenu& menu, ActionMap& actions)
{
    m_ActionID = 1;
    menu.CreatePopupMenu();
    _AppendItems(pWnd, point, menu, actions);
}

// The popup is destroyed before the action runs, so an action may show another
// menu or destroy the window.
unsigned int kvContextMenu::DisplayPopup(CWnd* pWnd, CPoint point)
{
    ActionMap actions;
    CMenu popup;
    _CreatePopup(pWnd, point, popup, actions);
    const unsigned int nID = static_cast<unsigned int>(popup.TrackPopupMenu(TPM_RETURNCMD, point.x, point.y, pWnd));
    popup.DestroyMenu();
    if (nID != 0)
        actions[static_cast<int>(nID)](pWnd, point);
    return nID;
}
