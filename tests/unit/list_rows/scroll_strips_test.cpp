#include "popups/scroll_strips.h"

#include <gtest/gtest.h>

namespace {

class ScrollStripsTest : public ::testing::Test {
protected:
    ScrollStripsTest() { strips.Place({0, 0, 100, 12}, {0, 88, 100, 100}); }
    toolbar::ScrollStrips strips;
};

TEST_F(ScrollStripsTest, EachStripScrollsItsWayAndWhatLiesBetweenThemDoesNot) {
    EXPECT_TRUE(strips.AreShown());
    EXPECT_EQ(strips.RowsAt({50, 0}), -1);
    EXPECT_EQ(strips.RowsAt({50, 11}), -1);
    EXPECT_EQ(strips.RowsAt({50, 12}), 0);
    EXPECT_EQ(strips.RowsAt({50, 88}), 1);
    EXPECT_EQ(strips.RowsAt({100, 90}), 0);
}

TEST_F(ScrollStripsTest, WhatIsLitChangesWithThePointerOnly) {
    EXPECT_FALSE(strips.Light({50, 50}));
    EXPECT_TRUE(strips.Light({50, 5}));
    EXPECT_EQ(strips.Rows(), -1);
    EXPECT_FALSE(strips.Light({51, 6}));
    EXPECT_TRUE(strips.Light({51, 95}));
    EXPECT_EQ(strips.Rows(), 1);
    EXPECT_TRUE(strips.Unlight());
    EXPECT_EQ(strips.Rows(), 0);
    EXPECT_FALSE(strips.Unlight());
}

TEST_F(ScrollStripsTest, WhereAllRowsHaveRoomThereAreNone) {
    strips.Place({}, {});
    EXPECT_FALSE(strips.AreShown());
    EXPECT_EQ(strips.RowsAt({0, 0}), 0);
    EXPECT_FALSE(strips.Light({50, 5}));
}

} // namespace
