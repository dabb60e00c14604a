#include "NativeEdit.h"

#include "formatting/kvEditFormatter.h"
#include "formatting/kvSelection.h"

#include <algorithm>

void NativeEdit::Char(CString& text, unsigned long& sel, bool overtype, unsigned int key)
{
    int start = kvSelStart(sel);
    int end = kvSelEnd(sel);
    if (key == VK_BACK) {
        if (start == end && start > 0)
            --start;
        DeleteSelection(text, start, end);
    } else {
        if (overtype && start == end && end < text.GetLength())
            ++end;
        DeleteSelection(text, start, end);
        text.Insert(start, static_cast<char>(key));
        start = end = start + 1;
    }
    sel = kvPackSel(start, end);
}

void NativeEdit::KeyDown(CString& text, unsigned long& sel, unsigned int key)
{
    const int length = text.GetLength();
    int start = std::min(kvSelStart(sel), length);
    int end = std::min(kvSelEnd(sel), length);
    switch (key) {
    case VK_DELETE:
        if (start == end && end < length)
            ++end;
        DeleteSelection(text, start, end);
        break;
    case VK_LEFT: start = end = start == end ? std::max(start - 1, 0) : start; break;
    case VK_RIGHT: start = end = start == end ? std::min(end + 1, length) : end; break;
    case VK_HOME: start = end = 0; break;
    case VK_END: start = end = length; break;
    default: break;
    }
    sel = kvPackSel(start, end);
}

void NativeEdit::Paste(CString& text, unsigned long& sel, char ch)
{
    const int start = kvSelStart(sel);
    text = text.Left(start) + ch + text.Mid(kvSelEnd(sel));
    sel = kvPackSel(start + 1, start + 1);
}
