// Context menu model, shown through the real popup: advisor flags on each kind
// of item, command numbering over hidden items, submenus and resource items,
// keyboard choices running the right action, and the list operations.
#include "MenuDriver.h"
#include "WindowTest.h"

#include "afx/CWnd.h"
#include "menus/kvContextMenu.h"
#include "menus/kvLabeledCMenuItem.h"
#include "menus/kvResourceCMenuItem.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

typedef kvContextMenuItem::CMI_Flag Flag;
typedef kvContextMenuItem::Action Action;
typedef kvContextMenuItem::Advisor Advisor;
typedef kvContextMenu::ItemPtr ItemPtr;

template <int F>
Flag Advise(CWnd*, CPoint&)
{
    return static_cast<Flag>(F);
}

// The actions that ran, in order, and what the last one was called with.
std::vector<int> g_ran;
CWnd* g_actionWnd;
CPoint g_actionPoint;

template <int N>
void Act(CWnd* pWnd, CPoint& point)
{
    g_ran.push_back(N);
    g_actionWnd = pWnd;
    g_actionPoint = point;
}

ItemPtr Item(const char* label, Action action = Action(), Advisor advisor = Advisor())
{
    return ItemPtr(new kvLabeledCMenuItem(label, action, advisor));
}

ItemPtr Separator(Advisor advisor = Advisor())
{
    return ItemPtr(new kvCMenuSeparator(advisor));
}

kvContextMenu Menu(const std::vector<ItemPtr>& items, Advisor advisor = Advisor(), const char* label = "")
{
    kvContextMenu menu(label, advisor);
    for (const ItemPtr& item : items)
        menu.Append(item);
    return menu;
}

ItemPtr Submenu(const char* label, const std::vector<ItemPtr>& items, Advisor advisor = Advisor())
{
    return ItemPtr(new kvContextMenu(Menu(items, advisor, label)));
}

class MenuModel : public WindowTest {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_owner.CreateEx(0, "STATIC", "menu owner", WS_POPUP, 0, 0, 200, 100, nullptr, nullptr));
    }

    PopupRun Show(kvContextMenu& menu, const char* keys = "esc") { return RunPopup(menu, &m_owner, keys); }

    CWnd m_owner;
};

// Read back for a labelled item, a separator and a submenu holding one item.
struct FlagRow { const char* name; int flag; const char *item, *separator, *submenu; };

const FlagRow kFlags[] = {
    {"enabled", 0, "1 A", "-", "S{1 B}"},
    {"grayed", 2, "1 A (grayed)", "-", "S{1 B} (grayed)"},
    {"checked", 4, "1 A (checked)", "-", "S{1 B} (checked)"},
    {"grayed and checked", 6, "1 A (grayed) (checked)", "-", "S{1 B} (grayed) (checked)"},
    {"unchecked adds nothing", 8, "1 A", "-", "S{1 B}"},
    {"checked wins over unchecked", 12, "1 A (checked)", "-", "S{1 B} (checked)"},
    {"bit 1 is ignored", 1, "1 A", "-", "S{1 B}"},
    {"bit 1 beside grayed", 3, "1 A (grayed)", "-", "S{1 B} (grayed)"},
    {"hidden", 16, "", "", ""},
    {"hidden wins over grayed", 18, "", "", ""},
};

Flag g_advice;
Flag AdviseGlobal(CWnd*, CPoint&) { return g_advice; }

TEST_F(MenuModel, AdvisorFlagsBecomeNativeStates)
{
    for (const FlagRow& row : kFlags) {
        SCOPED_TRACE(row.name);
        g_advice = static_cast<Flag>(row.flag);
        const Advisor advisor(&AdviseGlobal);
        kvContextMenu item = Menu({Item("A", Action(), advisor)});
        kvContextMenu separator = Menu({Separator(advisor)});
        kvContextMenu submenu = Menu({Submenu("S", {Item("B")}, advisor)});
        EXPECT_EQ(Show(item).entries, row.item);
        EXPECT_EQ(Show(separator).entries, row.separator);
        EXPECT_EQ(Show(submenu).entries, row.submenu);
    }
}

// nextID: the counter after the popup; chosen and ran: the command the keys chose and the actions run.
struct PopupRow {
    const char* name;
    kvContextMenu (*build)();
    const char *keys, *entries;
    unsigned short nextID;
    unsigned int chosen;
    std::vector<int> ran;
};

const PopupRow kPopups[] = {
    {"hidden item takes no id: the second shown item is the third appended",
     [] { return Menu({Item("A", Act<1>), Item("B", Act<2>, Advise<16>), Item("C", Act<3>)}); }, "down down enter",
     "1 A|2 C", 3, 2, {3}},
    {"submenu numbered in sequence", [] { return Menu({Item("A"), Submenu("S", {Item("B"), Item("C")}), Item("D")}); },
     "esc", "1 A|S{2 B|3 C}|4 D", 5, 0, {}},
    {"item in a submenu",
     [] { return Menu({Item("A", Act<1>), Submenu("S", {Item("B", Act<2>), Item("C", Act<3>)})}); },
     "down down right down enter", "1 A|S{2 B|3 C}", 4, 3, {3}},
    {"empty submenu leaves no entry", [] { return Menu({Item("A"), Submenu("S", {}), Item("B")}); }, "esc", "1 A|2 B", 3,
     0, {}},
    {"submenu of hidden items shows empty",
     [] { return Menu({Item("A"), Submenu("S", {Item("B", Act<2>, Advise<16>)})}); }, "esc", "1 A|S{}", 2, 0, {}},
    {"hidden submenu takes no ids", [] { return Menu({Item("A"), Submenu("S", {Item("B")}, Advise<16>), Item("C")}); },
     "esc", "1 A|2 C", 3, 0, {}},
    {"resource item adds no entry",
     [] { return Menu({Item("A"), ItemPtr(new kvResourceCMenuItem(7, Act<7>, Advisor())), Item("B")}); }, "esc",
     "1 A|2 B", 3, 0, {}},
    {"resource item replaces the action under its id",
     [] {
         return Menu({Item("A", Act<1>), Item("B", Act<2>), ItemPtr(new kvResourceCMenuItem(2, Act<9>, Advisor()))});
     },
     "down down enter", "1 A|2 B", 3, 2, {9}},
    {"hidden separator left out", [] { return Menu({Item("A"), Separator(), Separator(Advise<16>), Item("B")}); },
     "esc", "1 A|-|2 B", 3, 0, {}},
    {"copy of the shared separator", [] { return Menu({ItemPtr(new kvCMenuSeparator(kvContextMenu::SEPARATOR))}); },
     "esc", "-", 1, 0, {}},
    {"own advisor ignored at top level, dismissed", [] { return Menu({Item("A", Act<1>)}, Advise<16>); }, "esc", "1 A",
     2, 0, {}},
    {"mnemonic", [] { return Menu({Item("&Alpha", Act<1>), Item("&Beta", Act<2>)}); }, "b", "1 &Alpha|2 &Beta", 3, 2,
     {2}},
    {"every item hidden: nothing to choose", [] { return Menu({Item("A", Act<1>, Advise<16>)}); }, "enter", "", 1, 0,
     {}},
};

TEST_F(MenuModel, ShownItemsAreNumberedAndTheChosenOneRunsWithWindowAndPoint)
{
    for (const PopupRow& row : kPopups) {
        SCOPED_TRACE(row.name);
        g_ran.clear();
        g_actionWnd = nullptr;
        kvContextMenu menu = row.build();
        kvContextMenuItem::m_ActionID = 40;
        const PopupRun run = Show(menu, row.keys);
        EXPECT_EQ(run.entries, row.entries);
        EXPECT_EQ(kvContextMenuItem::m_ActionID, row.nextID);
        EXPECT_EQ(run.chosen, row.chosen);
        EXPECT_EQ(g_ran, row.ran);
        EXPECT_EQ(g_actionWnd, row.ran.empty() ? nullptr : &m_owner);
        if (!row.ran.empty()) {
            EXPECT_EQ(g_actionPoint, CPoint(120, 90));
        }
    }
}

// edit answers what the operation returned (true for none).
struct ListRow { const char* name; bool (*edit)(kvContextMenu&); const char* entries; };

const char kUntouched[] = "1 Cu&t|2 &Copy|3 Cu&t|&More{4 B}";

const ListRow kListOperations[] = {
    {"insert before", [](kvContextMenu& m) { return m.InsertBefore("&Copy", Item("N")); },
     "1 Cu&t|2 N|3 &Copy|4 Cu&t|&More{5 B}"},
    {"insert after the first match", [](kvContextMenu& m) { return m.InsertAfter("Cu&t", Item("N")); },
     "1 Cu&t|2 N|3 &Copy|4 Cu&t|&More{5 B}"},
    {"insert after a submenu", [](kvContextMenu& m) { return m.InsertAfter("&More", Item("N")); },
     "1 Cu&t|2 &Copy|3 Cu&t|&More{4 B}|5 N"},
    {"insert after an unknown label", [](kvContextMenu& m) { return m.InsertAfter("Paste", Item("N")); }, kUntouched},
    {"a separator has no label to find", [](kvContextMenu& m) { return m.InsertBefore("", Item("N")); }, kUntouched},
    {"delete the first match only", [](kvContextMenu& m) { return m.Delete("Cu&t"), true; },
     "1 &Copy|2 Cu&t|&More{3 B}"},
    {"delete is case-sensitive", [](kvContextMenu& m) { return m.Delete("&copy"), true; }, kUntouched},
    {"the ampersand counts", [](kvContextMenu& m) { return m.Delete("Copy"), true; }, kUntouched},
    {"items inside a submenu are not searched", [](kvContextMenu& m) { return m.Delete("B"), true; }, kUntouched},
    {"delete all", [](kvContextMenu& m) { return m.DeleteAll(), true; }, ""},
};

TEST_F(MenuModel, ListOperationsFindItemsByExactLabel)
{
    for (const ListRow& row : kListOperations) {
        SCOPED_TRACE(row.name);
        kvContextMenu menu = Menu({Item("Cu&t"), Separator(Advise<16>), Item("&Copy"), Item("Cu&t"),
                                   Submenu("&More", {Item("B")})});
        EXPECT_TRUE(row.edit(menu));
        EXPECT_EQ(Show(menu).entries, row.entries);
    }
}

TEST_F(MenuModel, CopiesShareTheirItems)
{
    kvLabeledCMenuItem* item = new kvLabeledCMenuItem("A", Action(), Advisor());
    kvContextMenu original = Menu({ItemPtr(item)});
    kvContextMenu copy = original;
    copy.Append(Item("B"));
    item->SetLabel("Z");
    EXPECT_EQ(Show(original).entries, "1 Z");
    EXPECT_EQ(Show(copy).entries, "1 Z|2 B");
}

}  // namespace
