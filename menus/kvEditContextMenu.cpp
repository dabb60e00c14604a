// kvEditContextMenu: the edit commands, their enabling rules and actions.
#include "menus/kvEditContextMenu.h"

#include "afx/CComboBox.h"
#include "afx/CEdit.h"

namespace {

struct Selection {
    DWORD start = 0;
    DWORD end = 0;
};

// Through the message rather than CEdit: the control may be any edit window.
Selection ReadSelection(CWnd* pWnd)
{
    Selection sel;
    pWnd->SendMessage(EM_GETSEL, reinterpret_cast<WPARAM>(&sel.start), reinterpret_cast<LPARAM>(&sel.end));
    return sel;
}

bool IsEverythingSelected(const CString& text, const Selection& sel)
{
    return sel.start == 0 && sel.end == static_cast<DWORD>(text.GetLength());
}

}  // namespace

kvEditContextMenu::kvEditContextMenu() = default;

kvEditContextMenu::~kvEditContextMenu() = default;

// No separator before the help item: when help is hidden, the menu ends with
// Select All.
void kvEditContextMenu::AppendDefaultMenu()
{
    _AppendCommand(CMI_UNDO_LABEL, &kvEditContextMenu::DoUndo, &kvEditContextMenu::UndoAdvisor);
    _AppendSeparator();
    _AppendCommand(CMI_CUT_LABEL, &kvEditContextMenu::DoCut, &kvEditContextMenu::_CutCopyAdvisor);
    _AppendCommand(CMI_COPY_LABEL, &kvEditContextMenu::DoCopy, &kvEditContextMenu::_CutCopyAdvisor);
    _AppendCommand(CMI_PASTE_LABEL, &kvEditContextMenu::DoPaste, &kvEditContextMenu::PasteAdvisor);
    _AppendCommand(CMI_DELETE_LABEL, &kvEditContextMenu::DoDelete, &kvEditContextMenu::CutCopyDeleteAdvisor);
    _AppendSeparator();
    _AppendCommand(CMI_SELECTALL_LABEL, &kvEditContextMenu::DoSelectAll, &kvEditContextMenu::SelectAdvisor);
    _AppendHelpItem();
}

void kvEditContextMenu::_AppendCommand(const CString& label, Command command, CommandAdvisor advisor)
{
    Append(label, Action(this, command), Advisor(this, advisor));
}

void kvEditContextMenu::_AppendSeparator()
{
    Append(ItemPtr(new kvCMenuSeparator(Advisor())));
}

kvContextMenuItem::CMI_Flag kvEditContextMenu::HelpAdvisor(CWnd* pWnd, CPoint& point)
{
    if (m_dwHelpID != 0)
        return CMI_ENABLED;
    if (CComboBox* pCombo = dynamic_cast<CComboBox*>(pWnd->GetOwner())) {
        m_dwHelpID = GetHelpID(pCombo);
        return _HelpShown();
    }
    return kvCtrlContextMenu::HelpAdvisor(pWnd, point);
}

kvContextMenuItem::CMI_Flag kvEditContextMenu::UndoAdvisor(CWnd* pWnd, CPoint&)
{
    return pWnd->SendMessage(EM_CANUNDO, 0, 0) ? CMI_ENABLED : CMI_GRAYED;
}

// The clipboard decides, not the control: a read-only edit still offers Paste.
kvContextMenuItem::CMI_Flag kvEditContextMenu::PasteAdvisor(CWnd*, CPoint&)
{
    return IsClipboardFormatAvailable(CF_TEXT) ? CMI_ENABLED : CMI_GRAYED;
}

// Also enabled in a read-only edit: the control refuses the cut itself.
kvContextMenuItem::CMI_Flag kvEditContextMenu::CutCopyDeleteAdvisor(CWnd* pWnd, CPoint&)
{
    const Selection sel = ReadSelection(pWnd);
    return sel.start >= sel.end ? CMI_GRAYED : CMI_ENABLED;
}

// A password never reaches the clipboard: its field refuses cut and copy.
kvContextMenuItem::CMI_Flag kvEditContextMenu::_CutCopyAdvisor(CWnd* pWnd, CPoint& point)
{
    if (pWnd->GetStyle() & ES_PASSWORD)
        return CMI_GRAYED;
    return CutCopyDeleteAdvisor(pWnd, point);
}

kvContextMenuItem::CMI_Flag kvEditContextMenu::SelectAdvisor(CWnd* pWnd, CPoint&)
{
    CEdit* pEdit = dynamic_cast<CEdit*>(pWnd);
    if (pEdit == nullptr)
        return CMI_GRAYED;
    CString text;
    pEdit->GetWindowText(text);
    if (text.IsEmpty() || IsEverythingSelected(text, ReadSelection(pEdit)))
        return CMI_GRAYED;
    return CMI_ENABLED;
}

void kvEditContextMenu::DoUndo(CWnd* pWnd, CPoint&)
{
    pWnd->SendMessage(WM_UNDO, 0, 0);
}

void kvEditContextMenu::DoCut(CWnd* pWnd, CPoint&)
{
    pWnd->SendMessage(WM_CUT, 0, 0);
}

void kvEditContextMenu::DoCopy(CWnd* pWnd, CPoint&)
{
    pWnd->SendMessage(WM_COPY, 0, 0);
}

void kvEditContextMenu::DoPaste(CWnd* pWnd, CPoint&)
{
    pWnd->SendMessage(WM_PASTE, 0, 0);
}

void kvEditContextMenu::DoDelete(CWnd* pWnd, CPoint&)
{
    pWnd->SendMessage(WM_CLEAR, 0, 0);
}

void kvEditContextMenu::DoSelectAll(CWnd* pWnd, CPoint&)
{
    pWnd->SendMessage(EM_SETSEL, 0, -1);
}
