// kvStrEditFormatter: length limits and case rule for free text fields.
#include "formatting/kvStrEditFormatter.h"

#include "formatting/kvSelection.h"
#include "formatting/kvStatus.h"

#include <cctype>

kvStrEditFormatter::kvStrEditFormatter(unsigned int maxLen, unsigned int minLen, AlphaFormat format)
    : m_Format(format), m_nMaxLen(maxLen), m_nMinLen(minLen)
{
}

void kvStrEditFormatter::DoEnterField(CString&, unsigned long&) const {}

void kvStrEditFormatter::DoExitField(CString&, unsigned long&) const {}

bool kvStrEditFormatter::DoKeyDown(CString&, unsigned long&, bool, unsigned int, unsigned int,
                                   unsigned int) const
{
    return true;
}

char kvStrEditFormatter::_ApplyCase(char ch) const
{
    const unsigned char c = static_cast<unsigned char>(ch);
    if (m_Format & UpperCase)
        return static_cast<char>(std::toupper(c));
    if (m_Format & LowerCase)
        return static_cast<char>(std::tolower(c));
    return ch;
}

// Leading blanks do not count, and a space may always be added at the end:
// validation trims trailing blanks anyway. The comparison mixes a position in
// the untrimmed text with the trimmed length on purpose.
bool kvStrEditFormatter::_RefusedForLength(const CString& text, int start, unsigned int key) const
{
    CString trimmed(text);
    trimmed.TrimLeft();
    if (key == ' ' && start >= trimmed.GetLength())
        return false;
    return m_nMaxLen != 0 && static_cast<unsigned int>(trimmed.GetLength()) >= m_nMaxLen;
}

bool kvStrEditFormatter::DoChar(CString& text, unsigned long& sel, bool overtype, unsigned int key,
                                unsigned int, unsigned int) const
{
    int start = kvSelStart(sel);
    int end = kvSelEnd(sel);
    if (key == 8) {
        if (start == end && start != 0)
            start = end - 1;
        DeleteSelection(text, start, end);
        sel = kvPackSel(start, end);
        return false;
    }

    if (overtype && start == end && end < text.GetLength())
        ++end;
    CString edited(text);
    DeleteSelection(edited, start, end);
    if (_RefusedForLength(edited, start, key)) {
        CString message;
        message.Format("Too many characters. A maximum of %u characters is allowed.", m_nMaxLen);
        kvShowStatusMessage(message);
        return false;
    }
    edited.Insert(start, _ApplyCase(static_cast<char>(key)));
    text = edited;
    sel = kvPackSel(start + 1, start + 1);
    return false;
}

bool kvStrEditFormatter::IsValid(CString& text, kvEditFormatterError* err) const
{
    if (m_Format & UpperCase)
        text.MakeUpper();
    else if (m_Format & LowerCase)
        text.MakeLower();
    text.Trim();

    const unsigned int length = static_cast<unsigned int>(text.GetLength());
    if (m_nMaxLen != 0 && length > m_nMaxLen) {
        if (err) {
            err->message.Format("Too many characters. A maximum of %u characters is allowed.", m_nMaxLen);
            err->selection = kvPackSel(static_cast<int>(m_nMaxLen), static_cast<int>(length));
        }
        return false;
    }
    if (m_nMinLen == 0 || length >= m_nMinLen)
        return true;
    if (err) {
        err->message.Format("Not enough characters. A minimum of %u characters is required.", m_nMinLen);
        err->selection = kvPackSel(0, static_cast<int>(length));
    }
    return false;
}

bool kvStrEditFormatter::FormatRawData(CString& text) const { return IsValid(text, nullptr); }

bool kvStrEditFormatter::RawData(CString& text, kvEditFormatterError* err) const
{
    return IsValid(text, err);
}
