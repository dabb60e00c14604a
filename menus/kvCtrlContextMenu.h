// kvCtrlContextMenu: the right-click menu every control of the library offers,
// "&What's This?" for context help, shown only when a help id is found for the
// control. Advisors and actions are bound to this object's virtual members, so
// a subclass changes an item by overriding its member.
#pragma once

#include "afx/WinTypes.h"
#include "menus/kvContextMenu.h"

class KVWIN_API kvCtrlContextMenu : public kvContextMenu {
public:
    kvCtrlContextMenu();
    kvCtrlContextMenu(const kvCtrlContextMenu&) = default;
    kvCtrlContextMenu& operator=(const kvCtrlContextMenu&) = default;
    ~kvCtrlContextMenu() override;

    virtual void AppendDefaultMenu();
    // Looks the help id up once per menu object; no id hides the item.
    virtual CMI_Flag HelpAdvisor(CWnd* pWnd, CPoint& point);
    // Shows the topic of the help id the advisor found.
    virtual void DoHelp(CWnd* pWnd, CPoint& point);

    // The window's own context help id, else its answer to WM_HELPHITTEST,
    // else one made of its owner's help id and its own control id.
    static DWORD GetHelpID(CWnd* pWnd);

protected:
    void _AppendHelpItem();
    // Shown while a help id is known.
    CMI_Flag _HelpShown() const;

    DWORD m_dwHelpID;
};
