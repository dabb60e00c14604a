// kvTimeEditFormatter: splitting by length or at ":", rewriting and the range
// checks; typing bounded by the digit count.
#include "formatting/kvTimeEditFormatter.h"

#include "formatting/kvDecimalText.h"
#include "formatting/kvFieldEditing.h"
#include "formatting/kvStatus.h"

#include <array>

namespace {

struct TimeParts {
    int hours = 0;
    int minutes = 0;
    int seconds = 0;
};

// Widths of hours, minutes and seconds of a text of digits of each length (the
// index); none where a text of that length cannot be split.
using SplitTable = std::array<std::array<int, 3>, 7>;
constexpr SplitTable kSplitHourMinute = {{{}, {}, {}, {1, 2, 0}, {2, 2, 0}}};
constexpr SplitTable kSplitHourMinuteSecond = {{{}, {}, {}, {1, 2, 0}, {2, 2, 0}, {1, 2, 2}, {2, 2, 2}}};

bool SplitByLength(const SplitTable& table, const CString& text, TimeParts& time, kvEditFormatterError* err)
{
    const int length = text.GetLength();
    if (length >= static_cast<int>(table.size()) || table[length][0] == 0)
        return kvRefuse(err, "Invalid time.", 0, length);
    const std::array<int, 3>& widths = table[length];
    time.hours = kvLeadingInt(text, 0, widths[0]);
    time.minutes = kvLeadingInt(text, widths[0], widths[1]);
    time.seconds = kvLeadingInt(text, widths[0] + widths[1], widths[2]);
    return true;
}

// Each number runs up to the next ":", as atoi reads it. A second ":" ends a
// text without seconds there.
void SplitAtColons(bool hasSeconds, CString& text, TimeParts& time)
{
    const int first = text.Find(':');
    const int second = text.Find(':', first + 1);
    time.hours = kvLeadingInt(text, 0, first);
    time.minutes = kvLeadingInt(text, first + 1, text.GetLength());
    if (second < 0)
        return;
    if (hasSeconds)
        time.seconds = kvLeadingInt(text, second + 1, text.GetLength());
    else
        text = text.Left(second);
}

}  // namespace

kvTimeEditFormatter::kvTimeEditFormatter(TimeFormat format) : m_Format(format) {}

bool kvTimeEditFormatter::_IsKnownFormat() const
{
    return m_Format >= ClockHourMinute && m_Format <= ElapsedHourMinuteSecond;
}

bool kvTimeEditFormatter::_HasSeconds() const
{
    return m_Format == ClockHourMinuteSecond || m_Format == ElapsedHourMinuteSecond;
}

int kvTimeEditFormatter::_MaxHour() const
{
    return m_Format == ClockHourMinute || m_Format == ClockHourMinuteSecond ? 23 : 99;
}

void kvTimeEditFormatter::DoEnterField(CString&, unsigned long&) const {}

void kvTimeEditFormatter::DoExitField(CString&, unsigned long&) const {}

bool kvTimeEditFormatter::DoKeyDown(CString&, unsigned long&, bool, unsigned int, unsigned int, unsigned int) const
{
    return true;
}

bool kvTimeEditFormatter::IsFull(const CString& text) const
{
    if (!_IsKnownFormat())
        return false;
    int digits = 0;
    for (int i = 0; i < text.GetLength(); ++i)
        digits += kvIsAsciiDigit(static_cast<unsigned char>(text[i])) ? 1 : 0;
    return digits >= (_HasSeconds() ? 6 : 4);
}

bool kvTimeEditFormatter::CanAddSeparator(const CString& text) const
{
    if (!_IsKnownFormat())
        return true;
    const int first = text.Find(':');
    return _HasSeconds() ? first < 0 || text.Find(':', first + 1) < 0 : first < 0;
}

void kvTimeEditFormatter::StripBadChars(CString& text) const
{
    CString kept;
    for (int i = 0; i < text.GetLength(); ++i) {
        const char ch = text[i];
        if (kvIsAsciiDigit(static_cast<unsigned char>(ch)) || ch == ':')
            kept += ch;
    }
    text = kept;
}

// The number of ":" is only checked by validation: typing is bounded by the
// digits alone, and a full field still takes the ":" it lacks.
bool kvTimeEditFormatter::DoChar(CString& text, unsigned long& sel, bool overtype, unsigned int key,
                                 unsigned int, unsigned int) const
{
    if (key == VK_BACK) {
        kvBackspace(text, sel);
        return false;
    }
    if (!kvIsAsciiDigit(key) && key != ':') {
        kvBeep(0);
        return false;
    }
    CString edited(text);
    unsigned long editedSel = sel;
    kvWidenForOvertype(edited, editedSel, overtype);
    DeleteSelection(edited, editedSel);
    if (IsFull(edited) && !(key == ':' && CanAddSeparator(edited))) {
        kvBeep(0);
        return false;
    }
    kvInsertAtCaret(edited, editedSel, static_cast<char>(key));
    text = edited;
    sel = editedSel;
    return false;
}

bool kvTimeEditFormatter::IsValid(CString& text, kvEditFormatterError* err) const
{
    if (text.IsEmpty() || !_IsKnownFormat())
        return true;
    StripBadChars(text);
    TimeParts time;
    if (text.Find(':') >= 0)
        SplitAtColons(_HasSeconds(), text, time);
    else if (!SplitByLength(_HasSeconds() ? kSplitHourMinuteSecond : kSplitHourMinute, text, time, err))
        return false;

    // "%02d" leaves numbers above 99 whole, so that the checks can select them.
    CString shown;
    kvAppendDecimal(shown, time.hours);
    const int firstColon = shown.GetLength();
    shown += ':';
    kvAppendDecimal(shown, time.minutes, 2);
    const int lastColon = _HasSeconds() ? shown.GetLength() : firstColon;
    if (_HasSeconds()) {
        shown += ':';
        kvAppendDecimal(shown, time.seconds, 2);
    }
    text = shown;

    if (time.hours > _MaxHour())
        return kvRefuse(err, "Invalid hour.", 0, firstColon);
    if (time.minutes >= 60)
        return kvRefuse(err, "Invalid minutes.", firstColon + 1, _HasSeconds() ? lastColon : text.GetLength());
    if (time.seconds >= 60)
        return kvRefuse(err, "Invalid seconds.", lastColon + 1, text.GetLength());
    return true;
}

// Hours padded to two digits and the colons dropped. An empty text is valid
// and comes out as "00": stored values have always had it.
bool kvTimeEditFormatter::RawData(CString& text, kvEditFormatterError* err) const
{
    if (!IsValid(text, err))
        return false;
    if (!_IsKnownFormat())
        return true;
    const int colon = text.Find(':');
    CString raw;
    kvAppendDecimal(raw, kvLeadingInt(text, 0, colon), 2);
    if (_HasSeconds()) {
        raw += text.Mid(colon + 1, 2);
        raw += text.Mid(colon + 4);
    } else {
        raw += text.Mid(colon + 1);
    }
    text = raw;
    return true;
}

bool kvTimeEditFormatter::FormatRawData(CString& text) const
{
    if (text.IsEmpty())
        return true;
    if (text.GetLength() != 6)
        return false;
    if (!_HasSeconds())
        text = text.Left(4);
    return IsValid(text, nullptr);
}
