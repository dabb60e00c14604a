// Time formatter under random editing, in the four formats and values outside them.
#include "FieldFuzzer.h"

#include "formatting/kvTimeEditFormatter.h"

namespace {

using Time = kvTimeEditFormatter;

bool IsKnown(Time::TimeFormat format)
{
    return format >= Time::ClockHourMinute && format <= Time::ElapsedHourMinuteSecond;
}

bool HasSeconds(Time::TimeFormat format)
{
    return format == Time::ClockHourMinuteSecond || format == Time::ElapsedHourMinuteSecond;
}

// Raw values are stored with six digits, which the hours-and-minutes formats
// write as four; formats outside the table parse nothing; and the empty field
// stores "00".
bool RawReadsBack(const Time& f, const CString& accepted)
{
    return HasSeconds(f.GetFormat()) && !accepted.IsEmpty();
}

// The hours-and-minutes formats expect the seconds back when reading.
void CheckRawRoundTrip(const Time& f, const CString& accepted)
{
    if (accepted.IsEmpty() || !IsKnown(f.GetFormat()))
        return;
    // The common checks have seen RawData of an accepted text succeed.
    kvEditFormatterError err;
    CString raw(accepted);
    f.RawData(raw, &err);
    FieldFuzzer::Require(raw.GetLength() == (HasSeconds(f.GetFormat()) ? 6 : 4), "the raw form is not HHMM or HHMMSS",
                         raw);
    CString shown = HasSeconds(f.GetFormat()) ? raw : raw + "00";
    FieldFuzzer::Require(f.FormatRawData(shown) && shown == accepted,
                         "the raw form shows otherwise than the accepted text", accepted);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    QuietStatus();
    FuzzInput in(data, size);
    const Time f(static_cast<Time::TimeFormat>(in.Below(6)));
    FamilyChecks checks;
    checks.rawReadsBack = [&f](const CString& accepted) { return RawReadsBack(f, accepted); };
    checks.onAccepted = [&f](const CString& accepted) { CheckRawRoundTrip(f, accepted); };
    FieldFuzzer(f, in, checks).Run();
    return 0;
}
