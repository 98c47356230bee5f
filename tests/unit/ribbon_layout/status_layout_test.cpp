#include <gmock/gmock.h>

#include <random>

#include "ribbon/status_layout.h"

namespace {

using fx::Rect;
using testing::ElementsAre;

constexpr StatusBarItem Item(int width, int height = 20) { return {width, height, true, false, false}; }
constexpr StatusBarItem Line() { return {8, 20, true, true, true}; }
constexpr StatusBarItem Hidden(int width) { return {width, 20, false, false, false}; }

StatusBarShape Bar(std::vector<StatusBarItem> elements, std::vector<StatusBarItem> extended = {}) {
    StatusBarShape shape;
    shape.client = {400, 28};
    shape.marginY = 2;
    shape.gap = 10;
    shape.elements = std::move(elements);
    shape.extended = std::move(extended);
    return shape;
}

TEST(StatusBarLayout, TheMainAreaFillsFromTheLeftAndTheExtendedOneFromTheRight) {
    const auto places = ArrangeStatusBar(Bar({Item(50), Item(60)}, {Item(30), Item(40)}));
    EXPECT_THAT(places.elements, ElementsAre(Rect{0, 4, 50, 24}, Rect{50, 4, 110, 24}));
    EXPECT_THAT(places.extended, ElementsAre(Rect{330, 4, 360, 24}, Rect{360, 4, 400, 24}));
    EXPECT_EQ(places.space, 330 - 10 - 110);
}

TEST(StatusBarLayout, AnElementThatFillsTheHeightReachesFromMarginToMargin) {
    const auto places = ArrangeStatusBar(Bar({Item(50), {60, 10, true, false, true}}));
    EXPECT_EQ(places.elements[1], (Rect{50, 2, 110, 26}));
}

TEST(StatusBarLayout, AnElementHigherThanTheBarIsCutToItsHeight) {
    EXPECT_EQ(ArrangeStatusBar(Bar({Item(50, 90)})).elements[0], (Rect{0, 2, 50, 26}));
}

TEST(StatusBarLayout, HiddenElementsTakeNoRoom) {
    const auto places = ArrangeStatusBar(Bar({Item(50), Hidden(60), Item(70)}, {Item(30), Hidden(40)}));
    EXPECT_THAT(places.elements, ElementsAre(Rect{0, 4, 50, 24}, Rect{}, Rect{50, 4, 120, 24}));
    EXPECT_THAT(places.extended, ElementsAre(Rect{370, 4, 400, 24}, Rect{}));
}

TEST(StatusBarLayout, ASeparatorStandsBetweenTwoShownElementsOnly) {
    const auto places = ArrangeStatusBar(Bar({Line(), Item(50), Line(), Hidden(9), Line(), Item(60), Line()}));
    EXPECT_THAT(places.elements, ElementsAre(Rect{}, Rect{0, 4, 50, 24}, Rect{50, 2, 58, 26}, Rect{}, Rect{},
                                             Rect{58, 4, 118, 24}, Rect{}));
    EXPECT_EQ(places.space, 400 - 10 - 118);
    const auto extended = ArrangeStatusBar(Bar({}, {Line(), Item(50), Line(), Line(), Item(60), Line()})).extended;
    EXPECT_THAT(extended, ElementsAre(Rect{}, Rect{282, 4, 332, 24}, Rect{}, Rect{332, 2, 340, 26},
                                      Rect{340, 4, 400, 24}, Rect{}));
}

TEST(StatusBarLayout, WhatHasNoRoomIsNotShownNorWhatLiesBehindIt) {
    const auto narrow = ArrangeStatusBar(Bar({Item(100), Item(300), Item(10)}));
    EXPECT_THAT(narrow.elements, ElementsAre(Rect{0, 4, 100, 24}, Rect{}, Rect{}));
    const auto extended = ArrangeStatusBar(Bar({}, {Item(10), Item(320), Item(90)})).extended;
    EXPECT_THAT(extended, ElementsAre(Rect{}, Rect{}, Rect{310, 4, 400, 24}));
}

TEST(StatusBarLayout, TheExtendedAreaComesFirstWhereRoomIsShort) {
    const auto places = ArrangeStatusBar(Bar({Item(100)}, {Item(300)}));
    EXPECT_EQ(places.extended[0], (Rect{100, 4, 400, 24}));
    EXPECT_TRUE(places.elements[0].IsEmpty());
    EXPECT_EQ(places.space, 90);
}

TEST(StatusBarLayout, InInformationModeTheTextHasThePlaceOfTheMainArea) {
    StatusBarShape shape = Bar({Item(50), Item(60)}, {Item(40)});
    shape.showsInformation = true;
    const auto places = ArrangeStatusBar(shape);
    EXPECT_EQ(places.information, (Rect{0, 2, 350, 26}));
    EXPECT_THAT(places.elements, ElementsAre(Rect{}, Rect{}));
    EXPECT_EQ(places.extended[0], (Rect{360, 4, 400, 24}));
    EXPECT_TRUE(ArrangeStatusBar(Bar({Item(50)})).information.IsEmpty());
}

TEST(StatusBarLayout, TheSizeGripTakesTheRightEnd) {
    StatusBarShape shape = Bar({}, {Item(40)});
    shape.gripWidth = 18;
    const auto places = ArrangeStatusBar(shape);
    EXPECT_EQ(places.sizeGrip, (Rect{382, 0, 400, 28}));
    EXPECT_EQ(places.extended[0].right, 382);
    EXPECT_TRUE(places.bottomResize.IsEmpty());
}

TEST(StatusBarLayout, OverTheFramesBorderTheGripStandsAboveIt) {
    StatusBarShape shape = Bar({});
    shape.gripWidth = 18;
    shape.borderHeight = 4;
    const auto places = ArrangeStatusBar(shape);
    EXPECT_EQ(places.sizeGrip, (Rect{382, -4, 400, 24}));
    EXPECT_EQ(places.bottomResize, (Rect{0, 24, 400, 28}));
}

TEST(StatusBarLayout, NothingOverlapsOrLeavesTheBarWhateverTheElementsAre) {
    std::mt19937 random(20261122);
    const auto pick = [&random](int from, int to) { return std::uniform_int_distribution(from, to)(random); };
    for (int round = 0; round < 20000; ++round) {
        StatusBarShape shape;
        shape.client = {pick(0, 900), pick(0, 60)};
        shape.gripWidth = pick(0, 1) * std::min(18, shape.client.height);
        shape.marginY = pick(0, 3);
        shape.gap = pick(0, 12);
        for (auto* items : {&shape.elements, &shape.extended}) {
            for (int count = pick(0, 8); count > 0; --count) {
                const bool isSeparator = pick(0, 3) == 0;
                items->push_back({pick(0, 200), pick(0, 50), pick(0, 3) != 0, isSeparator, isSeparator});
            }
        }
        const auto places = ArrangeStatusBar(shape);
        const Rect client{0, 0, shape.client.width, shape.client.height};
        std::vector<Rect> shown;
        for (const auto* rects : {&places.elements, &places.extended}) {
            for (const Rect& rect : *rects) {
                if (!rect.IsEmpty()) {
                    ASSERT_TRUE(client.Contains(rect)) << "round " << round;
                    ASSERT_FALSE(rect.Overlaps(places.sizeGrip)) << "round " << round;
                    shown.push_back(rect);
                }
            }
        }
        for (std::size_t one = 0; one < shown.size(); ++one) {
            for (std::size_t other = one + 1; other < shown.size(); ++other) {
                ASSERT_FALSE(shown[one].Overlaps(shown[other])) << "round " << round;
            }
        }
        ASSERT_GE(places.space, 0) << "round " << round;
    }
}

} // namespace
