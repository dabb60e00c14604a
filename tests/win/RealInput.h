// Real input for window tests: keys and clicks through SendInput, which Wine
// turns into the messages a user's typing produces (through the real queue and
// TranslateMessage), and flushEvents to let them all arrive.
#pragma once

#include "afx/WinTypes.h"

#include <string>

// Pumps the thread's messages (through the framework's PreTranslateMessage
// routing) until the queue stays empty for a moment.
void flushEvents();
// Pumps the messages already queued, without waiting for more.
void pumpPendingEvents();

// Brings hWndTop to the front and gives hWndFocus the focus.
void FocusForInput(HWND hWndTop, HWND hWndFocus);

// Presses and releases a virtual key, with Shift, Ctrl or Alt held as asked.
void PressKey(WORD vk, bool shift = false, bool control = false, bool alt = false);
// Types printable characters and '\t', '\r', '\b' with the keys that produce them.
void TypeText(const std::string& text);
// A left (or right) click at a point of hWnd's client area.
void ClickAt(HWND hWnd, POINT clientPoint, bool right = false);

// PressKey and ClickAt without waiting for the events to arrive: for long runs
// of input that pump the queue themselves.
void QueueKey(WORD vk, bool shift = false, bool control = false, bool alt = false);
void QueueClickAt(HWND hWnd, POINT clientPoint, bool right = false);

// The real clipboard's text. Null empties the clipboard.
void SetClipboardText(const char* text);
std::string ClipboardText();

// Puts the clipboard's text back when the test ends.
class ClipboardKeeper {
public:
    ClipboardKeeper()
        : m_hadText(::IsClipboardFormatAvailable(CF_TEXT) != FALSE), m_text(m_hadText ? ClipboardText() : "")
    {
    }
    ~ClipboardKeeper() { SetClipboardText(m_hadText ? m_text.c_str() : nullptr); }
    ClipboardKeeper(const ClipboardKeeper&) = delete;
    ClipboardKeeper& operator=(const ClipboardKeeper&) = delete;

private:
    bool m_hadText;
    std::string m_text;
};

// The mouse moved to a point of hWnd's client area, with no button pressed or
// released; then the events are let in.
void MoveMouseTo(HWND hWnd, POINT clientPoint);
// The left button pressed (down) or released where the mouse is.
void PressLeftButton(bool down);
