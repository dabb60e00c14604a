// FamilyOption: one setting of a formatter family as it appears on the command
// line ("--integers 9", "--separators") and in --help.
#pragma once

#include <functional>
#include <string>

struct FamilyOption {
    std::string name;      // without the leading "--"
    std::string argument;  // placeholder shown in --help; empty for a switch
    std::string help;
    // Stores the setting; throws UsageError for a value it cannot take.
    std::function<void(const std::string& value)> apply;

    bool TakesArgument() const { return !argument.empty(); }
};
