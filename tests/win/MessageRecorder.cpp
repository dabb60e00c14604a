#include "MessageRecorder.h"

#include <commctrl.h>

MessageRecorder::MessageRecorder(MessageLog& log, std::initializer_list<UINT> messages)
    : m_log(log), m_messages(messages)
{
}

MessageRecorder::~MessageRecorder()
{
    for (Watched* watched : m_watched) {
        if (::IsWindow(watched->hWnd))
            ::RemoveWindowSubclass(watched->hWnd, Procedure, reinterpret_cast<UINT_PTR>(this));
        delete watched;
    }
}

void MessageRecorder::Watch(HWND hWnd, const char* who)
{
    auto* watched = new Watched{this, hWnd, who};
    m_watched.push_back(watched);
    ::SetWindowSubclass(hWnd, Procedure, reinterpret_cast<UINT_PTR>(this), reinterpret_cast<DWORD_PTR>(watched));
}

LRESULT CALLBACK MessageRecorder::Procedure(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                            DWORD_PTR data)
{
    const auto* watched = reinterpret_cast<const Watched*>(data);
    if (watched->recorder->m_messages.count(message) != 0)
        watched->recorder->m_log.Add(watched->who, message, wParam, lParam);
    if (message == WM_NCDESTROY)
        ::RemoveWindowSubclass(hWnd, Procedure, id);
    return ::DefSubclassProc(hWnd, message, wParam, lParam);
}
