// Helpers shared by the formatter tables: a field state written as text with the
// selection marked, so that rows read like what the user sees.
//   "ab|c"   caret after b        "a[bc]"  b and c selected
#pragma once

#include "formatting/kvEditFormatter.h"
#include "formatting/kvSelection.h"

#include <string>

struct FieldState {
    CString text;
    unsigned long sel = 0;
};

// Parses "ab|c" or "a[bc]" into text and packed selection.
FieldState ParseField(const std::string& marked);
// The inverse of ParseField.
std::string ShowField(const CString& text, unsigned long sel);

// Types the keys one by one through DoChar (Delete as '\x7f' goes through DoKeyDown).
// Returns the field as ShowField prints it.
std::string TypeKeys(const kvEditFormatter& f, const std::string& start, const std::string& keys,
                     bool overtype = false);

// What every validation row checks: IsValid's verdict, the text it leaves and
// the error record it fills, the same verdict and text without a record, and
// RawData's result (raw null: refused, the text left as shown).
void ExpectValidation(const kvEditFormatter& f, const char* typed, const char* shown, const char* message,
                      int selStart, int selEnd, const char* raw);
// What every typing row checks: the field after the keys, the beeps where they
// can be counted, and no status message.
void ExpectTyping(const kvEditFormatter& f, const char* start, const char* keys, bool overtype,
                  const char* expected, int beeps);
