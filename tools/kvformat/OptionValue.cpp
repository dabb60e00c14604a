#include "OptionValue.h"

#include "UsageError.h"

#include <cctype>
#include <cerrno>
#include <cmath>
#include <cstdlib>

namespace {

[[noreturn]] void Refuse(const std::string& option, const std::string& value, const std::string& expected)
{
    throw UsageError("--" + option + " takes " + expected + ", not '" + value + "'");
}

// strtoul accepts blanks and a sign in front; an option value may not.
bool StartsWithDigit(const std::string& value)
{
    return !value.empty() && value[0] >= '0' && value[0] <= '9';
}

bool ReadWhole(const std::string& text, int base, unsigned long long& result)
{
    if (!StartsWithDigit(text))
        return false;
    errno = 0;
    char* end = nullptr;
    result = std::strtoull(text.c_str(), &end, base);
    return errno == 0 && *end == '\0';
}

}  // namespace

unsigned int ReadCount(const std::string& option, const std::string& value, unsigned int max)
{
    unsigned long long count = 0;
    if (!ReadWhole(value, 10, count) || count > max)
        Refuse(option, value, "a whole number from 0 to " + std::to_string(max));
    return static_cast<unsigned int>(count);
}

unsigned long ReadBits(const std::string& option, const std::string& value)
{
    const bool hex = value.size() > 2 && value[0] == '0' && (value[1] == 'x' || value[1] == 'X');
    unsigned long long bits = 0;
    if (!(hex ? ReadWhole(value.substr(2), 16, bits) : ReadWhole(value, 10, bits)) || bits > 0xFFFFFFFFull)
        Refuse(option, value, "a 32-bit value, decimal or 0x hexadecimal");
    return static_cast<unsigned long>(bits);
}

double ReadNumber(const std::string& option, const std::string& value)
{
    errno = 0;
    char* end = nullptr;
    const double number = std::strtod(value.c_str(), &end);
    const bool blankFirst = !value.empty() && std::isspace(static_cast<unsigned char>(value[0]));
    if (value.empty() || blankFirst || *end != '\0' || errno != 0 || !std::isfinite(number))
        Refuse(option, value, "a decimal number");
    return number;
}

int ReadChoice(const std::string& option, const std::string& value, std::initializer_list<const char*> choices)
{
    std::string names;
    int index = 0;
    for (const char* choice : choices) {
        if (value == choice)
            return index;
        names += (index++ ? "|" : "") + std::string(choice);
    }
    Refuse(option, value, names);
}
