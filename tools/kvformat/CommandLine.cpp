#include "CommandLine.h"

#include "UsageError.h"

#include <algorithm>

CommandLine::CommandLine(int argc, const char* const* argv)
{
    const std::vector<std::string> arguments(argv + std::min(argc, 1), argv + argc);
    if (arguments.empty())
        throw UsageError("no formatter family given");
    if (arguments[0] == "--help") {
        m_help = true;
        return;
    }
    ReadFamily(arguments[0]);

    bool optionsEnded = false;
    for (auto it = arguments.begin() + 1; it != arguments.end(); ++it) {
        if (optionsEnded || it->compare(0, 2, "--") != 0)
            m_values.push_back(*it);
        else if (*it == "--")
            optionsEnded = true;
        else
            ReadOption(*it, it, arguments.end());
    }
}

void CommandLine::ReadFamily(const std::string& name)
{
    m_family = FindFamily(name);
    if (!m_family)
        throw UsageError("unknown formatter family '" + name + "'");
    m_command = m_family->make();
    m_options = m_command->Options();
}

void CommandLine::SetMode(ValueMode mode, const std::string& option)
{
    if (m_mode != ValueMode::Paste && m_mode != mode)
        throw UsageError("--" + m_modeOption + " and --" + option + " exclude each other");
    m_mode = mode;
    m_modeOption = option;
}

bool CommandLine::ReadCommonOption(const std::string& name)
{
    static const struct {
        const char* option;
        ValueMode mode;
    } kModes[] = {{"lenient", ValueMode::Lenient}, {"from-raw", ValueMode::FromRaw}, {"type", ValueMode::Type}};

    if (name == "help") {
        m_help = true;
        return true;
    }
    for (const auto& mode : kModes) {
        if (name == mode.option) {
            SetMode(mode.mode, name);
            return true;
        }
    }
    return false;
}

// "--name value" or "--name=value"; `next` is on the option and moves past its value.
void CommandLine::ReadOption(const std::string& argument, std::vector<std::string>::const_iterator& next,
                             std::vector<std::string>::const_iterator last)
{
    const size_t equals = argument.find('=');
    const std::string name = argument.substr(2, equals == std::string::npos ? std::string::npos : equals - 2);
    const bool inlineValue = equals != std::string::npos;
    if (!inlineValue && ReadCommonOption(name))
        return;

    const auto option = std::find_if(m_options.begin(), m_options.end(),
                                     [&](const FamilyOption& o) { return o.name == name; });
    if (option == m_options.end())
        throw UsageError("unknown option --" + name + " for " + m_family->name);
    if (!option->TakesArgument()) {
        if (inlineValue)
            throw UsageError("--" + name + " takes no value");
        option->apply({});
        return;
    }
    if (inlineValue) {
        option->apply(argument.substr(equals + 1));
        return;
    }
    if (++next == last)
        throw UsageError("--" + name + " needs a value (" + option->argument + ")");
    option->apply(*next);
}
