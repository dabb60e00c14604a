// The drop edit list's rules over the items "Apple", "Apricot", "Banana":
// completion of typed keys with free and restricted entry, the edits that keep
// a restricted text an item, and the popup's height.
#include "dropdown/kvDropListRules.h"

#include <gtest/gtest.h>

#include <cctype>
#include <string>
#include <vector>

namespace {

using Rules = kvDropListRules;
constexpr int U = Rules::m_ListUnchanged;

std::string Lower(const CString& text)
{
    std::string lower(text.GetString());
    for (char& c : lower)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return lower;
}

kvDropListItems Fruit()
{
    static const std::vector<CString> kItems = {"Apple", "Apricot", "Banana"};
    auto find = [](bool prefix) {
        return [prefix](const CString& text) {
            for (size_t i = 0; i < kItems.size(); ++i) {
                const std::string item = Lower(kItems[i]);
                if (prefix ? item.rfind(Lower(text), 0) == 0 : item == Lower(text))
                    return static_cast<int>(i);
            }
            return -1;
        };
    };
    return {find(true), find(false), [](int i) { return kItems[static_cast<size_t>(i)]; }};
}

struct CharRow {
    const char* name;
    bool allowEntry, allowBlank, backspace;
    Rules::Edit before, after;
    bool refused;
    Rules::Edit field;
    int listSel;
};

TEST(DropListRules, TypedKeys)
{
    const CharRow rows[] = {
        {"free: a completes to Apple", true, false, false, {"", 0, 0}, {"a", 1, 1}, false, {"Apple", 1, 5}, 0},
        {"free: APR in the item's spelling", true, false, false, {"AP", 2, 2}, {"APR", 3, 3}, false,
         {"Apricot", 3, 7}, 1},
        {"free: Aprx is no item, list cleared", true, false, false, {"Apr", 3, 3}, {"Aprx", 4, 4}, false,
         {"Aprx", 4, 4}, -1},
        {"free: inside the text only the exact item", true, false, false, {"Banan", 0, 0}, {"xBanan", 1, 1}, false,
         {"xBanan", 1, 1}, -1},
        {"free: backspace never completes", true, false, true, {"Apr", 3, 3}, {"Ap", 2, 2}, false, {"Ap", 2, 2}, -1},
        {"free: an unchanged text leaves the list", true, false, false, {"Apple", 0, 5}, {"Apple", 0, 5}, false,
         {"Apple", 0, 5}, U},
        {"restricted: x refused", false, false, false, {"Apr", 3, 3}, {"Aprx", 4, 4}, true, {"Apr", 3, 3}, U},
        {"restricted: b completes", false, false, false, {"", 0, 0}, {"b", 1, 1}, false, {"Banana", 1, 6}, 2},
        {"restricted: backspace over a completion widens the tail", false, false, true, {"Apricot", 3, 7},
         {"Apr", 3, 3}, false, {"Apricot", 2, 7}, U},
        {"restricted: emptied without blank refused", false, false, true, {"Apple", 0, 5}, {"", 0, 0}, true,
         {"Apple", 0, 5}, U},
        {"restricted: emptied with blank", false, true, true, {"Apple", 0, 5}, {"", 0, 0}, false, {"", 0, 0}, -1},
        {"restricted: inside the text must stay an item", false, false, false, {"Apple", 1, 1}, {"Axpple", 2, 2},
         true, {"Apple", 1, 1}, U},
    };
    for (const CharRow& row : rows) {
        const Rules::Outcome out =
            Rules::AfterChar(row.before, row.after, row.backspace, row.allowEntry, row.allowBlank, Fruit());
        EXPECT_EQ(out.refused, row.refused) << row.name;
        EXPECT_STREQ(out.field.text, row.field.text) << row.name;
        EXPECT_EQ(std::make_pair(out.field.start, out.field.end), std::make_pair(row.field.start, row.field.end))
            << row.name;
        EXPECT_EQ(out.listSel, row.listSel) << row.name;
    }
}

TEST(DropListRules, WholeTextEdits)
{
    // Text after the edit, prefix lookup when free, allow entry, allow blank: refused, list selection.
    const std::tuple<const char*, bool, bool, bool, bool, int> rows[] = {
        {"Ban", true, true, false, false, 2},   {"Ban", false, true, false, false, -1},
        {"x", true, true, false, false, U},
        {"Ban", true, false, false, true, U},   {"banana", true, false, false, false, 2},
        {"", true, false, false, true, U},      {"", true, false, true, false, -1},
    };
    for (const auto& [text, prefix, entry, blank, refused, listSel] : rows) {
        const Rules::Outcome out = Rules::Accept({text, 0, 0}, prefix, entry, blank, Fruit());
        EXPECT_EQ(std::make_pair(out.refused, out.listSel), std::make_pair(refused, listSel))
            << '"' << text << "\" entry " << entry << " blank " << blank;
    }
}

TEST(DropListRules, FitHeight)
{
    // Dropped height, field height, items: the popup's height (16 and 68 dialog units as 26 and 110 pixels).
    const std::tuple<int, int, int, int> rows[] = {
        {200, 20, 5, 72}, {100, 20, 10, 80}, {30, 20, 3, 44}, {30, 20, 10, 110}, {20, 20, 0, 2},
    };
    for (const auto& [dropped, field, count, height] : rows)
        EXPECT_EQ(Rules::FitHeight(dropped, field, 14, count, 26, 110), height) << dropped << " " << count;
}

}  // namespace
