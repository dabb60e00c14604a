// StatusRecorder: stands in for the application's main window while a test
// runs: records the status messages and beeps a formatter or control sends, and
// answers the queries (presets, date order, overtype state) the way an
// application configured to do so would. On Windows it is a real main window
// (a hidden frame set as the thread object's main window); on the host it is
// the seam's receiver.
#pragma once

#include "formatting/kvMessages.h"
#include "formatting/kvStatus.h"
#include "formatting/kvWinAMCtrlValidateInfo.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

class CWnd;

class StatusRecorder {
public:
    StatusRecorder();
    ~StatusRecorder();
    StatusRecorder(const StatusRecorder&) = delete;
    StatusRecorder& operator=(const StatusRecorder&) = delete;

    // Whether a test can see what was sent: status messages on every platform;
    // beeps only on the host (Windows plays them).
    static bool CanObserveMessages() { return true; }
    static bool CanObserveBeeps();
    // Both messages and beeps.
    static bool CanObserve() { return CanObserveMessages() && CanObserveBeeps(); }

    // Answer for a query (wParam 1) with the given lParam; unanswered queries give 0.
    void Answer(LPARAM query, LRESULT result) { m_answers[query] = result; }

    // The main window that receives the status message (null on the host).
    CWnd* MainWindow() const;

    std::vector<std::string> messages;  // shown messages, in order
    int clears = 0;                     // "clear the message" requests
    int beeps = 0;
    std::vector<LPARAM> queries;
    bool overtype = false;              // kept across get and set requests

    // Handles one status message as the main window would.
    LRESULT Receive(WPARAM wParam, LPARAM lParam);

private:
    std::map<LPARAM, LRESULT> m_answers;
#if defined(_WIN32)
    class Frame;
    Frame* m_pFrame = nullptr;  // deletes itself when destroyed
    CWnd* m_pPreviousMainWnd = nullptr;
#endif
};
