// Numeric formatter, conversion and validation: raw form both ways, rounding,
// implied decimal point, error selections in the display text, limits, exit
// padding and the format presets.
#include "StatusRecorder.h"

#include "formatting/kvNumEditFormatter.h"
#include "formatting/kvSelection.h"

#include <gtest/gtest.h>

namespace {

using NF = kvNumEditFormatter;
constexpr unsigned long kAmount = NF::Separators | NF::ShowZero | NF::PadDecimals | NF::RoundDecimals;

TEST(NumEditConversion, RawData)
{
    const struct {
        const char* name;
        unsigned integers;
        unsigned long format;
        const char* text;
        bool ok;
        const char* raw;
    } rows[] = {
        {"display form to raw", 7, NF::Separators, "(1,234.50)", true, "-1234.5"},
        {"zeros around", 7, 0, "007.50", true, "7.5"},
        {"negative zero is empty", 7, 0, "-0.00", true, ""},
        {"no zero before the point", 7, 0, "0.5", true, ".5"},
        {"round half up", 7, NF::RoundDecimals, "1.005", true, "1.01"},
        {"round down", 7, NF::RoundDecimals, "1.004", true, "1"},
        {"round away from zero", 7, NF::RoundDecimals, "-1.005", true, "-1.01"},
        {"rounding would overflow the integers", 2, NF::RoundDecimals, "99.999", true, "99.99"},
        {"implied decimal", 7, NF::ImpliedDecimal, "123", true, "1.23"},
        {"implied decimal, typed point", 7, NF::ImpliedDecimal, "1.50", true, "1.5"},
        {"implied decimal, short", 7, NF::ImpliedDecimal, "5", true, ".05"},
        {"too many integers", 3, 0, "-1,234.5", false, "-1234.5"},
        {"too many decimals", 3, 0, "1.234", false, "1.234"},
    };
    for (const auto& row : rows) {
        CString text(row.text);
        EXPECT_EQ(NF(row.integers, 2, row.format).RawData(text, nullptr), row.ok) << row.name;
        EXPECT_STREQ(text, row.raw) << row.name;
    }
}

TEST(NumEditConversion, RawToDisplay)
{
    const struct { unsigned long format; const char *raw, *display; } rows[] = {
        {NF::Separators | NF::ParenNegative, "-1234.5", "(1,234.5)"},
        {NF::Separators | NF::ImpliedDecimal, "12345", "12,345."}};
    for (const auto& row : rows) {
        CString text(row.raw);
        EXPECT_TRUE(NF(7, 2, row.format).FormatRawData(text));
        EXPECT_STREQ(text, row.display);
    }
    EXPECT_STREQ(NF(7, 2, kAmount).FormatData(2.675), "2.68");
    EXPECT_STREQ(NF(7, 2, kAmount | NF::ParenNegative).FormatData(-3), "(3.00)");

    int count = 7;
    CString text("12.5");
    EXPECT_FALSE(NF(7, 0, 0).Data(count, text, nullptr));
    EXPECT_EQ(count, 7) << "a failed read leaves the value";
}

TEST(NumEditValidation, ErrorSelectionsMarkTheDisplayedDigits)
{
    const struct {
        const char* name;
        unsigned integers, decimals;
        unsigned long format;
        const char *text, *display, *message;
        int selStart, selEnd;
    } rows[] = {
        {"integers selected across a comma", 5, 2, NF::Separators, "123,456.5", "123,456.5",
         "Too many digits before the decimal point. A maximum of 5 digits is allowed.", 0, 7},
        {"negative shifts by the sign", 5, 0, NF::Separators, "-123456", "-123,456",
         "Too many digits. A maximum of 5 digits is allowed.", 1, 8},
        {"decimals inside parentheses", 5, 2, NF::Separators | NF::ParenNegative, "(12,345.678)", "(12,345.678)",
         "Too many digits after the decimal point. A maximum of 2 digits is allowed.", 8, 11},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const NF f(row.integers, row.decimals, row.format);
        CString text(row.text), again(row.text);
        kvEditFormatterError err;
        EXPECT_FALSE(f.IsValid(text, &err));
        EXPECT_STREQ(text, row.display);
        EXPECT_STREQ(err.message, row.message);
        EXPECT_EQ(err.selection, kvPackSel(row.selStart, row.selEnd));
        EXPECT_FALSE(f.IsValid(again, nullptr));
        EXPECT_STREQ(again, row.display);
    }
}

TEST(NumEditValidation, Limits)
{
    const struct {  // message "" when valid
        const char* name; NF::UpperLimitType upperType; double upper; NF::LowerLimitType lowerType; double lower;
        const char *text, *display, *message;
    } rows[] = {
        {"upper exclusive at the limit", NF::UpperExclusive, 100, NF::NoLowerLimit, 0, "100", "100",
         "Value must be less than 100.00."},
        {"any other type is inclusive", static_cast<NF::UpperLimitType>(7), 100, NF::NoLowerLimit, 0, "100.0", "100",
         ""},
        {"lower exclusive at the limit", NF::NoUpperLimit, 0, NF::LowerExclusive, 0, "0", "",
         "Value must be greater than 0.00."},
        {"lower inclusive below", NF::NoUpperLimit, 0, NF::LowerInclusive, -5, "-5.01", "(5.01)",
         "Value must be greater than or equal to -5.00."},
        {"upper tested first", NF::UpperExclusive, 10, NF::LowerExclusive, 20, "15", "15",
         "Value must be less than 10.00."},
        {"rounded down within", NF::UpperInclusive, 1, NF::NoLowerLimit, 0, "1.004", "1", ""},
        {"rounded up beyond", NF::UpperInclusive, 1, NF::NoLowerLimit, 0, "1.005", "1.01",
         "Value must be less than or equal to 1.00."},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        NF f(7, 2, NF::Separators | NF::ParenNegative | NF::RoundDecimals);
        f.SetUpperLimit(row.upper, row.upperType);
        f.SetLowerLimit(row.lower, row.lowerType);
        CString text(row.text);
        kvEditFormatterError err;
        EXPECT_EQ(f.IsValid(text, &err), !*row.message);
        EXPECT_STREQ(text, row.display);
        EXPECT_STREQ(err.message, row.message);
    }
}

TEST(NumEditValidation, ExitPadsAndBlanks)
{
    const struct { unsigned long format; const char *text, *expected; } rows[] = {
        {kAmount, "1,234.5", "1,234.50"},   {kAmount, "", "0.00"},
        {NF::PadDecimals, "0.0", ""},       {NF::PadDecimals, "12", "12.00"},
        {NF::PadDecimals | NF::ParenNegative, "(5)", "(5.00)"},
        {NF::PadDecimals | NF::ParenNegative, "(5.1)", "(5.10)"},
        {0, "5.", "5"},                     {NF::ShowZero, "", "0"},
    };
    for (const auto& row : rows) {
        CString text(row.text);
        unsigned long sel = 0;
        NF(7, 2, row.format).DoExitField(text, sel);
        EXPECT_STREQ(text, row.expected) << row.text << " with format " << row.format;
    }
}

TEST(NumEditFormat, PresetsAskTheApplication)
{
    // An answer of 0 means the application does not answer.
    const struct { const char* name; unsigned long format; LRESULT answer; unsigned long expected; } rows[] = {
        {"preset 1 built in", 1, 0, 0x200},         {"preset 2 built in", 2, 0, 0x2E0},
        {"preset 2 answered", 2, 0x120, 0x120},     {"negative answer ignored", 2, -1, 0x2E0},
        {"an answer naming a preset", 1, 2, 0x200}, {"other formats stored as given", 0x30, 0x999, 0x30},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const bool preset = row.format == 1 || row.format == 2;
        if (preset && row.expected == static_cast<unsigned long>(row.answer) && !StatusRecorder::CanObserve())
            continue;  // no application to answer
        StatusRecorder status;
        status.Answer(static_cast<LPARAM>(row.format), row.answer);
        NF f(7, 2, row.format);
        EXPECT_EQ(f.GetFormat(), row.expected);
        f.SetFormat(0);
        f.SetFormat(row.format);
        EXPECT_EQ(f.GetFormat(), row.expected);
        if (StatusRecorder::CanObserve()) {
            EXPECT_EQ(status.queries.size(), preset ? 2u : 0u);
        }
    }
}

}  // namespace
