// The formatted edit field at the keyboard: characters through the formatter,
// or, declined, through the native control with overtype emulated; refused
// keys; the overtype state the main window keeps for every field; text set
// from outside; EN_CHANGE only for a changed text; the focus reports.
#include "FieldHarness.h"
#include "MessageRecorder.h"
#include "WindowTest.h"

#include "formatting/kvEdit.h"
#include "formatting/kvNumEditFormatter.h"

#include <commctrl.h>

namespace {

using NF = kvNumEditFormatter;
using Maker = kvEditFormatter* (*)();

kvEditFormatter* NoFormatter() { return nullptr; }
kvEditFormatter* Amount() { return new NF(5, 2, NF::Separators | NF::PadDecimals); }
kvEditFormatter* ThreeDigits() { return new NF(3, 0, NF::Separators); }
kvEditFormatter* TwoUpper() { return new kvStrEditFormatter(2, 0, kvStrEditFormatter::UpperCase); }
kvEditFormatter* RefuseB() { return new RefuseBFormatter; }

const char kTooManyDigits[] = "Too many digits. A maximum of 3 digits is allowed.";

// changes: EN_CHANGE notifications; message: the status message shown, "" for none.
struct TypingRow {
    const char* name;
    Maker formatter;
    DWORD style;
    bool overtype;
    const char* text;
    int start;
    const char *keys, *typed;
    int caret, changes;
    const char* message;
    int beeps;
};

const TypingRow kTyping[] = {
    {"digits get separators", Amount, 0, false, "", 0, "123456", "123,456", 7, 6, "", 0},
    {"a digit too many is refused and explained", ThreeDigits, 0, false, "123", 3, "4", "123", 3, 0, kTooManyDigits, 1},
    {"a letter in an amount is refused", Amount, 0, false, "12", 2, "x", "12", 2, 0, "", 1},
    {"the formatter's case rule", TwoUpper, 0, false, "", 0, "ab", "AB", 2, 2, "", 0},
    {"overtype through the formatter", TwoUpper, 0, true, "AB", 0, "x", "XB", 1, 1, "", 0},
    {"keys the formatter declines go in natively", RefuseB, 0, false, "", 0, "abc", "ac", 2, 2, "b is not allowed.", 1},
    {"overtype emulated for the native control", NoFormatter, 0, true, "abc", 1, "x", "axc", 2, 1, "", 0},
    {"backspace never overtypes", NoFormatter, 0, true, "abc", 1, "\b", "bc", 0, 1, "", 0},
    {"a read-only field is left to the native control", Amount, ES_READONLY, false, "12", 2, "3", "12", 2, 0, "", -1},
};

class EditField : public WindowTest {
protected:
    // Types each row as WM_CHAR messages, or as real keys through the queue
    // into the focused field.
    void TypeRows(bool realKeys)
    {
        ASSERT_GE(beeps.Count(), 0) << "kvWin.dll's beeps cannot be counted";
        for (const TypingRow& row : kTyping) {
            SCOPED_TRACE(row.name);
            status.messages.clear();
            FieldForm form(status.MainWindow());
            kvEdit& field = form.AddField(100, row.formatter(), row.text, row.start, row.start, row.style);
            status.overtype = row.overtype;
            const int beepsBefore = beeps.Count();
            if (realKeys) {
                FocusForInput(form.dialog, field);
                TypeText(row.keys);
            } else {
                SendChars(field, row.keys);
            }
            EXPECT_EQ(TextOf(field), row.typed);
            EXPECT_EQ(SelOf(field), std::make_pair(row.caret, row.caret));
            EXPECT_EQ(form.dialog.changes.Entries().size(), static_cast<size_t>(row.changes));
            EXPECT_EQ(status.messages, MessagesOf(row.message));
            if (row.beeps >= 0) {
                EXPECT_EQ(beeps.Count() - beepsBefore, row.beeps);
            }
        }
    }

    BeepRecorder beeps;
};

TEST_F(EditField, CharactersGoThroughTheFormatter) { TypeRows(false); }

TEST_F(EditField, RealKeysGoThroughTheFormatter) { TypeRows(true); }

TEST_F(EditField, InsertInOneFieldSwitchesOvertypeForAll)
{
    FieldForm form(status.MainWindow());
    kvEdit& first = form.AddField(100, TwoUpper());
    kvEdit& second = form.AddField(101, nullptr, "abc", 0, 0);
    FocusForInput(form.dialog, first);
    PressKey(VK_INSERT);
    EXPECT_TRUE(status.overtype);
    FocusForInput(form.dialog, second);
    second.SetSel(0, 0);
    TypeText("x");
    EXPECT_EQ(TextOf(second), "xbc");
    PressKey(VK_INSERT);
    TypeText("y");
    EXPECT_FALSE(status.overtype);
    EXPECT_EQ(TextOf(second), "xybc");
}

struct SetTextRow { const char* name; Maker formatter; const char* text; BOOL accepted; const char* shown; };

const SetTextRow kSetText[] = {
    {"shown in the formatter's display form", Amount, "1234.5", TRUE, "1,234.50"},
    {"a text the formatter rejects is refused", ThreeDigits, "12345", FALSE, "7"},
    {"as given without a formatter", NoFormatter, "(x)", TRUE, "(x)"},
};

TEST_F(EditField, TextSetFromOutsideIsNormalisedOrRefused)
{
    for (const SetTextRow& row : kSetText) {
        SCOPED_TRACE(row.name);
        FieldForm form(status.MainWindow());
        kvEdit& field = form.AddField(100, row.formatter(), "7");
        EXPECT_EQ(field.SendMessage(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(row.text)), row.accepted);
        EXPECT_EQ(TextOf(field), row.shown);
    }
}

TEST_F(EditField, FocusIsReportedToTheMainWindow)
{
    FieldForm form(status.MainWindow());
    const std::string longText(80, 'w');
    kvEdit& first = form.AddField(100, nullptr, longText.c_str(), 80, 80);
    kvEdit& second = form.AddField(101, nullptr);
    MessageLog log;
    MessageRecorder recorder(log, {WM_KV_STATUS});
    recorder.Watch(status.MainWindow()->GetSafeHwnd(), "main");
    FocusForInput(form.dialog, first);
    PressKey(VK_TAB);
    const ExpectedMessage kFocusReports[] = {
        {"main", WM_KV_STATUS, kWParam | kLParam, kvStatusFocusIn, reinterpret_cast<LPARAM>(first.m_hWnd)},
        {"main", WM_KV_STATUS, kWParam | kLParam, kvStatusFocusOut, reinterpret_cast<LPARAM>(second.m_hWnd)},
        {"main", WM_KV_STATUS, kWParam | kLParam, kvStatusFocusIn, reinterpret_cast<LPARAM>(second.m_hWnd)},
    };
    EXPECT_SEQUENCE(log, kFocusReports);
    EXPECT_GE(first.PosFromChar(0).x, 0) << "a field left with the caret at its end shows its beginning";
}

TEST_F(EditField, ItsColoursPaintItWhileItIsEditable)
{
    FieldForm form(status.MainWindow());
    kvEdit& field = form.AddField(100, nullptr);
    field.SetTextColor(RGB(200, 0, 0));
    field.SetBkColor(RGB(0, 0, 120));
    // A read-only field asks for the static colours and keeps the system look.
    for (const auto& [message, ours] : {std::pair{WM_CTLCOLOREDIT, true}, std::pair{WM_CTLCOLORSTATIC, false}}) {
        const HDC hDC = ::GetDC(field);
        const LRESULT brush =
            form.dialog.SendMessage(message, reinterpret_cast<WPARAM>(hDC), reinterpret_cast<LPARAM>(field.m_hWnd));
        LOGBRUSH logBrush{};
        ::GetObjectA(reinterpret_cast<HBRUSH>(brush), sizeof logBrush, &logBrush);
        EXPECT_EQ(logBrush.lbColor == RGB(0, 0, 120), ours);
        EXPECT_EQ(::GetTextColor(hDC) == RGB(200, 0, 0), ours);
        ::ReleaseDC(field, hDC);
    }
}

// The formatting rectangles the field asks for, read from the request: Wine
// keeps the rectangle itself inside the client area.
std::vector<RECT> g_requested;

LRESULT CALLBACK RecordRectRequests(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR)
{
    if (message == EM_SETRECTNP)
        g_requested.push_back(*reinterpret_cast<const RECT*>(lParam));
    return ::DefSubclassProc(hWnd, message, wParam, lParam);
}

enum class Anchor { None, FarLeft, Widened };

// fix: FixRightJustifiedText, else the focus arriving; rightMargin 0: the control's own.
struct AnchorRow {
    const char* name;
    DWORD style;
    const char* text;
    int caret;
    bool fix;
    UINT rightMargin;
    Anchor anchor;
};

const AnchorRow kAnchors[] = {
    {"focus on right-aligned text", ES_RIGHT, "123", 0, false, 0, Anchor::FarLeft},
    {"focus on an empty right-aligned field", ES_RIGHT, "", 0, false, 0, Anchor::None},
    {"focus on left-aligned text", 0, "123", 0, false, 0, Anchor::None},
    {"fixed with the caret at the end", ES_RIGHT, "123", 3, true, 0, Anchor::FarLeft},
    {"fixed with the caret in view", ES_RIGHT, "123", 1, true, 0, Anchor::None},
    {"fixed with the caret inside the right margin's width", ES_RIGHT, "0123456789012345678901234567890123456789", 0,
     true, 10, Anchor::Widened},
};

TEST_F(EditField, RightAlignedTextStaysAnchored)
{
    for (const AnchorRow& row : kAnchors) {
        SCOPED_TRACE(row.name);
        FieldForm form(status.MainWindow());
        kvEdit& field = form.AddField(100, nullptr, row.text, 0, 0, row.style);
        form.AddField(101, nullptr);
        if (row.rightMargin != 0)
            field.SetMargins(LOWORD(field.GetMargins()), row.rightMargin);
        if (row.fix)
            FocusForInput(form.dialog, field);
        // Scrolled to the end, then the caret placed without scrolling.
        const int length = field.GetWindowTextLength();
        field.SetSel(length, length);
        field.SetSel(row.caret, row.caret, TRUE);
        g_requested.clear();
        ::SetWindowSubclass(field, RecordRectRequests, 0, 0);
        if (row.fix)
            field.FixRightJustifiedText();
        else
            FocusForInput(form.dialog, field);
        ::RemoveWindowSubclass(field, RecordRectRequests, 0);
        CRect client;
        field.GetClientRect(&client);
        const int rightEdge = client.right - HIWORD(field.GetMargins());
        ASSERT_EQ(g_requested.size(), row.anchor == Anchor::None ? 0u : 1u);
        if (row.anchor == Anchor::FarLeft) {
            EXPECT_EQ(g_requested[0].left, -20000);
            EXPECT_EQ(g_requested[0].right, rightEdge);
        }
        if (row.anchor == Anchor::Widened) {
            EXPECT_GT(g_requested[0].right, rightEdge);
        }
    }
}

}  // namespace
