// kvformat: checks values from elsewhere with exactly the rules of the fields.
#include "CommandLine.h"
#include "HelpText.h"
#include "UsageError.h"
#include "ValueRunner.h"

#include <iostream>

namespace {

// True when the value passed.
bool RunValue(ValueRunner& runner, ValueMode mode, const std::string& value)
{
    const CString text(value.data(), static_cast<int>(value.size()));
    switch (mode) {
    case ValueMode::Lenient: return runner.Validate(text);
    case ValueMode::FromRaw: return runner.FromRaw(text);
    case ValueMode::Type: runner.Type(KeyScript(value)); return true;
    case ValueMode::Paste: break;
    }
    return runner.Paste(text);
}

int RunValues(const CommandLine& commandLine, ResultWriter& writer)
{
    ValueRunner runner(commandLine.Command(), writer);
    bool allPassed = true;
    const auto run = [&](const std::string& value) {
        allPassed = RunValue(runner, commandLine.Mode(), value) && allPassed;
    };
    if (!commandLine.Values().empty()) {
        for (const std::string& value : commandLine.Values())
            run(value);
    } else {
        for (std::string line; std::getline(std::cin, line);) {
            if (!line.empty() && line.back() == '\r')
                line.pop_back();
            run(line);
        }
    }
    return allPassed ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv)
{
    ResultWriter writer(std::cout, std::cerr);
    try {
        const CommandLine commandLine(argc, argv);
        if (commandLine.WantsHelp()) {
            WriteHelp(std::cout, commandLine.Family());
            return 0;
        }
        return RunValues(commandLine, writer);
    } catch (const UsageError& error) {
        std::cout.flush();
        std::cerr << "kvformat: " << error.what() << "\nRun 'kvformat --help' for usage.\n";
        return 2;
    }
}
