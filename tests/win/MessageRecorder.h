// MessageRecorder: watches windows through a subclass procedure and appends
// the messages they receive to a MessageLog, keeping only the messages a test
// names (so that paint, hit-test and input-method noise never reaches it).
#pragma once

#include "MessageLog.h"

#include <set>
#include <vector>

class MessageRecorder {
public:
    MessageRecorder(MessageLog& log, std::initializer_list<UINT> messages);
    ~MessageRecorder();
    MessageRecorder(const MessageRecorder&) = delete;
    MessageRecorder& operator=(const MessageRecorder&) = delete;

    // Records hWnd's messages under the name who until this recorder ends.
    void Watch(HWND hWnd, const char* who);

private:
    static LRESULT CALLBACK Procedure(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                      DWORD_PTR data);
    struct Watched {
        MessageRecorder* recorder;
        HWND hWnd;
        const char* who;
    };

    MessageLog& m_log;
    std::set<UINT> m_messages;
    std::vector<Watched*> m_watched;
};
