// kvChildKillFocus: the record a control hands its parent when it loses the
// focus: which control lost it and which window gets it (null when the focus
// leaves the application).
#pragma once

#include "library/kvWinExport.h"

class CWnd;

class KVWIN_API kvChildKillFocus {
public:
    kvChildKillFocus() = default;
    kvChildKillFocus(CWnd* pChildWnd, CWnd* pNewWnd) : m_pChildWnd(pChildWnd), m_pNewWnd(pNewWnd) {}
    kvChildKillFocus(const kvChildKillFocus&) = default;
    kvChildKillFocus& operator=(const kvChildKillFocus&) = default;

    CWnd* ChildWnd() const { return m_pChildWnd; }
    CWnd* NewWnd() const { return m_pNewWnd; }

private:
    CWnd* m_pChildWnd = nullptr;
    CWnd* m_pNewWnd = nullptr;
};
