#include "popups/row_walk.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using toolbar::RowEnds;
using toolbar::RowStep;

/// Where the step leads to in rows of which those with a dash take no keyboard.
int Walk(const std::string& rows, int current, RowStep step, RowEnds ends = RowEnds::Round, int page = 1) {
    return toolbar::WalkRows({static_cast<int>(rows.size()), current, ends, page}, step,
                             [&rows](int row) { return rows.at(static_cast<std::size_t>(row)) != '-'; });
}

TEST(RowWalk, WhatTakesNoKeyboardIsPassedOver) {
    EXPECT_EQ(Walk("a--b", 0, RowStep::Next), 3);
    EXPECT_EQ(Walk("a--b", 3, RowStep::Previous), 0);
    EXPECT_EQ(Walk("-ab-", -1, RowStep::First), 1);
    EXPECT_EQ(Walk("-ab-", -1, RowStep::Last), 2);
    EXPECT_EQ(Walk("a--b", 0, RowStep::Next, RowEnds::Stop), 3);
}

TEST(RowWalk, AMenuGoesRoundAtItsEnds) {
    EXPECT_EQ(Walk("-ab-", 2, RowStep::Next), 1);
    EXPECT_EQ(Walk("-ab-", 1, RowStep::Previous), 2);
    EXPECT_EQ(Walk("a-", 0, RowStep::Next), 0) << "the only one stays hot";
    EXPECT_EQ(Walk("a-", 0, RowStep::Previous), 0);
}

TEST(RowWalk, AListStaysAtItsEnds) {
    EXPECT_EQ(Walk("abc", 2, RowStep::Next, RowEnds::Stop), 2);
    EXPECT_EQ(Walk("abc", 0, RowStep::Previous, RowEnds::Stop), 0);
    EXPECT_EQ(Walk("ab-", 1, RowStep::Next, RowEnds::Stop), 1) << "a last row that is passed over is no goal";
}

TEST(RowWalk, TheFirstStepEntersAMenuAtItsEndAndAListAtItsFirstRow) {
    EXPECT_EQ(Walk("abc", -1, RowStep::Next), 0);
    EXPECT_EQ(Walk("abc", -1, RowStep::Previous), 2);
    for (const RowStep step : {RowStep::Next, RowStep::Previous, RowStep::NextPage, RowStep::PreviousPage}) {
        EXPECT_EQ(Walk("-bc", -1, step, RowEnds::Stop), 1);
    }
    EXPECT_EQ(Walk("abc", -1, RowStep::Last, RowEnds::Stop), 2);
}

TEST(RowWalk, APageGoesByItsRowsAndNeverRound) {
    EXPECT_EQ(Walk("abcdefgh", 1, RowStep::NextPage, RowEnds::Stop, 3), 4);
    EXPECT_EQ(Walk("abcdefgh", 6, RowStep::NextPage, RowEnds::Stop, 3), 7);
    EXPECT_EQ(Walk("abcdefgh", 7, RowStep::NextPage, RowEnds::Round, 3), 7);
    EXPECT_EQ(Walk("abcdefgh", 1, RowStep::PreviousPage, RowEnds::Round, 3), 0);
    EXPECT_EQ(Walk("abc--fgh", 1, RowStep::NextPage, RowEnds::Stop, 3), 5) << "on from a goal that is passed over";
    EXPECT_EQ(Walk("abcde---", 1, RowStep::NextPage, RowEnds::Stop, 5), 4) << "and back where nothing lies beyond it";
}

TEST(RowWalk, WhereNoRowTakesTheKeyboardThereIsNoGoal) {
    for (const char* rows : {"", "-", "---"}) {
        for (const RowEnds ends : {RowEnds::Round, RowEnds::Stop}) {
            for (const RowStep step : {RowStep::Next, RowStep::Previous, RowStep::NextPage, RowStep::PreviousPage,
                                       RowStep::First, RowStep::Last}) {
                EXPECT_EQ(Walk(rows, -1, step, ends), -1) << rows;
            }
        }
    }
}

TEST(RowWalk, AHotRowBeyondTheEndIsLeftInsideTheRows) {
    EXPECT_EQ(Walk("abc", 9, RowStep::Next, RowEnds::Stop), 2) << "rows were removed since";
    EXPECT_EQ(Walk("abc", 9, RowStep::Next), 0);
}

} // namespace
