// Drop-down fields under real input: opening and closing by key, button, click
// outside and the close-popup message with the notifications of each; the
// calendar's date in both directions; read-only fields; no objects left behind.
#include "ClientPixels.h"
#include "FieldHarness.h"
#include "MessageRecorder.h"
#include "WindowTest.h"
#include "monkey/GuiObjectCounter.h"

#include "dropdown/kvCalendarCombo.h"
#include "dropdown/kvDropEditList.h"
#include "formatting/kvEdit.h"
#include "formatting/kvMessages.h"

#include <commctrl.h>

#include <functional>
#include <string>
#include <tuple>
#include <vector>

namespace {

constexpr UINT kDate = 300, kOther = 301;

struct CalendarForm {
    explicit CalendarForm(CWnd* pMainWnd) : form(pMainWnd)
    {
        field.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_BORDER, CRect(10, 10, 130, 30), &form.dialog, kDate, 0);
        other.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_BORDER, CRect(10, 40, 130, 60), &form.dialog, kOther);
        recorder.Watch(form.dialog, "dialog");
        FocusForInput(form.dialog, field);
        log.Clear();
    }
    // The combo-box codes the field sent, in order.
    std::vector<UINT> Codes() const
    {
        std::vector<UINT> codes;
        for (const LoggedMessage& m : log.Entries()) {
            if (m.lParam == reinterpret_cast<LPARAM>(field.m_hWnd) && HIWORD(m.wParam) <= CBN_CLOSEUP)
                codes.push_back(HIWORD(m.wParam));
        }
        return codes;
    }
    static HWND FindCalendar() { return ::FindWindowA(MONTHCAL_CLASSA, nullptr); }
    void ClickButton() { ClickAt(field, POINT{110, 8}); }

    FieldForm form;
    kvCalendarCombo field;
    kvEdit other;
    MessageLog log;
    MessageRecorder recorder{log, {WM_COMMAND}};
};

using Step = std::function<void(CalendarForm&)>;
const Step kF4 = [](CalendarForm&) { PressKey(VK_F4); };
const Step kAltDown = [](CalendarForm&) { PressKey(VK_DOWN, false, false, true); };
const Step kEscape = [](CalendarForm&) { PressKey(VK_ESCAPE); };
const Step kButton = [](CalendarForm& f) { f.ClickButton(); };
const Step kClickOutside = [](CalendarForm& f) { ClickAt(f.form.dialog, POINT{190, 200}); };
const Step kCloseMessage = [](CalendarForm& f) { f.field.SendMessage(WM_KV_CLOSEPOPUP); };

TEST_F(WindowTest, DropEditOpensAndClosesWithItsNotifications)
{
    const std::vector<UINT> opened{CBN_DROPDOWN, CBN_EDITCHANGE, CBN_KILLFOCUS};
    const std::vector<UINT> closed{CBN_SETFOCUS, CBN_CLOSEUP};
    const std::tuple<const char*, Step, Step> rows[] = {
        {"F4 twice", kF4, kF4},
        {"Alt+Down, then Alt+Down", kAltDown, kAltDown},
        {"the button, then Escape", kButton, kEscape},
        {"F4, then a click outside", kF4, kClickOutside},
        {"Alt+Down, then the close-popup message", kAltDown, kCloseMessage},
    };
    for (const auto& [name, open, close] : rows) {
        SCOPED_TRACE(name);
        CalendarForm f(status.MainWindow());
        open(f);
        EXPECT_TRUE(f.field.GetPopupState());
        EXPECT_EQ(f.Codes(), opened) << "an empty field takes today's date as it opens";
        EXPECT_EQ(::GetCapture(), CalendarForm::FindCalendar());
        f.log.Clear();
        close(f);
        EXPECT_FALSE(f.field.GetPopupState());
        EXPECT_EQ(f.Codes(), closed);
        EXPECT_EQ(::GetFocus(), f.field.m_hWnd);
        MoveMouseTo(f.form.dialog, POINT{190, 100});
        EXPECT_EQ(::GetCapture(), nullptr);
    }
}

// The first point of the calendar where its hit test answers what is asked:
// a part (MCHT_...) and, for a date, its day.
POINT CalendarPoint(HWND hCalendar, UINT part, WORD day = 0)
{
    RECT client;
    ::GetClientRect(hCalendar, &client);
    for (int y = 0; y < client.bottom; y += 3) {
        for (int x = 0; x < client.right; x += 3) {
            MCHITTESTINFO hit{};
            hit.cbSize = sizeof(hit);
            hit.pt = POINT{x, y};
            if (MonthCal_HitTest(hCalendar, &hit) == part && (day == 0 || hit.st.wDay == day))
                return hit.pt;
        }
    }
    return POINT{-1, -1};
}

TEST_F(WindowTest, CalendarShowsTheTypedDateBrowsesAndPicksADay)
{
    CalendarForm f(status.MainWindow());
    TypeText("3152024");
    PressKey(VK_F4);
    const HWND hCalendar = CalendarForm::FindCalendar();
    SYSTEMTIME shown{};
    MonthCal_GetCurSel(hCalendar, &shown);
    EXPECT_EQ(std::make_tuple(shown.wYear, shown.wMonth, shown.wDay), std::make_tuple(2024, 3, 15));
    ClickAt(hCalendar, CalendarPoint(hCalendar, MCHT_TITLEBTNNEXT));
    EXPECT_TRUE(f.field.GetPopupState()) << "browsing keeps the calendar open";
    EXPECT_EQ(TextOf(f.field), "4/15/2024") << "and writes each date at once";
    PressKey(VK_ESCAPE);
    EXPECT_EQ(TextOf(f.field), "4/15/2024") << "Escape keeps the last date";

    PressKey(VK_F4);
    ClickAt(hCalendar, CalendarPoint(hCalendar, MCHT_CALENDARDATE, 20));
    EXPECT_FALSE(f.field.GetPopupState()) << "a picked day closes the calendar";
    EXPECT_EQ(TextOf(f.field), "4/20/2024");
    EXPECT_EQ(::GetFocus(), f.field.m_hWnd);

    f.field.SetWindowText("not a date");
    EXPECT_EQ(TextOf(f.field), "4/20/2024") << "a text that is no date is ignored";
    f.field.SetWindowText("12312023");
    EXPECT_EQ(TextOf(f.field), "12/31/2023") << "another form of a date is shown in the display form";
}

// The open calendar has the focus without the field being checked; Tab closes
// it and moves on, and only then is the field checked.
TEST_F(WindowTest, CalendarFieldIsCheckedWhenTheFocusLeavesPastItsPopup)
{
    CalendarForm f(status.MainWindow());
    const int clears = status.clears;
    PressKey(VK_F4);
    EXPECT_EQ(status.clears, clears);
    PressKey(VK_TAB);
    EXPECT_FALSE(f.field.GetPopupState());
    EXPECT_EQ(::GetFocus(), f.other.m_hWnd);
    EXPECT_EQ(status.clears, clears + 1) << "verified valid once";
}

TEST_F(WindowTest, ReadOnlyDropEditNeverOpensWithTheMouse)
{
    CalendarForm f(status.MainWindow());
    f.field.SetWindowText("12/31/2023");
    f.field.SetReadOnly(TRUE);
    FocusForInput(f.form.dialog, f.other);
    f.ClickButton();
    EXPECT_FALSE(f.field.GetPopupState());
    FocusForInput(f.form.dialog, f.field);
    EXPECT_EQ(SelOf(f.field), std::make_pair(0, 0)) << "caret at the start, nothing selected";
}

TEST_F(WindowTest, DropButtonDrawsEachLook)
{
    constexpr COLORREF kText = RGB(0, 0, 200), kBk = RGB(250, 240, 200), kBlack = RGB(0, 0, 0);
    const COLORREF face = ::GetSysColor(COLOR_BTNFACE), shadow = ::GetSysColor(COLOR_BTNSHADOW);
    // Effects, enabled: the line at the button's left edge, its background, the arrow's middle.
    const std::tuple<const char*, DWORD, bool, COLORREF, COLORREF, COLORREF> rows[] = {
        {"flat with border", kvDropEditBase::EffectFlatBordered, true, kBlack, kBk, kText},
        {"flat without border", kvDropEditBase::EffectFlatBorderless, true, kText, kBk, kText},
        {"flat without border, disabled", kvDropEditBase::EffectFlatBorderless, false, shadow, face, shadow},
        {"3-D", 0, true, face, face, kBlack},
    };
    FieldForm form(status.MainWindow());
    for (const auto& [name, effects, enabled, edge, background, arrow] : rows) {
        kvDropEditBase field;
        field.Create(WS_CHILD | WS_VISIBLE | WS_BORDER, CRect(10, 10, 130, 30), &form.dialog, kDate, effects);
        field.SetTextColor(kText);
        field.SetBkColor(kBk);
        field.EnableWindow(enabled);
        flushEvents();
        const ClientPixels button(::GetWindow(field.m_hWnd, GW_CHILD));
        const int middle = button.Height() / 2;
        EXPECT_EQ(button.At(0, middle), edge) << name;
        EXPECT_EQ(button.At(button.Width() - 3, 2), background) << name;
        EXPECT_EQ(button.At(button.Width() / 2, middle), arrow) << name;
    }
}

TEST(DropEditGdi, AThousandDropDownsLeaveNoObjectsBehind)
{
    FieldForm form(nullptr);
    GuiObjectCounter counter;
    const GuiObjectCounts start = counter.Count();
    for (int i = 0; i < 1000; ++i) {
        kvCalendarCombo calendar;
        kvDropEditList list;
        kvDropEditBase& field = i % 2 == 0 ? static_cast<kvDropEditBase&>(calendar) : list;
        field.Create(WS_CHILD | WS_VISIBLE | WS_BORDER, CRect(10, 10, 130, 90), &form.dialog, kDate,
                     static_cast<DWORD>(i % 3));
        field.EnableWindow(i % 4 < 2);
        field.UpdateWindow();
    }
    flushEvents();
    EXPECT_EQ(counter.Count(), start);
}

}  // namespace
