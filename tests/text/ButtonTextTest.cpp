// Captions of the owner-drawn buttons as they show.
#include "buttons/kvButtonText.h"

#include <gtest/gtest.h>

namespace {

struct AmpersandRow {
    const char* caption;
    const char* shown;
};

const AmpersandRow kAmpersands[] = {
    {"&Save && Exit", "Save & Exit"},
    {"Save && &Exit", "Save & Exit"},
    {"a&&&b", "a&b"},
    {"&&&", "&"},
    {"trailing&", "trailing"},
    {"", ""},
};

TEST(ButtonText, AmpersandsRemovedAsTheCaptionShows)
{
    for (const AmpersandRow& row : kAmpersands)
        EXPECT_EQ(CString(kvRemoveAmpersand(row.caption)), row.shown) << row.caption;
    EXPECT_EQ(CString(kvRemoveAmpersand(nullptr)), "");
}

}  // namespace
