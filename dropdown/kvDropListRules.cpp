// kvDropListRules: completion and the item rules of a drop edit list.
#include "dropdown/kvDropListRules.h"

namespace {

using Rules = kvDropListRules;

Rules::Outcome Refused(const Rules::Edit& before) { return {true, before, Rules::m_ListUnchanged}; }

Rules::Outcome Kept(const Rules::Edit& after, int listSel) { return {false, after, listSel}; }

// The item's whole text in its own spelling, its tail selected.
Rules::Outcome Completed(const Rules::Edit& after, int item, const kvDropListItems& items)
{
    const CString text = items.itemText(item);
    return {false, {text, after.text.GetLength(), text.GetLength()}, item};
}

Rules::Outcome FreeEntry(const Rules::Edit& before, const Rules::Edit& after, bool backspace,
                         const kvDropListItems& items)
{
    if (!backspace && after.text == before.text)
        return Kept(after, Rules::m_ListUnchanged);
    if (backspace || after.end != after.text.GetLength())
        return Kept(after, items.findExact(after.text));
    const int item = items.findPrefix(after.text);
    if (item < 0)
        return Kept({after.text, after.text.GetLength(), after.text.GetLength()}, -1);
    return Completed(after, item, items);
}

// Backspace at the end of a restricted field: over a completion it widens the
// selected tail instead of deleting.
Rules::Outcome RestrictedBackspace(const Rules::Edit& before, const Rules::Edit& after, bool allowBlank,
                                   const kvDropListItems& items)
{
    if (after.text.IsEmpty() && !before.text.IsEmpty())
        return allowBlank ? Kept(after, -1) : Refused(before);
    if (const int item = items.findExact(after.text); item >= 0)
        return Kept(after, item);
    return Kept({before.text, before.start > 0 ? before.start - 1 : before.start, before.end}, Rules::m_ListUnchanged);
}

}  // namespace

kvDropListRules::Outcome kvDropListRules::AfterChar(const Edit& before, const Edit& after, bool backspace,
                                                    bool allowEntry, bool allowBlank, const kvDropListItems& items)
{
    if (allowEntry)
        return FreeEntry(before, after, backspace, items);
    if (before.end != before.text.GetLength()) {
        const int item = items.findExact(after.text);
        return item >= 0 ? Kept(after, item) : Refused(before);
    }
    if (backspace)
        return RestrictedBackspace(before, after, allowBlank, items);
    const int item = items.findPrefix(after.text);
    return item >= 0 ? Completed(after, item, items) : Refused(before);
}

kvDropListRules::Outcome kvDropListRules::Accept(const Edit& after, bool prefixWhenFree, bool allowEntry,
                                                 bool allowBlank, const kvDropListItems& items)
{
    if (allowEntry && prefixWhenFree) {
        const int item = items.findPrefix(after.text);
        return Kept(after, item >= 0 ? item : m_ListUnchanged);
    }
    if (allowEntry)
        return Kept(after, items.findExact(after.text));
    if (after.text.IsEmpty())
        return allowBlank ? Kept(after, -1) : Outcome{true, after, m_ListUnchanged};
    const int item = items.findExact(after.text);
    return item >= 0 ? Kept(after, item) : Outcome{true, after, m_ListUnchanged};
}

int kvDropListRules::FitHeight(int droppedHeight, int fieldHeight, int itemHeight, int itemCount, int minimum,
                               int maximum)
{
    const int allItems = ItemsHeight(itemHeight, itemCount);
    const int room = droppedHeight - fieldHeight;
    const int height = room >= allItems ? allItems : room;
    if (height >= minimum)
        return height;
    return allItems <= maximum ? allItems : maximum;
}
