// kvPopupWindow
#include "dropdown/kvPopupWindow.h"

#include "afx/CWnd.h"
#include "dropdown/kvPopupPlacement.h"

void kvShowPopupWindow(CWnd& popup, CRect field)
{
    CRect window;
    popup.GetWindowRect(&window);
    popup.SetCapture();
    const CSize screen(::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN));
    const CPoint topLeft = kvPopupPlacement::TopLeft(field, window.Size(), screen);
    popup.SetWindowPos(&CWnd::wndTop, topLeft.x, topLeft.y, window.Width(), window.Height(), SWP_NOACTIVATE);
    popup.ShowWindow(SW_SHOWNORMAL);
    popup.SetFocus();
}

bool kvIsOutsidePopup(CWnd& popup, CPoint point)
{
    CRect client;
    popup.GetClientRect(&client);
    return !client.PtInRect(point);
}

bool kvIsMessageOutsidePopup(CWnd& popup)
{
    const DWORD position = ::GetMessagePos();
    const POINT point{static_cast<short>(LOWORD(position)), static_cast<short>(HIWORD(position))};
    CRect window;
    popup.GetWindowRect(&window);
    return popup.IsWindowVisible() && !window.PtInRect(point);
}
