#include "popups/wheel_rows.h"

#include <gtest/gtest.h>

using toolbar::WheelRowsPerNotch;

TEST(WheelRows, ANotchIsTheLinesThatTheUserHasSet) {
    EXPECT_EQ(WheelRowsPerNotch(3, 12), 3);
    EXPECT_EQ(WheelRowsPerNotch(1, 12), 1);
    EXPECT_EQ(WheelRowsPerNotch(0, 12), 0);
}

TEST(WheelRows, ANotchIsAPageAtMost) {
    constexpr unsigned pageScroll = ~0u;
    EXPECT_EQ(WheelRowsPerNotch(12, 12), 12);
    EXPECT_EQ(WheelRowsPerNotch(13, 12), 12);
    EXPECT_EQ(WheelRowsPerNotch(pageScroll, 12), 12);
    EXPECT_EQ(WheelRowsPerNotch(pageScroll, 0), 1);
    EXPECT_EQ(WheelRowsPerNotch(3, -5), 1);
}
