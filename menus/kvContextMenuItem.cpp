// kvContextMenuItem: the advisor's answer turned into native menu flags, the
// shared command counter and the standard labels.
#include "menus/kvContextMenuItem.h"

#include "afx/WinTypes.h"

unsigned short kvContextMenuItem::m_ActionID = 1;

const CString kvContextMenuItem::CMI_UNDO_LABEL("&Undo");
const CString kvContextMenuItem::CMI_CUT_LABEL("Cu&t");
const CString kvContextMenuItem::CMI_COPY_LABEL("&Copy");
const CString kvContextMenuItem::CMI_PASTE_LABEL("&Paste");
const CString kvContextMenuItem::CMI_DELETE_LABEL("&Delete");
const CString kvContextMenuItem::CMI_SELECTALL_LABEL("Select &All");
const CString kvContextMenuItem::CMI_HELP_LABEL("&What's This?");

namespace {

unsigned long NativeFlags(unsigned int flag)
{
    unsigned long nFlags = (flag & kvContextMenuItem::CMI_GRAYED) ? MF_GRAYED : 0;
    if (flag & kvContextMenuItem::CMI_CHECKED)
        nFlags |= MF_CHECKED;
    return nFlags;
}

}  // namespace

kvContextMenuItem::kvContextMenuItem(const Advisor& advisor) : m_Advisor(advisor) {}

kvContextMenuItem::~kvContextMenuItem() = default;

bool kvContextMenuItem::MyLabel(const CString&) const
{
    return false;
}

// A hidden item uses up no command id: the ids stay dense over what is shown.
// An item without an advisor reads as CMI_ENABLED, the value an empty callback
// returns.
void kvContextMenuItem::MakeContextMenu(CWnd* pWnd, CPoint& point, CMenu& menu, ActionMap& actions) const
{
    const unsigned int flag = m_Advisor(pWnd, point);
    if (flag & CMI_HIDDEN)
        return;
    _DoMakeContextMenu(pWnd, point, menu, actions, NativeFlags(flag));
}
