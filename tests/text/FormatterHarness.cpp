#include "FormatterHarness.h"

#include "StatusRecorder.h"

#include "afx/WinTypes.h"

#include <gtest/gtest.h>

FieldState ParseField(const std::string& marked)
{
    std::string text;
    int start = -1, end = -1;
    for (char ch : marked) {
        if (ch == '|')
            start = end = static_cast<int>(text.size());
        else if (ch == '[')
            start = static_cast<int>(text.size());
        else if (ch == ']')
            end = static_cast<int>(text.size());
        else
            text += ch;
    }
    if (start < 0)
        start = end = static_cast<int>(text.size());
    return {text.c_str(), kvPackSel(start, end)};
}

std::string ShowField(const CString& text, unsigned long sel)
{
    const auto start = static_cast<size_t>(kvSelStart(sel)), end = static_cast<size_t>(kvSelEnd(sel));
    std::string shown(text.GetString());
    return start == end ? shown.insert(start, "|") : shown.insert(end, "]").insert(start, "[");
}

std::string TypeKeys(const kvEditFormatter& f, const std::string& start, const std::string& keys,
                     bool overtype)
{
    FieldState field = ParseField(start);
    for (char key : keys) {
        if (key == '\x7f')
            f.DoKeyDown(field.text, field.sel, false, VK_DELETE, 1, 0);
        else
            f.DoChar(field.text, field.sel, overtype, static_cast<unsigned char>(key), 1, 0);
    }
    return ShowField(field.text, field.sel);
}

void ExpectValidation(const kvEditFormatter& f, const char* typed, const char* shown, const char* message,
                      int selStart, int selEnd, const char* raw)
{
    const bool valid = raw != nullptr;
    CString text(typed);
    kvEditFormatterError err;
    EXPECT_EQ(f.IsValid(text, &err), valid);
    EXPECT_STREQ(text, shown);
    EXPECT_STREQ(err.message, message);
    EXPECT_EQ(err.selection, kvPackSel(selStart, selEnd));

    CString quiet(typed);
    EXPECT_EQ(f.IsValid(quiet, nullptr), valid) << "a null record gives the same verdict";
    EXPECT_STREQ(quiet, shown);
    CString rawText(typed);
    EXPECT_EQ(f.RawData(rawText, nullptr), valid);
    EXPECT_STREQ(rawText, valid ? raw : shown);
}

void ExpectTyping(const kvEditFormatter& f, const char* start, const char* keys, bool overtype,
                  const char* expected, int beeps)
{
    StatusRecorder status;
    EXPECT_EQ(TypeKeys(f, start, keys, overtype), expected);
    if (StatusRecorder::CanObserveBeeps()) {
        EXPECT_EQ(status.beeps, beeps);
    }
    EXPECT_TRUE(status.messages.empty());
}
