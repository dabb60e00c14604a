// kvProgressSchedule: when the progress window shows itself and when it lets
// the application's messages through. Times are clock ticks in milliseconds;
// the window is shown on the first check after the delay and then pumps at
// most every 250 ms, timed from the last pump.
#pragma once

#include "library/kvWinExport.h"

struct KVWIN_API kvProgressSchedule {
    static constexpr long kPumpInterval = 250;

    float delay = 0.0f;         // seconds, single precision as callers give it
    long startTime = 0;         // creation, then the last pump
    bool displayed = false;

    bool ShouldDisplay(long now) const;
    bool ShouldPump(long now) const;
};
