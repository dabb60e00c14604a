// A random editing session on one formatter, driven by the fuzzer's bytes:
// typed keys (every byte value), backspace, Delete, selections, pasted text,
// validation and raw conversion. Unlike FieldFuzzer it lets a family state
// where its deliberate asymmetries suspend a promise (a verdict that depends
// on the error record, accepted texts that do not survive a second pass, raw
// forms that do not read back); the family's own promises come in as
// SessionChecks.
#pragma once

#include "FuzzInput.h"

#include "formatting/kvEditFormatter.h"
#include "formatting/kvSelection.h"

#include <cstdio>
#include <cstdlib>
#include <functional>

// A broken promise stops the fuzzer at the input that broke it.
inline void Require(bool condition, const char* promise)
{
    if (!condition) {
        std::fprintf(stderr, "broken promise: %s\n", promise);
        std::abort();
    }
}

struct SessionChecks {
    // Whether IsValid decides the same with and without an error record.
    bool sameVerdictWithoutRecord = true;
    // Whether an accepted text must be accepted again unchanged.
    std::function<bool(const CString& accepted)> staysAccepted = [](const CString&) { return true; };
    // Raw form and back, for a text IsValid accepted.
    std::function<void(const CString& accepted)> checkRawRoundTrip = [](const CString&) {};
};

namespace fuzzsession {

inline bool SelectionInside(const CString& text, unsigned long sel)
{
    return kvSelStart(sel) <= kvSelEnd(sel) && kvSelEnd(sel) <= text.GetLength();
}

inline void TypeKey(const kvEditFormatter& f, CString& text, unsigned long& sel, unsigned int key, bool overtype)
{
    Require(!f.DoChar(text, sel, overtype, key, 1, 0), "DoChar handles every key");
    Require(SelectionInside(text, sel), "a handled key leaves the selection inside the text");
}

inline void PressDelete(const kvEditFormatter& f, CString& text, unsigned long& sel)
{
    const CString before(text);
    Require(f.DoKeyDown(text, sel, false, VK_DELETE, 1, 0), "key-downs pass to the edit");
    Require(text == before, "a key-down left to the edit changes nothing");
}

inline void Select(FuzzInput& in, const CString& text, unsigned long& sel)
{
    const int start = in.Byte() % (text.GetLength() + 1);
    const int end = start + in.Byte() % (text.GetLength() - start + 1);
    sel = kvPackSel(start, end);
}

// What a paste may bring: any byte but NUL, above 127 included.
inline void Paste(FuzzInput& in, CString& text, unsigned long& sel)
{
    if (text.GetLength() > 64)
        return;
    DeleteSelection(text, sel);
    const int start = kvSelStart(sel);
    const CString pasted = in.Text(12);
    text.Insert(start, pasted);
    sel = kvPackSel(start + pasted.GetLength(), start + pasted.GetLength());
}

// As the host does: the normalised text is shown in both outcomes, and a
// refusal selects the offending characters.
inline void Validate(const kvEditFormatter& f, FuzzInput& in, const SessionChecks& checks, CString& text,
                     unsigned long& sel)
{
    const bool withRecord = (in.Byte() & 1) != 0;
    kvEditFormatterError err;
    CString checked(text);
    const bool valid = f.IsValid(checked, withRecord ? &err : nullptr);
    if (checks.sameVerdictWithoutRecord) {
        kvEditFormatterError otherErr;
        CString other(text);
        Require(f.IsValid(other, withRecord ? nullptr : &otherErr) == valid, "the record does not change the verdict");
        Require(other == checked, "the record does not change the text");
    }
    if (!valid && withRecord)
        Require(SelectionInside(checked, err.selection), "the error selects characters of the text");
    if (valid && checks.staysAccepted(checked)) {
        CString again(checked);
        kvEditFormatterError againErr;
        Require(f.IsValid(again, &againErr) && again == checked, "an accepted text is accepted again unchanged");
        checks.checkRawRoundTrip(checked);
    }
    text = checked;
    sel = valid || !withRecord ? kvPackSel(text.GetLength(), text.GetLength()) : err.selection;
}

// Conversion of whatever the field holds: it may fail, never misbehave.
inline void Convert(const kvEditFormatter& f, FuzzInput& in, const CString& text)
{
    kvEditFormatterError err;
    CString raw(text);
    f.RawData(raw, (in.Byte() & 1) ? &err : nullptr);
    CString shown(text);
    f.FormatRawData(shown);
}

}  // namespace fuzzsession

inline void RunEditingSession(const kvEditFormatter& f, FuzzInput& in, const SessionChecks& checks)
{
    using namespace fuzzsession;
    CString text;
    unsigned long sel = 0;
    while (!in.Exhausted()) {
        switch (in.Byte() % 8) {
        case 0:
        case 1:
        case 2: {
            const unsigned int key = in.Byte();
            TypeKey(f, text, sel, key, (in.Byte() & 1) != 0);
            break;
        }
        case 3:
            TypeKey(f, text, sel, VK_BACK, false);
            PressDelete(f, text, sel);
            break;
        case 4:
            Select(in, text, sel);
            break;
        case 5:
            Paste(in, text, sel);
            break;
        case 6:
            Validate(f, in, checks, text, sel);
            break;
        default:
            Convert(f, in, text);
            break;
        }
    }
}
