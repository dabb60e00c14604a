// kvProgressSchedule: the progress window's timing decisions.
#include "progress/kvProgressSchedule.h"

bool kvProgressSchedule::ShouldDisplay(long now) const
{
    return !displayed && static_cast<float>(now - startTime) > delay * 1000.0f;
}

bool kvProgressSchedule::ShouldPump(long now) const
{
    return displayed && now - startTime > kPumpInterval;
}
