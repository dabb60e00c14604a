// kvformat: checks values from elsewhere with exactly the rules of the fields.
#include "CommandLine.h"
#include "HelpText.h"
#include "UsageError.h"
#include "ValueRunner.h"

#include "formatting/kvMessages.h"
#include "formatting/kvStatus.h"
#include "formatting/kvWinAMCtrlValidateInfo.h"

#include <iostream>

namespace {

// The formatter's messages and beeps reach us as they would reach a main
// window; queries (numeric presets) get no answer, so built-in defaults hold.
void ListenToFormatter(ResultWriter& writer)
{
    kvSetStatusReceiver([&writer](WPARAM kind, LPARAM info) -> LRESULT {
        if (kind == kvStatusShow && info)
            writer.Status(reinterpret_cast<const kvWinAMCtrlValidateInfo*>(info)->message);
        return 0;
    });
    kvSetBeepHook([&writer](unsigned int) { writer.Beep(); });
}

// True when the value passed.
bool RunValue(ValueRunner& runner, ValueMode mode, const std::string& value)
{
    const CString text(value.data(), static_cast<int>(value.size()));
    switch (mode) {
    case ValueMode::FromRaw: return runner.FromRaw(text);
    case ValueMode::Type: runner.Type(KeyScript(value)); return true;
    case ValueMode::Validate: break;
    }
    return runner.Validate(text);
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
        ListenToFormatter(writer);
        return RunValues(commandLine, writer);
    } catch (const UsageError& error) {
        std::cout.flush();
        std::cerr << "kvformat: " << error.what() << "\nRun 'kvformat --help' for usage.\n";
        return 2;
    }
}
