// The menu driver: a call-window hook sees the popup open (WM_INITMENUPOPUP)
// and go idle (WM_ENTERIDLE); then the keys are posted to the menu's owner,
// where the menu loop picks them up.
#include "MenuDriver.h"

#include "RealInput.h"

#include "afx/CWnd.h"
#include "menus/kvContextMenu.h"

#include <sstream>
#include <vector>

namespace {

struct KeyPress {
    UINT message;
    WPARAM code;
};

struct Tracking {
    std::vector<KeyPress> keys;
    bool withIds;
    std::string entries;
    bool described, keysSent;
};

Tracking g_tracking;

std::vector<KeyPress> ParseKeys(const std::string& keys)
{
    static const std::pair<std::string, WPARAM> kNames[] = {
        {"down", VK_DOWN}, {"up", VK_UP}, {"right", VK_RIGHT}, {"enter", VK_RETURN}, {"esc", VK_ESCAPE}};
    std::vector<KeyPress> presses;
    std::istringstream words(keys);
    for (std::string word; words >> word;) {
        if (word.size() == 1)
            presses.push_back({WM_CHAR, static_cast<unsigned char>(word[0])});
        for (const auto& name : kNames)
            if (word == name.first)
                presses.push_back({WM_KEYDOWN, name.second});
    }
    return presses;
}

std::string DescribeMenu(HMENU hMenu);

std::string DescribeItem(HMENU hMenu, int index)
{
    char text[64] = "";
    MENUITEMINFOA info{};
    info.cbSize = sizeof info;
    info.fMask = MIIM_FTYPE | MIIM_STATE | MIIM_ID | MIIM_STRING | MIIM_SUBMENU;
    info.dwTypeData = text;
    info.cch = sizeof text;
    GetMenuItemInfoA(hMenu, index, TRUE, &info);
    if (info.fType & MFT_SEPARATOR)
        return "-";
    std::string entry = info.hSubMenu ? text + ("{" + DescribeMenu(info.hSubMenu) + "}")
                        : g_tracking.withIds ? std::to_string(info.wID) + " " + text
                                             : text;
    return entry + (info.fState & MFS_GRAYED ? " (grayed)" : "") + (info.fState & MFS_CHECKED ? " (checked)" : "");
}

std::string DescribeMenu(HMENU hMenu)
{
    std::string entries;
    for (int i = 0; i < GetMenuItemCount(hMenu); ++i)
        entries += (i ? "|" : "") + DescribeItem(hMenu, i);
    return entries;
}

LRESULT CALLBACK WatchMenu(int code, WPARAM wParam, LPARAM lParam)
{
    const CWPSTRUCT& msg = *reinterpret_cast<const CWPSTRUCT*>(lParam);
    if (msg.message == WM_INITMENUPOPUP && !g_tracking.described) {
        g_tracking.entries = DescribeMenu(reinterpret_cast<HMENU>(msg.wParam));
        g_tracking.described = true;
    }
    if (msg.message == WM_ENTERIDLE && msg.wParam == MSGF_MENU && !g_tracking.keysSent) {
        g_tracking.keysSent = true;
        // The menu's owner is the window the idle message reaches.
        for (const KeyPress& key : g_tracking.keys)
            PostMessageA(msg.hwnd, key.message, key.code, 1);
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

// Tracks the menus that open while show runs.
template <class Show>
std::string Track(const std::string& keys, bool withIds, Show show)
{
    g_tracking = Tracking{ParseKeys(keys), withIds, "", false, false};
    HHOOK hook = SetWindowsHookExA(WH_CALLWNDPROC, &WatchMenu, nullptr, GetCurrentThreadId());
    show();
    UnhookWindowsHookEx(hook);
    // Keys the menu did not take must not reach the window afterwards.
    for (MSG msg; PeekMessageA(&msg, nullptr, WM_KEYFIRST, WM_KEYLAST, PM_REMOVE);) {
    }
    return g_tracking.entries;
}

}  // namespace

PopupRun RunPopup(kvContextMenu& menu, CWnd* pWnd, const char* keys)
{
    PopupRun run;
    run.entries = Track(keys, true, [&] { run.chosen = menu.DisplayPopup(pWnd, CPoint(120, 90)); });
    return run;
}

std::string ChooseFromContextMenu(const std::string& keys)
{
    std::string words;
    for (const char ch : keys)
        words += ch == '\r' ? " enter" : ch == '\x1b' ? " esc" : std::string(" ") + ch;
    return Track(words, false, [] { PressKey(VK_F10, true); });
}
