// Numeric text helpers: canonical display form, value reading, accounting negatives.
#include "formatting/kvNumericText.h"

#include <gtest/gtest.h>

namespace {

struct FormatRow { const char *name, *input; int decimals; unsigned long flags; bool normalise; const char* expected; };

const FormatRow kFormat[] = {
    {"zeros both sides, separators, cut", "001234.5600", 2, 1, true, "1,234.56"},
    {"parentheses kept with flag 2", "(0.50)", 1, 3, true, "(0.5)"},
    {"surplus decimals truncated", "12.345", 2, 0, true, "12.34"},
    {"no normalising keeps trailing zeros", "1234.500", 2, 1, false, "1,234.500"},
    {"trailing point dropped", "5.", -1, 0, true, "5"},
    {"trailing point kept without normalising", "5.", -1, 0, false, "5."},
    {"zeros after the sign", "-0012", -1, 1, true, "-12"},
    {"empty reads as zero", "", -1, 0, true, "0"},
    {"lone minus in parentheses", "-", -1, 2, true, "(0)"},
    {"negative point gets its zero", "-.5", -1, 0, true, "-0.5"},
    {"wrong grouping regrouped", "1,2,3,4", -1, 1, true, "1,234"},
    {"cut after the point was kept", "7.9", 0, 0, true, "7."},
    {"only the first parentheses consumed", "((5))", -1, 0, true, "-(5)"},
    {"other characters carried along", "ab0c", -1, 0, true, "abc"},
};

TEST(NumericText, FormatNumeric)
{
    for (const FormatRow& row : kFormat) {
        CString text(row.input);
        FormatNumeric(text, row.decimals, row.flags, row.normalise);
        EXPECT_STREQ(text, row.expected) << row.name;
    }
}

TEST(NumericText, DoubleValueAndConvertParenNegative)
{
    const struct { const char* input; double expected; } values[] = {
        {"(1,234.50)", -1234.5}, {"12abc", 12}, {"abc", 0}, {"  7.25", 7.25}, {"1.5e3", 1500}};
    for (const auto& row : values)
        EXPECT_DOUBLE_EQ(DoubleValue(row.input), row.expected) << row.input;
    const struct { const char *input, *expected; } rows[] = {
        {"(1,234.50)", "-1,234.50"}, {"12)", "12)"}, {"(12", "-12"}, {"1(2)3", "-123"}, {"(-5)", "--5"}};
    for (const auto& row : rows) {
        CString text(row.input);
        ConvertParenNegative(text);
        EXPECT_STREQ(text, row.expected) << row.input;
    }
}

}  // namespace
