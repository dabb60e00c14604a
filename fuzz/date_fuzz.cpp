// Date formatter under random editing: any format value (the requests and
// values of no kind included), any answer to the date-order query.
#include "FieldFuzzer.h"

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

// The empty field stores "00000000", which shows as a date of zeros.
bool RawReadsBack(const CString& accepted) { return !accepted.IsEmpty(); }

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
    // The common checks have seen RawData of an accepted text succeed.
    kvEditFormatterError err;
    CString raw(accepted);
    f.RawData(raw, &err);
    FieldFuzzer::Require(raw.GetLength() == 8 && IsAllDigits(raw), "the raw form is not MMDDYYYY", raw);
    CString shown(raw);
    f.FormatRawData(shown);
    if (ShowsAsValidated(f.GetFormat()))
        FieldFuzzer::Require(shown == accepted, "the raw form shows otherwise than the accepted text", accepted);
    CString rawAgain(shown);
    FieldFuzzer::Require(f.RawData(rawAgain, nullptr) && rawAgain == raw, "raw, shown and raw again differ", shown);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzInput in(data, size);
    // Every format, the requests, and values beyond both ends of the table.
    const auto format = static_cast<Date::DateFormat>(static_cast<int>(in.Below(22)) - 2);
    QuietStatus(in.Below(8));
    const Date f(format);
    FamilyChecks checks;
    checks.staysAccepted = [&f](const CString& accepted) { return StaysAccepted(f, accepted); };
    checks.rawReadsBack = RawReadsBack;
    checks.onAccepted = [&f](const CString& accepted) { CheckRawRoundTrip(f, accepted); };
    FieldFuzzer(f, in, checks).Run();
    return 0;
}
