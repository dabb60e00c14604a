// Identification-number formatter under random editing.
#include "FieldFuzzer.h"

#include "formatting/kvSocSecEditFormatter.h"

namespace {

constexpr int kDataLength = 9;

int CountBesidesHyphens(const CString& text)
{
    int count = 0;
    for (int i = 0; i < text.GetLength(); ++i)
        count += text[i] != '-' ? 1 : 0;
    return count;
}

// Without a record a short number is padded with zeros and accepted: deliberate.
bool SameVerdictWithoutRecord(const CString& text)
{
    const int count = CountBesidesHyphens(text);
    return count == 0 || count >= kDataLength;
}

void CheckRawRoundTrip(const kvSocSecEditFormatter& f, const CString& accepted)
{
    // The common checks have seen RawData of an accepted text succeed.
    kvEditFormatterError err;
    CString raw(accepted);
    f.RawData(raw, &err);
    FieldFuzzer::Require(raw.GetLength() == (accepted.IsEmpty() ? 0 : kDataLength),
                         "the raw form is neither nine characters nor empty", raw);
    FieldFuzzer::Require(raw.Find('-') < 0, "the raw form has a hyphen", raw);
    CString shown(raw);
    FieldFuzzer::Require(f.FormatRawData(shown) && shown == accepted,
                         "the raw form shows otherwise than the accepted text", accepted);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    QuietStatus();
    FuzzInput in(data, size);
    const kvSocSecEditFormatter f;
    FamilyChecks checks;
    checks.sameVerdictWithoutRecord = SameVerdictWithoutRecord;
    checks.onAccepted = [&f](const CString& accepted) { CheckRawRoundTrip(f, accepted); };
    FieldFuzzer(f, in, checks).Run();
    return 0;
}
