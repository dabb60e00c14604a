// FamilyCommand: the settings of one formatter family, collected from the
// command line, and the formatter they describe. Each family lives in its own
// source file (StringCommand.cpp, DateCommand.cpp ...) and is listed in FamilyTable.cpp.
#pragma once

#include "FamilyOption.h"

#include "formatting/kvEditFormatter.h"

#include <memory>
#include <string>
#include <vector>

// Selections hold 16-bit positions: no field text is longer.
constexpr unsigned int kLongestFieldText = 65535;

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
    // True for a key the field takes even when it leaves text and caret as they
    // were (a sign the text already shows); any other such key was refused.
    virtual bool TakesWithoutChange(unsigned int /*key*/) const { return false; }
};
