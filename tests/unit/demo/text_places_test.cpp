#include "text_places.h"

#include <gtest/gtest.h>

namespace {

/// Of a picture of 200 x 100 pixels.
class MapTexts : public testing::Test {
protected:
    TextPlaces m_places{{0, 0, 200, 100}};
};

TEST_F(MapTexts, NoneStandsOverAnother) {
    EXPECT_TRUE(m_places.Take({10, 10, 50, 20}));
    EXPECT_FALSE(m_places.Take({49, 19, 80, 30}));
    EXPECT_FALSE(m_places.Take({20, 12, 30, 18})) << "inside of it";
    EXPECT_TRUE(m_places.Take({60, 10, 80, 20}));
}

TEST_F(MapTexts, MayTouch) {
    EXPECT_TRUE(m_places.Take({10, 10, 50, 20}));
    EXPECT_TRUE(m_places.Take({50, 10, 90, 20}));
    EXPECT_TRUE(m_places.Take({10, 20, 50, 30}));
}

TEST_F(MapTexts, NoneIsCutOffAtAnEdge) {
    EXPECT_FALSE(m_places.Take({-1, 10, 30, 20}));
    EXPECT_FALSE(m_places.Take({10, -0.5, 30, 20}));
    EXPECT_FALSE(m_places.Take({180, 10, 200.5, 20}));
    EXPECT_FALSE(m_places.Take({10, 95, 30, 101}));
    EXPECT_TRUE(m_places.Take({0, 0, 30, 20}));
    EXPECT_TRUE(m_places.Take({170, 80, 200, 100}));
}

TEST(MapTextsOfAPart, NoneIsCutOffAtThePartsEdge) {
    TextPlaces places({50, 20, 150, 80});
    EXPECT_FALSE(places.Take({49, 30, 80, 40}));
    EXPECT_FALSE(places.Take({60, 19, 80, 40}));
    EXPECT_FALSE(places.Take({140, 30, 151, 40}));
    EXPECT_FALSE(places.Take({60, 70, 80, 81}));
    EXPECT_TRUE(places.Take({50, 20, 80, 40}));
    EXPECT_TRUE(places.Take({120, 60, 150, 80}));
}

TEST_F(MapTexts, NoneStandsOverWhatWasKeptFree) {
    m_places.KeepFree({40, 40, 48, 48});
    m_places.KeepFree({44, 44, 52, 52});
    EXPECT_FALSE(m_places.Take({45, 42, 80, 60}));
    EXPECT_TRUE(m_places.Take({52, 42, 80, 60}));
}

TEST_F(MapTexts, ABoxRisesUntilItLiesOverNothing) {
    m_places.KeepFree({20, 85, 24, 89});
    EXPECT_EQ(m_places.RiseOf({10, 80, 60, 95}, 50), 10) << "its lower edge on the mark's upper one";
    EXPECT_EQ(m_places.RiseOf({30, 80, 60, 95}, 50), 0) << "beside the mark";
    m_places.KeepFree({40, 66, 44, 72});
    EXPECT_EQ(m_places.RiseOf({10, 80, 60, 95}, 50), 29) << "above the second one, which it met on its way";
}

TEST_F(MapTexts, ABoxThatWouldHaveToRiseTooFarStays) {
    m_places.KeepFree({20, 30, 24, 90});
    EXPECT_EQ(m_places.RiseOf({10, 80, 60, 95}, 50), 0);
    EXPECT_EQ(m_places.RiseOf({10, 80, 60, 95}, 65), 65);
}

TEST_F(MapTexts, WhatIsRefusedTakesNoPlace) {
    EXPECT_FALSE(m_places.Take({190, 10, 220, 20}));
    EXPECT_TRUE(m_places.Take({180, 10, 200, 20}));
}

TEST(NumbersOfAGrid, StandAtEveryLineWhereThereIsRoom) {
    EXPECT_EQ(LinesToANumber(40, 39), 1);
    EXPECT_EQ(LinesToANumber(40, 40), 1);
}

TEST(NumbersOfAGrid, AreEquallyFarApartWhereLinesAreNarrow) {
    EXPECT_EQ(LinesToANumber(40, 41), 2);
    EXPECT_EQ(LinesToANumber(20, 41), 3);
    EXPECT_EQ(LinesToANumber(12, 41), 4);
    EXPECT_EQ(LinesToANumber(9, 41), 6) << "five do not divide the circle as well";
    EXPECT_EQ(LinesToANumber(1, 41), 12);
    EXPECT_EQ(LinesToANumber(0, 41), 12);
}

} // namespace
