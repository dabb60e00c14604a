// Runs a context menu through the real TrackPopupMenu: the native popup is read
// back as text when it opens, then the keys are pressed in it. Run it under the
// fixture's watchdog, which ends a menu that stays open.
#pragma once

#include <string>

class CWnd;
class kvContextMenu;

struct PopupRun {
    // Native items separated by "|": "1 &Undo", "2 Cu&t (grayed)", "3 B (checked)",
    // "-" for a separator, "Sub{4 A|5 B}" for a submenu.
    std::string entries;
    unsigned int chosen = 0;  // DisplayPopup's answer
};

// keys: "down", "up", "right", "enter", "esc", or one character typed as a
// mnemonic, separated by blanks. The menu is shown at (120, 90).
PopupRun RunPopup(kvContextMenu& menu, CWnd* pWnd, const char* keys);

// Opens the focused window's context menu with Shift+F10 and, once it is open,
// types keys into it (mnemonics, '\r', '\x1b'). Returns the items it showed
// without their ids: "Cu&t (grayed)|-|&Paste", labels of hidden items absent.
std::string ChooseFromContextMenu(const std::string& keys);
