// Date formatter under random editing: any format value (the requests and
// values of no kind included), any answer to the date-order query.
#include "FieldFuzzer.h"

#include "formatting/kvDateEditFormatter.h"

using Date = kvDateEditFormatter;

namespace {

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
    f.RawData(raw, &err);  // the common checks have seen it succeed
    Require(raw.GetLength() == 8 && raw.SpanIncluding("0123456789") == raw, "the raw form is not MMDDYYYY", raw);
    CString shown(raw);
    f.FormatRawData(shown);
    if (ShowsAsValidated(f.GetFormat()))
        Require(shown == accepted, "the raw form shows otherwise than the accepted text", accepted);
    CString rawAgain(shown);
    Require(f.RawData(rawAgain, nullptr) && rawAgain == raw, "raw, shown and raw again differ", shown);
}

}  // namespace

Family FuzzFamily(FuzzInput& in)
{
    // Every format, the requests, and values beyond both ends of the table.
    const auto format = static_cast<Date::DateFormat>(static_cast<int>(in.Below(22)) - 2);
    QuietStatus(in.Below(8));
    auto formatter = std::make_unique<Date>(format);
    const Date& f = *formatter;
    FamilyChecks checks;
    // The year-only kind accepts "0150" as the year 150, whose text "150" is
    // then too short to be accepted again: the one accepted text that does not survive.
    checks.staysAccepted = [&f](const CString& accepted) {
        return f.GetFormat() != Date::YearOnly || accepted.IsEmpty() || accepted.GetLength() >= 4;
    };
    // The empty field stores "00000000", which shows as a date of zeros.
    checks.rawReadsBack = [](const CString& accepted) { return !accepted.IsEmpty(); };
    checks.onAccepted = [&f](const CString& accepted) { CheckRawRoundTrip(f, accepted); };
    return {std::move(formatter), checks};
}
