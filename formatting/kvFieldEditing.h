// Pieces shared by the formatters that edit their text character by character
// and validate it as a whole (date, time, identification number): backspace,
// overtype and insertion on a packed selection, and the error report.
#pragma once

#include "afx/CString.h"
#include "formatting/kvEditFormatterError.h"

// Removes the selection or, with a caret not at 0, the character before it;
// leaves a caret at the start of what was removed.
void kvBackspace(CString& text, unsigned long& sel);

// With overtype on, an empty selection before the end of the text grows by one
// character to the right, so that the typed character replaces that one.
void kvWidenForOvertype(const CString& text, unsigned long& sel, bool overtype);

// Inserts ch at the start of the selection and leaves the caret after it.
void kvInsertAtCaret(CString& text, unsigned long& sel, char ch);

// A key code or a character (as unsigned char) that is one of "0" to "9".
inline bool kvIsAsciiDigit(unsigned int ch) noexcept { return ch >= '0' && ch <= '9'; }

// Fills the error record, when there is one, and returns false for the caller
// to pass on.
bool kvRefuse(kvEditFormatterError* err, const char* message, int start, int end);
