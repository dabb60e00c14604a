// The calculator combo under real input: opened by F4 or its button on the
// field's value, its result written through the field's formatter on "=" or
// Enter, refused past the formatter's limit, dropped on Escape or a click outside.
#include "FieldHarness.h"
#include "WindowTest.h"

#include "dropdown/kvCalculatorCombo.h"
#include "formatting/kvNumEditFormatter.h"

#include <functional>
#include <string>
#include <vector>

namespace {

constexpr UINT kAmount = 310;

using Format = kvNumEditFormatter;

struct AmountForm {
    explicit AmountForm(CWnd* pMainWnd, const char* text) : form(pMainWnd)
    {
        auto* pFormatter = new kvNumEditFormatter(12, 2, Format::Separators | Format::PadDecimals);
        pFormatter->SetUpperLimit(999.99, Format::UpperInclusive);
        field.SetFormatter(pFormatter);
        field.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_BORDER, CRect(10, 10, 130, 30), &form.dialog, kAmount, 0);
        field.SetWindowText(text);
        FocusForInput(form.dialog, field);
    }

    FieldForm form;
    kvCalculatorCombo field;
};

using Step = std::function<void(AmountForm&)>;
const Step kF4 = [](AmountForm&) { PressKey(VK_F4); };
const Step kButton = [](AmountForm& f) { ClickAt(f.field, POINT{110, 8}); };
const Step kEnter = [](AmountForm&) { PressKey(VK_RETURN); };
const Step kEscape = [](AmountForm&) { PressKey(VK_ESCAPE); };
const Step kClickOutside = [](AmountForm& f) { ClickAt(f.form.dialog, POINT{190, 200}); };
const Step kNothing = [](AmountForm&) {};

// A field's text, how the popup opens, the keys typed in it and how it ends;
// the field's text then, whether the popup stays open, and the status message
// (with a beep) of a refusal.
struct Row {
    const char* text;
    Step open;
    const char* keys;
    Step end;
    const char* expected;
    bool openAfter;
    const char* message;
};

// Closing a popup costs Wine seconds: a few rows a test keep it within the watchdog's time.
void RunRows(const StatusRecorder& status, const std::vector<Row>& rows)
{
    for (const Row& row : rows) {
        SCOPED_TRACE(std::string(row.text) + " " + row.keys);
        AmountForm f(status.MainWindow(), row.text);
        BeepRecorder beeps;
        const size_t shown = status.messages.size();
        row.open(f);
        ASSERT_TRUE(f.field.GetPopupState());
        TypeText(row.keys);
        row.end(f);
        EXPECT_EQ(TextOf(f.field), row.expected);
        EXPECT_EQ(f.field.GetPopupState(), row.openAfter);
        EXPECT_EQ(std::vector<std::string>(status.messages.begin() + shown, status.messages.end()),
                  MessagesOf(row.message));
        EXPECT_EQ(beeps.Count(), *row.message != '\0' ? 1 : 0);
        EXPECT_EQ(::GetFocus() == f.field.m_hWnd, !row.openAfter) << "the popup keeps the focus while open";
    }
}

TEST_F(WindowTest, CalculatorComboWritesItsResultWithTheFieldsDecimals)
{
    RunRows(status, {
                        {"12.50", kF4, "+3=", kNothing, "15.50", false, ""},
                        {"12.50", kF4, "*2", kEnter, "25.00", false, ""},
                        {"100.00", kButton, "/3=", kNothing, "33.33", false, ""},
                    });
}

TEST_F(WindowTest, CalculatorComboLeavesTheFieldOnARefusalEscapeOrAClickOutside)
{
    RunRows(status, {
                        {"12.50", kF4, "*100=", kNothing, "12.50", true, "Value must be less than or equal to 999.99."},
                        {"12.50", kF4, "+3", kEscape, "12.50", false, ""},
                        {"12.50", kButton, "+3", kClickOutside, "12.50", false, ""},
                    });
}

}  // namespace
