// The bitmap button's window text: caption, line feed, tool-tip text.
#include "buttons/kvSubString.h"

#include <gtest/gtest.h>

namespace {

// Shift-JIS lead bytes, so that a backslash can be a second byte.
bool IsShiftJisLead(unsigned char byte) { return (byte >= 0x81 && byte <= 0x9F) || (byte >= 0xE0 && byte <= 0xFC); }

struct FieldRow {
    const char* name;
    const char* text;
    int n;
    char separator;
    const char* field;
};

const FieldRow kFields[] = {
    {"the caption", "Save\nSaves the file", 1, '\n', "Save"},
    {"the tool tip", "Save\nSaves the file", 2, '\n', "Saves the file"},
    {"no third field", "Save\nSaves the file", 3, '\n', ""},
    {"no tool tip", "Save", 2, '\n', ""},
    {"an empty tool tip", "Save\n", 2, '\n', ""},
    {"an empty caption", "\nSaves the file", 1, '\n', ""},
    {"fields from 1", "Save\nSaves the file", 0, '\n', ""},
    {"a second byte is not the separator", "\x95\\\\x", 1, '\\', "\x95\\"},
    {"the field after it", "\x95\\\\x", 2, '\\', "x"},
    {"a lead byte at the end", "a\\\x95", 2, '\\', "\x95"},
};

TEST(BmpButtonText, FieldsOfTheWindowText)
{
    for (const FieldRow& row : kFields) {
        EXPECT_EQ(CString(kvSubString(row.text, row.n, row.separator, IsShiftJisLead)), row.field) << row.name;
    }
    EXPECT_EQ(CString(kvSubString(nullptr, 1, '\n')), "");
    EXPECT_EQ(CString(kvSubString("\x95\\x", 2, '\\')), "x") << "single-byte text has no second bytes";
}

}  // namespace
