// The "string" family: kvStrEditFormatter.
#include "FamilyTable.h"
#include "OptionValue.h"

#include "formatting/kvStrEditFormatter.h"

namespace {

class StringCommand : public FamilyCommand {
public:
    std::vector<FamilyOption> Options() override
    {
        return {
            {"max", "N", "maximum length, 0 for none (default 0)",
             [this](const std::string& v) { m_maxLen = ReadCount("max", v, kLongestFieldText); }},
            {"min", "N", "minimum length, 0 for none (default 0)",
             [this](const std::string& v) { m_minLen = ReadCount("min", v, kLongestFieldText); }},
            {"case", "any|upper|lower", "case rule (default any)",
             [this](const std::string& v) {
                 m_case = static_cast<kvStrEditFormatter::AlphaFormat>(ReadChoice("case", v, {"any", "upper", "lower"}));
             }},
        };
    }

    std::unique_ptr<kvEditFormatter> MakeFormatter() const override
    {
        return std::make_unique<kvStrEditFormatter>(m_maxLen, m_minLen, m_case);
    }

private:
    unsigned int m_maxLen = 0;
    unsigned int m_minLen = 0;
    kvStrEditFormatter::AlphaFormat m_case = kvStrEditFormatter::AnyCase;
};

std::unique_ptr<FamilyCommand> MakeStringCommand() { return std::make_unique<StringCommand>(); }

}  // namespace

extern const FamilyEntry kStringFamily = {"string", "free text with length limits and a case rule", MakeStringCommand};
