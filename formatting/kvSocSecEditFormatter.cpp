// kvSocSecEditFormatter: nine data characters, hyphens placed on validation,
// at most two typed.
#include "formatting/kvSocSecEditFormatter.h"

#include "formatting/kvFieldEditing.h"
#include "formatting/kvStatus.h"

#include <cctype>

namespace {

constexpr int kDataLength = 9;

bool IsDataKey(unsigned int key)
{
    if (key > 0xFF)
        return false;
    const int ch = static_cast<int>(key);
    return std::isdigit(ch) || std::isalpha(ch);
}

// Space and full stop are typed as hyphens: people write numbers either way.
bool IsHyphenKey(unsigned int key) { return key == '-' || key == ' ' || key == '.'; }

bool HasTwoHyphens(const CString& text)
{
    const int first = text.Find('-');
    return first >= 0 && text.Find('-', first + 1) >= 0;
}

}  // namespace

void kvSocSecEditFormatter::DoEnterField(CString&, unsigned long&) const {}

void kvSocSecEditFormatter::DoExitField(CString&, unsigned long&) const {}

bool kvSocSecEditFormatter::DoKeyDown(CString&, unsigned long&, bool, unsigned int, unsigned int,
                                      unsigned int) const
{
    return true;
}

CString kvSocSecEditFormatter::StripHyphens(const CString& text)
{
    CString stripped(text);
    stripped.Remove('-');
    return stripped;
}

bool kvSocSecEditFormatter::DoChar(CString& text, unsigned long& sel, bool overtype, unsigned int key,
                                   unsigned int, unsigned int) const
{
    if (key == VK_BACK) {
        kvBackspace(text, sel);
        return false;
    }
    if (IsDataKey(key)) {
        kvWidenForOvertype(text, sel, overtype);
        DeleteSelection(text, sel);
        if (StripHyphens(text).GetLength() < kDataLength)
            kvInsertAtCaret(text, sel, static_cast<char>(key));
        else
            kvBeep(0);
        return false;
    }
    if (IsHyphenKey(key)) {
        // A refused hyphen leaves the field exactly as it was, selection included.
        CString edited(text);
        unsigned long editedSel = sel;
        kvWidenForOvertype(edited, editedSel, overtype);
        DeleteSelection(edited, editedSel);
        if (HasTwoHyphens(edited)) {
            kvBeep(0);
            return false;
        }
        kvInsertAtCaret(edited, editedSel, '-');
        text = edited;
        sel = editedSel;
    }
    return false;
}

bool kvSocSecEditFormatter::RawData(CString& text, kvEditFormatterError* err) const
{
    CString raw = StripHyphens(text);
    const int count = raw.GetLength();
    // Only a caller that wants no explanation gets a short number padded.
    if (!err && count > 0 && count < kDataLength)
        raw = CString('0', kDataLength - count) + raw;
    if (raw.GetLength() == kDataLength || count == 0) {
        text = raw;
        return true;
    }
    if (count < kDataLength)
        return kvRefuse(err, "Not enough digits. There must be 9 digits.", 0, count);
    return kvRefuse(err, "Too many digits. There must be 9 digits.", 0, count);
}

bool kvSocSecEditFormatter::IsValid(CString& text, kvEditFormatterError* err) const
{
    if (!RawData(text, err))
        return false;
    if (!text.IsEmpty())
        text = text.Left(3) + "-" + text.Mid(3, 2) + "-" + text.Mid(5);
    return true;
}

bool kvSocSecEditFormatter::FormatRawData(CString& text) const
{
    const int count = StripHyphens(text).GetLength();
    if (count != kDataLength && count != 0)
        return false;
    return IsValid(text, nullptr);
}
