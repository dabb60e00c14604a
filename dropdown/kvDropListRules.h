// kvDropListRules: what a drop edit list does with its text and its items,
// decided without a window: the completion of a typed key, which edits keep
// the text an item (or empty, where blank is allowed), and the popup's height.
// The items are reached through the list's own searches.
#pragma once

#include "afx/CString.h"
#include "library/kvWinExport.h"

#include <functional>

// The list's searches, as LB_FINDSTRING and LB_FINDSTRINGEXACT answer them
// (ignoring case, -1 when none), and an item's text.
struct kvDropListItems {
    std::function<int(const CString&)> findPrefix;
    std::function<int(const CString&)> findExact;
    std::function<CString(int)> itemText;
};

class KVWIN_API kvDropListRules {
public:
    // The list selection is left as it is.
    static constexpr int m_ListUnchanged = -2;

    // The text and selection before a key and after the edit applied it.
    struct Edit {
        CString text;
        int start;
        int end;
    };
    struct Outcome {
        bool refused;  // beep; the text and selection before the key come back
        Edit field;    // the field afterwards
        int listSel;   // the list's selection afterwards, or m_ListUnchanged
    };

    // A typed character (backspace when backspace is true).
    static Outcome AfterChar(const Edit& before, const Edit& after, bool backspace, bool allowEntry, bool allowBlank,
                             const kvDropListItems& items);
    // An edit of the whole text (Delete, cut, paste): free entry looks the
    // text up (as a prefix when prefixWhenFree, keeping the list's selection
    // when none begins so); restricted entry takes only an
    // item, or an empty text where blank is allowed.
    static Outcome Accept(const Edit& after, bool prefixWhenFree, bool allowEntry, bool allowBlank,
                          const kvDropListItems& items);
    // SizeToFitData's height: the items' height when the dropped height (which
    // includes the field) leaves room for them, else what it leaves; below the
    // minimum, the items' height up to the maximum.
    static int FitHeight(int droppedHeight, int fieldHeight, int itemHeight, int itemCount, int minimum,
                         int maximum);
    // The height of all items with the list's border.
    static int ItemsHeight(int itemHeight, int itemCount) { return itemHeight * itemCount + 2; }
};
