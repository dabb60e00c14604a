// String fields: random length limits and case rule; validation trims and
// applies the case rule, nothing else changes.
#include "FieldFuzzer.h"

#include "formatting/kvStrEditFormatter.h"

#include <cctype>

Family FuzzFamily(FuzzInput& in)
{
    QuietStatus();
    const unsigned int maxLen = in.Below(2) ? in.Below(40) : 0;
    const unsigned int minLen = in.Below(2) ? in.Below(10) : 0;
    auto formatter = std::make_unique<kvStrEditFormatter>(maxLen, minLen, kvStrEditFormatter::AlphaFormat(in.Below(4)));
    const kvStrEditFormatter& f = *formatter;
    FamilyChecks checks;
    checks.onAccepted = [&f](const CString& accepted) {
        const unsigned int length = accepted.GetLength();
        Require(f.GetMaxLen() == 0 || length <= f.GetMaxLen(), "accepted text too long", accepted);
        Require(length >= f.GetMinLen() || f.GetMinLen() == 0, "accepted text too short", accepted);
        for (int i = 0; i < accepted.GetLength(); ++i) {
            const unsigned char ch = accepted[i];
            if (f.GetFormat() & kvStrEditFormatter::UpperCase)
                Require(!std::islower(ch), "lower case left in an upper-case field", accepted);
            else if (f.GetFormat() & kvStrEditFormatter::LowerCase)
                Require(!std::isupper(ch), "upper case left in a lower-case field", accepted);
        }
    };
    return {std::move(formatter), checks};
}
