#include "page_layout.h"

#include <gtest/gtest.h>

namespace {

/// A4 on its side at 300 dots an inch; 5 mm cannot be reached.
const PrintSheet kSheet = {3508, 2480, 59, 59, 300, 300};

void ExpectPlace(const WindowBox& found, const WindowBox& wanted) {
    EXPECT_EQ(found.left, wanted.left);
    EXPECT_EQ(found.top, wanted.top);
    EXPECT_EQ(found.right, wanted.right);
    EXPECT_EQ(found.bottom, wanted.bottom);
}

} // namespace

TEST(PlaceOnSheet, APictureAsWideAsTheSheetFillsItBetweenTheMargins) {
    // 15 mm are 177 dots.
    const WindowBox place = PlaceOnSheet(kSheet, 15, 1600, 400);
    EXPECT_NEAR(place.left + kSheet.left, 177, 1);
    EXPECT_NEAR(place.right + kSheet.left, 3508 - 177, 1);
    EXPECT_NEAR((place.right - place.left) / 4.0, place.bottom - place.top, 1);
    EXPECT_NEAR(place.top + kSheet.top, 2480 - (place.bottom + kSheet.top), 1) << "in the middle of the sheet";
}

TEST(PlaceOnSheet, AHighPictureFillsTheHeight) {
    const WindowBox place = PlaceOnSheet(kSheet, 15, 400, 1600);
    EXPECT_NEAR(place.bottom - place.top, 2480 - 2 * 177, 2);
    EXPECT_NEAR(place.left + kSheet.left, 3508 - (place.right + kSheet.left), 1);
}

TEST(PlaceOnSheet, WhatThePrinterCannotReachIsNeverPrintedOn) {
    PrintSheet sheet = kSheet;
    sheet.left = 300;
    const WindowBox place = PlaceOnSheet(sheet, 1, 1600, 400);
    EXPECT_GE(place.left, 0);
    EXPECT_LE(place.right + sheet.left, 3508 - 300);
}

TEST(PlaceOnSheet, DotsThatAreNotSquareKeepTheProportions) {
    const PrintSheet sheet = {2000, 2000, 0, 0, 200, 100};
    const WindowBox place = PlaceOnSheet(sheet, 0, 100, 100);
    ExpectPlace(place, {0, 500, 2000, 1500}); // ten inches each way
}

TEST(PlaceOnSheet, WithoutRoomThereIsNoPlace) {
    ExpectPlace(PlaceOnSheet({100, 100, 0, 0, 300, 300}, 15, 10, 10), {});
    ExpectPlace(PlaceOnSheet(kSheet, 15, 0, 10), {});
    ExpectPlace(PlaceOnSheet({}, 15, 10, 10), {});
}
