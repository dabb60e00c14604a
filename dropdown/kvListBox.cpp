// kvListBox: font, colours of the list's own kind, and the control menu.
#include "dropdown/kvListBox.h"

#include "formatting/kvParentFont.h"
#include "menus/kvCtrlContextMenu.h"
#include "menus/kvShowContextMenu.h"

BEGIN_MESSAGE_MAP(kvListBox, CListBox)
    ON_WM_CONTEXTMENU()
    ON_WM_CTLCOLOR_REFLECT()
END_MESSAGE_MAP()

BOOL kvListBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    if (!CListBox::Create(dwStyle, rect, pParentWnd, nID))
        return FALSE;
    kvSetParentFont(this, pParentWnd);
    return TRUE;
}

void kvListBox::OnContextMenu(CWnd*, CPoint point) { kvShowContextMenu<kvCtrlContextMenu>(this, point); }

HBRUSH kvListBox::CtlColor(CDC* pDC, UINT nCtlColor)
{
    return m_Colors.CtlColor(pDC, nCtlColor, _kvControlColors::KindBit(CTLCOLOR_LISTBOX));
}
