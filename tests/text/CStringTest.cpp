// CString: MFC's clamping of out-of-range arguments, and texts that grow past
// the inline buffer or alias themselves.
#include "afx/CString.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace {

struct Row {
    const char* name;
    std::function<CString()> op;
    const char* expected;
};

const CString abc("abcdef");
const std::string kSixteen = [] { std::string s; for (int i = 0; i < 16; ++i) s += "0123456789"; return s; }();
const char* const kSixteenCopies = kSixteen.c_str();

const Row kSlicing[] = {
    {"Mid in range", [] { return abc.Mid(1, 3); }, "bcd"},
    {"Mid negative first", [] { return abc.Mid(-2, 3); }, "abc"},
    {"Mid negative count", [] { return abc.Mid(2, -1); }, ""},
    {"Mid count past the end", [] { return abc.Mid(4, 100); }, "ef"},
    {"Mid first past the end", [] { return abc.Mid(9, 2); }, ""},
    {"Mid huge count", [] { return abc.Mid(1, 0x7fffffff); }, "bcdef"},
    {"Mid to the end", [] { return abc.Mid(3); }, "def"},
    {"Mid from past the end", [] { return abc.Mid(10); }, ""},
    {"Left negative", [] { return abc.Left(-1); }, ""},
    {"Left past the end", [] { return abc.Left(10); }, "abcdef"},
    {"Right", [] { return abc.Right(2); }, "ef"},
    {"Right past the start", [] { return abc.Right(10); }, "abcdef"},
    {"Right negative", [] { return abc.Right(-3); }, ""},
    {"SpanIncluding", [] { return CString("1234ab").SpanIncluding("0123456789"); }, "1234"},
    {"SpanExcluding", [] { return CString("12.34").SpanExcluding("."); }, "12"},
};

CString Edited(const char* start, const std::function<void(CString&)>& edit)
{
    CString s(start);
    edit(s);
    return s;
}

const Row kEditing[] = {
    {"Insert char", [] { return Edited("ac", [](CString& s) { s.Insert(1, 'b'); }); }, "abc"},
    {"Insert before the start", [] { return Edited("bc", [](CString& s) { s.Insert(-5, "a"); }); }, "abc"},
    {"Insert past the end", [] { return Edited("ab", [](CString& s) { s.Insert(99, 'c'); }); }, "abc"},
    {"Insert itself", [] { return Edited("ab", [](CString& s) { s.Insert(1, s); }); }, "aabb"},
    {"Delete one", [] { return Edited("abc", [](CString& s) { s.Delete(1); }); }, "ac"},
    {"Delete negative index", [] { return Edited("abc", [](CString& s) { s.Delete(-1, 2); }); }, "c"},
    {"Delete past the end", [] { return Edited("abc", [](CString& s) { s.Delete(2, 10); }); }, "ab"},
    {"Delete from past the end", [] { return Edited("abc", [](CString& s) { s.Delete(7, 1); }); }, "abc"},
    {"Delete negative count", [] { return Edited("abc", [](CString& s) { s.Delete(0, -1); }); }, "abc"},
    {"Remove", [] { return Edited("1,234,567", [](CString& s) { s.Remove(','); }); }, "1234567"},
    {"Replace grows", [] { return Edited("a-b-c", [](CString& s) { s.Replace("-", "--"); }); }, "a--b--c"},
    {"Trim", [] { return Edited(" \t ab c \n", [](CString& s) { s.Trim(); }); }, "ab c"},
    {"TrimLeft char", [] { return Edited("0012", [](CString& s) { s.TrimLeft('0'); }); }, "12"},
    {"TrimRight set", [] { return Edited("1.500", [](CString& s) { s.TrimRight("0."); }); }, "1.5"},
    {"MakeUpper keeps high characters", [] { return Edited("ab\xe9", [](CString& s) { s.MakeUpper(); }); },
     "AB\xe9"},
    {"MakeReverse", [] { return Edited("abc", [](CString& s) { s.MakeReverse(); }); }, "cba"},
    {"Format", [] { return Edited("", [](CString& s) { s.Format("%-.2f|%d|%s", 1.005, -3, "x"); }); },
     "1.00|-3|x"},
    {"Format from itself", [] { return Edited("ab", [](CString& s) { s.Format("<%s>", s.GetString()); }); },
     "<ab>"},
    {"Append past the inline buffer",
     [] { return Edited("0123456789", [](CString& s) { for (int i = 0; i < 4; ++i) s += s; }); },
     kSixteenCopies},
    {"Assign a suffix of itself",
     [] { return Edited("0123456789012345678901234567890123456789", [](CString& s) { s = s.GetString() + 35; }); },
     "56789"},
    {"GetBuffer and ReleaseBuffer",
     [] { return Edited("ab", [](CString& s) { char* p = s.GetBuffer(40); p[2] = 'c'; p[3] = 0; s.ReleaseBuffer(); }); },
     "abc"},
};

TEST(CString, Slicing)
{
    for (const Row& row : kSlicing)
        EXPECT_STREQ(row.op(), row.expected) << row.name;
}

TEST(CString, Editing)
{
    for (const Row& row : kEditing)
        EXPECT_STREQ(row.op(), row.expected) << row.name;
}

TEST(CString, Searching)
{
    const CString s("1,234.50");
    const struct { const char* name; int got, expected; } rows[] = {
        {"Find char", s.Find(','), 1},
        {"Find char from", s.Find('5', 6), 6},
        {"Find char at the length", s.Find('0', s.GetLength()), -1},
        {"Find char negative start", s.Find('1', -1), -1},
        {"Find string", s.Find("34"), 3},
        {"Find empty string at the length", s.Find("", s.GetLength()), s.GetLength()},
        {"Find string past the end", s.Find("1", 99), -1},
        {"ReverseFind", s.ReverseFind('5'), 6},
        {"FindOneOf", s.FindOneOf(".,"), 1},
        {"GetAt out of range", s.GetAt(99), 0},
        {"Insert of NUL is a character", [] { CString t("ab"); return t.Insert(1, '\0'); }(), 3},
        {"Compare less is exactly -1", CString("a").Compare("c"), -1},
        {"Compare greater is exactly 1", CString("c").Compare("a"), 1},
        {"Compare longer is greater", CString("ab").Compare("a"), 1},
        {"Compare high byte above ASCII", CString("\xFF").Compare("a"), 1},
        {"Compare with null is with empty", CString("a").Compare(nullptr), 1},
        {"CompareNoCase", CString("ABC").CompareNoCase("abc"), 0},
        {"CompareNoCase less is exactly -1", CString("A").CompareNoCase("c"), -1},
        {"CompareNoCase greater is exactly 1", CString("abc").CompareNoCase("AB"), 1},
    };
    for (const auto& row : rows)
        EXPECT_EQ(row.got, row.expected) << row.name;
}

TEST(CString, MovedFromIsEmptyAndUsable)
{
    CString longText('x', 100);
    CString taken(std::move(longText));
    EXPECT_EQ(taken.GetLength(), 100);
    EXPECT_TRUE(longText.IsEmpty());  // NOLINT(bugprone-use-after-move)
    longText = "again";
    EXPECT_STREQ(longText, "again");
}

}  // namespace
