#include "popups/row_geometry.h"

#include <gtest/gtest.h>

#include <climits>

namespace {

using toolbar::RowGeometry;
using toolbar::RowsBetween;

TEST(RowGeometryTest, EveryPixelBelongsToTheRowThatCoversIt) {
    const RowGeometry rows{7, 15, 30};
    for (int y = -40; y < 120; ++y) {
        const int row = rows.RowAt(y);
        if (row < 0) {
            EXPECT_TRUE(y < rows.TopOf(0) || y >= rows.TopOf(7)) << y;
            continue;
        }
        EXPECT_LE(rows.TopOf(row), y);
        EXPECT_LT(y, rows.TopOf(row + 1));
    }
}

TEST(RowGeometryTest, AnEmptyListHasTheRoomOfOneRowAndNoRow) {
    const RowGeometry rows{0, 15, 0};
    EXPECT_EQ(rows.ContentHeight(), 15);
    EXPECT_EQ(rows.RowAt(3), -1);
    EXPECT_EQ(rows.LowestOffset(15), 0);
    EXPECT_EQ(RowsBetween(rows, 0, 15).first, RowsBetween(rows, 0, 15).end);
}

TEST(RowGeometryTest, TheLowestOffsetShowsTheLastRowWholly) {
    for (const int height : {1, 14, 15, 16, 44, 45, 46, 1000}) {
        const RowGeometry rows{100, 15, 0};
        const RowGeometry scrolled{100, 15, rows.LowestOffset(height)};
        EXPECT_EQ(scrolled.offset % 15, 0);
        EXPECT_GE(scrolled.TopOf(99), 0) << height;
        if (height >= 15) {
            EXPECT_LE(scrolled.TopOf(100), height) << height;
        }
    }
    EXPECT_EQ((RowGeometry{3, 15, 0}.LowestOffset(45)), 0);
}

TEST(RowGeometryTest, OffsetsSnapToWholeRowsWithinTheList) {
    const RowGeometry rows{10, 15, 0};
    EXPECT_EQ(rows.Snap(7, 45), 0);
    EXPECT_EQ(rows.Snap(8, 45), 15);
    EXPECT_EQ(rows.Snap(-100, 45), 0);
    EXPECT_EQ(rows.Snap(100000, 45), 105);
}

TEST(RowGeometryTest, ARowIsShownByTheShortestWay) {
    const RowGeometry rows{100, 15, 150}; // rows 10, 11, 12 and a part of 13
    EXPECT_EQ(rows.OffsetToShow(11, 50), 150);
    EXPECT_EQ(rows.OffsetToShow(12, 50), 150);
    EXPECT_EQ(rows.OffsetToShow(13, 50), 165);
    EXPECT_EQ(rows.OffsetToShow(9, 50), 135);
    EXPECT_EQ(rows.OffsetToShow(99, 50), 97 * 15);
    EXPECT_EQ(rows.OffsetToShow(0, 50), 0);
    EXPECT_EQ(rows.OffsetToShow(50, 5), 750) << "a list lower than a row shows its beginning";
}

TEST(RowGeometryTest, AStepGoesByWholeRowsAndEndsAtTheEnds) {
    const RowGeometry rows{10, 15, 30};
    EXPECT_EQ(rows.OffsetAfter(1, 45), 45);
    EXPECT_EQ(rows.OffsetAfter(-1, 45), 15);
    EXPECT_EQ(rows.OffsetAfter(INT_MAX, 45), 105);
    EXPECT_EQ(rows.OffsetAfter(INT_MIN, 45), 0);
    EXPECT_EQ((RowGeometry{0, 15, 0}.OffsetAfter(1, 45)), 0);
}

TEST(RowGeometryTest, TheRowsBetweenTwoHeightsAreThoseOfWhichSomethingIsSeen) {
    const RowGeometry rows{100, 15, 30};
    EXPECT_EQ(RowsBetween(rows, 0, 15).first, 2);
    EXPECT_EQ(RowsBetween(rows, 0, 15).end, 3);
    EXPECT_EQ(RowsBetween(rows, 14, 16).first, 2);
    EXPECT_EQ(RowsBetween(rows, 14, 16).end, 4);
    EXPECT_EQ(RowsBetween(rows, 1400, 5000).end, 100);
    EXPECT_EQ(RowsBetween(rows, 5000, 6000).first, 100);
    EXPECT_EQ(RowsBetween(rows, 5000, 6000).end, 100);
    EXPECT_EQ(RowsBetween(rows, 10, 10).end, 0);
    EXPECT_EQ(RowsBetween(rows, 20, 10).end, 0);
}

TEST(RowGeometryTest, NoIndexBesideTheRowsIsARow) {
    const RowGeometry rows{3, 15, 0};
    for (const int index : {-1, 3, INT_MAX, INT_MIN}) {
        EXPECT_FALSE(rows.IsRow(index));
    }
}

} // namespace
