// Time formatter under random editing, in the four formats and values outside them.
#include "FormatterFuzzSession.h"

#include "formatting/kvTimeEditFormatter.h"

namespace {

using Time = kvTimeEditFormatter;

bool HasSeconds(Time::TimeFormat format)
{
    return format == Time::ClockHourMinuteSecond || format == Time::ElapsedHourMinuteSecond;
}

// Raw values are stored with six digits; the hours-and-minutes formats write
// four and expect the seconds back when reading.
void CheckRawRoundTrip(const Time& f, const CString& accepted)
{
    if (accepted.IsEmpty() || f.GetFormat() < Time::ClockHourMinute || f.GetFormat() > Time::ElapsedHourMinuteSecond)
        return;
    kvEditFormatterError err;
    CString raw(accepted);
    Require(f.RawData(raw, &err), "an accepted time has a raw form");
    Require(raw.GetLength() == (HasSeconds(f.GetFormat()) ? 6 : 4), "the raw form is HHMM or HHMMSS");
    CString shown = HasSeconds(f.GetFormat()) ? raw : raw + "00";
    Require(f.FormatRawData(shown) && shown == accepted, "the raw form shows as the accepted text");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    FuzzInput in(data, size);
    const Time f(static_cast<Time::TimeFormat>(in.Below(6)));
    SessionChecks checks;
    checks.checkRawRoundTrip = [&f](const CString& accepted) { CheckRawRoundTrip(f, accepted); };
    RunEditingSession(f, in, checks);
    return 0;
}
