// Numeric text helpers: the canonical display form of a typed number and its value.
#include "formatting/kvNumericText.h"

#include "formatting/kvFieldEditing.h"

#include <algorithm>
#include <clocale>
#include <cstdlib>
#if !defined(_WIN32)
#include <locale.h>
#endif

namespace {

bool IsNonZeroDigit(char ch) { return ch >= '1' && ch <= '9'; }

// atof as the C locale reads it: the decimal point is "." whatever locale the
// application has set.
double ReadDouble(const char* psz)
{
#if defined(_WIN32)
    static const _locale_t cLocale = _create_locale(LC_NUMERIC, "C");
    return _strtod_l(psz, nullptr, cLocale);
#else
    static const locale_t cLocale = newlocale(LC_NUMERIC_MASK, "C", nullptr);
    return strtod_l(psz, nullptr, cLocale);
#endif
}

// Zeros before the first significant digit or the point go; signs, parentheses
// and blanks are stepped over.
void RemoveLeadingZeros(CString& text)
{
    for (int i = 0; i < text.GetLength();) {
        const char ch = text[i];
        if (ch == '0')
            text.Delete(i);
        else if (IsNonZeroDigit(ch) || ch == '.')
            return;
        else
            ++i;
    }
}

// Zeros after the last significant digit go; the point itself stays.
void RemoveTrailingZeros(CString& text)
{
    for (int i = text.GetLength() - 1; i >= 0; --i) {
        const char ch = text[i];
        if (ch == '0')
            text.Delete(i);
        else if (IsNonZeroDigit(ch) || ch == '.')
            return;
    }
}

int PointOrLength(const CString& text)
{
    const int point = text.Find('.');
    return point >= 0 ? point : text.GetLength();
}

void InsertSeparators(CString& text)
{
    for (int p = PointOrLength(text) - 3; p >= 1; p -= 3)
        text.Insert(p, ',');
}

// A point with no digit before it gets its leading zero back; nothing at all
// reads as zero.
void RestoreZero(CString& text)
{
    const int point = text.Find('.');
    if (point < 0) {
        if (text.IsEmpty())
            text = '0';
        return;
    }
    for (int i = 0; i < point; ++i)
        if (kvIsAsciiDigit(static_cast<unsigned char>(text[i])))
            return;
    text.Insert(point, '0');
}

// Surplus decimals are cut, not rounded, and missing ones are not padded.
void TruncateDecimals(CString& text, int decimals)
{
    const long long length = text.GetLength();
    const long long surplus = length - PointOrLength(text) - 1 - decimals;
    if (surplus > 0)
        text.Delete(static_cast<int>(std::max(0LL, length - surplus)), text.GetLength());
}

}  // namespace

void ConvertParenNegative(CString& text)
{
    const int open = text.Find('(');
    if (open < 0)
        return;
    text.Delete(open);
    const int close = text.Find(')');
    if (close >= 0)
        text.Delete(close);
    text.Insert(0, '-');
}

double DoubleValue(const CString& text)
{
    CString plain(text);
    plain.Remove(',');
    ConvertParenNegative(plain);
    return ReadDouble(plain);
}

void FormatNumeric(CString& text, int decimals, unsigned long flags, bool normalise)
{
    text.Remove(',');
    RemoveLeadingZeros(text);
    if (normalise && text.Find('.') >= 0)
        RemoveTrailingZeros(text);
    ConvertParenNegative(text);

    const int minus = text.Find('-');
    const bool negative = minus >= 0;
    if (negative)
        text.Delete(minus);

    if (flags & kvNumericSeparators)
        InsertSeparators(text);
    if (normalise && text.GetLength() > 0 && text[text.GetLength() - 1] == '.')
        text.Delete(text.GetLength() - 1);
    RestoreZero(text);
    if (normalise && decimals != -1)
        TruncateDecimals(text, decimals);

    if (!negative)
        return;
    if (flags & kvNumericParenNegative) {
        text.Insert(0, '(');
        text += ')';
    } else {
        text.Insert(0, '-');
    }
}
