// kvNumEditFormatter: numeric fields kept in display form at every keystroke,
// their raw form, rounding, limits and the padding on exit.
#include "formatting/kvNumEditFormatter.h"

#include "formatting/kvDecimalText.h"
#include "formatting/kvFieldEditing.h"
#include "formatting/kvMessages.h"
#include "formatting/kvNumericText.h"
#include "formatting/kvSelection.h"
#include "formatting/kvStatus.h"

#include <algorithm>
#include <climits>
#include <cstring>

namespace {

const char kTooManyDigits[] = "Too many digits. A maximum of %u digits is allowed.";
const char kTooManyDigitsSplit[] =
    "Too many digits. A maximum of %u digits before the decimal and %u digits after the decimal is allowed.";
const char kTooManyIntegers[] = "Too many digits before the decimal point. A maximum of %u digits is allowed.";
const char kTooManyDecimals[] = "Too many digits after the decimal point. A maximum of %u digits is allowed.";

constexpr unsigned long kPreset1 = 1;
constexpr unsigned long kPreset2 = 2;

bool IsDigitChar(char ch) { return kvIsAsciiDigit(static_cast<unsigned char>(ch)); }

char LastChar(const CString& text) { return text[text.GetLength() - 1]; }

// CString::Insert builds two temporaries for one character; a keystroke
// should not pay for them.
void InsertChar(CString& text, int pos, char ch)
{
    const int length = text.GetLength();
    pos = std::min(std::max(pos, 0), length);
    char* chars = text.GetBuffer(length + 1);
    std::memmove(chars + pos + 1, chars + pos, static_cast<size_t>(length - pos));
    chars[pos] = ch;
    text.ReleaseBuffer(length + 1);
}

// The host never reports a selection outside the text; should one come anyway,
// it is kept inside so that no primitive works beyond the end.
void UnpackWithin(const CString& text, unsigned long sel, int& start, int& end)
{
    start = std::min(kvSelStart(sel), text.GetLength());
    end = std::min(std::max(kvSelEnd(sel), start), text.GetLength());
}

// Exact for the exponents a field can have, without pulling in pow.
double PowerOfTen(long long exponent)
{
    double result = 1;
    double square = 10;
    for (unsigned long long n = static_cast<unsigned long long>(exponent < 0 ? -exponent : exponent); n != 0;
         n >>= 1) {
        if (n & 1)
            result *= square;
        square *= square;
    }
    return exponent < 0 ? 1 / result : result;
}

// What the first pass of the raw conversion sees on its way, so that no later
// step searches the text again.
struct KeptDigits {
    int length = 0;
    int point = -1;  // the first "." kept
    bool negative = false;
};

// Raw conversion, first pass: only digits and points survive, and zeros before
// the first of them. Any "(", ")" or "-" makes the number negative, but only
// before a NUL: the sign search stops there, as FindOneOf does.
KeptDigits KeepDigitsAndPoints(char* chars, int length)
{
    KeptDigits kept;
    bool afterNul = false;
    for (int i = 0; i < length; ++i) {
        const char ch = chars[i];
        if (IsDigitChar(ch)) {
            if (ch != '0' || kept.length > 0)
                chars[kept.length++] = ch;
        } else if (ch == '.') {
            if (kept.point < 0)
                kept.point = kept.length;
            chars[kept.length++] = ch;
        } else if (ch == '\0') {
            afterNul = true;
        } else if ((ch == '(' || ch == ')' || ch == '-') && !afterNul) {
            kept.negative = true;
        }
    }
    return kept;
}

// The length of a text that holds a point once its trailing zeros are gone,
// and then the point too when it is last and not kept.
int LengthWithoutTrailingZeros(const char* chars, int length, bool keepPoint)
{
    while (length > 0 && chars[length - 1] == '0')
        --length;
    if (!keepPoint && length > 0 && chars[length - 1] == '.')
        --length;
    return length;
}

// The index of the first point (or the length) of a raw form: an optional
// "-" in front, then digits and points only; -1 for any other text.
int RawFormPoint(const CString& text)
{
    const char* chars = text.GetString();
    const int length = text.GetLength();
    int point = length;
    for (int i = chars[0] == '-' ? 1 : 0; i < length; ++i) {
        if (IsDigitChar(chars[i]))
            continue;
        if (chars[i] != '.')
            return -1;
        point = std::min(point, i);
    }
    return point;
}

// A comma goes at every third position left of point where a digit stands
// before it. Inserted one at a time from the right, each comma would move the
// rest of the text again; here the text grows once and every character moves
// once, right to left. A comma at q moves start and end when they are at q or
// beyond, as AddStr does.
void InsertCommas(CString& text, int& start, int& end, int point)
{
    const int length = text.GetLength();
    int commas = 0;
    for (int q = point - 3; q >= 1; q -= 3)
        commas += IsDigitChar(text.GetString()[q - 1]) ? 1 : 0;
    if (commas == 0)
        return;

    char* chars = text.GetBuffer(length + commas);
    int from = length, to = length + commas;
    const int oldStart = start, oldEnd = end;
    for (int q = point - 3; to > from; q -= 3) {
        if (!IsDigitChar(chars[q - 1]))
            continue;
        to -= from - q;
        std::memmove(chars + to, chars + q, static_cast<size_t>(from - q));
        from = q;
        chars[--to] = ',';
        start += oldStart >= q ? 1 : 0;
        end += oldEnd >= q ? 1 : 0;
    }
    text.ReleaseBuffer(length + commas);
}

// The documented rule reads the cut text as a double, adds 10 to the power
// -decimals and prints the sum with `decimals` digits. Up to 15 digits in all,
// each of the three rounding steps errs by at most 2^-53 of its result, so the
// sum is off by less than 2^-52 (N+1) / 10^decimals for the N+1 the digits
// spell: under half a unit of the last place for N+1 <= 10^15 (0.23 units at
// most). The print is therefore exact, and the carry gives the same text; the
// overflow boundary (all nines) agrees too, which a test checks for every
// width. A second point inside the fraction would end the double's reading
// early, so that text keeps the double route, as do wider fields, where the
// double's 53 bits decide.
bool RoundsExactlyOnDigits(const char* cut, int point, unsigned int integers, unsigned int decimals)
{
    constexpr unsigned long long kExactDigits = 15;
    if (static_cast<unsigned long long>(integers) + decimals > kExactDigits)
        return false;
    const char* fraction = cut + point + 1;
    return std::find(fraction, fraction + decimals, '.') == fraction + decimals;
}

// One more in the last place of the cut text ("digits.digits", no leading
// zeros): nines become zeros up to the first other digit, which grows by one.
// Past the first digit the carry needs another integer digit, one more
// character, for which the cut surplus left room. False, and nothing changed,
// when the field has no integer digit to spare: the text then stays cut.
bool CarryUp(char* cut, int& length, int point, unsigned int integers)
{
    int carry = length - 1;
    while (carry >= 0 && (cut[carry] == '9' || cut[carry] == '.'))
        --carry;
    if (carry < 0 && static_cast<unsigned int>(point) >= integers)
        return false;
    std::replace(cut + carry + 1, cut + length, '9', '0');
    if (carry >= 0) {
        ++cut[carry];
        return true;
    }
    std::memmove(cut + 1, cut, static_cast<size_t>(length));
    cut[0] = '1';
    ++length;
    return true;
}

// Puts the sign back and reports the characters from..to of the unsigned text.
bool RefuseDigits(CString& text, bool negative, int from, int to, const char* format, unsigned int maximum,
                  kvEditFormatterError* err)
{
    const int shift = negative ? 1 : 0;
    if (negative)
        InsertChar(text, 0, '-');
    if (err) {
        err->message.Format(format, maximum);
        err->selection = kvPackSel(from + shift, to + shift);
    }
    return false;
}

bool RefuseLimit(const char* format, const CString& limit, kvEditFormatterError* err)
{
    if (err)
        err->message.Format(format, limit.GetString());
    return false;
}

}  // namespace

kvNumEditFormatter::kvNumEditFormatter(unsigned int integers, unsigned int decimals, unsigned long format)
    : m_nIntegers(integers), m_nDecimals(decimals), m_nFormat(0)
{
    SetFormat(format);
}

// An answer of 1 or 2 would name a preset again; the built-in value stays then.
void kvNumEditFormatter::SetFormat(unsigned long format)
{
    if (format == kPreset1 || format == kPreset2) {
        const LRESULT answer = kvSendStatus(kvStatusQuery, static_cast<LPARAM>(format));
        const unsigned long builtIn = format == kPreset1 ? RoundDecimals
                                                          : RoundDecimals | PadDecimals | ShowZero | Separators;
        const unsigned long answered = answer > 0 ? static_cast<unsigned long>(answer) : 0;
        const bool usable = answered != 0 && answered != kPreset1 && answered != kPreset2;
        format = usable ? answered : builtIn;
    }
    m_nFormat = format;
}

void kvNumEditFormatter::SetLowerLimit(double limit, LowerLimitType type)
{
    m_dLowerLimit = limit;
    m_LowerLimitType = type;
}

void kvNumEditFormatter::GetLowerLimit(LowerLimitType& type, double& limit) const
{
    type = m_LowerLimitType;
    limit = m_dLowerLimit;
}

void kvNumEditFormatter::ClearLowerLimit() { m_LowerLimitType = NoLowerLimit; }

void kvNumEditFormatter::SetUpperLimit(double limit, UpperLimitType type)
{
    m_dUpperLimit = limit;
    m_UpperLimitType = type;
}

void kvNumEditFormatter::GetUpperLimit(UpperLimitType& type, double& limit) const
{
    type = m_UpperLimitType;
    limit = m_dUpperLimit;
}

void kvNumEditFormatter::ClearUpperLimit() { m_UpperLimitType = NoUpperLimit; }

CString kvNumEditFormatter::FormatValue(double value) const
{
    CString text;
    text.Format("%-.*f", static_cast<int>(std::min<unsigned int>(m_nDecimals, INT_MAX)), value);
    return text;
}

// ---- Text primitives ----

void kvNumEditFormatter::RemoveChar(CString& text, int& start, int& end, int pos) const
{
    if (pos < 0 || pos >= text.GetLength())
        return;
    text.Delete(pos);
    if (start > pos)
        --start;
    if (end > pos)
        --end;
}

void kvNumEditFormatter::AddStr(CString& text, int& start, int& end, int pos, char ch) const
{
    if (pos < 0)
        return;
    InsertChar(text, pos, ch);
    if (start >= pos)
        ++start;
    if (end >= pos)
        ++end;
}

// One pass instead of a RemoveChar per comma: a comma moves start or end back
// exactly when it stands before them, as RemoveChar would.
void kvNumEditFormatter::StripCommas(CString& text, int& start, int& end) const
{
    const int length = text.GetLength();
    char* chars = text.GetBuffer();
    int kept = 0;
    int commasBeforeStart = 0, commasBeforeEnd = 0;
    for (int i = 0; i < length; ++i) {
        if (chars[i] != ',') {
            chars[kept++] = chars[i];
            continue;
        }
        if (i < start)
            ++commasBeforeStart;
        if (i < end)
            ++commasBeforeEnd;
    }
    text.ReleaseBuffer(kept);
    start -= commasBeforeStart;
    end -= commasBeforeEnd;
}

void kvNumEditFormatter::AddCommas(CString& text, int& start, int& end) const
{
    if (!(m_nFormat & Separators))
        return;
    int point = text.Find('.');
    if (point < 0)
        point = text.GetLength() - (text.Find(')') >= 0 ? 1 : 0);
    InsertCommas(text, start, end, point);
}

void kvNumEditFormatter::SetPositive(CString& text, int& start, int& end) const
{
    RemoveChar(text, start, end, text.Find('-'));
    RemoveChar(text, start, end, text.Find('('));
    RemoveChar(text, start, end, text.Find(')'));
}

void kvNumEditFormatter::SetNegative(CString& text, int& start, int& end) const
{
    SetPositive(text, start, end);
    if (m_nFormat & ParenNegative) {
        AddStr(text, start, end, 0, '(');
        text += ')';
    } else {
        AddStr(text, start, end, 0, '-');
    }
}

void kvNumEditFormatter::RemoveMismatchedParens(CString& text, int& start, int& end) const
{
    const int open = text.Find('(');
    const int close = text.Find(')');
    if ((open < 0) != (close < 0))
        RemoveChar(text, start, end, std::max(open, close));
}

// In overtype a comma goes together with the digit after it.
void kvNumEditFormatter::RemoveSelectedText(bool overtype, unsigned int key, int& start, int& end,
                                            CString& text) const
{
    if (overtype && start == end && end < text.GetLength() && key != VK_BACK)
        end = std::min(end + (text[start] == ',' ? 2 : 1), text.GetLength());
    DeleteSelection(text, start, end);
    RemoveMismatchedParens(text, start, end);
}

void kvNumEditFormatter::StripLeadingZeros(CString& text) const
{
    const int first = text[0] == '-' ? 1 : 0;
    int zeros = 0;
    while (text[first + zeros] == '0')
        ++zeros;
    text.Delete(first, zeros);
}

void kvNumEditFormatter::StripTrailingZeros(CString& text) const
{
    if (text.Find('.') < 0)
        return;
    const int length = LengthWithoutTrailingZeros(text.GetString(), text.GetLength(), m_nFormat & ImpliedDecimal);
    text.Delete(length, text.GetLength() - length);
    // A lone "-" goes too; like a comparison with "-", this reads up to a NUL.
    if (text[0] == '-' && text[1] == '\0')
        text.Empty();
}

// ---- Keystrokes ----

bool kvNumEditFormatter::DoChar(CString& text, unsigned long& sel, bool overtype, unsigned int key,
                                unsigned int, unsigned int) const
{
    int start, end;
    UnpackWithin(text, sel, start, end);
    CString edited(text);
    if (!_ApplyChar(edited, start, end, overtype, key)) {
        kvBeep(0);
        return false;
    }
    text = std::move(edited);
    sel = kvPackSel(start, end);
    return false;
}

// False when the key is refused.
bool kvNumEditFormatter::_ApplyChar(CString& text, int& start, int& end, bool overtype, unsigned int key) const
{
    switch (key) {
    case VK_BACK:
        if (start == end && start > 0)
            start = std::max(end - (text[end - 1] == ',' ? 2 : 1), 0);
        _DeleteAndRebuild(text, start, end);
        return true;
    case '.':
        return _TypePoint(text, start, end, overtype);
    case '-':
    case '(':
    case '+':
        _TypeSign(text, start, end, overtype, key);
        return true;
    case ')':
        return true;
    default:
        return key >= '0' && key <= '9' && _TypeDigit(text, start, end, overtype, key);
    }
}

// Digits never go before the sign nor after the closing parenthesis. The split
// between integer and fraction digits is left to validation.
bool kvNumEditFormatter::_TypeDigit(CString& text, int& start, int& end, bool overtype, unsigned int key) const
{
    RemoveSelectedText(overtype, key, start, end, text);
    if (start == 0 && (text[0] == '-' || text[0] == '('))
        start = end = 1;
    if (start == text.GetLength() && LastChar(text) == ')')
        start = end = start - 1;
    AddStr(text, start, end, start, static_cast<char>(key));
    StripCommas(text, start, end);
    if (_TooManyDigits(text)) {
        _ReportTooManyDigits();
        return false;
    }
    AddCommas(text, start, end);
    return true;
}

// The point moves to the caret.
bool kvNumEditFormatter::_TypePoint(CString& text, int& start, int& end, bool overtype) const
{
    if (m_nDecimals == 0)
        return false;
    RemoveSelectedText(overtype, '.', start, end, text);
    RemoveChar(text, start, end, text.Find('.'));
    AddStr(text, start, end, start, '.');
    StripCommas(text, start, end);
    AddCommas(text, start, end);
    return true;
}

// The sign is rebuilt, not toggled: "-" on a negative number keeps it negative.
void kvNumEditFormatter::_TypeSign(CString& text, int& start, int& end, bool overtype, unsigned int key) const
{
    const bool negative = key != '+';
    if (negative && _NegativeForbidden())
        return;
    RemoveSelectedText(overtype, key, start, end, text);
    StripCommas(text, start, end);
    if (negative)
        SetNegative(text, start, end);
    else
        SetPositive(text, start, end);
    AddCommas(text, start, end);
}

bool kvNumEditFormatter::_NegativeForbidden() const
{
    return m_LowerLimitType != NoLowerLimit && m_dLowerLimit >= 0;
}

bool kvNumEditFormatter::_TooManyDigits(const CString& text) const
{
    const char* chars = text.GetString();
    const long long digits = std::count_if(chars, chars + text.GetLength(), IsDigitChar);
    return digits > static_cast<long long>(m_nIntegers) + m_nDecimals;
}

void kvNumEditFormatter::_ReportTooManyDigits() const
{
    CString message;
    if (m_nDecimals == 0)
        message.Format(kTooManyDigits, m_nIntegers);
    else
        message.Format(kTooManyDigitsSplit, m_nIntegers, m_nDecimals);
    kvShowStatusMessage(message);
}

void kvNumEditFormatter::_DeleteAndRebuild(CString& text, int& start, int& end) const
{
    DeleteSelection(text, start, end);
    RemoveMismatchedParens(text, start, end);
    StripCommas(text, start, end);
    AddCommas(text, start, end);
}

// Delete takes a comma together with the digit after it; other keys are the edit's.
bool kvNumEditFormatter::DoKeyDown(CString& text, unsigned long& sel, bool, unsigned int key, unsigned int,
                                   unsigned int) const
{
    if (key != VK_DELETE)
        return true;
    int start, end;
    UnpackWithin(text, sel, start, end);
    if (start == end && start < text.GetLength())
        end = std::min(start + (text[start] == ',' ? 2 : 1), text.GetLength());
    _DeleteAndRebuild(text, start, end);
    sel = kvPackSel(start, end);
    return false;
}

void kvNumEditFormatter::DoEnterField(CString&, unsigned long&) const {}

void kvNumEditFormatter::DoExitField(CString& text, unsigned long&) const
{
    if (text.IsEmpty() && (m_nFormat & ShowZero))
        text = '0';
    if ((m_nFormat & PadDecimals) && m_nDecimals > 0) {
        _PadDecimals(text);
        if (!(m_nFormat & ShowZero) && text.FindOneOf("123456789") < 0)
            text.Empty();
    }
    if (LastChar(text) == '.')
        text.Delete(text.GetLength() - 1);
}

void kvNumEditFormatter::_PadDecimals(CString& text) const
{
    const bool closed = text.Find(')') >= 0;
    const int point = text.Find('.');
    const long long fraction = point < 0 ? 0 : text.GetLength() - point - 1 - (closed ? 1 : 0);
    if (fraction >= m_nDecimals)
        return;
    if (closed)
        text.Delete(text.GetLength() - 1);
    if (point < 0)
        text += '.';
    text += CString('0', static_cast<int>(m_nDecimals - fraction));
    if (closed)
        text += ')';
}

// ---- Conversion and validation ----

bool kvNumEditFormatter::RawData(CString& text, kvEditFormatterError* err) const
{
    const KeptDigits kept = KeepDigitsAndPoints(text.GetBuffer(), text.GetLength());
    const bool negative = kept.negative;
    int dot = kept.point;
    int length = kept.length;
    if (dot >= 0) {
        length = LengthWithoutTrailingZeros(text.GetString(), length, m_nFormat & ImpliedDecimal);
        if (dot == length)  // the point was last and went as well
            dot = -1;
    }
    text.ReleaseBuffer(length);
    if ((m_nFormat & ImpliedDecimal) && !text.IsEmpty() && dot < 0)
        dot = _InsertImpliedPoint(text);
    const int point = dot >= 0 ? dot : text.GetLength();
    if (static_cast<unsigned int>(point) > m_nIntegers)
        return RefuseDigits(text, negative, 0, point, m_nDecimals > 0 ? kTooManyIntegers : kTooManyDigits,
                            m_nIntegers, err);
    const long long fraction = static_cast<long long>(text.GetLength()) - point - 1;
    if (fraction > m_nDecimals) {
        if (!(m_nFormat & RoundDecimals))
            return RefuseDigits(text, negative, point + 1, text.GetLength(), kTooManyDecimals, m_nDecimals, err);
        _RoundDecimals(text, point);
    }
    if (negative && !text.IsEmpty())
        InsertChar(text, 0, '-');
    return true;
}

// The last `decimals` digits become the fraction; returns the index of the point.
int kvNumEditFormatter::_InsertImpliedPoint(CString& text) const
{
    const long long missing = static_cast<long long>(m_nDecimals) - text.GetLength();
    if (missing <= 0) {
        const int point = text.GetLength() - static_cast<int>(m_nDecimals);
        InsertChar(text, point, '.');
        return point;
    }
    text.Insert(0, CString('0', static_cast<int>(missing)));
    InsertChar(text, 0, '.');
    return 0;
}

// Half up, away from zero, on the unsigned text, whose sign goes in front
// afterwards: the value moves the same way on either side of zero. The text
// has no leading zeros, and cutting it adds none.
void kvNumEditFormatter::_RoundDecimals(CString& text, int point) const
{
    const int cut = point + 1 + static_cast<int>(m_nDecimals);
    char* chars = text.GetBuffer();
    const bool up = chars[cut] >= '5';
    if (up && !RoundsExactlyOnDigits(chars, point, m_nIntegers, m_nDecimals)) {
        text.ReleaseBuffer(cut);
        _StepUpAsDouble(text);
        StripTrailingZeros(text);
        return;
    }
    int length = cut;
    if (up && CarryUp(chars, length, point, m_nIntegers) && m_nDecimals == 0)
        --length;  // a whole number is printed without a point
    else
        length = LengthWithoutTrailingZeros(chars, length, m_nFormat & ImpliedDecimal);
    text.ReleaseBuffer(length);
}

// The documented route, kept where only it gives the documented result.
void kvNumEditFormatter::_StepUpAsDouble(CString& text) const
{
    const double value = DoubleValue(text) + PowerOfTen(-static_cast<long long>(m_nDecimals));
    if (value < PowerOfTen(m_nIntegers))
        text = FormatValue(value);
    StripLeadingZeros(text);
}

bool kvNumEditFormatter::IsValid(CString& text, kvEditFormatterError* err) const
{
    if (!RawData(text, err)) {
        // The error selection follows its digits into the display form.
        int start = err ? kvSelStart(err->selection) : 0;
        int end = err ? kvSelEnd(err->selection) : 0;
        _ToDisplayForm(text, start, end);
        if (err)
            err->selection = kvPackSel(start, end);
        return false;
    }
    // Without limits the value is never read.
    const bool within = !_HasLimits() || _WithinLimits(text, err);
    int start = 0, end = 0;
    _ToDisplayForm(text, start, end);
    return within;
}

// SetNegative and AddCommas. A raw form (what RawData gives, unless a derived
// formatter makes it give something else) is done in one pass: its only sign
// is the "-" in front, which the display sign replaces (a selection at 0
// moves behind it), and its integer digits run to the first point or the end.
void kvNumEditFormatter::_ToDisplayForm(CString& text, int& start, int& end) const
{
    const int point = RawFormPoint(text);
    if (point < 0) {
        if (text[0] == '-')
            SetNegative(text, start, end);
        AddCommas(text, start, end);
        return;
    }
    if (text[0] == '-') {
        if (m_nFormat & ParenNegative) {
            text.SetAt(0, '(');
            text += ')';
        }
        start = std::max(start, 1);
        end = std::max(end, 1);
    }
    if (m_nFormat & Separators)
        InsertCommas(text, start, end, point);
}

// The upper limit is tested first.
bool kvNumEditFormatter::_WithinLimits(const CString& raw, kvEditFormatterError* err) const
{
    const double value = DoubleValue(raw);
    if (m_UpperLimitType == UpperExclusive && value >= m_dUpperLimit)
        return RefuseLimit("Value must be less than %s.", FormatValue(m_dUpperLimit), err);
    if (m_UpperLimitType != NoUpperLimit && m_UpperLimitType != UpperExclusive && value > m_dUpperLimit)
        return RefuseLimit("Value must be less than or equal to %s.", FormatValue(m_dUpperLimit), err);
    if (m_LowerLimitType == LowerExclusive && value <= m_dLowerLimit)
        return RefuseLimit("Value must be greater than %s.", FormatValue(m_dLowerLimit), err);
    if (m_LowerLimitType != NoLowerLimit && m_LowerLimitType != LowerExclusive && value < m_dLowerLimit)
        return RefuseLimit("Value must be greater than or equal to %s.", FormatValue(m_dLowerLimit), err);
    return true;
}

// Raw text gets a point so that an implied decimal point does not shift it.
bool kvNumEditFormatter::FormatRawData(CString& text) const
{
    if (text.Find('.') < 0)
        text += '.';
    return IsValid(text, nullptr);
}

CString kvNumEditFormatter::FormatData(double value) const
{
    CString text;
    text.Format("%f", value);
    IsValid(text, nullptr);
    unsigned long sel = 0;
    DoExitField(text, sel);
    return text;
}

CString kvNumEditFormatter::FormatData(int value) const { return FormatData(static_cast<double>(value)); }

bool kvNumEditFormatter::Data(double& value, CString& text, kvEditFormatterError* err) const
{
    if (!RawData(text, err))
        return false;
    value = DoubleValue(text);
    return true;
}

bool kvNumEditFormatter::Data(int& value, CString& text, kvEditFormatterError* err) const
{
    if (!RawData(text, err))
        return false;
    value = kvLeadingInt(text, 0, text.GetLength());
    return true;
}
