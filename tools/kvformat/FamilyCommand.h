// FamilyCommand: the settings of one formatter family, collected from the
// command line, and the formatter they describe. Each family lives in its own
// source file (StringCommand.cpp, DateCommand.cpp ...) and is listed in FamilyTable.cpp.
#pragma once

#include "FamilyOption.h"

#include "formatting/kvEditFormatter.h"

#include <memory>
#include <string>
#include <vector>

class FamilyCommand {
public:
    FamilyCommand() = default;
    FamilyCommand(const FamilyCommand&) = delete;
    FamilyCommand& operator=(const FamilyCommand&) = delete;
    virtual ~FamilyCommand() = default;

    // The options of the family; their actions store into this object, which
    // must outlive them.
    virtual std::vector<FamilyOption> Options() = 0;
    // The formatter with every setting applied; throws UsageError when the
    // settings contradict each other.
    virtual std::unique_ptr<kvEditFormatter> MakeFormatter() const = 0;
    // Why a raw value cannot be one this family stores, for raw forms of a
    // fixed shape whose refusal the formatter's validation cannot explain;
    // empty when the shape is right, or when validation explains every refusal.
    virtual std::string RawShapeMessage(const CString& /*raw*/) const { return {}; }
};
