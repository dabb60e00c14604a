// The progress window's rules without a window: its layout for a message area,
// when it shows itself and pumps, and the text bar's range, fill and percentage.
#include "progress/kvProgressBarState.h"
#include "progress/kvProgressLayout.h"
#include "progress/kvProgressSchedule.h"

#include <gtest/gtest.h>

namespace {

// "Cancel" 34 by 13 pixels, edges of 2: the button 63 by 19.
struct LayoutRow { const char* name; int width, textHeight; bool bar, button;
                   CRect message, barRect, buttonRect; CSize client; };
const LayoutRow kLayouts[] = {
    {"bar and button", 200, 52, true, true, CRect(10, 10, 210, 62), CRect(10, 72, 210, 91), CRect(79, 101, 142, 120),
     CSize(220, 130)},
    {"no bar: the button under the message", 200, 52, false, true, CRect(10, 10, 210, 62), CRect(),
     CRect(79, 72, 142, 91), CSize(220, 111)},
    {"no button: no room below the bar", 200, 52, true, false, CRect(10, 10, 210, 62), CRect(10, 72, 210, 91),
     CRect(110, 101, 110, 120), CSize(220, 101)},
};

TEST(ProgressRules, Layout)
{
    for (const LayoutRow& row : kLayouts) {
        SCOPED_TRACE(row.name);
        kvProgressLayout layout{row.width, row.textHeight, CSize(34, 13), CSize(2, 2), row.bar, row.button};
        EXPECT_EQ(layout.MessageRect(), row.message);
        EXPECT_EQ(layout.BarRect(), row.barRect);
        EXPECT_EQ(layout.ButtonRect(), row.buttonRect);
        EXPECT_EQ(layout.ClientSize(), row.client);
    }
}

// Started at 1000 ms.
struct ScheduleRow { const char* name; float delay; bool displayed; long now; bool display, pump; };
const ScheduleRow kSchedule[] = {
    {"hidden through the delay", 2.0f, false, 3000, false, false},
    {"shown on the first check after it", 2.0f, false, 3001, true, false},
    {"no delay: shown at once", 0.0f, false, 1001, true, false},
    {"displayed: no pump within 250 ms", 2.0f, true, 1250, false, false},
    {"displayed: pump after 250 ms", 2.0f, true, 1251, false, true},
    {"hidden: no pump however late", 9.0f, false, 5000, false, false},
};

TEST(ProgressRules, ShowingAndPumping)
{
    for (const ScheduleRow& row : kSchedule) {
        SCOPED_TRACE(row.name);
        const kvProgressSchedule schedule{row.delay, 1000, row.displayed};
        EXPECT_EQ(schedule.ShouldDisplay(row.now), row.display);
        EXPECT_EQ(schedule.ShouldPump(row.now), row.pump);
    }
}

struct BarRow { const char* name; int lower, upper, pos; int newLower, newUpper; const char* percent; int filled; };
const BarRow kBars[] = {
    {"a quarter", 0, 100, 25, 0, 100, "25%", 50},
    {"29 of 100 is 29 percent", 0, 100, 29, 0, 100, "29%", 58},
    {"a third truncated", 0, 3, 1, 0, 3, "33%", 66},
    {"above the range raises the upper bound", 0, 100, 150, 0, 150, "100%", 200},
    {"below the range lowers the lower bound", 10, 100, 5, 5, 100, "5%", 10},
    {"the lower bound is not subtracted", 50, 100, 75, 50, 100, "150%", 300},
    {"an empty range fills nothing", 0, 0, 0, 0, 0, "0%", 0},
};

TEST(ProgressRules, BarRangeFillAndPercent)
{
    for (const BarRow& row : kBars) {
        SCOPED_TRACE(row.name);
        kvProgressBarState bar;
        bar.lower = row.lower;
        bar.upper = row.upper;
        EXPECT_EQ(bar.SetPos(row.pos), 0);
        EXPECT_EQ(bar.lower, row.newLower);
        EXPECT_EQ(bar.upper, row.newUpper);
        EXPECT_STREQ(bar.PercentText(), row.percent);
        EXPECT_EQ(bar.FilledWidth(200), row.filled);
    }
}

TEST(ProgressRules, RepaintOnlyWhenTheFillMoves)
{
    kvProgressBarState bar;
    EXPECT_TRUE(bar.NeedsRepaint());  // never drawn
    bar.upper = 1000;
    bar.clientWidth = 200;
    bar.filledWidth = 0;
    bar.SetPos(4);                     // four fifths of a pixel
    EXPECT_FALSE(bar.NeedsRepaint());
    bar.SetPos(5);
    EXPECT_TRUE(bar.NeedsRepaint());
    EXPECT_EQ(kvProgressBarState::CenteredOrigin(CSize(201, 20), CSize(31, 13)), CPoint(85, 4));
}

}  // namespace
