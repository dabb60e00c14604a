// MessageLog: the messages and handler calls a test observed, in order, and the
// comparison with an expected sequence (a static table), which reports the
// caller's file and line and prints both sequences when they differ.
#pragma once

#include "afx/WinTypes.h"

#include <cstddef>
#include <iterator>
#include <string>
#include <vector>

struct LoggedMessage {
    std::string who;   // the window or handler that saw it ("edit", "parent" ...)
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
};

// Which parts of an expected entry are compared besides who and message.
enum ExpectedFlags : int {
    kAnyParams = 0,
    kWParam = 1,
    kLParam = 2,
    kOptional = 4,  // may be missing from the actual sequence
};

struct ExpectedMessage {
    const char* who;
    UINT message;
    int flags;
    WPARAM wParam;
    LPARAM lParam;
};

class MessageLog {
public:
    void Add(const std::string& who, UINT message, WPARAM wParam = 0, LPARAM lParam = 0)
    {
        m_entries.push_back({who, message, wParam, lParam});
    }
    void Clear() { m_entries.clear(); }
    const std::vector<LoggedMessage>& Entries() const { return m_entries; }

private:
    std::vector<LoggedMessage> m_entries;
};

// The symbolic name of a message for failure output ("WM_CHAR", or hex).
std::string MessageName(UINT message);

void CompareSequence(const MessageLog& log, const ExpectedMessage* expected, std::size_t count,
                     const char* context, const char* file, int line);

#define EXPECT_SEQUENCE(log, expected) \
    CompareSequence(log, expected, std::size(expected), #expected, __FILE__, __LINE__)
