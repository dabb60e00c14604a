// WindowTest: the fixture every window test derives from. It installs the test
// application's main window (which answers the status message and records
// what it is sent), guards modal loops with a watchdog, and drains the queue
// before the windows of a test go away.
#pragma once

#include "ModalWatchdog.h"
#include "RealInput.h"
#include "text/StatusRecorder.h"

#include <gtest/gtest.h>

class WindowTest : public ::testing::Test {
protected:
    void TearDown() override
    {
        flushEvents();
        EXPECT_FALSE(watchdog.Fired()) << "a modal loop had to be ended by the watchdog";
    }

    StatusRecorder status;
    ModalWatchdog watchdog{30000};
};
