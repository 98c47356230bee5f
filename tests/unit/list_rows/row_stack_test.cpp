#include "popups/row_stack.h"

#include <gtest/gtest.h>

namespace {

using toolbar::RowStack;

/// 20, 5 (a separator), 20, 0 (hidden), 20, 40: 105 in all.
RowStack Rows() { return RowStack({20, 5, 20, 0, 20, 40}); }

TEST(RowStackTest, RowsLieOneBelowTheOther) {
    const RowStack rows = Rows();
    EXPECT_EQ(rows.ContentHeight(), 105);
    EXPECT_EQ(rows.TopOf(0), 0);
    EXPECT_EQ(rows.TopOf(2), 25);
    EXPECT_EQ(rows.TopOf(4), 45);
    EXPECT_EQ(rows.TopOf(5), 65);
    EXPECT_EQ(RowStack({10, -7, 10}).ContentHeight(), 20) << "a height below nothing is none";
}

TEST(RowStackTest, APageIsTheRowsThatFitAndOneAtLeast) {
    const RowStack rows = Rows();
    EXPECT_EQ(rows.FitFrom(0, 45), 4);
    EXPECT_EQ(rows.FitFrom(0, 44), 2);
    EXPECT_EQ(rows.FitFrom(5, 39), 1);
    EXPECT_EQ(rows.FitFrom(0, 0), 1);
    EXPECT_EQ(rows.FitFrom(6, 100), 0);
    EXPECT_EQ(rows.LastFirst(60), 3) << "20 and 40 fit, and what has no height";
    EXPECT_EQ(rows.LastFirst(59), 5);
    EXPECT_EQ(rows.LastFirst(10), 5);
    EXPECT_EQ(rows.LastFirst(500), 0);
}

TEST(RowStackTest, ARowIsShownByTheShortestWay) {
    const RowStack rows = Rows();
    EXPECT_EQ(rows.FirstToShow(2, 0, 45), 0);
    EXPECT_EQ(rows.FirstToShow(4, 0, 45), 1);
    EXPECT_EQ(rows.FirstToShow(5, 0, 45), 5);
    EXPECT_EQ(rows.FirstToShow(1, 4, 45), 1);
    EXPECT_EQ(rows.FirstToShow(9, 4, 45), 4) << "no such row";
    EXPECT_EQ(rows.FirstToShow(5, 0, 105), 0) << "all have room";
    EXPECT_EQ(rows.OffsetToShow(2, 0, 45), 0);
    EXPECT_EQ(rows.OffsetToShow(4, 0, 45), 20) << "a row begins at the upper edge";
    EXPECT_EQ(rows.OffsetToShow(1, 45, 45), 20);
    EXPECT_EQ(rows.OffsetToShow(5, 0, 30), 65) << "a row that is higher than the room shows its beginning";
    EXPECT_EQ(rows.OffsetToShow(-1, 20, 45), 20);
}

TEST(RowStackTest, AStepLeadsToTheNextRowsEdge) {
    const RowStack rows = Rows();
    EXPECT_EQ(rows.OffsetAfter(0, 1, 40), 20);
    EXPECT_EQ(rows.OffsetAfter(0, 2, 40), 25);
    EXPECT_EQ(rows.OffsetAfter(25, 1, 40), 45) << "what has no height is no step";
    EXPECT_EQ(rows.OffsetAfter(45, -1, 40), 25);
    EXPECT_EQ(rows.OffsetAfter(33, -1, 40), 25);
    EXPECT_EQ(rows.OffsetAfter(33, 1, 40), 45);
    EXPECT_EQ(rows.OffsetAfter(20, 0, 40), 20);
}

TEST(RowStackTest, TheEndsAreNotPassed) {
    const RowStack rows = Rows();
    EXPECT_EQ(rows.OffsetAfter(0, -3, 40), 0);
    EXPECT_EQ(rows.OffsetAfter(0, 100, 40), 65);
    EXPECT_EQ(rows.OffsetAfter(45, 1, 50), 55) << "the end lies at the lower edge, though it cuts a row";
    EXPECT_EQ(rows.OffsetAfter(0, 1, 500), 0) << "all have room";
    EXPECT_EQ(rows.OffsetToShow(5, 0, 500), 0);
}

TEST(RowStackTest, NoRowsAreNoContent) {
    const RowStack rows({});
    EXPECT_EQ(rows.ContentHeight(), 0);
    EXPECT_EQ(rows.FitFrom(0, 100), 0);
    EXPECT_EQ(rows.LastFirst(100), 0);
    EXPECT_EQ(rows.OffsetAfter(0, 1, 100), 0);
    EXPECT_EQ(rows.OffsetAfter(0, -1, 100), 0);
    EXPECT_EQ(rows.OffsetToShow(0, 0, 100), 0);
    EXPECT_EQ(rows.FirstToShow(0, 0, 100), 0);
}

} // namespace
