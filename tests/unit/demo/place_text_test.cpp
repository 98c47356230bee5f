#include "place_text.h"

#include <gtest/gtest.h>

namespace {

GeoPoint At(double latitude, double longitude) { return {longitude, latitude}; }

TEST(PlaceText, NamesTheSideOfEquatorAndMeridian) {
    EXPECT_EQ(PlaceText(At(31.23, 121.47), false), L"31.2300\u00b0 N  121.4700\u00b0 E");
    EXPECT_EQ(PlaceText(At(-33.87, -151.2), false), L"33.8700\u00b0 S  151.2000\u00b0 W");
    EXPECT_EQ(PlaceText(At(0, 0), false), L"0.0000\u00b0 N  0.0000\u00b0 E");
}

TEST(PlaceText, MinutesAndSecondsCarryOver) {
    EXPECT_EQ(PlaceText(At(31.23, 121.47), true), L"31\u00b0 13\u2032 48\u2033 N  121\u00b0 28\u2032 12\u2033 E");
    EXPECT_EQ(PlaceText(At(59.99999, -0.99999), true), L"60\u00b0 00\u2032 00\u2033 N  1\u00b0 00\u2032 00\u2033 W");
}

TEST(PlaceText, BesideTheWorldThereIsNoPlace) {
    EXPECT_NE(PlaceText(At(90, 180), false), L"\u2014");
    EXPECT_NE(PlaceText(At(-90, -180), true), L"\u2014");
    for (const GeoPoint place : {At(90.01, 0), At(-90.01, 0), At(0, 180.01), At(0, -180.01)}) {
        EXPECT_EQ(PlaceText(place, false), L"\u2014");
        EXPECT_EQ(PlaceText(place, true), L"\u2014");
    }
}

TEST(ScaleText, HasThreeDigitsInGroups) {
    constexpr double life = 111319.5 / (0.0254 / 96); // pixels of a degree in its own length
    EXPECT_EQ(ScaleText(life / 1000), L"1\u2009:\u20091\u2009000");
    EXPECT_EQ(ScaleText(life / 123456789), L"1\u2009:\u2009123\u2009000\u2009000");
    EXPECT_EQ(ScaleText(life / 99960), L"1\u2009:\u2009100\u2009000");
    EXPECT_EQ(ScaleText(life / 25), L"1\u2009:\u200925");
}

} // namespace
