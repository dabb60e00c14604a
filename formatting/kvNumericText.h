// Numeric text helpers: canonical display form of typed numbers, and their value.
// They never fail: characters that are not digits, separators, point or sign
// are carried along unchanged.
#pragma once

#include "afx/CString.h"
#include "library/kvWinExport.h"

// Flag bits of FormatNumeric.
constexpr unsigned long kvNumericSeparators = 1;       // "," every three integer digits
constexpr unsigned long kvNumericParenNegative = 2;    // "(1.5)" instead of "-1.5"

// Rewrites text in place; decimals -1 does not limit the fraction.
KVWIN_API void FormatNumeric(CString& text, int decimals, unsigned long flags, bool normalise);
// The value of text, separators and accounting parentheses understood.
KVWIN_API double DoubleValue(const CString& text);
// Turns the first "(" ... ")" into a leading "-".
KVWIN_API void ConvertParenNegative(CString& text);
