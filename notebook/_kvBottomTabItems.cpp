// _kvBottomTabItems: insertion, text and deletion of the bottom tabs' items.
#include "notebook/_kvBottomTabItems.h"

#include <algorithm>
#include <cstring>

int _kvBottomTabItems::GetCount() const { return static_cast<int>(m_items.size()); }

bool _kvBottomTabItems::Exists(int nItem) const { return nItem >= 0 && nItem < GetCount(); }

std::unique_ptr<char[]> _kvBottomTabItems::CopyOf(const char* text)
{
    // A title's length is kept within 16 bits.
    const std::size_t length = std::min<std::size_t>(std::strlen(text), 0x7FFF);
    auto copy = std::make_unique<char[]>(length + 1);
    std::memcpy(copy.get(), text, length);
    copy[length] = '\0';
    return copy;
}

LRESULT _kvBottomTabItems::Insert(int nItem, const TCITEM* pItem)
{
    if (pItem == nullptr)
        return -1;
    Item item{*pItem, nullptr};
    if ((pItem->mask & TCIF_TEXT) != 0 && pItem->pszText != nullptr) {
        item.text = CopyOf(pItem->pszText);
        item.fields.pszText = item.text.get();
    } else {
        item.fields.pszText = nullptr;
    }
    const auto where = Exists(nItem) ? m_items.begin() + nItem : m_items.end();
    m_items.insert(where, std::move(item));
    return nItem;
}

BOOL _kvBottomTabItems::GetText(int nItem, TCITEM* pItem) const
{
    if (!Exists(nItem) || pItem == nullptr || (pItem->mask & TCIF_TEXT) == 0 || pItem->pszText == nullptr ||
        pItem->cchTextMax <= 0)
        return FALSE;
    const char* text = Text(nItem);
    const std::size_t length = std::min<std::size_t>(std::strlen(text), pItem->cchTextMax - 1);
    std::memcpy(pItem->pszText, text, length);
    pItem->pszText[length] = '\0';
    return TRUE;
}

BOOL _kvBottomTabItems::SetText(int nItem, const TCITEM* pItem)
{
    if (!Exists(nItem) || pItem == nullptr || (pItem->mask & TCIF_TEXT) == 0 || pItem->pszText == nullptr)
        return FALSE;
    Item& item = m_items[nItem];
    item.text = CopyOf(pItem->pszText);
    item.fields.pszText = item.text.get();
    return TRUE;
}

BOOL _kvBottomTabItems::Delete(int nItem)
{
    if (!Exists(nItem))
        return FALSE;
    m_items.erase(m_items.begin() + nItem);
    return TRUE;
}

void _kvBottomTabItems::DeleteAll() { m_items.clear(); }

const char* _kvBottomTabItems::Text(int nItem) const
{
    if (!Exists(nItem))
        return nullptr;
    const char* text = m_items[nItem].text.get();
    return text != nullptr ? text : "";
}
