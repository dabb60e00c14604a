// CommandLine: kvformat's arguments, read once:
//   kvformat FAMILY [OPTION...] [VALUE...]      values from standard input when none
//   kvformat [FAMILY] --help
// Options and values may be mixed; "--" makes everything after it a value.
#pragma once

#include "FamilyTable.h"

#include <memory>
#include <string>
#include <vector>

// Paste (the default) puts a value into an empty field as a paste does before
// validating it; Lenient validates the value as it is.
enum class ValueMode { Paste, Lenient, FromRaw, Type };

class CommandLine {
public:
    // Throws UsageError.
    CommandLine(int argc, const char* const* argv);

    bool WantsHelp() const { return m_help; }
    const FamilyEntry* Family() const { return m_family; }  // null for kvformat --help
    FamilyCommand& Command() const { return *m_command; }
    ValueMode Mode() const { return m_mode; }
    const std::vector<std::string>& Values() const { return m_values; }  // empty: read standard input

private:
    void ReadFamily(const std::string& name);
    void ReadOption(const std::string& argument, std::vector<std::string>::const_iterator& next,
                    std::vector<std::string>::const_iterator last);
    void SetMode(ValueMode mode, const std::string& option);
    bool ReadCommonOption(const std::string& name);

    bool m_help = false;
    const FamilyEntry* m_family = nullptr;
    std::unique_ptr<FamilyCommand> m_command;
    std::vector<FamilyOption> m_options;
    ValueMode m_mode = ValueMode::Paste;
    std::string m_modeOption;  // the option that chose the mode
    std::vector<std::string> m_values;
};
