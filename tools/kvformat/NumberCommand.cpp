// The "number" family: kvNumEditFormatter.
#include "FamilyTable.h"
#include "OptionValue.h"
#include "UsageError.h"

#include "formatting/kvNumEditFormatter.h"

#include <optional>

namespace {

// Wider fields than this are no longer exact in a double.
constexpr unsigned int kMostDigits = 30;

struct FormatBit {
    const char* name;
    unsigned long bit;
    const char* help;
};

const FormatBit kFormatBits[] = {
    {"implied-decimal", kvNumEditFormatter::ImpliedDecimal, "without a point the last digits are the decimals (0x10)"},
    {"separators", kvNumEditFormatter::Separators, "thousands separators (0x20)"},
    {"show-zero", kvNumEditFormatter::ShowZero, "an empty or zero field shows 0 (0x40)"},
    {"pad-decimals", kvNumEditFormatter::PadDecimals, "pad the decimals with zeros on exit (0x80)"},
    {"paren-negative", kvNumEditFormatter::ParenNegative, "negatives in parentheses (0x100)"},
    {"round", kvNumEditFormatter::RoundDecimals, "round surplus decimals half up instead of refusing (0x200)"},
};

// One limit: its value and, when given, its kind (exclusive or inclusive).
struct Limit {
    explicit Limit(const char* sideName) : side(sideName) {}

    std::vector<FamilyOption> Options()
    {
        return {
            {side, "VALUE", side + " limit (default none)", [this](const std::string& v) { value = ReadNumber(side, v); }},
            {side + "-kind", "exclusive|inclusive", "how the " + side + " limit compares (default inclusive)",
             [this](const std::string& v) { kind = 1 + ReadChoice(side + "-kind", v, {"exclusive", "inclusive"}); }},
        };
    }

    // 0 for no limit.
    int Type() const
    {
        if (!value && kind)
            throw UsageError("--" + side + "-kind needs --" + side);
        return value ? kind.value_or(2) : 0;
    }

    const std::string side;  // "lower" or "upper"
    std::optional<double> value;
    std::optional<int> kind;  // 1 exclusive, 2 inclusive
};

class NumberCommand : public FamilyCommand {
public:
    std::vector<FamilyOption> Options() override
    {
        std::vector<FamilyOption> options = {
            {"integers", "N", "digits before the decimal point (default 9)",
             [this](const std::string& v) { m_integers = ReadCount("integers", v, kMostDigits); }},
            {"decimals", "N", "digits after the decimal point, 0 for whole numbers (default 2)",
             [this](const std::string& v) { m_decimals = ReadCount("decimals", v, kMostDigits); }},
            {"format", "N", "all format bits as one value, 1 and 2 the presets (default 0); the switches add to it",
             [this](const std::string& v) { m_format = ReadBits("format", v); }},
        };
        for (const FormatBit& bit : kFormatBits)
            options.push_back({bit.name, "", bit.help, [this, &bit](const std::string&) { m_bits |= bit.bit; }});
        for (const auto& limitOptions : {m_lower.Options(), m_upper.Options()})
            options.insert(options.end(), limitOptions.begin(), limitOptions.end());
        return options;
    }

    std::unique_ptr<kvEditFormatter> MakeFormatter() const override
    {
        auto formatter = std::make_unique<kvNumEditFormatter>(m_integers, m_decimals, m_format);
        // After the preset is resolved, so that a switch adds to the preset's bits.
        if (m_bits)
            formatter->SetFormat(formatter->GetFormat() | m_bits);
        if (const int type = m_lower.Type())
            formatter->SetLowerLimit(*m_lower.value, static_cast<kvNumEditFormatter::LowerLimitType>(type));
        if (const int type = m_upper.Type())
            formatter->SetUpperLimit(*m_upper.value, static_cast<kvNumEditFormatter::UpperLimitType>(type));
        return formatter;
    }

    // "+" on a positive number and ")" change nothing, yet the field takes them.
    bool TakesWithoutChange(unsigned int key) const override { return key == '+' || key == ')'; }

private:
    unsigned int m_integers = 9;
    unsigned int m_decimals = 2;
    unsigned long m_format = 0;
    unsigned long m_bits = 0;
    Limit m_lower{"lower"};
    Limit m_upper{"upper"};
};

std::unique_ptr<FamilyCommand> MakeNumberCommand() { return std::make_unique<NumberCommand>(); }

}  // namespace

extern const FamilyEntry kNumberFamily = {"number", "numbers with fixed digits, separators, signs, rounding and limits",
                                          MakeNumberCommand};
