// _kvBottomTabItems: the tab items of a bottom-tab notebook, which has no
// platform control to keep them. Each item keeps a private copy of its text.
#pragma once

#include "afx/WinTypes.h"

#include <commctrl.h>

#include <memory>
#include <vector>

class _kvBottomTabItems {
public:
    int GetCount() const;
    // Inserted at nItem when it is below the count, else appended; all fields
    // are kept. Answers nItem, not the position used.
    LRESULT Insert(int nItem, const TCITEM* pItem);
    // Only the text: at most cchTextMax characters with the terminator.
    BOOL GetText(int nItem, TCITEM* pItem) const;
    // Only the text is taken.
    BOOL SetText(int nItem, const TCITEM* pItem);
    BOOL Delete(int nItem);
    void DeleteAll();
    // The item's text ("" for none); null for an index out of range.
    const char* Text(int nItem) const;

private:
    struct Item {
        TCITEM fields;
        std::unique_ptr<char[]> text;
    };
    bool Exists(int nItem) const;
    static std::unique_ptr<char[]> CopyOf(const char* text);

    std::vector<Item> m_items;
};
