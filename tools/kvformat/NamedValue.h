// NamedValue: one value of an enumeration that an option takes by its name
// ("--format MonthDayYearSlash") or by its number ("--format 4").
#pragma once

#include <string>
#include <vector>

struct NamedValue {
    const char* name;     // as the enumerator is spelled
    int value;
    const char* example;  // what a field of that kind shows, for --help
};

// The value named, or numbered, by text; throws UsageError naming the option.
int ReadNamedValue(const std::string& option, const std::string& text, const std::vector<NamedValue>& values);
// One line per value, "number  name  example", for an option's help.
std::string ListNamedValues(const std::vector<NamedValue>& values);
