// StatusRecorder: stands in for the application's main window while a text test
// runs: records the status messages and beeps a formatter sends, and answers
// the queries (presets, date order) the way an application configured to do so would.
#pragma once

#include "formatting/kvMessages.h"
#include "formatting/kvStatus.h"
#include "formatting/kvWinAMCtrlValidateInfo.h"

#include <map>
#include <string>
#include <vector>

class StatusRecorder {
public:
    StatusRecorder();
    ~StatusRecorder();
    StatusRecorder(const StatusRecorder&) = delete;
    StatusRecorder& operator=(const StatusRecorder&) = delete;

    // Whether this platform lets a test see what the formatter sent. On Windows
    // status messages need the framework's main window and beeps cannot be seen.
    static bool CanObserve();

    // Answer for a query (wParam 1) with the given lParam; unanswered queries give 0.
    void Answer(LPARAM query, LRESULT result) { m_answers[query] = result; }

    std::vector<std::string> messages;  // shown messages, in order
    int beeps = 0;
    std::vector<LPARAM> queries;

private:
    LRESULT Receive(WPARAM wParam, LPARAM lParam);
    std::map<LPARAM, LRESULT> m_answers;
};
