// kvDateEditFormatter: every format described as data (order of the parts,
// separator, digits written, how a text of digits splits by its length), and
// one split-rewrite-check path that every kind follows.
#include "formatting/kvDateEditFormatter.h"

#include "formatting/kvDecimalText.h"
#include "formatting/kvFieldEditing.h"
#include "formatting/kvMessages.h"
#include "formatting/kvStatus.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstring>

namespace {

enum Part { Month, Day, Year };

// Values indexed by Part; a part the format lacks stays 0.
using PartValues = std::array<int, 3>;

struct Span {
    int start = 0;
    int length = 0;
};

// Widths of the parts, in display order, of a text of digits of each length
// (the index); none where a text of that length cannot be split.
using SplitTable = std::array<std::array<int, 3>, 9>;

constexpr SplitTable kSplitMonthDayYear = {{{}, {}, {}, {1, 1, 1}, {1, 1, 2}, {1, 2, 2}, {2, 2, 2}, {1, 2, 4}, {2, 2, 4}}};
constexpr SplitTable kSplitDayMonthYear = {{{}, {}, {}, {1, 1, 1}, {1, 1, 2}, {2, 1, 2}, {2, 2, 2}, {2, 1, 4}, {2, 2, 4}}};
constexpr SplitTable kSplitYearMonthDay = {{{}, {}, {}, {1, 1, 1}, {2, 1, 1}, {2, 1, 2}, {2, 2, 2}, {4, 1, 2}, {4, 2, 2}}};
constexpr SplitTable kSplitMonthDay = {{{}, {}, {1, 1}, {1, 2}, {2, 2}}};
constexpr SplitTable kSplitDayMonth = {{{}, {}, {1, 1}, {2, 1}, {2, 2}}};
constexpr SplitTable kSplitMonthYear = {{{}, {}, {1, 1}, {1, 2}, {2, 2}, {1, 4}, {2, 4}}};
constexpr SplitTable kSplitYearMonth = {{{}, {}, {1, 1}, {2, 1}, {2, 2}, {4, 1}, {4, 2}}};
constexpr SplitTable kSplitYear = {{{}, {}, {2}, {}, {4}}};

constexpr const char kMonthDayYearLength[] = "Date format must be MDY, MDYY, MDDYY, MMDDYY, MDDYYYY or MMDDYYYY.";
constexpr const char kDayMonthYearLength[] = "Date format must be DMY, DMYY, DDMYY, DDMMYY, DDMYYYY or DDMMYYYY.";
constexpr const char kYearMonthDayLength[] = "Date format must be YMD, YYMD, YYMDD, YYMMDD, YYYYMDD or YYYYMMDD.";
constexpr const char kMonthDayLength[] = "Month/Day format must be MD, MDD, or MMDD.";
constexpr const char kDayMonthLength[] = "Day/Month format must be DM, DDM, or DDMM.";
// Without a final full stop, as users of the field have always seen it.
constexpr const char kMonthYearLength[] = "Month/Year format must be MY, MYY, MMYY, MYYYY, or MMYYYY";
constexpr const char kYearMonthLength[] = "Year/Month format must be YM, YYM, YYMM, YYYYM, or YYYYMM.";
constexpr const char kYearLength[] = "Year format must be YY or YYYY.";

struct Layout {
    int parts;                     // 0 for a format of no kind
    std::array<Part, 3> order;     // display order
    char separator;
    std::array<int, 3> typedDigits;  // minimum digits of each part when validation rewrites the text
    std::array<int, 3> shownDigits;  // minimum digits of each part in FormatData
    const SplitTable* split;
    const char* lengthMessage;
    bool checksYear;               // the year-only kind deliberately accepts any year
};

constexpr Layout kNoKind = {0, {}, 0, {}, {}, nullptr, nullptr, false};

constexpr Layout MonthDayYearLayout(char separator)
{
    return {3, {Month, Day, Year}, separator, {1, 2, 1}, {1, 2, 1}, &kSplitMonthDayYear, kMonthDayYearLength, true};
}
constexpr Layout DayMonthYearLayout(char separator)
{
    return {3, {Day, Month, Year}, separator, {1, 2, 1}, {1, 2, 1}, &kSplitDayMonthYear, kDayMonthYearLength, true};
}
constexpr Layout YearMonthDayLayout(char separator)
{
    return {3, {Year, Month, Day}, separator, {1, 2, 2}, {1, 2, 2}, &kSplitYearMonthDay, kYearMonthDayLength, true};
}
// Month-day: validation writes no leading zero, FormatData pads the second part.
constexpr Layout MonthDayLayout(char separator)
{
    return {2, {Month, Day}, separator, {1, 1}, {1, 2}, &kSplitMonthDay, kMonthDayLength, true};
}
constexpr Layout DayMonthLayout(char separator)
{
    return {2, {Day, Month}, separator, {1, 1}, {1, 2}, &kSplitDayMonth, kDayMonthLength, true};
}
constexpr Layout MonthYearLayout(char separator)
{
    return {2, {Month, Year}, separator, {2, 1}, {1, 2}, &kSplitMonthYear, kMonthYearLength, true};
}
constexpr Layout YearMonthLayout(char separator)
{
    return {2, {Year, Month}, separator, {1, 2}, {1, 2}, &kSplitYearMonth, kYearMonthLength, true};
}

// Indexed by DateFormat.
constexpr std::array<Layout, 18> kLayouts = {
    kNoKind,
    MonthDayYearLayout('-'), DayMonthYearLayout('-'), YearMonthDayLayout('-'),
    MonthDayYearLayout('/'), DayMonthYearLayout('/'), YearMonthDayLayout('/'),
    kNoKind,
    MonthDayLayout('-'), DayMonthLayout('-'), MonthDayLayout('/'), DayMonthLayout('/'),
    kNoKind,
    MonthYearLayout('-'), YearMonthLayout('-'), MonthYearLayout('/'), YearMonthLayout('/'),
    Layout{1, {Year}, 0, {1}, {1}, &kSplitYear, kYearLength, false},
};

const Layout& LayoutOf(kvDateEditFormatter::DateFormat format)
{
    const auto index = static_cast<unsigned int>(format);
    return index < kLayouts.size() ? kLayouts[index] : kNoKind;
}

bool HasPart(const Layout& layout, Part part)
{
    for (int i = 0; i < layout.parts; ++i)
        if (layout.order[i] == part)
            return true;
    return false;
}

// Either separator is understood whatever the format displays.
bool IsSeparator(char ch) { return ch == '-' || ch == '/'; }

// How many separators a text holds, and where the first two are (no more
// are ever split at).
struct Separators {
    int count = 0;
    std::array<int, 2> at{};
};

// Without a branch on the character, which is as good as random in typed dates.
Separators FindSeparators(const CString& text)
{
    const char* s = text.GetString();
    int count = 0, first = 0, second = 0;
    for (int i = 0; i < text.GetLength(); ++i) {
        const bool separator = IsSeparator(s[i]);
        first = separator && count == 0 ? i : first;
        second = separator && count == 1 ? i : second;
        count += separator ? 1 : 0;
    }
    return {count, {first, second}};
}

bool FieldsAtSeparators(const Layout& layout, int length, const Separators& separators,
                        std::array<Span, 3>& fields, kvEditFormatterError* err)
{
    if (separators.count < layout.parts - 1)
        return kvRefuse(err, "Not enough separators.", length, length);
    if (separators.count > layout.parts - 1)
        return kvRefuse(err, "Too many separators.", length, length);
    int start = 0;
    for (int i = 0; i < layout.parts; ++i) {
        const int end = i < separators.count ? separators.at[i] : length;
        fields[i] = {start, end - start};
        start = end + 1;
    }
    return true;
}

bool FieldsByLength(const Layout& layout, int length, std::array<Span, 3>& fields, kvEditFormatterError* err)
{
    if (length >= static_cast<int>(layout.split->size()) || (*layout.split)[length][0] == 0)
        return kvRefuse(err, layout.lengthMessage, 0, length);
    int start = 0;
    for (int i = 0; i < layout.parts; ++i) {
        const int width = (*layout.split)[length][i];
        fields[i] = {start, width};
        start += width;
    }
    return true;
}

// The numbers of the text, by part; an empty text succeeds and leaves them alone.
bool SplitText(const Layout& layout, const CString& text, PartValues& values, kvEditFormatterError* err)
{
    if (text.IsEmpty())
        return true;
    // The year-only kind has no separators to split at: its text is read whole.
    const Separators separators = FindSeparators(text);
    std::array<Span, 3> fields;
    const bool split = layout.parts > 1 && separators.count > 0
                           ? FieldsAtSeparators(layout, text.GetLength(), separators, fields, err)
                           : FieldsByLength(layout, text.GetLength(), fields, err);
    if (!split)
        return false;
    for (int i = 0; i < layout.parts; ++i)
        values[layout.order[i]] = kvLeadingInt(text, fields[i].start, fields[i].length);
    return true;
}

// The century rule, with a fixed pivot so that a text means the same date in every year.
int WidenYear(int year)
{
    if (year < 50)
        return year + 2000;
    if (year < 100)
        return year + 1900;
    return year;
}

// Longest text of three parts and two separators.
constexpr int kLongestShown = 3 * kvDecimalMaxLength + 2;

// Writes the parts in display order and returns the length written; spans,
// when given, receive where each part landed.
int WriteParts(char* out, const Layout& layout, const PartValues& values, const std::array<int, 3>& digits,
               std::array<Span, 3>* spans)
{
    int length = 0;
    for (int i = 0; i < layout.parts; ++i) {
        if (i > 0)
            out[length++] = layout.separator;
        const Part part = layout.order[i];
        const int start = length;
        length += kvWriteDecimal(out + length, values[part], digits[i]);
        if (spans)
            (*spans)[part] = {start, length - start};
    }
    return length;
}

const char* const kMonthNames[12] = {"January", "February", "March",     "April",   "May",      "June",
                                     "July",    "August",   "September", "October", "November", "December"};

bool RefusePart(kvEditFormatterError* err, const CString& text, const Span& span, const char* verdict)
{
    if (!err)
        return false;
    const CString message = "'" + text.Mid(span.start, span.length) + verdict;
    return kvRefuse(err, message, span.start, span.start + span.length);
}

bool CheckParts(const Layout& layout, const PartValues& values, const CString& text,
                const std::array<Span, 3>& spans, kvEditFormatterError* err)
{
    const bool hasYear = HasPart(layout, Year);
    if (hasYear && layout.checksYear && !kvDateEditFormatter::IsValidYear(values[Year]))
        return RefusePart(err, text, spans[Year], "' is not a valid year.");
    if (HasPart(layout, Month) && !kvDateEditFormatter::IsValidMonth(values[Month]))
        return RefusePart(err, text, spans[Month], "' is not a valid month.");
    // A month-day has no year: 2000 lets 29 February through.
    const int year = hasYear ? values[Year] : 2000;
    if (HasPart(layout, Day) && !kvDateEditFormatter::IsValidDay(values[Month], values[Day], year)) {
        const CString verdict = CString("' is not a valid day for ") + kMonthNames[values[Month] - 1] + ".";
        return RefusePart(err, text, spans[Day], verdict);
    }
    return true;
}

// Split, widen, rewrite into display form (whatever the checks say), check.
bool ParseAndRewrite(const Layout& layout, SYSTEMTIME& date, CString& text, kvEditFormatterError* err)
{
    if (text.IsEmpty())
        return true;
    PartValues values{};
    if (!SplitText(layout, text, values, err))
        return false;
    if (HasPart(layout, Year))
        values[Year] = WidenYear(values[Year]);

    char shown[kLongestShown];
    std::array<Span, 3> spans;
    const int length = WriteParts(shown, layout, values, layout.typedDigits, &spans);
    std::memcpy(text.GetBufferSetLength(length), shown, static_cast<size_t>(length));
    if (!CheckParts(layout, values, text, spans, err))
        return false;
    date.wYear = static_cast<WORD>(values[Year]);
    date.wMonth = static_cast<WORD>(values[Month]);
    date.wDay = static_cast<WORD>(values[Day]);
    return true;
}

// The application's date order (1 to 6, the meaning of DateFormat 1 to 6), 0 without one.
int AskDateOrder()
{
    const LRESULT order = kvSendStatus(kvStatusQuery, 0);
    return order >= 1 && order <= 6 ? static_cast<int>(order) : 0;
}

bool IsPrintableKey(unsigned int key) { return key <= 0xFF && std::isprint(static_cast<int>(key)); }

}  // namespace

kvDateEditFormatter::kvDateEditFormatter(DateFormat format) : m_Format(_Resolve(format)) {}

void kvDateEditFormatter::SetFormat(DateFormat format) { m_Format = _Resolve(format); }

// Indexed by the application's date order, 0 standing for no answer.
kvDateEditFormatter::DateFormat kvDateEditFormatter::_Resolve(DateFormat format)
{
    static constexpr DateFormat kMonthDayYearByOrder[7] = {
        MonthDayYearSlash, MonthDayYearDash, DayMonthYearDash, YearMonthDayDash,
        MonthDayYearSlash, DayMonthYearSlash, YearMonthDaySlash};
    static constexpr DateFormat kMonthDayByOrder[7] = {
        MonthDaySlash, MonthDayDash, DayMonthDash, MonthDayDash, MonthDaySlash, DayMonthSlash, MonthDaySlash};
    static constexpr DateFormat kMonthYearByOrder[7] = {
        MonthYearSlash, MonthYearDash, MonthYearDash, YearMonthDash, MonthYearSlash, MonthYearSlash, YearMonthSlash};
    switch (format) {
    case DefaultMonthDayYear:
        return kMonthDayYearByOrder[AskDateOrder()];
    case DefaultMonthDay:
        return kMonthDayByOrder[AskDateOrder()];
    case DefaultMonthYear:
        return kMonthYearByOrder[AskDateOrder()];
    default:
        return format;
    }
}

int kvDateEditFormatter::MaxLength() const
{
    if (IsMonthDayYear())
        return 10;
    if (IsMonthDay())
        return 5;
    if (IsMonthYear())
        return 7;
    if (IsYear())
        return 4;
    return 0;
}

bool kvDateEditFormatter::IsValidYear(int year) { return year >= 1000 && year <= 9999; }

bool kvDateEditFormatter::IsValidMonth(int month) { return month >= 1 && month <= 12; }

bool kvDateEditFormatter::IsValidDay(int month, int day, int year)
{
    static constexpr int kDaysInMonth[12] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (!IsValidMonth(month) || day < 1)
        return false;
    const bool leap = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
    return day <= kDaysInMonth[month - 1] + (month == 2 && leap ? 1 : 0);
}

void kvDateEditFormatter::DoEnterField(CString&, unsigned long&) const {}

void kvDateEditFormatter::DoExitField(CString&, unsigned long&) const {}

bool kvDateEditFormatter::DoKeyDown(CString&, unsigned long&, bool, unsigned int, unsigned int, unsigned int) const
{
    return true;
}

bool kvDateEditFormatter::_IsAcceptedKey(unsigned int key) const
{
    return kvIsAsciiDigit(key) || ((key == '-' || key == '/') && !IsYear());
}

// Typing only filters and bounds the length: separators, padding and checks
// come with validation, so that any way of typing a date works.
bool kvDateEditFormatter::DoChar(CString& text, unsigned long& sel, bool overtype, unsigned int key,
                                 unsigned int, unsigned int) const
{
    if (key == VK_BACK) {
        kvBackspace(text, sel);
        return false;
    }
    if (!_IsAcceptedKey(key)) {
        if (IsPrintableKey(key))
            kvBeep(0);
        return false;
    }
    kvWidenForOvertype(text, sel, overtype);
    DeleteSelection(text, sel);
    if (text.GetLength() < MaxLength())
        kvInsertAtCaret(text, sel, static_cast<char>(key));
    else
        kvBeep(0);
    return false;
}

bool kvDateEditFormatter::Data(SYSTEMTIME& date, CString& text, kvEditFormatterError* err) const
{
    if (text.IsEmpty()) {
        date.wYear = date.wMonth = date.wDay = 0;
        return true;
    }
    if (IsMonthDayYear())
        return DataMonthDayYear(date, text, err);
    if (IsMonthDay())
        return DataMonthDay(date, text, err);
    if (IsMonthYear())
        return DataMonthYear(date, text, err);
    if (IsYear())
        return DataYear(date, text, err);
    return false;
}

bool kvDateEditFormatter::DataMonthDayYear(SYSTEMTIME& date, CString& text, kvEditFormatterError* err) const
{
    return IsMonthDayYear() && ParseAndRewrite(LayoutOf(m_Format), date, text, err);
}

bool kvDateEditFormatter::DataMonthDay(SYSTEMTIME& date, CString& text, kvEditFormatterError* err) const
{
    return IsMonthDay() && ParseAndRewrite(LayoutOf(m_Format), date, text, err);
}

bool kvDateEditFormatter::DataMonthYear(SYSTEMTIME& date, CString& text, kvEditFormatterError* err) const
{
    return IsMonthYear() && ParseAndRewrite(LayoutOf(m_Format), date, text, err);
}

bool kvDateEditFormatter::DataYear(SYSTEMTIME& date, CString& text, kvEditFormatterError* err) const
{
    return IsYear() && ParseAndRewrite(LayoutOf(m_Format), date, text, err);
}

bool kvDateEditFormatter::ConvertMonthDayYear(int& month, int& day, int& year, CString& text,
                                              kvEditFormatterError* err) const
{
    PartValues values{month, day, year};
    if (!IsMonthDayYear() || !SplitText(LayoutOf(m_Format), text, values, err))
        return false;
    month = values[Month];
    day = values[Day];
    year = values[Year];
    return true;
}

bool kvDateEditFormatter::ConvertMonthDay(int& month, int& day, CString& text, kvEditFormatterError* err) const
{
    PartValues values{month, day, 0};
    if (!IsMonthDay() || !SplitText(LayoutOf(m_Format), text, values, err))
        return false;
    month = values[Month];
    day = values[Day];
    return true;
}

bool kvDateEditFormatter::ConvertMonthYear(int& month, int& year, CString& text, kvEditFormatterError* err) const
{
    PartValues values{month, 0, year};
    if (!IsMonthYear() || !SplitText(LayoutOf(m_Format), text, values, err))
        return false;
    month = values[Month];
    year = values[Year];
    return true;
}

CString kvDateEditFormatter::FormatData(SYSTEMTIME date) const
{
    const Layout& layout = LayoutOf(m_Format);
    char shown[kLongestShown];
    return CString(shown, WriteParts(shown, layout, PartValues{date.wMonth, date.wDay, date.wYear},
                                     layout.shownDigits, nullptr));
}

bool kvDateEditFormatter::IsValid(CString& text, kvEditFormatterError* err) const
{
    SYSTEMTIME scratch{};
    return Data(scratch, text, err);
}

bool kvDateEditFormatter::RawData(CString& text, kvEditFormatterError* err) const
{
    SYSTEMTIME date{};
    if (!Data(date, text, err))
        return false;
    CString raw;
    kvAppendDecimal(raw, date.wMonth, 2);
    kvAppendDecimal(raw, date.wDay, 2);
    kvAppendDecimal(raw, date.wYear, 4);
    text = raw;
    return true;
}

bool kvDateEditFormatter::FormatRawData(CString& text) const
{
    if (text.GetLength() != 8)
        return false;
    SYSTEMTIME date{};
    date.wMonth = static_cast<WORD>(kvLeadingInt(text, 0, 2));
    date.wDay = static_cast<WORD>(kvLeadingInt(text, 2, 2));
    date.wYear = static_cast<WORD>(kvLeadingInt(text, 4, 4));
    text = FormatData(date);
    return true;
}
