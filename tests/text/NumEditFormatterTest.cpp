// Numeric formatter, typing and deleting: separators rebuilt around the caret,
// backspace and delete across commas, overtype, signs, the moving decimal point,
// and the keys that are refused or swallowed.
#include "FormatterHarness.h"
#include "StatusRecorder.h"

#include "formatting/kvNumEditFormatter.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

using NF = kvNumEditFormatter;
constexpr unsigned long kAmount = NF::Separators | NF::ShowZero | NF::PadDecimals | NF::RoundDecimals;

// keys: '\b' backspace, '\x7f' delete.
struct KeyRow { const char* name; bool overtype; const char *start, *keys, *expected; };

// Every row is accepted or swallowed silently: no beep, no message.
void ExpectQuietTyping(const NF& f, const std::vector<KeyRow>& rows)
{
    for (const KeyRow& row : rows) {
        SCOPED_TRACE(row.name);
        StatusRecorder status;
        EXPECT_EQ(TypeKeys(f, row.start, row.keys, row.overtype), row.expected);
        EXPECT_EQ(status.beeps + status.messages.size(), 0u);
    }
}

TEST(NumEditTyping, SeparatorsSignsAndPointRebuiltAroundTheCaret)
{
    ExpectQuietTyping(NF(7, 2, kAmount), {
        {"digits grouped, point, fraction", false, "|", "1234.5", "1,234.5|"},
        {"insert regroups", false, "1,23|4", "5", "12,35|4"},
        {"selection replaced", false, "1,[23]4", "9", "19|4"},
        {"digit goes after the minus", false, "|-12", "3", "-3|12"},
        {"digit goes inside the parentheses", false, "(12)|", "3", "(123|)"},
        {"closing parenthesis swallowed", false, "12|", ")", "12|"},
        {"backspace takes the comma and the digit before it", false, "1,|234.50", "\b", "|234.50"},
        {"backspace at the start", false, "|1,234", "\b", "|1,234"},
        {"delete on a comma takes the digit after it", false, "1|,234", "\x7f", "1|34"},
        {"delete at the end", false, "1,234|", "\x7f", "1,234|"},
        {"lone parenthesis after backspace", false, "(|12)", "\b", "|12"},
        {"lone parenthesis after delete", false, "(12|)", "\x7f", "12|"},
        {"overtype replaces a digit", true, "|1,234", "9", "9,|234"},
        {"overtype on a comma replaces the digit after it", true, "1|,234", "5", "1,5|34"},
        {"overtype at the end inserts", true, "12|", "3", "123|"},
        {"backspace never widens in overtype", true, "12|3", "\b", "1|3"},
        {"minus twice stays negative", false, "234.50|", "--", "-234.50|"},
        {"opening parenthesis means minus", false, "1,234|", "(", "-1,234|"},
        {"plus drops the sign", false, "-1,234|", "+", "1,234|"},
        {"point moved left", false, "1,23|4.5", ".", "123.|45"},
        {"point moved right", false, "12.3|4", ".", "123.|4"},
        {"separators leave the fraction", false, "1|,234,567", ".", "1.|234567"},
    });
    ExpectQuietTyping(NF(7, 2, kAmount | NF::ParenNegative), {
        {"minus twice stays in parentheses", false, "234.50|", "--", "(234.50|)"},
        {"plus drops the parentheses", false, "(1,234|)", "+", "1,234|"},
    });
}

TEST(NumEditTyping, MinusSwallowedUnderANonNegativeLowerLimit)
{
    const struct { NF::LowerLimitType type; double limit; const char* expected; } rows[] = {
        {NF::LowerInclusive, 0, "12|"}, {NF::LowerExclusive, 5, "12|"}, {NF::LowerInclusive, -5, "-12|"}};
    for (const auto& row : rows) {
        NF f(7, 2, 0);
        f.SetLowerLimit(row.limit, row.type);
        ExpectQuietTyping(f, {{"minus", false, "12|", "-", row.expected},
                              {"parenthesis", false, "12|", "(", row.expected}});
    }
}

TEST(NumEditTyping, RefusedKeysBeep)
{
    // message nullptr: accepted; "": a beep only.
    const struct {
        const char* name;
        unsigned integers, decimals;
        const char* start;
        unsigned key;
        const char *expected, *message;
    } rows[] = {
        {"full amount", 3, 2, "123.45|", '6', "123.45|",
         "Too many digits. A maximum of 3 digits before the decimal and 2 digits after the decimal is allowed."},
        {"full integer field", 4, 0, "1,234|", '5', "1,234|", "Too many digits. A maximum of 4 digits is allowed."},
        {"split not checked while typing", 3, 2, "1,234|", '5', "12,345|", nullptr},
        {"point in an integer field", 4, 0, "12|", '.', "12|", ""},
        {"character above 127", 7, 2, "1[2]", 0xE9, "1[2]", ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        StatusRecorder status;
        FieldState field = ParseField(row.start);
        const NF f(row.integers, row.decimals, NF::Separators);
        EXPECT_FALSE(f.DoChar(field.text, field.sel, false, row.key, 1, 0));
        EXPECT_EQ(ShowField(field.text, field.sel), row.expected);
        if (StatusRecorder::CanObserveBeeps()) {
            EXPECT_EQ(status.beeps, row.message ? 1 : 0);
        }
        const bool explained = row.message && *row.message;
        EXPECT_EQ(status.messages, explained ? std::vector<std::string>{row.message} : std::vector<std::string>{});
    }
}

}  // namespace
