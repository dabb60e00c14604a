// Date formatter under random editing: any format value (the requests and
// values of no kind included), any answer to the date-order query.
#include "FieldFuzzer.h"
#include "FormatterFuzzSession.h"

#include "formatting/kvDateEditFormatter.h"

namespace {

using Date = kvDateEditFormatter;

bool IsAllDigits(const CString& text)
{
    for (int i = 0; i < text.GetLength(); ++i)
        if (text[i] < '0' || text[i] > '9')
            return false;
    return true;
}

// The year-only kind accepts "0150" as the year 150, whose text "150" is then
// too short to be accepted again: the one accepted text that does not survive.
bool StaysAccepted(const Date& f, const CString& accepted)
{
    return f.GetFormat() != Date::YearOnly || accepted.IsEmpty() || accepted.GetLength() >= 4;
}

// Month-day and month-year texts pad differently from FormatData; every other
// kind shows a date the way validation rewrites it.
bool ShowsAsValidated(Date::DateFormat format)
{
    const bool monthDayYear = format >= Date::MonthDayYearDash && format <= Date::YearMonthDaySlash;
    return monthDayYear || format == Date::YearMonthDash || format == Date::YearMonthSlash || format == Date::YearOnly;
}

void CheckRawRoundTrip(const Date& f, const CString& accepted)
{
    if (accepted.IsEmpty())
        return;
    kvEditFormatterError err;
    CString raw(accepted);
    Require(f.RawData(raw, &err), "an accepted date has a raw form");
    Require(raw.GetLength() == 8 && IsAllDigits(raw), "the raw form is MMDDYYYY");
    CString shown(raw);
    Require(f.FormatRawData(shown), "a raw form converts back");
    if (ShowsAsValidated(f.GetFormat()))
        Require(shown == accepted, "the raw form shows as the accepted text");
    CString rawAgain(shown);
    Require(f.RawData(rawAgain, nullptr) && rawAgain == raw, "raw, shown and raw again is the same date");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    FuzzInput in(data, size);
    // Every format, the requests, and values beyond both ends of the table.
    const auto format = static_cast<Date::DateFormat>(static_cast<int>(in.Below(22)) - 2);
    QuietStatus(in.Below(8));
    const Date f(format);

    SessionChecks checks;
    checks.staysAccepted = [&f](const CString& accepted) { return StaysAccepted(f, accepted); };
    checks.checkRawRoundTrip = [&f](const CString& accepted) { CheckRawRoundTrip(f, accepted); };
    RunEditingSession(f, in, checks);
    return 0;
}
