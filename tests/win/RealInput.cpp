#include "RealInput.h"

#include "afx/CWinThread.h"

#include <cstring>
#include <vector>

namespace {

INPUT KeyInput(WORD vk, bool up)
{
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = vk;
    input.ki.dwFlags = up ? KEYEVENTF_KEYUP : 0;
    return input;
}

INPUT MouseInput(DWORD flags, LONG dx = 0, LONG dy = 0)
{
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags;
    input.mi.dx = dx;
    input.mi.dy = dy;
    return input;
}

void Send(std::vector<INPUT> inputs)
{
    ::SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}

// Absolute mouse coordinates run from 0 to 65535 across the screen.
LONG ToAbsolute(LONG pixel, int screenSize) { return pixel * 65535 / (screenSize - 1); }

}  // namespace

void flushEvents()
{
    // X events arrive asynchronously: wait until nothing comes for a while.
    constexpr DWORD kQuietMilliseconds = 50;
    constexpr DWORD kMaxMilliseconds = 1000;
    const DWORD start = ::GetTickCount();
    while (::GetTickCount() - start < kMaxMilliseconds) {
        if (::MsgWaitForMultipleObjects(0, nullptr, FALSE, kQuietMilliseconds, QS_ALLINPUT) == WAIT_TIMEOUT)
            break;
        pumpPendingEvents();
    }
}

void pumpPendingEvents()
{
    MSG msg;
    while (::PeekMessageA(&msg, nullptr, 0, 0, PM_NOREMOVE)) {
        // A quit request belongs to a loop the test is not running.
        if (msg.message == WM_QUIT) {
            ::PeekMessageA(&msg, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE);
            continue;
        }
        AfxPumpMessage();
    }
}

void FocusForInput(HWND hWndTop, HWND hWndFocus)
{
    ::SetForegroundWindow(hWndTop);
    ::SetFocus(hWndFocus);
    flushEvents();
}

void PressKey(WORD vk, bool shift, bool control, bool alt)
{
    QueueKey(vk, shift, control, alt);
    flushEvents();
}

void QueueKey(WORD vk, bool shift, bool control, bool alt)
{
    std::vector<INPUT> inputs;
    const std::pair<bool, WORD> modifiers[] = {{shift, VK_SHIFT}, {control, VK_CONTROL}, {alt, VK_MENU}};
    for (const auto& [held, key] : modifiers) {
        if (held)
            inputs.push_back(KeyInput(key, false));
    }
    inputs.push_back(KeyInput(vk, false));
    inputs.push_back(KeyInput(vk, true));
    for (const auto& [held, key] : modifiers) {
        if (held)
            inputs.push_back(KeyInput(key, true));
    }
    Send(inputs);
}

void TypeText(const std::string& text)
{
    for (const char ch : text) {
        // Low byte: the key; high byte: the shift state it needs.
        const SHORT scan = ::VkKeyScanA(ch);
        PressKey(LOBYTE(scan), (HIBYTE(scan) & 1) != 0, (HIBYTE(scan) & 2) != 0, (HIBYTE(scan) & 4) != 0);
    }
}

void ClickAt(HWND hWnd, POINT clientPoint, bool right)
{
    QueueClickAt(hWnd, clientPoint, right);
    flushEvents();
}

void QueueClickAt(HWND hWnd, POINT clientPoint, bool right)
{
    POINT screen = clientPoint;
    ::ClientToScreen(hWnd, &screen);
    const LONG dx = ToAbsolute(screen.x, ::GetSystemMetrics(SM_CXSCREEN));
    const LONG dy = ToAbsolute(screen.y, ::GetSystemMetrics(SM_CYSCREEN));
    Send({MouseInput(MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE, dx, dy),
          MouseInput(right ? MOUSEEVENTF_RIGHTDOWN : MOUSEEVENTF_LEFTDOWN),
          MouseInput(right ? MOUSEEVENTF_RIGHTUP : MOUSEEVENTF_LEFTUP)});
}

void SetClipboardText(const char* text)
{
    if (!::OpenClipboard(nullptr))
        return;
    ::EmptyClipboard();
    if (text != nullptr) {
        const SIZE_T size = std::strlen(text) + 1;
        HGLOBAL hData = ::GlobalAlloc(GMEM_MOVEABLE, size);
        std::memcpy(::GlobalLock(hData), text, size);
        ::GlobalUnlock(hData);
        ::SetClipboardData(CF_TEXT, hData);
    }
    ::CloseClipboard();
}

std::string ClipboardText()
{
    std::string text;
    if (!::OpenClipboard(nullptr))
        return text;
    if (HANDLE hData = ::GetClipboardData(CF_TEXT)) {
        text = static_cast<const char*>(::GlobalLock(hData));
        ::GlobalUnlock(hData);
    }
    ::CloseClipboard();
    return text;
}

void MoveMouseTo(HWND hWnd, POINT clientPoint)
{
    POINT screen = clientPoint;
    ::ClientToScreen(hWnd, &screen);
    Send({MouseInput(MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE, ToAbsolute(screen.x, ::GetSystemMetrics(SM_CXSCREEN)),
                     ToAbsolute(screen.y, ::GetSystemMetrics(SM_CYSCREEN)))});
    flushEvents();
}

void PressLeftButton(bool down)
{
    Send({MouseInput(down ? MOUSEEVENTF_LEFTDOWN : MOUSEEVENTF_LEFTUP)});
    flushEvents();
}
