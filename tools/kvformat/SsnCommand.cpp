// The "ssn" family: kvSocSecEditFormatter, which has no settings.
#include "FamilyTable.h"

#include "formatting/kvSocSecEditFormatter.h"

namespace {

class SsnCommand : public FamilyCommand {
public:
    std::vector<FamilyOption> Options() override { return {}; }

    std::unique_ptr<kvEditFormatter> MakeFormatter() const override
    {
        return std::make_unique<kvSocSecEditFormatter>();
    }
};

std::unique_ptr<FamilyCommand> MakeSsnCommand() { return std::make_unique<SsnCommand>(); }

}  // namespace

extern const FamilyEntry kSsnFamily = {"ssn", "nine-character identification numbers shown as 3-2-4", MakeSsnCommand};
