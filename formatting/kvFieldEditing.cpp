// Keystroke and error-report pieces shared by the character-by-character formatters.
#include "formatting/kvFieldEditing.h"

#include "formatting/kvEditFormatter.h"
#include "formatting/kvSelection.h"

void kvBackspace(CString& text, unsigned long& sel)
{
    int start = kvSelStart(sel);
    int end = kvSelEnd(sel);
    if (start == end && start > 0)
        --start;
    DeleteSelection(text, start, end);
    sel = kvPackSel(start, end);
}

void kvWidenForOvertype(const CString& text, unsigned long& sel, bool overtype)
{
    const int start = kvSelStart(sel);
    const int end = kvSelEnd(sel);
    if (overtype && start == end && end < text.GetLength())
        sel = kvPackSel(start, end + 1);
}

void kvInsertAtCaret(CString& text, unsigned long& sel, char ch)
{
    const int caret = kvSelStart(sel);
    text.Insert(caret, ch);
    sel = kvPackSel(caret + 1, caret + 1);
}

bool kvRefuse(kvEditFormatterError* err, const char* message, int start, int end)
{
    if (err) {
        err->message = message;
        err->selection = kvPackSel(start, end);
    }
    return false;
}
