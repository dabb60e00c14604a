// The standard edit menu on a real EDIT control: enabling by undo state,
// selection, read-only style and clipboard; the help item and the help id
// lookup; each command chosen by its mnemonic reaching the control.
#include "MenuDriver.h"
#include "MessageRecorder.h"
#include "WindowTest.h"

#include "afx/CComboBox.h"
#include "afx/CEdit.h"
#include "afx/CWinApp.h"
#include "menus/kvEditContextMenu.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace {

#ifndef WM_HELPHITTEST
#define WM_HELPHITTEST 0x0366
#endif

// How the edit's parent answers WM_HELPHITTEST: with this id, or, when it is
// kLookUpOwnID, by looking up its own help id as a control would.
const DWORD kLookUpOwnID = 0xFFFFFFFF;
DWORD g_parentHitTest = 0;

LRESULT CALLBACK ParentProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_HELPHITTEST && g_parentHitTest == kLookUpOwnID)
        return kvCtrlContextMenu::GetHelpID(CWnd::FromHandle(hWnd));
    if (message == WM_HELPHITTEST)
        return g_parentHitTest;
    return DefWindowProcA(hWnd, message, wParam, lParam);
}

const char* ParentClass()
{
    static const ATOM atom = [] {
        WNDCLASSA wc{};
        wc.lpfnWndProc = &ParentProc;
        wc.hInstance = GetModuleHandleA(nullptr);
        wc.lpszClassName = "kvMenuTestParent";
        return RegisterClassA(&wc);
    }();
    return atom ? "kvMenuTestParent" : nullptr;
}

// The standard menu, exposing the help id it found.
class ProbeMenu : public kvEditContextMenu {
public:
    ProbeMenu() { AppendDefaultMenu(); }
    DWORD HelpID() const { return m_dwHelpID; }
};

enum class Clip { Text, Empty, OtherFormat };

void SetClipboard(Clip clip)
{
    if (clip != Clip::OtherFormat) {
        SetClipboardText(clip == Clip::Text ? "XY" : nullptr);
        return;
    }
    ASSERT_TRUE(OpenClipboard(nullptr));
    EmptyClipboard();
    HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, 8);
    lstrcpyA(static_cast<char*>(GlobalLock(memory)), "private");
    GlobalUnlock(memory);
    SetClipboardData(RegisterClipboardFormatA("kvWin test"), memory);
    CloseClipboard();
}

class EditMenu : public WindowTest {
protected:
    void SetUp() override
    {
        g_parentHitTest = 0;
        ASSERT_TRUE(m_parent.CreateEx(0, ParentClass(), "edit host", WS_POPUP, 0, 0, 300, 120, nullptr, nullptr));
    }

    // The edit holds text + typed, typed entered as an undoable change.
    void CreateEdit(UINT nID, DWORD style, const char* text, const char* typed, int selStart, int selEnd)
    {
        m_edit.DestroyWindow();
        ASSERT_TRUE(m_edit.Create(WS_CHILD | ES_AUTOHSCROLL | style, CRect(10, 10, 200, 34), &m_parent, nID));
        m_edit.SetWindowText(text);
        m_edit.SetSel(lstrlenA(text), lstrlenA(text));
        m_edit.ReplaceSel(typed, TRUE);
        m_edit.SetSel(selStart, selEnd);
    }

    PopupRun Show(kvContextMenu& menu, const char* keys = "esc") { return RunPopup(menu, &m_edit, keys); }

    ClipboardKeeper m_clipboard;
    CWnd m_parent;
    CEdit m_edit;
};

struct EnablingRow { const char *name, *text, *typed; int selStart, selEnd; DWORD style; Clip clip; const char* entries; };

const EnablingRow kEnabling[] = {
    {"empty edit, empty clipboard", "", "", 0, 0, 0, Clip::Empty,
     "1 &Undo (grayed)|-|2 Cu&t (grayed)|3 &Copy (grayed)|4 &Paste (grayed)|5 &Delete (grayed)|-|6 Select &All (grayed)"},
    {"caret without selection, clipboard without text", "abc", "", 1, 1, 0, Clip::OtherFormat,
     "1 &Undo (grayed)|-|2 Cu&t (grayed)|3 &Copy (grayed)|4 &Paste (grayed)|5 &Delete (grayed)|-|6 Select &All"},
    {"everything selected", "abc", "", 0, 3, 0, Clip::Text,
     "1 &Undo (grayed)|-|2 Cu&t|3 &Copy|4 &Paste|5 &Delete|-|6 Select &All (grayed)"},
    {"typing can be undone", "ab", "c", 3, 3, 0, Clip::Text,
     "1 &Undo|-|2 Cu&t (grayed)|3 &Copy (grayed)|4 &Paste|5 &Delete (grayed)|-|6 Select &All"},
    {"read-only edit, part selected, offers cut and paste", "abc", "", 0, 2, ES_READONLY, Clip::Text,
     "1 &Undo (grayed)|-|2 Cu&t|3 &Copy|4 &Paste|5 &Delete|-|6 Select &All"},
};

TEST_F(EditMenu, ItemsFollowTheEditState)
{
    for (const EnablingRow& row : kEnabling) {
        SCOPED_TRACE(row.name);
        SetClipboard(row.clip);
        CreateEdit(0, row.style, row.text, row.typed, row.selStart, row.selEnd);
        ProbeMenu menu;
        EXPECT_EQ(Show(menu).entries, row.entries);
    }
}

struct HelpRow { const char* name; UINT ctrlID; DWORD ownHelpID, parentHelpID, parentHitTest, helpID; };

// The row after the recursive one also checks that the guard was cleared.
const HelpRow kHelp[] = {
    {"own help id", 0x3E9, 0x1234, 0x20064, 0, 0x1234},
    {"composed from the dialog's help id", 0x3E9, 0, 0x20064, 0, 0x006403E9},
    {"dialog looking up its own id does not recurse", 0x3E9, 0, 0, kLookUpOwnID, 0x3E9},
    {"dialog answers the hit test", 0x3E9, 0, 0, 0x20064, 0x006403E9},
    {"dialog id below the resource base wraps", 0x3E9, 0, 0x10005, 0, 0x000503E9},
    {"dialog without help keeps the control id", 0x3E9, 0, 0, 0, 0x3E9},
    {"no help anywhere", 0, 0, 0, 0, 0},
};

// Stands in for the main window, through which the application shows help.
class HelpRecorder : public CWnd {
public:
    void HtmlHelp(DWORD_PTR dwData, UINT nCmd) override { calls.emplace_back(dwData, nCmd); }
    std::vector<std::pair<DWORD_PTR, UINT>> calls;
};

TEST_F(EditMenu, HelpItemShownOnlyWithAHelpIDAndShowsItsTopic)
{
    for (const HelpRow& row : kHelp) {
        SCOPED_TRACE(row.name);
        CreateEdit(row.ctrlID, 0, "abc", "", 0, 0);
        m_edit.SetWindowContextHelpId(row.ownHelpID);
        m_parent.SetWindowContextHelpId(row.parentHelpID);
        g_parentHitTest = row.parentHitTest;
        EXPECT_EQ(kvCtrlContextMenu::GetHelpID(&m_edit), row.helpID);

        ProbeMenu menu;
        HelpRecorder recorder;
        CWnd* mainWnd = std::exchange(AfxGetApp()->m_pMainWnd, &recorder);
        const PopupRun run = Show(menu, row.helpID ? "w" : "esc");
        AfxGetApp()->m_pMainWnd = mainWnd;
        EXPECT_EQ(menu.HelpID(), row.helpID);
        EXPECT_EQ(run.entries.substr(run.entries.rfind('|') + 1), row.helpID ? "7 &What's This?" : "6 Select &All");
        using Calls = std::vector<std::pair<DWORD_PTR, UINT>>;
        EXPECT_EQ(recorder.calls, (row.helpID ? Calls{{row.helpID, 0x0F}} : Calls{}));
    }
}

TEST_F(EditMenu, EditOfAComboBoxTakesTheComboBoxHelpID)
{
    CComboBox combo;
    ASSERT_TRUE(combo.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWN, CRect(10, 40, 200, 140), &m_parent, 0x3EA));
    combo.SetWindowContextHelpId(0x777);
    CEdit edit;
    ASSERT_TRUE(edit.SubclassWindow(FindWindowExA(combo, nullptr, "Edit", nullptr)));
    ProbeMenu menu;
    RunPopup(menu, &edit, "esc");
    EXPECT_EQ(menu.HelpID(), 0x777u);
    edit.UnsubclassWindow();
}

// key: the mnemonic; received: by the edit.
struct CommandRow { const char *name, *key; unsigned int chosen; ExpectedMessage received; };

const CommandRow kCommands[] = {
    {"undo", "u", 1, {"edit", WM_UNDO, kAnyParams, 0, 0}},
    {"cut", "t", 2, {"edit", WM_CUT, kAnyParams, 0, 0}},
    {"copy", "c", 3, {"edit", WM_COPY, kAnyParams, 0, 0}},
    {"paste", "p", 4, {"edit", WM_PASTE, kAnyParams, 0, 0}},
    {"delete", "d", 5, {"edit", WM_CLEAR, kAnyParams, 0, 0}},
    {"select all", "a", 6, {"edit", EM_SETSEL, kWParam | kLParam, 0, -1}},
};

TEST_F(EditMenu, ChosenCommandReachesTheEdit)
{
    for (const CommandRow& row : kCommands) {
        SCOPED_TRACE(row.name);
        SetClipboard(Clip::Text);
        CreateEdit(0, 0, "ab", "c", 1, 2);
        MessageLog log;
        MessageRecorder recorder(log, {WM_CUT, WM_COPY, WM_PASTE, WM_CLEAR, WM_UNDO, EM_SETSEL});
        recorder.Watch(m_edit, "edit");
        ProbeMenu menu;
        EXPECT_EQ(Show(menu, row.key).chosen, row.chosen);
        CompareSequence(log, &row.received, 1, row.name, __FILE__, __LINE__);
    }
}

}  // namespace
