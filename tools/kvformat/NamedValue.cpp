#include "NamedValue.h"

#include "UsageError.h"

#include <algorithm>
#include <iomanip>
#include <sstream>

int ReadNamedValue(const std::string& option, const std::string& text, const std::vector<NamedValue>& values)
{
    for (const NamedValue& named : values) {
        if (text == named.name || text == std::to_string(named.value))
            return named.value;
    }
    throw UsageError("--" + option + " takes a name or number that --help lists, not '" + text + "'");
}

std::string ListNamedValues(const std::vector<NamedValue>& values)
{
    size_t nameWidth = 0;
    for (const NamedValue& named : values)
        nameWidth = std::max(nameWidth, std::string(named.name).size());
    std::ostringstream list;
    for (const NamedValue& named : values) {
        list << '\n' << std::right << std::setw(2) << named.value << "  " << std::left
             << std::setw(static_cast<int>(nameWidth) + 2) << named.name << named.example;
    }
    return list.str();
}
