// The drop edit list under real input: completion and the refusals of a
// restricted field as typed, the keys of the closed field, opening on the
// field's item below the field or above it, choosing with keys and mouse, and
// the clipboard's item rules.
#include "FieldHarness.h"
#include "MessageRecorder.h"
#include "WindowTest.h"

#include "dropdown/kvDropEditList.h"

#include <string>
#include <vector>

namespace {

constexpr UINT kFruit = 310;
constexpr WORD kDelete = 0x7F;  // in a row's keys: the Delete key

struct ListForm {
    ListForm(CWnd* pMainWnd, bool allowEntry, bool allowBlank, const char* text) : form(pMainWnd)
    {
        field.SetAllowEntry(allowEntry);
        field.SetAllowBlank(allowBlank);
        field.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_BORDER, CRect(10, 10, 130, 130), &form.dialog, kFruit,
                     0);
        for (const char* item : {"Apple", "Apricot", "Banana"})
            field.AddString(item);
        field.SetCurSel(field.FindStringExact(-1, text));
        recorder.Watch(form.dialog, "dialog");
        FocusForInput(form.dialog, field);
        log.Clear();
    }
    // The combo-box codes the field sent, in order; without the edit's own when asked.
    std::vector<UINT> Codes(bool editCodes = true) const
    {
        std::vector<UINT> codes;
        for (const LoggedMessage& m : log.Entries()) {
            const UINT code = HIWORD(m.wParam);
            const bool edit = code == CBN_EDITCHANGE || code == CBN_EDITUPDATE;
            if (m.lParam == reinterpret_cast<LPARAM>(field.m_hWnd) && code <= CBN_SELENDCANCEL && (editCodes || !edit))
                codes.push_back(code);
        }
        return codes;
    }
    static HWND FindList() { return ::FindWindowA("LISTBOX", nullptr); }

    FieldForm form;
    kvDropEditList field;
    MessageLog log;
    MessageRecorder recorder{log, {WM_COMMAND}};
};

struct TypingRow {
    const char* name;
    bool allowEntry, allowBlank;
    const char* text;
    int start, end;
    std::string keys;
    const char* typed;
    int selStart, selEnd, beeps;
    std::vector<UINT> codes;
};

// SELCHANGE and SELENDOK for each key that changed the text.
std::vector<UINT> Changes(int keys)
{
    std::vector<UINT> codes;
    for (int i = 0; i < keys; ++i)
        codes.insert(codes.end(), {CBN_SELCHANGE, CBN_SELENDOK});
    return codes;
}

TEST_F(WindowTest, DropListCompletesAndRefusesAsTyped)
{
    const TypingRow rows[] = {
        // "p" after "A" leaves "Apple" as it was: no change to report.
        {"APR completes in the item's spelling", true, false, "", 0, 0, "APR", "Apricot", 3, 7, 0, Changes(2)},
        {"free entry keeps Aprx", true, false, "", 0, 0, "aprx", "Aprx", 4, 4, 0, Changes(3)},
        {"restricted: x refused", false, false, "", 0, 0, "aprx", "Apricot", 3, 7, 1, Changes(2)},
        {"restricted: backspace widens the tail", false, false, "", 0, 0, "apr\b", "Apricot", 2, 7, 0, Changes(2)},
        {"restricted without blank: Delete refused", false, false, "Apple", 0, 5, {kDelete}, "Apple", 0, 5, 1, {}},
        {"restricted with blank: Delete empties", false, true, "Apple", 0, 5, {kDelete}, "", 0, 0, 0, Changes(1)},
    };
    BeepRecorder beeps;
    for (const TypingRow& row : rows) {
        SCOPED_TRACE(row.name);
        ListForm f(status.MainWindow(), row.allowEntry, row.allowBlank, row.text);
        f.field.SetSel(row.start, row.end);
        const int beepsBefore = beeps.Count();
        for (const char key : row.keys)
            key == kDelete ? PressKey(VK_DELETE) : TypeText(std::string(1, key));
        EXPECT_EQ(TextOf(f.field), row.typed);
        EXPECT_EQ(SelOf(f.field), std::make_pair(row.selStart, row.selEnd));
        EXPECT_EQ(beeps.Count() - beepsBefore, row.beeps);
        EXPECT_EQ(f.Codes(false), row.codes);
        EXPECT_EQ(f.field.GetCurSel(), f.field.FindStringExact(-1, row.typed)) << "the list follows the field";
    }
}

TEST_F(WindowTest, DropListChoosesWithKeysAndMouse)
{
    ListForm f(status.MainWindow(), false, false, "Apple");
    PressKey(VK_DOWN);
    EXPECT_EQ(TextOf(f.field), "Apricot") << "Down with the list closed";
    f.log.Clear();
    PressKey(VK_F4);
    const HWND hList = ListForm::FindList();
    ASSERT_TRUE(f.field.GetPopupState());
    EXPECT_EQ(f.field.GetCurSel(), 1) << "opens on the field's item";
    CRect list, field;
    ::GetWindowRect(hList, &list);
    f.field.GetWindowRect(&field);
    EXPECT_EQ(list.TopLeft(), CPoint(field.left, field.bottom)) << "below the field";
    PressKey(VK_DOWN);
    PressKey(VK_RETURN);
    EXPECT_EQ(TextOf(f.field), "Banana");
    EXPECT_EQ(f.Codes(), (std::vector<UINT>{CBN_DROPDOWN, CBN_SELCHANGE, CBN_SELCHANGE, CBN_SELENDOK, CBN_SETFOCUS,
                                            CBN_CLOSEUP}));
    EXPECT_EQ(::GetFocus(), f.field.m_hWnd);

    // A click on the field opens a restricted list; a click on an item picks it.
    ClickAt(f.field, POINT{20, 8});
    RECT item;
    ::SendMessage(hList, LB_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&item));
    ClickAt(hList, POINT{item.left + 5, item.top + 3});
    EXPECT_FALSE(f.field.GetPopupState());
    EXPECT_EQ(TextOf(f.field), "Apple");
    EXPECT_EQ(::GetCapture(), nullptr);

    PressKey(VK_F4);
    f.log.Clear();
    ClickAt(f.form.dialog, POINT{250, 10});
    EXPECT_FALSE(f.field.GetPopupState()) << "a click outside closes";
    EXPECT_EQ(f.Codes(), (std::vector<UINT>{CBN_SETFOCUS, CBN_CLOSEUP}));
}

TEST_F(WindowTest, DropListOpensAboveTheFieldAtTheScreensBottom)
{
    ListForm f(status.MainWindow(), true, false, "");
    CRect dialog;
    f.form.dialog.GetWindowRect(&dialog);
    f.form.dialog.SetWindowPos(nullptr, dialog.left, ::GetSystemMetrics(SM_CYSCREEN) - 60, 0, 0,
                               SWP_NOSIZE | SWP_NOZORDER);
    PressKey(VK_F4);
    CRect list, field;
    ::GetWindowRect(ListForm::FindList(), &list);
    f.field.GetWindowRect(&field);
    EXPECT_EQ(list.bottom, field.top);
    PressKey(VK_ESCAPE);
    EXPECT_EQ(f.Codes(), (std::vector<UINT>{CBN_DROPDOWN, CBN_SETFOCUS, CBN_CLOSEUP, CBN_SELENDCANCEL}));
}

TEST_F(WindowTest, DropListClipboardKeepsARestrictedTextAnItem)
{
    const ClipboardKeeper keeper;
    BeepRecorder beeps;
    ListForm f(status.MainWindow(), false, false, "Apple");
    f.field.SetSel(3, 5);
    PressKey('X', false, true);
    EXPECT_EQ(TextOf(f.field), "Apple") << "App is no item";
    SetClipboardText("banana");
    f.field.SetSel(0, -1);
    PressKey('V', false, true);
    EXPECT_EQ(TextOf(f.field), "banana");
    EXPECT_EQ(f.field.GetCurSel(), 2);
    SetClipboardText("Cherry");
    f.field.SetSel(0, -1);
    PressKey('V', false, true);
    EXPECT_EQ(TextOf(f.field), "banana") << "no item: the text comes back";
    EXPECT_EQ(beeps.Count(), 2);
}

}  // namespace
