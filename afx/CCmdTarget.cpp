// CCmdTarget: the message-map lookup every map-driven class shares.
#include "afx/CCmdTarget.h"

namespace {
bool Matches(const AFX_MSGMAP_ENTRY& entry, UINT nMessage, UINT nCode, UINT nID)
{
    // A registered message's variable is 0 until registration: never WM_NULL.
    const bool message = entry.pnRegisteredMessage != nullptr
                             ? nMessage != 0 && *entry.pnRegisteredMessage == nMessage
                             : entry.nMessage == nMessage;
    return message && entry.nCode == nCode && nID >= entry.nID && nID <= entry.nLastID;
}
}  // namespace

const AFX_MSGMAP* CCmdTarget::GetThisMessageMap()
{
    static const AFX_MSGMAP_ENTRY noEntries[] = {{0, 0, 0, 0, nullptr, nullptr}};
    static const AFX_MSGMAP rootMap = {nullptr, &noEntries[0]};
    return &rootMap;
}

const AFX_MSGMAP* CCmdTarget::GetMessageMap() const { return GetThisMessageMap(); }

bool CCmdTarget::DispatchToMap(UINT nMessage, UINT nCode, UINT nID, WPARAM wParam, LPARAM lParam,
                               LRESULT* pResult)
{
    for (const AFX_MSGMAP* pMap = GetMessageMap(); pMap != nullptr;
         pMap = pMap->pfnGetBaseMap != nullptr ? pMap->pfnGetBaseMap() : nullptr) {
        for (const AFX_MSGMAP_ENTRY* pEntry = pMap->lpEntries; pEntry->pfn != nullptr; ++pEntry) {
            if (!Matches(*pEntry, nMessage, nCode, nID))
                continue;
            LRESULT lResult = 0;
            if (pEntry->pfn(this, wParam, lParam, &lResult)) {
                *pResult = lResult;
                return true;
            }
        }
    }
    return false;
}
