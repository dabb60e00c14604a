// String fields: random length limits and case rule, then a random session.
#include "FieldFuzzer.h"

#include "formatting/kvStrEditFormatter.h"

#include <cctype>

namespace {

// Validation trims and applies the case rule: nothing else changes.
void CheckNormalised(const kvStrEditFormatter& f, const CString& accepted)
{
    const unsigned int length = static_cast<unsigned int>(accepted.GetLength());
    FieldFuzzer::Require(f.GetMaxLen() == 0 || length <= f.GetMaxLen(), "accepted text too long", accepted);
    FieldFuzzer::Require(length >= f.GetMinLen() || f.GetMinLen() == 0, "accepted text too short", accepted);
    for (int i = 0; i < accepted.GetLength(); ++i) {
        const unsigned char ch = static_cast<unsigned char>(accepted[i]);
        if (f.GetFormat() & kvStrEditFormatter::UpperCase)
            FieldFuzzer::Require(!std::islower(ch), "lower case left in an upper-case field", accepted);
        else if (f.GetFormat() & kvStrEditFormatter::LowerCase)
            FieldFuzzer::Require(!std::isupper(ch), "upper case left in a lower-case field", accepted);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    QuietStatus();
    FuzzInput in(data, size);
    const unsigned int maxLen = in.Below(2) ? in.Below(40) : 0;
    const unsigned int minLen = in.Below(2) ? in.Below(10) : 0;
    const kvStrEditFormatter f(maxLen, minLen, static_cast<kvStrEditFormatter::AlphaFormat>(in.Below(4)));
    FamilyChecks checks;
    checks.onAccepted = [&f](const CString& accepted) { CheckNormalised(f, accepted); };
    FieldFuzzer(f, in, checks).Run();
    return 0;
}
