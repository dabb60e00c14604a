// Where the formatted edit field must keep the native control's rules: long
// texts past the packed 16-bit selection, password fields that never reach the
// clipboard, and the modified flag that only the user's changes set.
#include "FieldHarness.h"
#include "WindowTest.h"

#include "afx/CEdit.h"
#include "formatting/kvEdit.h"

#include <string>

namespace {

// 70,000 "a" and "XYZ": selections past 65,535 wrap in the packed form.
const std::string kLongText = std::string(70000, 'a') + "XYZ";

struct EditOutcome {
    std::string text;
    std::pair<int, int> sel;
    std::string clipboard;
};

struct ParityRow {
    const char* name;
    DWORD style;
    bool formatted;  // a kvEdit with a formatter that passes every key on
    std::string text;
    int start, end;
    UINT message;
    size_t length;          // of the text afterwards
    const char* clipboard;  // its first characters afterwards
    // Wine's own edit control discloses passwords, which Windows' refuses: the
    // password rows are held to Windows' rule alone.
    bool likeWinesControl;
};

const ParityRow kParity[] = {
    {"copy past 65,535", 0, false, kLongText, 70000, 70003, WM_COPY, 70003, "XYZ", true},
    {"clear across 65,536", 0, false, kLongText, 10, 65546, WM_CLEAR, 70003 - 65536, "before", true},
    {"cut across 65,536", 0, false, kLongText, 10, 65546, WM_CUT, 70003 - 65536, "aaaaaa", true},
    {"a password may be cleared", ES_PASSWORD, true, "secret", 1, 4, WM_CLEAR, 3, "before", true},
    {"a password is not copied", ES_PASSWORD, false, "secret", 0, 6, WM_COPY, 6, "before", false},
    {"a password is not cut", ES_PASSWORD, false, "secret", 0, 6, WM_CUT, 6, "before", false},
    {"a formatted password is not cut", ES_PASSWORD, true, "secret", 1, 4, WM_CUT, 6, "before", false},
};

EditOutcome Apply(CEdit& edit, const ParityRow& row)
{
    SetClipboardText("before");
    edit.SetWindowText(row.text.c_str());
    edit.SetSel(row.start, row.end);
    edit.SendMessage(row.message);
    return {TextOf(edit), SelOf(edit), ClipboardText()};
}

class EditNativeRules : public WindowTest {
protected:
    ClipboardKeeper keeper;
};

// The same edit on a native control and on the field must end alike.
TEST_F(EditNativeRules, LongTextsAndPasswordsAsTheNativeControl)
{
    for (const ParityRow& row : kParity) {
        SCOPED_TRACE(row.name);
        FieldForm form(status.MainWindow());
        CEdit native;
        native.Create(WS_CHILD | ES_AUTOHSCROLL | row.style, RECT{0, 0, 100, 20}, &form.dialog, 200);
        native.LimitText(0);
        kvEdit& field = form.AddField(100, row.formatted ? new RefuseBFormatter : nullptr, "", 0, 0, row.style);
        const EditOutcome expected = Apply(native, row);
        const EditOutcome actual = Apply(field, row);
        EXPECT_EQ(actual.text.size(), row.length);
        EXPECT_EQ(actual.clipboard.substr(0, 6), row.clipboard);
        if (row.likeWinesControl) {
            // Compared whole but not printed: the texts are 70,000 characters long.
            EXPECT_TRUE(actual.text == expected.text);
            EXPECT_EQ(actual.sel, expected.sel);
            EXPECT_TRUE(actual.clipboard == expected.clipboard);
        }
        native.DestroyWindow();
    }
}

TEST_F(EditNativeRules, PasswordMenuGraysCutAndCopy)
{
    SetClipboardText("x");
    FieldForm form(status.MainWindow());
    kvEdit& field = form.AddField(0, new RefuseBFormatter, "secret", 0, 0, ES_PASSWORD);
    FocusForInput(form.dialog, field);
    field.SetSel(1, 3);
    EXPECT_EQ(ChooseFromContextMenu("\x1b"),
              "&Undo (grayed)|-|Cu&t (grayed)|&Copy (grayed)|&Paste|&Delete|-|Select &All");
}

// Leaving a field with the caret at the end of a long text shows its beginning.
TEST_F(EditNativeRules, LeavingALongTextShowsItsBeginning)
{
    FieldForm form(status.MainWindow());
    kvEdit& field = form.AddField(100, nullptr);
    form.AddField(101, nullptr);
    field.SetWindowText(kLongText.c_str());
    FocusForInput(form.dialog, field);
    field.SetSel(70003, 70003);
    PressKey(VK_TAB);
    EXPECT_EQ(field.SendMessage(EM_GETFIRSTVISIBLELINE), 0);
}

struct ModifyRow {
    const char* name;
    const char* typed;  // then Tab to the next field
    BOOL modified;
};

const ModifyRow kModify[] = {
    {"untouched", "", FALSE},
    {"typed", "a", TRUE},
    {"typed, then a refused key", "ab", TRUE},
    {"a refused key only", "b", FALSE},
};

// An application that asks "save changes?" reads this flag: the field's own
// writes (after a refused key, on leaving) must not clear what the user did.
TEST_F(EditNativeRules, OnlyTheUsersChangesMarkTheField)
{
    for (const ModifyRow& row : kModify) {
        SCOPED_TRACE(row.name);
        FieldForm form(status.MainWindow());
        kvEdit& field = form.AddField(100, new RefuseBFormatter, "1", 1, 1);
        form.AddField(101, nullptr);
        FocusForInput(form.dialog, field);
        TypeText(row.typed);
        PressKey(VK_TAB);
        EXPECT_NE(::GetFocus(), field.GetSafeHwnd());
        EXPECT_EQ(field.GetModify(), row.modified);
    }
}

}  // namespace
