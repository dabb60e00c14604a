// Time formatter: splitting with and without ":", rewriting, the range checks
// with their selections, the raw form in both directions, and typing.
#include "FormatterHarness.h"

#include "formatting/kvTimeEditFormatter.h"

#include <gtest/gtest.h>

namespace {

using T = kvTimeEditFormatter::TimeFormat;
constexpr T kClockHM = kvTimeEditFormatter::ClockHourMinute;
constexpr T kElapsedHM = kvTimeEditFormatter::ElapsedHourMinute;
constexpr T kClockHMS = kvTimeEditFormatter::ClockHourMinuteSecond;
constexpr T kElapsedHMS = kvTimeEditFormatter::ElapsedHourMinuteSecond;

// shown: the text after validation; message empty when valid; raw: RawData, null when refused.
struct ParseRow { const char* name; T format; const char *typed, *shown, *message; int selStart, selEnd; const char* raw; };

const ParseRow kParsing[] = {
    {"three digits", kClockHM, "930", "9:30", "", 0, 0, "0930"},
    {"hour 24 on a clock", kClockHM, "2400", "24:00", "Invalid hour.", 0, 2, nullptr},
    {"hour 24 elapsed", kElapsedHM, "24:00", "24:00", "", 0, 0, "2400"},
    {"hour 99 elapsed", kElapsedHM, "99:59", "99:59", "", 0, 0, "9959"},
    {"hour 100 elapsed", kElapsedHM, "100:00", "100:00", "Invalid hour.", 0, 3, nullptr},
    {"minutes to the end", kClockHM, "9:75", "9:75", "Invalid minutes.", 2, 4, nullptr},
    {"minutes above 99 stay whole", kClockHM, "9:100", "9:100", "Invalid minutes.", 2, 5, nullptr},
    {"a second colon cuts", kClockHM, "12:30:45", "12:30", "", 0, 0, "1230"},
    {"letters are removed", kClockHM, "9a30", "9:30", "", 0, 0, "0930"},
    {"no hours", kClockHM, ":5", "0:05", "", 0, 0, "0005"},
    {"two digits", kClockHM, "12", "12", "Invalid time.", 0, 2, nullptr},
    {"five digits", kClockHM, "12345", "12345", "Invalid time.", 0, 5, nullptr},
    {"nothing but letters", kClockHM, "abc", "", "Invalid time.", 0, 0, nullptr},
    {"five digits with seconds", kClockHMS, "93015", "9:30:15", "", 0, 0, "093015"},
    {"three digits with seconds", kClockHMS, "930", "9:30:00", "", 0, 0, "093000"},
    {"minutes up to the last colon", kClockHMS, "9:75", "9:75:00", "Invalid minutes.", 2, 4, nullptr},
    {"seconds", kClockHMS, "9:30:75", "9:30:75", "Invalid seconds.", 5, 7, nullptr},
    {"seven digits", kClockHMS, "1234567", "1234567", "Invalid time.", 0, 7, nullptr},
    {"short parts padded", kElapsedHMS, "1:2:3", "1:02:03", "", 0, 0, "010203"},
    {"a third colon ends the seconds", kElapsedHMS, "12:5:1:9", "12:05:01", "", 0, 0, "120501"},
    {"elapsed maximum", kElapsedHMS, "99:59:59", "99:59:59", "", 0, 0, "995959"},
    {"empty", kClockHM, "", "", "", 0, 0, "00"},
    {"empty with seconds", kClockHMS, "", "", "", 0, 0, "00"},
    {"format of no kind", static_cast<T>(7), "abc", "abc", "", 0, 0, "abc"},
};

TEST(TimeEditFormatter, SplitRewriteAndCheck)
{
    for (const ParseRow& row : kParsing) {
        SCOPED_TRACE(row.name);
        ExpectValidation(kvTimeEditFormatter(row.format), row.typed, row.shown, row.message, row.selStart, row.selEnd, row.raw);
    }
}

struct RawRow { const char* name; T format; const char* raw; bool converted; const char* shown; };

const RawRow kFromRaw[] = {
    {"seconds ignored", kElapsedHM, "093000", true, "9:30"},
    {"four digits refused", kElapsedHM, "0930", false, "0930"},
    {"with seconds", kClockHMS, "093015", true, "9:30:15"},
    {"out of range", kClockHM, "250000", false, "25:00"},
    {"empty", kClockHMS, "", true, ""},
    {"seven digits", kClockHMS, "0930150", false, "0930150"},
};

TEST(TimeEditFormatter, FormatRawData)
{
    for (const RawRow& row : kFromRaw) {
        SCOPED_TRACE(row.name);
        CString text(row.raw);
        EXPECT_EQ(kvTimeEditFormatter(row.format).FormatRawData(text), row.converted);
        EXPECT_STREQ(text, row.shown);
    }
}

struct TypingRow { const char* name; T format; const char *start, *keys; bool overtype; const char* expected; int beeps; };

const TypingRow kTyping[] = {
    {"digits", kClockHM, "|", "930", false, "930|", 0},
    {"a fifth digit", kClockHM, "1234|", "5", false, "1234|", 1},
    {"a colon in a full field", kClockHM, "1234|", ":", false, "1234:|", 0},
    {"a second colon in a full field", kClockHM, "12:34|", ":", false, "12:34|", 1},
    {"colons are free before the field is full", kClockHM, "12|", "::", false, "12::|", 0},
    {"two colons in a full field with seconds", kClockHMS, "123456|", ":::", false, "123456::|", 1},
    {"a seventh digit", kElapsedHMS, "12:34:56|", "7", false, "12:34:56|", 1},
    {"a letter", kClockHM, "1|", "a", false, "1|", 1},
    {"a control character", kClockHM, "1|", "\x01", false, "1|", 1},
    {"overtype", kClockHM, "12|34", "5", true, "125|4", 0},
    {"overtype at the end of a full field", kClockHM, "1234|", "5", true, "1234|", 1},
    {"overtype at the start of a full field", kClockHM, "|1234", "9", true, "9|234", 0},
    {"a selection makes room", kClockHM, "12[34]", "5", false, "125|", 0},
    {"a refused key keeps the selection", kClockHM, "12:34[:]", ":", false, "12:34[:]", 1},
    {"backspace", kClockHM, "12|", "\b", false, "1|", 0},
    {"backspace at the start", kClockHM, "|12", "\b", false, "|12", 0},
    {"backspace removes the selection", kClockHM, "1[23]4", "\b", false, "1|4", 0},
    {"delete is left to the edit", kClockHM, "1|2", "\x7f", false, "1|2", 0},
};

TEST(TimeEditFormatter, Typing)
{
    for (const TypingRow& row : kTyping) {
        SCOPED_TRACE(row.name);
        ExpectTyping(kvTimeEditFormatter(row.format), row.start, row.keys, row.overtype, row.expected, row.beeps);
    }
}

}  // namespace
