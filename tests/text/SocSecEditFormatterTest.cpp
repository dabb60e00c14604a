// Identification-number formatter: hyphen placement, the count of data
// characters (letters included), padding only without an error record, the raw
// form, and typing with at most two hyphens.
#include "FormatterHarness.h"

#include "formatting/kvSocSecEditFormatter.h"

#include <gtest/gtest.h>

namespace {

// shown: after IsValid; message empty when valid; raw: RawData with the same kind
// of record, null when refused.
struct ValidRow { const char *name, *typed; bool withRecord; const char *shown, *message; int selEnd; const char* raw; };

const char kTooFew[] = "Not enough digits. There must be 9 digits.";
const char kTooMany[] = "Too many digits. There must be 9 digits.";

const ValidRow kValidation[] = {
    {"nine digits", "123456789", true, "123-45-6789", "", 0, "123456789"},
    {"hyphens already there", "123-45-6789", true, "123-45-6789", "", 0, "123456789"},
    {"hyphens anywhere", "1-2-3-4-5-6-7-8-9", true, "123-45-6789", "", 0, "123456789"},
    {"letters count", "AB1234567", true, "AB1-23-4567", "", 0, "AB1234567"},
    {"a space counts", "1 3456789", true, "1 3-45-6789", "", 0, "1 3456789"},
    {"five with a record", "12345", true, "12345", kTooFew, 5, nullptr},
    {"count without hyphens", "12-345", true, "12-345", kTooFew, 5, nullptr},
    {"five without a record are padded", "12345", false, "000-01-2345", "", 0, "000012345"},
    {"ten with a record", "1234567890", true, "1234567890", kTooMany, 10, nullptr},
    {"ten without a record", "1234567890", false, "1234567890", "", 0, nullptr},
    {"empty", "", true, "", "", 0, ""},
};

TEST(SocSecEditFormatter, Validation)
{
    const kvSocSecEditFormatter f;
    for (const ValidRow& row : kValidation) {
        SCOPED_TRACE(row.name);
        const bool valid = row.raw != nullptr;
        kvEditFormatterError err;
        kvEditFormatterError* record = row.withRecord ? &err : nullptr;
        CString text(row.typed);
        EXPECT_EQ(f.IsValid(text, record), valid);
        EXPECT_STREQ(text, row.shown);
        EXPECT_STREQ(err.message, row.message);
        EXPECT_EQ(err.selection, kvPackSel(0, row.selEnd));

        CString raw(row.typed);
        EXPECT_EQ(f.RawData(raw, record), valid);
        EXPECT_STREQ(raw, valid ? row.raw : row.typed);
    }
}

struct RawRow { const char* raw; bool converted; const char* shown; };

const RawRow kFromRaw[] = {
    {"123456789", true, "123-45-6789"}, {"123-45-6789", true, "123-45-6789"}, {"", true, ""},
    {"12345", false, "12345"},          {"1234567890", false, "1234567890"},
};

TEST(SocSecEditFormatter, FormatRawData)
{
    for (const RawRow& row : kFromRaw) {
        SCOPED_TRACE(row.raw);
        CString text(row.raw);
        EXPECT_EQ(kvSocSecEditFormatter().FormatRawData(text), row.converted);
        EXPECT_STREQ(text, row.shown);
    }
}

struct TypingRow { const char *name, *start, *keys; bool overtype; const char* expected; int beeps; };

const TypingRow kTyping[] = {
    {"nine digits", "|", "123456789", false, "123456789|", 0},
    {"a tenth", "123456789|", "0", false, "123456789|", 1},
    {"a selection makes room", "123[4]56789", "0", false, "1230|56789", 0},
    {"selecting a hyphen makes no room", "123[-]456789", "0", false, "123|456789", 1},
    {"overtype in a full field", "123|456789", "0", true, "1230|56789", 0},
    {"letters", "|", "Ab", false, "Ab|", 0},
    {"typed hyphens do not count", "|", "123-45-6789", false, "123-45-6789|", 0},
    {"a third hyphen", "123-45-6789|", "-", false, "123-45-6789|", 1},
    {"a refused hyphen keeps the selection", "1-2-[3]", "-", false, "1-2-[3]", 1},
    {"a selected hyphen makes room", "1-[2-]3", "-", false, "1--|3", 0},
    {"full stop and space type hyphens", "1|", ". ", false, "1--|", 0},
    {"overtype with a hyphen", "12|3", "-", true, "12-|", 0},
    {"other characters are ignored", "1|", "?+\x01\xe9", false, "1|", 0},
    {"backspace", "12-|3", "\b", false, "12|3", 0},
    {"backspace at the start", "|1", "\b", false, "|1", 0},
    {"delete is left to the edit", "1|2", "\x7f", false, "1|2", 0},
};

TEST(SocSecEditFormatter, Typing)
{
    for (const TypingRow& row : kTyping) {
        SCOPED_TRACE(row.name);
        ExpectTyping(kvSocSecEditFormatter(), row.start, row.keys, row.overtype, row.expected, row.beeps);
    }
}

}  // namespace
