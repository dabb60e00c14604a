// CMenu: a menu or popup menu. The object destroys its menu when it is
// destroyed (Detach first to keep it); FromHandle wraps a menu nobody owns (a
// submenu, a window's menu) in a temporary object, deleted at idle time
// (DeleteTempMap) without touching the menu.
#pragma once

#include "afx/AfxExport.h"
#include "afx/CString.h"
#include "afx/WinTypes.h"

class CWnd;

class AFX_API CMenu {
public:
    CMenu() noexcept = default;
    CMenu(const CMenu&) = delete;
    CMenu& operator=(const CMenu&) = delete;
    virtual ~CMenu();

    static CMenu* FromHandle(HMENU hMenu);
    static void DeleteTempMap() noexcept;

    operator HMENU() const noexcept { return m_hMenu; }
    HMENU GetSafeHmenu() const noexcept { return m_hMenu; }

    BOOL CreateMenu();
    BOOL CreatePopupMenu();
    // Searches the application, then the extension modules (AfxFindResourceHandle).
    BOOL LoadMenu(LPCTSTR lpszResourceName);
    BOOL LoadMenu(UINT nIDResource);
    BOOL DestroyMenu();
    BOOL Attach(HMENU hMenu);
    HMENU Detach();

    BOOL AppendMenu(UINT nFlags, UINT_PTR nIDNewItem = 0, LPCTSTR lpszNewItem = nullptr);
    BOOL InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem = 0, LPCTSTR lpszNewItem = nullptr);
    BOOL ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem = 0, LPCTSTR lpszNewItem = nullptr);
    // DeleteMenu destroys a submenu at the position; RemoveMenu leaves it alive.
    BOOL DeleteMenu(UINT nPosition, UINT nFlags);
    BOOL RemoveMenu(UINT nPosition, UINT nFlags);

    // Both return the previous state, or (UINT)-1 when the item does not exist.
    UINT EnableMenuItem(UINT nIDEnableItem, UINT nEnable);
    UINT CheckMenuItem(UINT nIDCheckItem, UINT nCheck);

    UINT GetMenuItemCount() const;
    UINT GetMenuItemID(int nPos) const;
    UINT GetMenuState(UINT nID, UINT nFlags) const;
    int GetMenuString(UINT nIDItem, LPTSTR lpString, int nMaxCount, UINT nFlags) const;
    int GetMenuString(UINT nIDItem, CString& rString, UINT nFlags) const;
    CMenu* GetSubMenu(int nPos) const;
    BOOL GetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos = FALSE);
    BOOL SetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos = FALSE);

    // With TPM_RETURNCMD the result is the chosen command, 0 when dismissed.
    BOOL TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, LPCRECT lpRect = nullptr);
    BOOL TrackPopupMenuEx(UINT fuFlags, int x, int y, CWnd* pWnd, LPTPMPARAMS lptpm);

    HMENU m_hMenu = nullptr;
};
