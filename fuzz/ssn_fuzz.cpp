// Identification-number formatter under random editing.
#include "FormatterFuzzSession.h"

#include "formatting/kvSocSecEditFormatter.h"

namespace {

void CheckRawRoundTrip(const kvSocSecEditFormatter& f, const CString& accepted)
{
    kvEditFormatterError err;
    CString raw(accepted);
    Require(f.RawData(raw, &err), "an accepted number has a raw form");
    Require(raw.GetLength() == (accepted.IsEmpty() ? 0 : 9), "the raw form is nine characters or empty");
    Require(raw.Find('-') < 0, "the raw form has no hyphen");
    CString shown(raw);
    Require(f.FormatRawData(shown) && shown == accepted, "the raw form shows as the accepted text");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    FuzzInput in(data, size);
    const kvSocSecEditFormatter f;
    SessionChecks checks;
    // Without a record a short number is padded and accepted: deliberate.
    checks.sameVerdictWithoutRecord = false;
    checks.checkRawRoundTrip = [&f](const CString& accepted) { CheckRawRoundTrip(f, accepted); };
    RunEditingSession(f, in, checks);
    return 0;
}
