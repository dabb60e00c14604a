// Popup menus built, changed and read back through CMenu: item ids, states and
// texts, submenus and who destroys them, and the wrapper objects GetSubMenu
// hands out.
#include "afx/CMenu.h"

#include <gtest/gtest.h>

#include <string>

namespace {

// One entry per item, separated by "|": "1 &Open", "2 &Save (grayed)", "-" for a
// separator, "Recent{4 a.txt}" for a submenu. Read through the wrappers only.
std::string Describe(const CMenu& menu)
{
    std::string description;
    for (UINT i = 0; i < menu.GetMenuItemCount(); ++i) {
        if (i > 0)
            description += "|";
        const UINT state = menu.GetMenuState(i, MF_BYPOSITION);
        if (state & MF_SEPARATOR) {
            description += "-";
            continue;
        }
        CString text;
        menu.GetMenuString(i, text, MF_BYPOSITION);
        if (state & MF_POPUP) {
            description += std::string(text) + "{" + Describe(*menu.GetSubMenu(static_cast<int>(i))) + "}";
            continue;
        }
        description += std::to_string(menu.GetMenuItemID(static_cast<int>(i))) + " " + text.GetString();
        if (state & MF_GRAYED)
            description += " (grayed)";
        if (state & MF_CHECKED)
            description += " (checked)";
    }
    return description;
}

const UINT kRecentFile = 4;

// "1 &Open|2 &Save (grayed)|-|3 &Bold (checked)|Recent{4 a.txt}"
void BuildFileMenu(CMenu& menu)
{
    static const struct {
        UINT flags;
        UINT id;
        const char* text;
    } kItems[] = {{MF_STRING, 1, "&Open"},
                  {MF_STRING | MF_GRAYED, 2, "&Save"},
                  {MF_SEPARATOR, 0, nullptr},
                  {MF_STRING | MF_CHECKED, 3, "&Bold"}};
    ASSERT_TRUE(menu.CreatePopupMenu());
    for (const auto& item : kItems)
        ASSERT_TRUE(menu.AppendMenu(item.flags, item.id, item.text));
    CMenu recent;
    recent.CreatePopupMenu();
    recent.AppendMenu(MF_STRING, kRecentFile, "a.txt");
    ASSERT_TRUE(menu.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(recent.Detach()), "Recent"));
}

TEST(Menu, AppendedItemsReadBackWithTheirIdsStatesAndTexts)
{
    CMenu menu;
    BuildFileMenu(menu);
    EXPECT_EQ(Describe(menu), "1 &Open|2 &Save (grayed)|-|3 &Bold (checked)|Recent{4 a.txt}");
}

MENUITEMINFO ItemInfo(UINT fMask)
{
    MENUITEMINFO info{};
    info.cbSize = sizeof info;
    info.fMask = fMask;
    return info;
}

struct MenuChange {
    const char* name;
    void (*change)(CMenu& menu);
    const char* expected;
};

const MenuChange kChanges[] = {
    {"EnableMenuItem grays by command and returns the previous state",
     [](CMenu& menu) { EXPECT_EQ(menu.EnableMenuItem(1, MF_BYCOMMAND | MF_GRAYED), UINT(MF_ENABLED)); },
     "1 &Open (grayed)|2 &Save (grayed)|-|3 &Bold (checked)|Recent{4 a.txt}"},
    {"EnableMenuItem of a missing item changes nothing and answers -1",
     [](CMenu& menu) { EXPECT_EQ(menu.EnableMenuItem(99, MF_BYCOMMAND | MF_ENABLED), UINT(-1)); },
     "1 &Open|2 &Save (grayed)|-|3 &Bold (checked)|Recent{4 a.txt}"},
    {"CheckMenuItem by command reaches into submenus",
     [](CMenu& menu) {
         EXPECT_EQ(menu.CheckMenuItem(kRecentFile, MF_BYCOMMAND | MF_CHECKED), UINT(MF_UNCHECKED));
     },
     "1 &Open|2 &Save (grayed)|-|3 &Bold (checked)|Recent{4 a.txt (checked)}"},
    {"InsertMenu by position goes before that position",
     [](CMenu& menu) { EXPECT_TRUE(menu.InsertMenu(1, MF_BYPOSITION | MF_STRING, 5, "&New")); },
     "1 &Open|5 &New|2 &Save (grayed)|-|3 &Bold (checked)|Recent{4 a.txt}"},
    {"ModifyMenu replaces id, text and state; long texts come back whole",
     [](CMenu& menu) {
         EXPECT_TRUE(menu.ModifyMenu(2, MF_BYCOMMAND | MF_STRING, 6, "Save the document under another &name"));
     },
     "1 &Open|6 Save the document under another &name|-|3 &Bold (checked)|Recent{4 a.txt}"},
    {"SetMenuItemInfo changes text and state",
     [](CMenu& menu) {
         char text[] = "&Close";
         MENUITEMINFO info = ItemInfo(MIIM_STRING | MIIM_STATE);
         info.fState = MFS_GRAYED | MFS_CHECKED;
         info.dwTypeData = text;
         EXPECT_TRUE(menu.SetMenuItemInfo(1, &info));
         MENUITEMINFO byPosition = ItemInfo(MIIM_ID);
         EXPECT_TRUE(menu.GetMenuItemInfo(0, &byPosition, TRUE));
         EXPECT_EQ(byPosition.wID, 1u);
     },
     "1 &Close (grayed) (checked)|2 &Save (grayed)|-|3 &Bold (checked)|Recent{4 a.txt}"},
    {"AppendMenu adds a submenu",
     [](CMenu& menu) {
         CMenu more;
         more.CreatePopupMenu();
         more.AppendMenu(MF_STRING, 7, "x");
         EXPECT_TRUE(menu.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(more.Detach()), "More"));
     },
     "1 &Open|2 &Save (grayed)|-|3 &Bold (checked)|Recent{4 a.txt}|More{7 x}"},
};

TEST(Menu, ChangesShowInWhatTheMenuReadsBack)
{
    for (const MenuChange& row : kChanges) {
        SCOPED_TRACE(row.name);
        CMenu menu;
        BuildFileMenu(menu);
        row.change(menu);
        EXPECT_EQ(Describe(menu), row.expected);
        CMenu::DeleteTempMap();
    }
}

struct SubmenuRemoval {
    const char* name;
    BOOL (CMenu::*remove)(UINT nPosition, UINT nFlags);
    bool submenuAlive;
};

const SubmenuRemoval kRemovals[] = {
    {"DeleteMenu destroys the submenu", &CMenu::DeleteMenu, false},
    {"RemoveMenu leaves the submenu to the caller", &CMenu::RemoveMenu, true},
};

TEST(Menu, OnlyDeleteMenuDestroysASubmenu)
{
    for (const SubmenuRemoval& row : kRemovals) {
        SCOPED_TRACE(row.name);
        CMenu menu;
        BuildFileMenu(menu);
        const HMENU hRecent = menu.GetSubMenu(4)->GetSafeHmenu();
        EXPECT_TRUE((menu.*row.remove)(4, MF_BYPOSITION));
        EXPECT_EQ(menu.GetMenuItemCount(), 4u);
        EXPECT_EQ(::IsMenu(hRecent) != FALSE, row.submenuAlive);
        if (row.submenuAlive)
            ::DestroyMenu(hRecent);
        CMenu::DeleteTempMap();
    }
}

TEST(Menu, GetSubMenuHandsOutTheAttachedObjectOrATemporary)
{
    CMenu menu;
    BuildFileMenu(menu);
    CMenu* pTemporary = menu.GetSubMenu(4);
    ASSERT_NE(pTemporary, nullptr);
    EXPECT_EQ(menu.GetSubMenu(4), pTemporary);
    EXPECT_EQ(menu.GetSubMenu(0), nullptr) << "a plain item has no submenu";

    CMenu recent;
    recent.Attach(pTemporary->GetSafeHmenu());
    EXPECT_EQ(menu.GetSubMenu(4), &recent);
    recent.Detach();  // the parent menu destroys it
    EXPECT_EQ(menu.GetSubMenu(4), pTemporary);

    CMenu::DeleteTempMap();
    EXPECT_TRUE(::IsMenu(menu.GetSubMenu(4)->GetSafeHmenu())) << "temporaries leave their menus";
}

}  // namespace
