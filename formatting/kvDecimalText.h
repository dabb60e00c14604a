// Decimal numbers inside a field's text, read as atoi reads them and written as
// "%d" and "%02d" write them. The date and time fields split and rewrite their
// text on every validation; working in place spares a copy per part and a
// printf per number, and the readers and writers are inline because they run
// once per part.
#pragma once

#include "afx/CString.h"

#include <algorithm>
#include <cctype>
#include <climits>

// atoi of the characters from first up to last: leading blanks, one sign,
// then digits. A value beyond int saturates instead of overflowing.
inline int kvLeadingInt(const char* first, const char* last) noexcept
{
    const auto isDigit = [](char ch) { return ch >= '0' && ch <= '9'; };
    const char* p = first;
    while (p < last && !isDigit(*p) && std::isspace(static_cast<unsigned char>(*p)))
        ++p;
    const bool negative = p < last && *p == '-';
    if (p < last && (*p == '-' || *p == '+'))
        ++p;

    // Digits past the range of int change nothing: the result saturates.
    long long magnitude = 0;
    for (; p < last && isDigit(*p); ++p) {
        if (magnitude <= INT_MAX)
            magnitude = magnitude * 10 + (*p - '0');
    }
    magnitude = std::min(magnitude, negative ? -static_cast<long long>(INT_MIN) : INT_MAX);
    return static_cast<int>(negative ? -magnitude : magnitude);
}

// atoi of text.Mid(first, count), the range clamped as Mid clamps it.
inline int kvLeadingInt(const CString& text, int first, int count) noexcept
{
    const int length = text.GetLength();
    first = first < 0 ? 0 : first > length ? length : first;
    count = count < 0 ? 0 : count > length - first ? length - first : count;
    return kvLeadingInt(text.GetString() + first, text.GetString() + first + count);
}

// The most characters kvWriteDecimal writes for a minimum width up to 11.
constexpr int kvDecimalMaxLength = 11;

// Writes value as printf's "%0*d" with the given minimum width (a sign counts
// toward the width) and returns the number of characters; no terminating NUL.
// Two characters are always written to out, even for a one-character result.
inline int kvWriteDecimal(char* out, int value, int minDigits = 1) noexcept
{
    // Months, days, minutes, seconds: most numbers a field writes.
    if (value >= 0 && value < 100 && minDigits <= 2) {
        const bool twoDigits = value >= 10 || minDigits == 2;
        out[0] = static_cast<char>('0' + (twoDigits ? value / 10 : value));
        out[1] = static_cast<char>('0' + value % 10);
        return twoDigits ? 2 : 1;
    }
    unsigned int magnitude = value < 0 ? 0u - static_cast<unsigned int>(value) : static_cast<unsigned int>(value);
    int digits = 1;
    for (unsigned int rest = magnitude; rest >= 10; rest /= 10)
        ++digits;
    const int sign = value < 0 ? 1 : 0;
    const int length = sign + std::max(minDigits - sign, digits);

    char* p = out + length;
    do {
        *--p = static_cast<char>('0' + magnitude % 10);
        magnitude /= 10;
    } while (magnitude != 0);
    while (p > out + sign)
        *--p = '0';
    if (sign)
        *out = '-';
    return length;
}

// Appends what kvWriteDecimal writes.
void kvAppendDecimal(CString& text, int value, int minDigits = 1);
