// FamilyTable: the formatter families kvformat knows, by command-line name.
#pragma once

#include "FamilyCommand.h"

#include <memory>
#include <vector>

struct FamilyEntry {
    const char* name;     // first argument of kvformat
    const char* summary;  // one line in --help
    std::unique_ptr<FamilyCommand> (*make)();
};

const std::vector<const FamilyEntry*>& AllFamilies();
// Null when no family has that name.
const FamilyEntry* FindFamily(const std::string& name);
