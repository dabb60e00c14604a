// CMenu: a menu or popup menu.
#include "afx/CMenu.h"

#include "afx/CHandleMap.h"
#include "afx/CWnd.h"
#include "afx/AfxExtension.h"

#include <cassert>
#include <memory>

namespace {

std::unique_ptr<CMenu> MakeTemporary(HMENU) { return std::make_unique<CMenu>(); }

using MenuHandleMap = CHandleMap<CMenu, HMENU, &CMenu::m_hMenu>;

MenuHandleMap& ThreadMap() { return MenuHandleMap::OfThisThread(MakeTemporary); }

}  // namespace

CMenu::~CMenu() { DestroyMenu(); }

CMenu* CMenu::FromHandle(HMENU hMenu) { return ThreadMap().FromHandle(hMenu); }

void CMenu::DeleteTempMap() noexcept { ThreadMap().DeleteTemp(); }

BOOL CMenu::CreateMenu() { return Attach(::CreateMenu()); }

BOOL CMenu::CreatePopupMenu() { return Attach(::CreatePopupMenu()); }

BOOL CMenu::LoadMenu(LPCTSTR lpszResourceName)
{
    HINSTANCE hInst = AfxFindResourceHandle(lpszResourceName, RT_MENU);
    return Attach(::LoadMenu(hInst, lpszResourceName));
}

BOOL CMenu::LoadMenu(UINT nIDResource) { return LoadMenu(MAKEINTRESOURCE(nIDResource)); }

BOOL CMenu::DestroyMenu()
{
    if (m_hMenu == nullptr)
        return FALSE;
    return ::DestroyMenu(Detach());
}

BOOL CMenu::Attach(HMENU hMenu)
{
    assert(m_hMenu == nullptr);
    if (hMenu == nullptr)
        return FALSE;
    m_hMenu = hMenu;
    ThreadMap().SetPermanent(hMenu, this);
    return TRUE;
}

HMENU CMenu::Detach()
{
    HMENU hMenu = m_hMenu;
    if (hMenu != nullptr)
        ThreadMap().RemoveHandle(hMenu);
    m_hMenu = nullptr;
    return hMenu;
}

BOOL CMenu::AppendMenu(UINT nFlags, UINT_PTR nIDNewItem, LPCTSTR lpszNewItem)
{
    assert(::IsMenu(m_hMenu));
    return ::AppendMenu(m_hMenu, nFlags, nIDNewItem, lpszNewItem);
}

BOOL CMenu::InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, LPCTSTR lpszNewItem)
{
    assert(::IsMenu(m_hMenu));
    return ::InsertMenu(m_hMenu, nPosition, nFlags, nIDNewItem, lpszNewItem);
}

BOOL CMenu::ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, LPCTSTR lpszNewItem)
{
    assert(::IsMenu(m_hMenu));
    return ::ModifyMenu(m_hMenu, nPosition, nFlags, nIDNewItem, lpszNewItem);
}

BOOL CMenu::DeleteMenu(UINT nPosition, UINT nFlags)
{
    assert(::IsMenu(m_hMenu));
    return ::DeleteMenu(m_hMenu, nPosition, nFlags);
}

BOOL CMenu::RemoveMenu(UINT nPosition, UINT nFlags)
{
    assert(::IsMenu(m_hMenu));
    return ::RemoveMenu(m_hMenu, nPosition, nFlags);
}

UINT CMenu::EnableMenuItem(UINT nIDEnableItem, UINT nEnable)
{
    assert(::IsMenu(m_hMenu));
    return static_cast<UINT>(::EnableMenuItem(m_hMenu, nIDEnableItem, nEnable));
}

UINT CMenu::CheckMenuItem(UINT nIDCheckItem, UINT nCheck)
{
    assert(::IsMenu(m_hMenu));
    return ::CheckMenuItem(m_hMenu, nIDCheckItem, nCheck);
}

UINT CMenu::GetMenuItemCount() const
{
    assert(::IsMenu(m_hMenu));
    return static_cast<UINT>(::GetMenuItemCount(m_hMenu));
}

UINT CMenu::GetMenuItemID(int nPos) const
{
    assert(::IsMenu(m_hMenu));
    return ::GetMenuItemID(m_hMenu, nPos);
}

UINT CMenu::GetMenuState(UINT nID, UINT nFlags) const
{
    assert(::IsMenu(m_hMenu));
    return ::GetMenuState(m_hMenu, nID, nFlags);
}

int CMenu::GetMenuString(UINT nIDItem, LPTSTR lpString, int nMaxCount, UINT nFlags) const
{
    assert(::IsMenu(m_hMenu));
    return ::GetMenuString(m_hMenu, nIDItem, lpString, nMaxCount, nFlags);
}

// Asks for the length first, so that texts of any length come back whole.
int CMenu::GetMenuString(UINT nIDItem, CString& rString, UINT nFlags) const
{
    assert(::IsMenu(m_hMenu));
    const int nLength = ::GetMenuString(m_hMenu, nIDItem, nullptr, 0, nFlags);
    if (nLength <= 0) {
        rString.Empty();
        return 0;
    }
    const int nCopied = ::GetMenuString(m_hMenu, nIDItem, rString.GetBuffer(nLength), nLength + 1, nFlags);
    rString.ReleaseBuffer(nCopied);
    return nCopied;
}

CMenu* CMenu::GetSubMenu(int nPos) const
{
    assert(::IsMenu(m_hMenu));
    return FromHandle(::GetSubMenu(m_hMenu, nPos));
}

BOOL CMenu::GetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos)
{
    assert(::IsMenu(m_hMenu));
    return ::GetMenuItemInfo(m_hMenu, uItem, fByPos, lpMenuItemInfo);
}

BOOL CMenu::SetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos)
{
    assert(::IsMenu(m_hMenu));
    return ::SetMenuItemInfo(m_hMenu, uItem, fByPos, lpMenuItemInfo);
}

BOOL CMenu::TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, LPCRECT lpRect)
{
    assert(::IsMenu(m_hMenu) && pWnd != nullptr);
    return ::TrackPopupMenu(m_hMenu, nFlags, x, y, 0, pWnd->m_hWnd, lpRect);
}

BOOL CMenu::TrackPopupMenuEx(UINT fuFlags, int x, int y, CWnd* pWnd, LPTPMPARAMS lptpm)
{
    assert(::IsMenu(m_hMenu) && pWnd != nullptr);
    return ::TrackPopupMenuEx(m_hMenu, fuFlags, x, y, pWnd->m_hWnd, lptpm);
}
