#include "HelpText.h"

#include <iomanip>
#include <ostream>
#include <string>
#include <vector>

namespace {

const char kUsage[] =
    "Usage: kvformat FAMILY [OPTION...] [VALUE...]\n"
    "       kvformat [FAMILY] --help\n"
    "\n"
    "Applies the rules of a formatted field to each VALUE, or to each line of\n"
    "standard input when no VALUE is given. Options and values may be mixed;\n"
    "after \"--\" every argument is a value.\n";

const char kModes[] =
    "\n"
    "Modes:\n"
    "  (default)     paste VALUE into an empty field, a character at a time as\n"
    "                the field pastes, then validate it as on leaving the field;\n"
    "                print its display form and the raw form stored from it. A\n"
    "                character the field refuses makes VALUE invalid\n"
    "  --lenient     validate VALUE as it is, without pasting it first: characters\n"
    "                the field would refuse may be dropped by validation instead\n"
    "  --from-raw    VALUE is a raw form as a field stores it (a date MMDDYYYY,\n"
    "                a time HHMMSS): print the display form and raw form\n"
    "  --type        VALUE is a sequence of keys typed into an empty field\n";

const char kOutput[] =
    "\n"
    "Output, one line per value, fields separated by tabs:\n"
    "  valid value        display<TAB>raw\n"
    "  invalid value      error<TAB>message<TAB>start..end<TAB>text\n"
    "                     (the selection marks the faulty characters of text,\n"
    "                     the field's text as validation left it; for a\n"
    "                     refused character, or a VALUE longer than 65535\n"
    "                     characters, text is VALUE itself)\n"
    "  --type             text<TAB>start..end\n"
    "Inside a field \\, tab, CR and LF are written \\\\ \\t \\r \\n, other control\n"
    "bytes \\xHH. Status messages go to standard error as status<TAB>message,\n"
    "refused keys that beep as a line \"beep\".\n";

const char kKeys[] =
    "\n"
    "Keys of --type: each byte is typed as itself, except\n"
    "  \\b backspace     \\d Delete       \\i Insert (toggles overtype)\n"
    "  \\< caret left    \\> caret right  \\h Home   \\e End   \\s select all\n"
    "  \\\\ backslash     \\xHH the byte with hex code HH\n";

const char kStatus[] =
    "\n"
    "Exit status: 0 all values valid, 1 some value invalid, 2 usage error.\n";

void WriteFamilies(std::ostream& out)
{
    out << "\nFamilies:\n";
    for (const FamilyEntry* family : AllFamilies())
        out << "  " << std::left << std::setw(12) << family->name << family->summary << '\n';
    out << "Run kvformat FAMILY --help for its options.\n";
}

// Further lines of a help text (the values an option takes) go under the option.
std::string IndentFollowingLines(const std::string& help)
{
    std::string indented;
    for (const char ch : help)
        indented += ch == '\n' ? std::string("\n      ") : std::string(1, ch);
    return indented;
}

void WriteOptions(std::ostream& out, const FamilyEntry& family)
{
    out << "\nOptions of " << family.name << " (" << family.summary << "):\n";
    const auto command = family.make();
    const std::vector<FamilyOption> options = command->Options();
    if (options.empty())
        out << "  none\n";
    for (const FamilyOption& option : options) {
        const std::string synopsis =
            "--" + option.name + (option.TakesArgument() ? " " + option.argument : std::string());
        out << "  " << std::left << std::setw(32) << synopsis << ' ' << IndentFollowingLines(option.help) << '\n';
    }
}

}  // namespace

void WriteHelp(std::ostream& out, const FamilyEntry* family)
{
    out << kUsage;
    if (family)
        WriteOptions(out, *family);
    else
        WriteFamilies(out);
    out << kModes << kOutput << kKeys << kStatus;
}
