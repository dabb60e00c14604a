// String formatter: typing, overtype, backspace, the space exception, case rules,
// validation messages and selections.
#include "FormatterHarness.h"
#include "StatusRecorder.h"

#include "formatting/kvStrEditFormatter.h"

#include <gtest/gtest.h>

namespace {

using AF = kvStrEditFormatter::AlphaFormat;

// refused: sends the too-many message.
struct TypingRow {
    const char* name;
    unsigned maxLen;
    AF format;
    const char *start, *keys;
    bool overtype;
    const char* expected;
    bool refused;
};

const TypingRow kTyping[] = {
    {"plain insert", 0, kvStrEditFormatter::AnyCase, "ac|", "b", false, "acb|", false},
    {"insert in the middle", 0, kvStrEditFormatter::AnyCase, "a|c", "b", false, "ab|c", false},
    {"typed upper, existing kept", 5, kvStrEditFormatter::UpperCase, "abx|", "d", false, "abxD|", false},
    {"lower case", 0, kvStrEditFormatter::LowerCase, "|", "AbC", false, "abc|", false},
    {"both bits act as upper", 0, static_cast<AF>(3), "|", "ab", false, "AB|", false},
    {"full field refuses", 5, kvStrEditFormatter::UpperCase, "ABXDE|", "y", false, "ABXDE|", true},
    {"space at the end passes", 5, kvStrEditFormatter::UpperCase, "ABXDE|", " ", false, "ABXDE |", false},
    {"space inside a full field refused", 5, kvStrEditFormatter::AnyCase, "AB|XDE", " ", false, "AB|XDE", true},
    {"overtype replaces", 5, kvStrEditFormatter::UpperCase, "AB|XDE", "z", true, "ABZ|DE", false},
    {"overtype at the end inserts", 0, kvStrEditFormatter::AnyCase, "ab|", "c", true, "abc|", false},
    {"selection makes room at the maximum", 3, kvStrEditFormatter::AnyCase, "a[bc]", "x", false, "ax|", false},
    {"leading blanks do not count", 3, kvStrEditFormatter::AnyCase, "  ab|", "c", false, "  abc|", false},
    {"no maximum", 0, kvStrEditFormatter::AnyCase, "|", "abcdefghijklmnopqrstuvwxyz0123456789", false,
     "abcdefghijklmnopqrstuvwxyz0123456789|", false},
    {"backspace", 0, kvStrEditFormatter::AnyCase, "abc|", "\b", false, "ab|", false},
    {"backspace at 0 is a no-op", 0, kvStrEditFormatter::AnyCase, "|abc", "\b", false, "|abc", false},
    {"backspace removes the selection", 0, kvStrEditFormatter::AnyCase, "a[bc]d", "\b", false, "a|d", false},
    {"backspace never widens in overtype", 0, kvStrEditFormatter::AnyCase, "ab|c", "\b", true, "a|c", false},
    {"high characters pass through", 0, kvStrEditFormatter::UpperCase, "|", "\xe9\xff", false, "\xe9\xff|", false},
};

TEST(StrEditFormatter, Typing)
{
    for (const TypingRow& row : kTyping) {
        SCOPED_TRACE(row.name);
        StatusRecorder status;
        const kvStrEditFormatter f(row.maxLen, 0, row.format);
        EXPECT_EQ(TypeKeys(f, row.start, row.keys, row.overtype), row.expected);
        const std::string tooMany =
            "Too many characters. A maximum of " + std::to_string(row.maxLen) + " characters is allowed.";
        EXPECT_EQ(status.messages, row.refused ? std::vector<std::string>{tooMany} : std::vector<std::string>{});
    }
}

struct ValidRow {
    const char* name;
    unsigned maxLen, minLen;
    AF format;
    const char* text;
    bool valid;
    const char *normalised, *message;
    int selStart, selEnd;
};

const ValidRow kValidation[] = {
    {"trimmed and upper-cased, too short", 5, 2, kvStrEditFormatter::UpperCase, " a ", false, "A",
     "Not enough characters. A minimum of 2 characters is required.", 0, 1},
    {"too long selects the excess", 3, 0, kvStrEditFormatter::AnyCase, "abcdef", false, "abcdef",
     "Too many characters. A maximum of 3 characters is allowed.", 3, 6},
    {"trailing blanks trimmed before the length check", 3, 0, kvStrEditFormatter::AnyCase, "abc   ", true, "abc",
     "", 0, 0},
    {"lower-cased", 0, 0, kvStrEditFormatter::LowerCase, "MiXeD", true, "mixed", "", 0, 0},
    {"empty is valid without a minimum", 5, 0, kvStrEditFormatter::AnyCase, "", true, "", "", 0, 0},
    {"empty fails a minimum", 0, 1, kvStrEditFormatter::AnyCase, "   ", false, "",
     "Not enough characters. A minimum of 1 characters is required.", 0, 0},
    {"exact bounds", 4, 4, kvStrEditFormatter::AnyCase, "abcd", true, "abcd", "", 0, 0},
};

TEST(StrEditFormatter, Validation)
{
    for (const ValidRow& row : kValidation) {
        SCOPED_TRACE(row.name);
        const kvStrEditFormatter f(row.maxLen, row.minLen, row.format);
        ExpectValidation(f, row.text, row.normalised, row.message, row.selStart, row.selEnd,
                         row.valid ? row.normalised : nullptr);
        CString formatted(row.text);
        EXPECT_EQ(f.FormatRawData(formatted), row.valid);
        EXPECT_STREQ(formatted, row.normalised);
    }
}

TEST(StrEditFormatter, NonCharacterKeysAreLeftToTheEdit)
{
    const kvStrEditFormatter f(3);
    CString text("abc");
    unsigned long sel = kvPackSel(1, 1);
    EXPECT_TRUE(f.DoKeyDown(text, sel, false, VK_DELETE, 1, 0));
    EXPECT_STREQ(text, "abc");
    EXPECT_EQ(sel, kvPackSel(1, 1));
}

}  // namespace
