// NativeEdit: what a plain edit control does with a key that the formatter
// leaves to it (DoChar or DoKeyDown returned true).
#pragma once

#include "afx/CString.h"

class NativeEdit {
public:
    static void Char(CString& text, unsigned long& sel, bool overtype, unsigned int key);
    static void KeyDown(CString& text, unsigned long& sel, unsigned int key);
};
