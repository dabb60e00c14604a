// Date formatter: resolving the default formats, splitting, widening, rewriting
// and checking, the raw form, display of a date, and typing.
#include "FormatterHarness.h"
#include "StatusRecorder.h"

#include "formatting/kvDateEditFormatter.h"

#include <gtest/gtest.h>

namespace {

using F = kvDateEditFormatter::DateFormat;
constexpr F kNoKind = static_cast<F>(99);

// The three requests, then what each answer 0..7 to the date-order query selects.
struct ResolveRow { F requested; int byAnswer[8]; };

const ResolveRow kResolution[] = {
    {kvDateEditFormatter::DefaultMonthDayYear, {4, 1, 2, 3, 4, 5, 6, 4}},
    {kvDateEditFormatter::DefaultMonthDay, {10, 8, 9, 8, 10, 11, 10, 10}},
    {kvDateEditFormatter::DefaultMonthYear, {15, 13, 13, 14, 15, 15, 16, 15}},
};

TEST(DateEditFormatter, DefaultFormatsFollowTheApplicationsDateOrder)
{
    for (const ResolveRow& row : kResolution) {
        for (int answer = 0; answer < 8 && StatusRecorder::CanObserveMessages(); ++answer) {
            SCOPED_TRACE(testing::Message() << "request " << row.requested << ", answer " << answer);
            StatusRecorder status;
            status.Answer(0, answer);
            kvDateEditFormatter f(row.requested);
            EXPECT_EQ(f.GetFormat(), row.byAnswer[answer]);
            f.SetFormat(kvDateEditFormatter::YearOnly);
            f.SetFormat(row.requested);
            EXPECT_EQ(f.GetFormat(), row.byAnswer[answer]);
            EXPECT_EQ(status.queries, (std::vector<LPARAM>{0, 0}));
        }
        EXPECT_EQ(kvDateEditFormatter(row.requested).GetFormat(), row.byAnswer[0]) << "nobody to ask";
    }
    StatusRecorder status;
    status.Answer(0, 5);
    const kvDateEditFormatter concrete(kvDateEditFormatter::MonthDaySlash);
    EXPECT_EQ(concrete.GetFormat(), kvDateEditFormatter::MonthDaySlash);
    EXPECT_TRUE(status.queries.empty()) << "a concrete format asks nothing";
}

// shown: the text after validation; message empty when valid; raw: RawData, null when refused.
struct ParseRow { const char* name; F format; const char *typed, *shown, *message; int selStart, selEnd; const char* raw; };

const ParseRow kParsing[] = {
    {"one-digit month and day", F(4), "1524", "1/05/2024", "", 0, 0, "01052024"},
    {"eight digits", F(4), "12252023", "12/25/2023", "", 0, 0, "12252023"},
    {"dashes in a slash format", F(4), "7-4-76", "7/04/1976", "", 0, 0, "07041976"},
    {"three digits", F(4), "153", "1/05/2003", "", 0, 0, "01052003"},
    {"MDDYY", F(4), "11524", "1/15/2024", "", 0, 0, "01152024"},
    {"MDDYYYY", F(4), "1152024", "1/15/2024", "", 0, 0, "01152024"},
    {"letters after a number are ignored", F(4), "1a/5/2024", "1/05/2024", "", 0, 0, "01052024"},
    {"30 February", F(4), "2/30/24", "2/30/2024", "'30' is not a valid day for February.", 2, 4, nullptr},
    {"month 13", F(4), "13/1/99", "13/01/1999", "'13' is not a valid month.", 0, 2, nullptr},
    {"three-digit year", F(4), "1/1/150", "1/01/150", "'150' is not a valid year.", 5, 8, nullptr},
    {"year 1000", F(4), "1/1/1000", "1/01/1000", "", 0, 0, "01011000"},
    {"empty middle field", F(4), "1//2024", "1/00/2024", "'00' is not a valid day for January.", 2, 4, nullptr},
    {"49 widens to 2049", F(4), "1/1/49", "1/01/2049", "", 0, 0, "01012049"},
    {"50 widens to 1950", F(4), "1/1/50", "1/01/1950", "", 0, 0, "01011950"},
    {"0 widens to 2000", F(4), "1/1/0", "1/01/2000", "", 0, 0, "01012000"},
    {"1900 is no leap year", F(4), "2/29/1900", "2/29/1900", "'29' is not a valid day for February.", 2, 4, nullptr},
    {"2000 is a leap year", F(4), "2/29/2000", "2/29/2000", "", 0, 0, "02292000"},
    {"31 April", F(4), "4/31/2024", "4/31/2024", "'31' is not a valid day for April.", 2, 4, nullptr},
    {"one separator", F(4), "1/1", "1/1", "Not enough separators.", 3, 3, nullptr},
    {"three separators", F(4), "1/1/1/1", "1/1/1/1", "Too many separators.", 7, 7, nullptr},
    {"two digits", F(4), "12", "12",
     "Date format must be MDY, MDYY, MDDYY, MMDDYY, MDDYYYY or MMDDYYYY.", 0, 2, nullptr},
    {"nine digits", F(4), "123456789", "123456789",
     "Date format must be MDY, MDYY, MDDYY, MMDDYY, MDDYYYY or MMDDYYYY.", 0, 9, nullptr},
    {"a character above 127", F(4), "\xe9", "\xe9",
     "Date format must be MDY, MDYY, MDDYY, MMDDYY, MDDYYYY or MMDDYYYY.", 0, 1, nullptr},
    {"day first, six digits", F(5), "311224", "31/12/2024", "", 0, 0, "12312024"},
    {"day first, DDMYY", F(5), "31224", "31/02/2024", "'31' is not a valid day for February.", 0, 2, nullptr},
    {"day first, dashes", F(2), "29-2-2024", "29-02-2024", "", 0, 0, "02292024"},
    {"day first, length", F(5), "12", "12",
     "Date format must be DMY, DMYY, DDMYY, DDMMYY, DDMYYYY or DDMMYYYY.", 0, 2, nullptr},
    {"year first, six digits", F(6), "240105", "2024/01/05", "", 0, 0, "01052024"},
    {"year first, YYMD", F(3), "2415", "2024-01-05", "", 0, 0, "01052024"},
    {"year first, YYYYMDD", F(6), "2024115", "2024/01/15", "", 0, 0, "01152024"},
    {"year first, length", F(6), "12", "12",
     "Date format must be YMD, YYMD, YYMDD, YYMMDD, YYYYMDD or YYYYMMDD.", 0, 2, nullptr},
    {"month-day, 29 February", F(10), "229", "2/29", "", 0, 0, "02290000"},
    {"month-day keeps no zero", F(10), "15", "1/5", "", 0, 0, "01050000"},
    {"month-day, 30 February", F(10), "2/30", "2/30", "'30' is not a valid day for February.", 2, 4, nullptr},
    {"month-day, two separators", F(8), "1/2/3", "1/2/3", "Too many separators.", 5, 5, nullptr},
    {"month-day, length", F(8), "1", "1", "Month/Day format must be MD, MDD, or MMDD.", 0, 1, nullptr},
    {"day-month", F(11), "3112", "31/12", "", 0, 0, "12310000"},
    {"day-month, length", F(9), "12345", "12345", "Day/Month format must be DM, DDM, or DDMM.", 0, 5, nullptr},
    {"month-year, MYY", F(15), "124", "01/2024", "", 0, 0, "01002024"},
    {"month-year, month 0", F(13), "0-2024", "00-2024", "'00' is not a valid month.", 0, 2, nullptr},
    {"month-year, year before month", F(15), "13/150", "13/150", "'150' is not a valid year.", 3, 6, nullptr},
    {"month-year, length", F(13), "1", "1",
     "Month/Year format must be MY, MYY, MMYY, MYYYY, or MMYYYY", 0, 1, nullptr},
    {"year-month, YYYYM", F(16), "20245", "2024/05", "", 0, 0, "05002024"},
    {"year-month, length", F(14), "1234567", "1234567",
     "Year/Month format must be YM, YYM, YYMM, YYYYM, or YYYYMM.", 0, 7, nullptr},
    {"year, two digits", F(17), "99", "1999", "", 0, 0, "00001999"},
    {"year, any four characters", F(17), "0150", "150", "", 0, 0, "00000150"},
    {"year, a sign read as atoi reads it", F(17), "-5", "1995", "", 0, 0, "00001995"},
    {"year, three digits", F(17), "123", "123", "Year format must be YY or YYYY.", 0, 3, nullptr},
    {"empty", F(4), "", "", "", 0, 0, "00000000"},
    {"format of no kind", kNoKind, "1/1/2024", "1/1/2024", "", 0, 0, nullptr},
};

TEST(DateEditFormatter, SplitWidenRewriteAndCheck)
{
    for (const ParseRow& row : kParsing) {
        SCOPED_TRACE(row.name);
        ExpectValidation(kvDateEditFormatter(row.format), row.typed, row.shown, row.message, row.selStart, row.selEnd, row.raw);
    }
}

// 5 January 2024 in every format that can be stored.
const char* const kShownByFormat[18] = {
    "", "1-05-2024", "5-01-2024", "2024-01-05", "1/05/2024", "5/01/2024", "2024/01/05", "",
    "1-05", "5-01", "1/05", "5/01", "", "1-2024", "2024-01", "1/2024", "2024/01", "2024"};

TEST(DateEditFormatter, ShowsADateInEveryFormat)
{
    const SYSTEMTIME date = {2024, 1, 0, 5, 0, 0, 0, 0};
    for (int format = 1; format < 18; ++format) {
        const kvDateEditFormatter f(static_cast<F>(format));
        if (f.GetFormat() != format)
            continue;  // a request, resolved to another format
        SCOPED_TRACE(testing::Message() << "format " << format);
        EXPECT_STREQ(f.FormatData(date), kShownByFormat[format]);
        CString raw("01052024");
        EXPECT_TRUE(f.FormatRawData(raw));
        EXPECT_STREQ(raw, kShownByFormat[format]);
    }
    EXPECT_STREQ(kvDateEditFormatter(kNoKind).FormatData(date), "");
    // The raw form's length is checked, the date is not.
    const kvDateEditFormatter slash(kvDateEditFormatter::MonthDayYearSlash);
    for (const char* wrongLength : {"0105202", "010520240"}) {
        CString text(wrongLength);
        EXPECT_FALSE(slash.FormatRawData(text));
        EXPECT_STREQ(text, wrongLength);
    }
    CString unchecked("13452024");
    EXPECT_TRUE(slash.FormatRawData(unchecked));
    EXPECT_STREQ(unchecked, "13/45/2024");
}

struct TypingRow { const char* name; F format; const char *start, *keys; bool overtype; const char* expected; int beeps; };

const TypingRow kTyping[] = {
    {"a whole date", F(4), "|", "12/25/2024", false, "12/25/2024|", 0},
    {"an eleventh character", F(4), "12/25/2024|", "1", false, "12/25/2024|", 1},
    {"digits stay as typed", F(4), "|", "12252023", false, "12252023|", 0},
    {"overtype in a full field", F(4), "12/|25/2024", "3", true, "12/3|5/2024", 0},
    {"overtype at the end of a full field", F(4), "12/25/2024|", "3", true, "12/25/2024|", 1},
    {"a selection makes room", F(4), "12/[25]/2024", "3", false, "12/3|/2024", 0},
    {"refused after deleting the selection", F(17), "[1]2345", "9", false, "|2345", 1},
    {"either separator", F(4), "1|", "-/", false, "1-/|", 0},
    {"a fourth separator fits", F(4), "|", "1/1/1/1", false, "1/1/1/1|", 0},
    {"no separator in a year", F(17), "19|", "-/", false, "19|", 2},
    {"a letter", F(4), "1|", "a", false, "1|", 1},
    {"a control character", F(4), "1|", "\x01", false, "1|", 0},
    {"a character above 127", F(4), "1|", "\xe9", false, "1|", 0},
    {"month-day stops at 5", F(8), "12/25|", "1", false, "12/25|", 1},
    {"month-year stops at 7", F(13), "12/202|", "45", false, "12/2024|", 1},
    {"year stops at 4", F(17), "202|", "45", false, "2024|", 1},
    {"backspace", F(4), "12|", "\b", false, "1|", 0},
    {"backspace at the start", F(4), "|12", "\b", false, "|12", 0},
    {"backspace removes the selection", F(4), "1[2/]3", "\b", true, "1|3", 0},
    {"delete is left to the edit", F(4), "1|2", "\x7f", false, "1|2", 0},
};

TEST(DateEditFormatter, Typing)
{
    for (const TypingRow& row : kTyping) {
        SCOPED_TRACE(row.name);
        ExpectTyping(kvDateEditFormatter(row.format), row.start, row.keys, row.overtype, row.expected, row.beeps);
    }
}

}  // namespace
