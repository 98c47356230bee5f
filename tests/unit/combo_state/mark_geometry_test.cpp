#include "combos/mark_geometry.h"

#include <gtest/gtest.h>

#include <climits>
#include <ostream>

namespace fx {

std::ostream& operator<<(std::ostream& out, const Rect& rect) {
    return out << '[' << rect.left << ' ' << rect.top << ' ' << rect.right << ' ' << rect.bottom << ']';
}

} // namespace fx

namespace {

using fx::Rect;

TEST(CheckRow, TheBoxStandsOnePixelFromTheLeftInTheMiddleOfTheRowAndTheTextThreeBehindIt) {
    struct Case {
        const char* what;
        Rect row;
        int side;
        Rect box;
        int textLeft;
    };
    const Case cases[] = {
        {"100 %, row 15", {0, 0, 120, 15}, 15, {1, 0, 16, 15}, 19},
        {"100 %, row 20", {0, 0, 120, 20}, 15, {1, 3, 16, 18}, 19},
        {"100 %, second row", {0, 20, 120, 40}, 15, {1, 23, 16, 38}, 19},
        {"odd halves are cut", {0, 0, 120, 21}, 15, {1, 3, 16, 18}, 19},
        {"within margins", {4, 3, 116, 17}, 15, {5, 3, 20, 18}, 23},
        {"150 %", {0, 0, 180, 30}, 23, {1, 4, 24, 27}, 27},
        {"200 %", {0, 0, 240, 40}, 30, {1, 5, 31, 35}, 34},
        {"a face", {210, 34, 318, 56}, 15, {211, 38, 226, 53}, 229},
        {"row lower than the box", {0, 0, 120, 9}, 15, {1, -3, 16, 12}, 19},
    };
    for (const Case& one : cases) {
        SCOPED_TRACE(one.what);
        const marks::CheckRow placed = marks::PlaceCheckRow(one.row, one.side);
        EXPECT_EQ(placed.box, one.box);
        EXPECT_EQ(placed.text, (Rect{one.textLeft, one.row.top, one.row.right, one.row.bottom}));
    }
}

TEST(CheckZone, ReachesFromTheFirstPixelToOneBehindTheBoxDownToTheEditAreasBottom) {
    EXPECT_EQ(marks::CheckZone(15, 56), (Rect{1, 0, 17, 56}));
    EXPECT_EQ(marks::CheckZone(23, 90), (Rect{1, 0, 25, 90}));
    EXPECT_EQ(marks::CheckZone(30, 120), (Rect{1, 0, 32, 120}));
}

TEST(CheckZone, OnTheFaceIsThatColumnOfTheEditArea) {
    EXPECT_EQ(marks::CheckFaceZone({210, 34, 318, 56}, 15), (Rect{211, 34, 227, 56}));
    EXPECT_EQ(marks::CheckFaceZone({0, 0, 162, 33}, 23), (Rect{1, 0, 25, 33}));
    EXPECT_EQ(marks::CheckFaceZone({0, 0, 216, 44}, 30), (Rect{1, 0, 32, 44}));
}

TEST(SwatchRow, SquaresStandThreePixelsApartAndTheTextThreeBehindThem) {
    struct Case {
        const char* what;
        Rect row;
        int icon;
        Rect swatch;
        Rect light;
        int textLeft;
    };
    const Case cases[] = {
        {"100 %, row 20", {0, 0, 120, 20}, 13, {3, 3, 16, 16}, {19, 3, 32, 16}, 35},
        {"100 %, row 15", {0, 0, 120, 15}, 13, {3, 0, 16, 13}, {19, 0, 32, 13}, 35},
        {"100 %, row 22", {0, 0, 120, 22}, 13, {3, 4, 16, 17}, {19, 4, 32, 17}, 35},
        {"second row", {0, 20, 120, 40}, 13, {3, 23, 16, 36}, {19, 23, 32, 36}, 35},
        {"150 %, icon 24", {0, 0, 180, 30}, 24, {3, 3, 27, 27}, {30, 3, 54, 27}, 57},
        {"200 %, icon 32", {0, 0, 240, 40}, 32, {3, 4, 35, 36}, {38, 4, 70, 36}, 73},
        {"as high as the icon", {0, 0, 120, 13}, 13, {3, 0, 16, 13}, {19, 0, 32, 13}, 35},
        {"lower than the icon: cut, and still square", {0, 0, 120, 10}, 13, {3, 0, 13, 10}, {16, 0, 26, 10}, 29},
        {"lower, further down", {0, 30, 120, 40}, 13, {3, 30, 13, 40}, {16, 30, 26, 40}, 29},
        {"without height", {0, 7, 120, 7}, 13, {3, 7, 3, 7}, {6, 7, 6, 7}, 9},
        {"a face", {210, 34, 318, 56}, 13, {213, 38, 226, 51}, {229, 38, 242, 51}, 245},
    };
    for (const Case& one : cases) {
        SCOPED_TRACE(one.what);
        const marks::SwatchRow placed = marks::PlaceSwatchRow(one.row, one.icon);
        EXPECT_EQ(placed.swatch, one.swatch);
        EXPECT_EQ(placed.light, one.light);
        EXPECT_EQ(placed.text, (Rect{one.textLeft, one.row.top, one.row.right, one.row.bottom}));
    }
}

TEST(SwatchZones, AreSquaresInTheMiddleOfTheEditAreasHeight) {
    struct Case {
        const char* what;
        int height;
        int icon;
        Rect swatch;
        Rect light;
    };
    const Case cases[] = {
        {"100 %", 22, 13, {3, 4, 16, 17}, {19, 4, 32, 17}},
        {"odd halves are cut", 21, 13, {3, 3, 16, 16}, {19, 3, 32, 16}},
        {"150 %", 33, 24, {3, 4, 27, 28}, {30, 4, 54, 28}},
        {"200 %", 44, 32, {3, 6, 35, 38}, {38, 6, 70, 38}},
        {"lower than the icon", 10, 13, {3, 0, 13, 10}, {16, 0, 26, 10}},
        {"before the first layout there is nothing to hit", 0, 13, {3, 0, 3, 0}, {6, 0, 6, 0}},
    };
    for (const Case& one : cases) {
        SCOPED_TRACE(one.what);
        EXPECT_EQ(marks::SwatchZones(one.height, one.icon), (std::vector<Rect>{one.swatch, one.light}));
    }
}

TEST(LightRow, TheLightStandsThreePixelsFromTheLeftInTheMiddleOfTheRowAndTheTextThreeBehindIt) {
    struct Case {
        const char* what;
        Rect row;
        int icon;
        Rect light;
        int textLeft;
    };
    const Case cases[] = {
        {"icon 13, row 20", {0, 0, 120, 20}, 13, {3, 3, 16, 16}, 19},
        {"icon 13, row 15", {0, 0, 120, 15}, 13, {3, 1, 16, 14}, 19},
        {"second row", {0, 20, 120, 40}, 13, {3, 23, 16, 36}, 19},
        {"icon 16, row 30", {0, 0, 180, 30}, 16, {3, 7, 19, 23}, 22},
        {"icon 16, row 40", {0, 0, 240, 40}, 16, {3, 12, 19, 28}, 22},
        {"row lower than the icon", {0, 0, 120, 9}, 13, {3, -2, 16, 11}, 19},
    };
    for (const Case& one : cases) {
        SCOPED_TRACE(one.what);
        const marks::LightRow placed = marks::PlaceLightRow(one.row, one.icon);
        EXPECT_EQ(placed.light, one.light);
        EXPECT_EQ(placed.text, (Rect{one.textLeft, one.row.top, one.row.right, one.row.bottom}));
    }
}

TEST(LightZones, AreTheLightBelowItsFourthPixelAndASquareBesideItFromTheTop) {
    EXPECT_EQ(marks::LightZones(13), (std::vector<Rect>{{3, 4, 16, 17}, {19, 0, 32, 13}}));
    EXPECT_EQ(marks::LightZones(16), (std::vector<Rect>{{3, 4, 19, 20}, {22, 0, 38, 16}}));
}

TEST(ZoneAt, TheCheckColumnIsHitFromTheFirstPixelToOneBehindTheBox) {
    const std::vector<Rect> zones{marks::CheckZone(15, 22)};
    for (int x = -3; x < 40; ++x) {
        EXPECT_EQ(marks::ZoneAt(zones, x, 10, 15), x >= 1 && x <= 16 ? 0 : -1) << x;
    }
}

TEST(ZoneAt, ZonesOfTheFirstRowCountForEveryRow) {
    const std::vector<Rect> zones = marks::SwatchZones(20, 13);
    for (const int row : {0, 1, 5, 9999}) {
        EXPECT_EQ(marks::ZoneAt(zones, 5, row * 20 + 3, 20), 0) << row;
        EXPECT_EQ(marks::ZoneAt(zones, 5, row * 20 + 2, 20), -1) << row;
        EXPECT_EQ(marks::ZoneAt(zones, 20, row * 20 + 15, 20), 1) << row;
        EXPECT_EQ(marks::ZoneAt(zones, 20, row * 20 + 16, 20), -1) << row;
        EXPECT_EQ(marks::ZoneAt(zones, 17, row * 20 + 10, 20), -1) << "between the squares: " << row;
    }
}

TEST(ZoneAt, TheFirstOfZonesThatLieUponEachOtherIsHit) {
    const std::vector<Rect> zones{{0, 0, 5, 5}, {0, 0, 10, 10}};
    EXPECT_EQ(marks::ZoneAt(zones, 4, 4, 20), 0);
    EXPECT_EQ(marks::ZoneAt(zones, 5, 4, 20), 1);
}

TEST(ZoneAt, NothingIsHitWithoutZonesWithoutRowsOrAboveThem) {
    const std::vector<Rect> zones{{0, 0, 10, 10}};
    EXPECT_EQ(marks::ZoneAt(std::vector<Rect>(), 1, 1, 20), -1);
    EXPECT_EQ(marks::ZoneAt(zones, 1, 1, 0), -1);
    EXPECT_EQ(marks::ZoneAt(zones, 1, 1, -20), -1);
    EXPECT_EQ(marks::ZoneAt(zones, 1, -1, 20), -1);
    EXPECT_EQ(marks::ZoneAt(zones, -1, 1, 20), -1);
    EXPECT_EQ(marks::ZoneAt(zones, INT_MAX, INT_MAX, 20), -1);
    EXPECT_EQ(marks::ZoneAt(zones, INT_MIN, INT_MIN, 20), -1);
    EXPECT_EQ(marks::ZoneAt(std::vector<Rect>{{3, 0, 3, 0}}, 3, 0, 20), -1) << "an empty zone";
}

} // namespace
