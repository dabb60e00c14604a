// kvCtrlContextMenu: the help item and the help id lookup.
#include "menus/kvCtrlContextMenu.h"

#include "afx/CWinApp.h"
#include "afx/CWnd.h"

// The framework's help hit-test message: a window answers with its help id.
#ifndef WM_HELPHITTEST
#define WM_HELPHITTEST 0x0366
#endif

namespace {

// The framework numbers the help ids of resources from here.
constexpr DWORD kResourceHelpBase = 0x20000;
constexpr UINT kHelpContext = 0x0F;  // HH_HELP_CONTEXT

// Stops a lookup from recursing when an owner answers WM_HELPHITTEST by
// looking up its own help id.
bool g_helpLookupGuard = false;

DWORD HelpHitTest(CWnd* pWnd)
{
    return static_cast<DWORD>(pWnd->SendMessage(WM_HELPHITTEST, 0, 0));
}

WORD DialogHelpNumber(DWORD helpID)
{
    return static_cast<WORD>(helpID - kResourceHelpBase);
}

// The owner's resource help number in the high word, the control id in the low.
DWORD ComposedHelpID(CWnd* pWnd, CWnd* pOwner)
{
    WORD dialogNumber = DialogHelpNumber(pOwner->GetWindowContextHelpId());
    if (dialogNumber == 0) {
        g_helpLookupGuard = true;
        dialogNumber = DialogHelpNumber(HelpHitTest(pOwner));
    }
    return MAKELONG(static_cast<WORD>(pWnd->GetDlgCtrlID()), dialogNumber);
}

DWORD LookUpHelpID(CWnd* pWnd)
{
    const DWORD id = HelpHitTest(pWnd);
    if (id != 0)
        return id;
    CWnd* pOwner = pWnd->GetOwner();
    if (pOwner == nullptr)
        return 0;
    return ComposedHelpID(pWnd, pOwner);
}

}  // namespace

kvCtrlContextMenu::kvCtrlContextMenu() : m_dwHelpID(0) {}

kvCtrlContextMenu::~kvCtrlContextMenu() = default;

void kvCtrlContextMenu::AppendDefaultMenu()
{
    _AppendHelpItem();
}

void kvCtrlContextMenu::_AppendHelpItem()
{
    Append(CMI_HELP_LABEL, Action(this, &kvCtrlContextMenu::DoHelp),
           Advisor(this, &kvCtrlContextMenu::HelpAdvisor));
}

kvContextMenuItem::CMI_Flag kvCtrlContextMenu::_HelpShown() const
{
    return m_dwHelpID != 0 ? CMI_ENABLED : CMI_HIDDEN;
}

kvContextMenuItem::CMI_Flag kvCtrlContextMenu::HelpAdvisor(CWnd* pWnd, CPoint&)
{
    if (m_dwHelpID == 0)
        m_dwHelpID = GetHelpID(pWnd);
    return _HelpShown();
}

void kvCtrlContextMenu::DoHelp(CWnd* pWnd, CPoint& point)
{
    if (CWnd* pOwner = pWnd->GetOwner())
        pOwner->ScreenToClient(&point);
    AfxGetApp()->HtmlHelp(m_dwHelpID, kHelpContext);
}

DWORD kvCtrlContextMenu::GetHelpID(CWnd* pWnd)
{
    DWORD id = pWnd->GetWindowContextHelpId();
    if (id == 0 && !g_helpLookupGuard)
        id = LookUpHelpID(pWnd);
    g_helpLookupGuard = false;
    return id;
}
