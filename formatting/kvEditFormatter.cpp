// DeleteSelection, shared by every formatter's key handling.
#include "formatting/kvEditFormatter.h"

#include "formatting/kvSelection.h"

bool DeleteSelection(CString& text, unsigned long& sel)
{
    const int start = kvSelStart(sel);
    const int end = kvSelEnd(sel);
    if (start == end)
        return false;
    text.Delete(start, end - start);
    sel = kvPackSel(start, start);
    return true;
}

bool DeleteSelection(CString& text, int& start, int& end)
{
    unsigned long sel = kvPackSel(start, end);
    const bool deleted = DeleteSelection(text, sel);
    start = kvSelStart(sel);
    end = kvSelEnd(sel);
    return deleted;
}
