// NativeEdit: what a plain edit control does with a key, or a pasted character,
// that the formatter leaves to it (DoChar or DoKeyDown returned true).
#pragma once

#include "afx/CString.h"

class NativeEdit {
public:
    static void Char(CString& text, unsigned long& sel, bool overtype, unsigned int key);
    static void KeyDown(CString& text, unsigned long& sel, unsigned int key);
    // Pasted characters go in as they are, even a backspace.
    static void Paste(CString& text, unsigned long& sel, char ch);
};
