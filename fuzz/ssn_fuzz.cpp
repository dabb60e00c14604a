// Identification-number formatter under random editing.
#include "FieldFuzzer.h"

#include "formatting/kvSocSecEditFormatter.h"

Family FuzzFamily(FuzzInput&)
{
    QuietStatus();
    auto formatter = std::make_unique<kvSocSecEditFormatter>();
    const kvSocSecEditFormatter& f = *formatter;
    FamilyChecks checks;
    // Without a record a short number is padded with zeros and accepted: deliberate.
    checks.sameVerdictWithoutRecord = [](const CString& text) {
        const int characters = text.GetLength() - CString(text).Remove('-');
        return characters == 0 || characters >= 9;
    };
    checks.onAccepted = [&f](const CString& accepted) {
        kvEditFormatterError err;
        CString raw(accepted);
        f.RawData(raw, &err);  // the common checks have seen it succeed
        Require(raw.GetLength() == (accepted.IsEmpty() ? 0 : 9), "the raw form is neither nine characters nor empty", raw);
        Require(raw.Find('-') < 0, "the raw form has a hyphen", raw);
        CString shown(raw);
        Require(f.FormatRawData(shown) && shown == accepted, "the raw form shows otherwise than the accepted text",
                accepted);
    };
    return {std::move(formatter), checks};
}
