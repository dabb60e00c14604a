// Time formatter under random editing, in the four formats and values outside them.
#include "FieldFuzzer.h"

#include "formatting/kvTimeEditFormatter.h"

using Time = kvTimeEditFormatter;

Family FuzzFamily(FuzzInput& in)
{
    QuietStatus();
    auto formatter = std::make_unique<Time>(static_cast<Time::TimeFormat>(in.Below(6)));
    const Time& f = *formatter;
    const Time::TimeFormat format = f.GetFormat();
    const bool known = format >= Time::ClockHourMinute && format <= Time::ElapsedHourMinuteSecond;
    const bool seconds = format == Time::ClockHourMinuteSecond || format == Time::ElapsedHourMinuteSecond;
    FamilyChecks checks;
    // Raw values are stored with six digits, which the hours-and-minutes formats
    // write as four; formats outside the table parse nothing; and the empty
    // field stores "00".
    checks.rawReadsBack = [seconds](const CString& accepted) { return seconds && !accepted.IsEmpty(); };
    // The hours-and-minutes formats expect the seconds back when reading.
    checks.onAccepted = [&f, known, seconds](const CString& accepted) {
        if (accepted.IsEmpty() || !known)
            return;
        kvEditFormatterError err;
        CString raw(accepted);
        f.RawData(raw, &err);  // the common checks have seen it succeed
        Require(raw.GetLength() == (seconds ? 6 : 4), "the raw form is not HHMM or HHMMSS", raw);
        CString shown = seconds ? raw : raw + "00";
        Require(f.FormatRawData(shown) && shown == accepted, "the raw form shows otherwise than the accepted text",
                accepted);
    };
    return {std::move(formatter), checks};
}
