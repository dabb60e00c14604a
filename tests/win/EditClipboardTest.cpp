// The formatted edit field and the clipboard: cut, copy, paste and clear
// through the formatter and the real clipboard; and the field's edit menu,
// opened and chosen from the keyboard, acting through the same handlers.
#include "FieldHarness.h"
#include "WindowTest.h"

#include "formatting/kvEdit.h"
#include "formatting/kvNumEditFormatter.h"

namespace {

using NF = kvNumEditFormatter;
using Maker = kvEditFormatter* (*)();

kvEditFormatter* Amount() { return new NF(5, 2, NF::Separators); }
kvEditFormatter* RefuseB() { return new RefuseBFormatter; }

struct ClipboardRow {
    const char* name;
    Maker formatter;
    DWORD style;
    const char* text;
    int start, end;
    UINT message;
    const char* pasted;  // on the clipboard before
    LRESULT result;
    const char* edited;
    int caret;
    const char* clipboard;  // afterwards
    int changes;
};

const ClipboardRow kClipboard[] = {
    {"paste leaves out what the formatter refuses", RefuseB, 0, "", 0, 0, WM_PASTE, "abx", 0, "ax", 2, "abx", 1},
    {"paste types through the formatter", Amount, 0, "1", 1, 1, WM_PASTE, "234", 0, "1,234", 5, "234", 1},
    {"cut deletes through the formatter", Amount, 0, "1,234", 2, 3, WM_CUT, "abx", 0, "134", 1, "2", 1},
    {"cut of nothing does nothing", Amount, 0, "1,234", 2, 2, WM_CUT, "abx", 0, "1,234", 2, "abx", 0},
    {"clear deletes through the formatter", Amount, 0, "1,234", 0, 2, WM_CLEAR, "abx", 0, "234", 0, "abx", 1},
    {"copy places the selected characters", Amount, 0, "1,234", 1, 4, WM_COPY, "abx", 3, "1,234", -1, ",23", 0},
    {"a read-only field is not pasted into", Amount, ES_READONLY, "12", 2, 2, WM_PASTE, "3", 0, "12", 2, "3", 0},
    {"a formatter declining Delete leaves the cut native", RefuseB, 0, "abc", 0, 1, WM_CUT, "abx", 0, "bc", 0, "a",
     1},
};

class EditClipboard : public WindowTest {
protected:
    ClipboardKeeper keeper;
};

TEST_F(EditClipboard, EditsGoThroughTheFormatterAndTheClipboard)
{
    for (const ClipboardRow& row : kClipboard) {
        SCOPED_TRACE(row.name);
        SetClipboardText(row.pasted);
        FieldForm form(status.MainWindow());
        kvEdit& field = form.AddField(100, row.formatter(), row.text, row.start, row.end, row.style);
        EXPECT_EQ(field.SendMessage(row.message), row.result);
        EXPECT_EQ(TextOf(field), row.edited);
        if (row.caret >= 0) {
            EXPECT_EQ(SelOf(field), std::make_pair(row.caret, row.caret));
        }
        EXPECT_EQ(ClipboardText(), row.clipboard);
        EXPECT_EQ(form.dialog.changes.Entries().size(), static_cast<size_t>(row.changes));
    }
    EXPECT_EQ(status.messages, std::vector<std::string>{"b is not allowed."});
}

// Which items the menu enables is the edit menu's own rule, checked with it.
struct MenuRow {
    const char* name;
    const char* text;
    int start, end;
    const char* key;
    const char* edited;
    int selStart, selEnd;
};

const MenuRow kMenus[] = {
    {"paste chosen goes through the field's paste", "", 0, 0, "p", "ax", 2, 2},
    {"cut chosen", "abc", 0, 1, "t", "bc", 0, 0},
    {"delete chosen", "abc", 1, 2, "d", "ac", 1, 1},
    {"select all chosen", "abc", 1, 1, "a", "abc", 0, 3},
};

TEST_F(EditClipboard, EditMenuFromTheKeyboard)
{
    for (const MenuRow& row : kMenus) {
        SCOPED_TRACE(row.name);
        SetClipboardText("abx");
        FieldForm form(status.MainWindow());
        kvEdit& field = form.AddField(0, RefuseB(), row.text, row.start, row.end);
        FocusForInput(form.dialog, field);
        field.SetSel(row.start, row.end);
        ChooseFromContextMenu(row.key);
        EXPECT_EQ(TextOf(field), row.edited);
        EXPECT_EQ(SelOf(field), std::make_pair(row.selStart, row.selEnd));
    }
}

}  // namespace
