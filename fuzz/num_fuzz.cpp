// Numeric fields: random digits, format bits, presets and limits, then a random
// run of edits; the numeric text helpers run on every text the edits produce.
#include "FieldFuzzer.h"

#include "formatting/kvNumEditFormatter.h"
#include "formatting/kvNumericText.h"

#include <cmath>
#include <iterator>

namespace {

using Num = kvNumEditFormatter;

// The format: any combination of bits, a preset, or any 32-bit value.
unsigned long FuzzFormat(FuzzInput& in)
{
    switch (in.Below(8)) {
    case 0: return 1;
    case 1: return 2;
    case 2: {
        unsigned long format = 0;
        for (int i = 0; i < 4; ++i)
            format = format << 8 | in.Byte();
        return format;
    }
    default: return static_cast<unsigned long>(in.Byte() & 0x3F) << 4;
    }
}

double FuzzLimit(FuzzInput& in)
{
    static const double kLimits[] = {0, 1, -1, 0.5, -0.5, 100, -100, 999.99, 1e9, -1e9, 0.004, 12345.678};
    return in.Below(4) ? kLimits[in.Below(std::size(kLimits))] : in.Double();
}

std::unique_ptr<Num> MakeFormatter(FuzzInput& in)
{
    const unsigned int integers = in.Below(16);
    const unsigned int decimals = in.Below(7);
    auto f = std::make_unique<Num>(integers, decimals, FuzzFormat(in));
    if (const int type = in.Below(3))
        f->SetLowerLimit(FuzzLimit(in), static_cast<Num::LowerLimitType>(type));
    if (const int type = in.Below(3))
        f->SetUpperLimit(FuzzLimit(in), static_cast<Num::UpperLimitType>(type));
    return f;
}

// The helpers never fail; they only have to survive any text.
void RunNumericHelpers(const Num& f, const CString& text)
{
    const unsigned long flags = (f.GetFormat() & Num::Separators ? kvNumericSeparators : 0) |
                                (f.GetFormat() & Num::ParenNegative ? kvNumericParenNegative : 0);
    for (const bool normalise : {false, true}) {
        CString copy(text);
        FormatNumeric(copy, normalise ? static_cast<int>(f.GetDecimals()) : -1, flags, normalise);
    }
    CString copy(text);
    ConvertParenNegative(copy);
    DoubleValue(text);
}

bool SameValue(double a, double b) { return a == b || (std::isnan(a) && std::isnan(b)); }

// The value a field shows is the value it stores, and validating again keeps it.
void CheckValue(const Num& f, const CString& accepted)
{
    CString text(accepted);
    double value = 0;
    Require(f.Data(value, text, nullptr), "Data of accepted text failed", accepted);
    Require(SameValue(value, DoubleValue(accepted)), "DoubleValue of the display differs from the stored value",
            accepted);
    CString again(accepted);
    f.IsValid(again, nullptr);
    Require(SameValue(DoubleValue(again), value), "validating again changed the value", accepted);
}

}  // namespace

Family FuzzFamily(FuzzInput& in)
{
    QuietStatus(in.Below(2) ? FuzzFormat(in) : 0);
    auto formatter = MakeFormatter(in);
    const Num& f = *formatter;
    FamilyChecks checks;
    checks.onText = [&f](const CString& text) { RunNumericHelpers(f, text); };
    checks.onAccepted = [&f](const CString& accepted) { CheckValue(f, accepted); };
    // Two inputs take more than one pass: with an implied point, which comes
    // after trailing zeros are stripped ("1234010" shows as "1234.010", then
    // "1234.01"); and pasted text with several points, which lose one a pass
    // ("1.." shows as "1.", then "1"). The value stays (CheckValue).
    checks.settlesAtOnce = [&f](const CString& input) {
        return !(f.GetFormat() & Num::ImpliedDecimal) && input.Find('.') == input.ReverseFind('.');
    };
    return {std::move(formatter), checks};
}
