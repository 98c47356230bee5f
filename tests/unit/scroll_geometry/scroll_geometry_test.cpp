// The rules of a scroll bar's geometry, each by its own numbers.
#include "skins/scroll_geometry.h"

#include <gtest/gtest.h>

#include <climits>
#include <ostream>

namespace fx {

static std::ostream& operator<<(std::ostream& out, const Rect& box) {
    return out << '(' << box.left << ", " << box.top << ", " << box.right << ", " << box.bottom << ')';
}

} // namespace fx

namespace {

using scroll::Box;
using scroll::Direction;
using scroll::Extent;

TEST(ScrollDirection, ABarTallerThanWideIsVertical) { EXPECT_EQ(scroll::DirectionOf({20, 200}), Direction::Vertical); }

TEST(ScrollDirection, ASquareBarIsVerticalToo) { EXPECT_EQ(scroll::DirectionOf({20, 20}), Direction::Vertical); }

TEST(ScrollDirection, ABarWiderThanTallIsHorizontal) {
    EXPECT_EQ(scroll::DirectionOf({21, 20}), Direction::Horizontal);
}

struct PartsCase {
    Direction direction;
    Extent client;
    int arrow;
    Box first, second, track;
};

class ScrollParts : public testing::TestWithParam<PartsCase> {};

TEST_P(ScrollParts, LieAtTheEndsAndBetweenOnePixelOffTheEdge) {
    const PartsCase& bar = GetParam();
    const scroll::Parts parts = scroll::Arrange(bar.direction, bar.client, bar.arrow);
    EXPECT_EQ(parts.firstArrow, bar.first);
    EXPECT_EQ(parts.secondArrow, bar.second);
    EXPECT_EQ(parts.track, bar.track);
}

INSTANTIATE_TEST_SUITE_P(
    Sizes, ScrollParts,
    testing::Values(
        PartsCase{Direction::Vertical, {20, 200}, 18, {1, 0, 19, 18}, {1, 182, 19, 200}, {1, 18, 19, 182}},
        PartsCase{Direction::Vertical, {20, 36}, 18, {1, 0, 19, 18}, {1, 18, 19, 36}, {1, 18, 19, 18}},
        PartsCase{Direction::Vertical, {1, 1}, 18, {1, 0, 19, 18}, {1, -17, 19, 1}, {1, 18, 19, -17}},
        PartsCase{Direction::Vertical, {30, 2000}, 28, {1, 0, 29, 28}, {1, 1972, 29, 2000}, {1, 28, 29, 1972}},
        PartsCase{Direction::Horizontal, {200, 20}, 18, {0, 1, 18, 19}, {182, 1, 200, 19}, {18, 1, 182, 19}},
        PartsCase{Direction::Horizontal, {37, 20}, 18, {0, 1, 18, 19}, {19, 1, 37, 19}, {18, 1, 19, 19}},
        PartsCase{Direction::Horizontal, {2000, 20}, 18, {0, 1, 18, 19}, {1982, 1, 2000, 19}, {18, 1, 1982, 19}}));

struct LengthCase {
    int client, arrow, total, length;
};

class ScrollThumbLength : public testing::TestWithParam<LengthCase> {};

TEST_P(ScrollThumbLength, IsTheSharePartOfTheTrackWithoutAFraction) {
    const LengthCase& bar = GetParam();
    EXPECT_EQ(scroll::ThumbLength(bar.client, bar.arrow, bar.total), bar.length);
}

INSTANTIATE_TEST_SUITE_P(Sizes, ScrollThumbLength,
                         testing::Values(LengthCase{200, 18, 400, 82}, // half of 164
                                         LengthCase{200, 18, 200, 164}, LengthCase{200, 18, 300, 109},
                                         LengthCase{2000, 18, 4001, 981}, LengthCase{200, 18, 100000, 15},
                                         LengthCase{40, 18, 80, 15}, LengthCase{1, 18, 1, 15}, LengthCase{0, 18, 5, 15},
                                         LengthCase{200, 18, INT_MAX, 15}));

TEST(ScrollThumbLengthRule, AContentShorterThanTheBarGetsASmallThumbNotAFullOne) {
    EXPECT_EQ(scroll::ThumbLength(200, 18, 100), 82);
    EXPECT_EQ(scroll::ThumbLength(200, 18, 100), scroll::ThumbLength(200, 18, 400));
    EXPECT_EQ(scroll::ThumbLength(200, 18, 1), 15);
}

TEST(ScrollThumbPosition, IsTheWholePartOfPositionTimesStepBehindTheArrow) {
    EXPECT_EQ(scroll::ThumbPosition(0, 1.9, 18), 18);
    EXPECT_EQ(scroll::ThumbPosition(1, 1.9, 18), 19);
    EXPECT_EQ(scroll::ThumbPosition(10, 1.99, 18), 37);
}

TEST(ScrollThumbPosition, AnAbsurdPositionStaysANumber) {
    EXPECT_GT(scroll::ThumbPosition(INT_MAX, 1000, 18), 1000000);
    EXPECT_LT(scroll::ThumbPosition(INT_MIN, 1000, 18), -1000000);
}

TEST(ScrollThumbPosition, IsKeptInTheTrackItsBeginningBeforeItsEnd) {
    EXPECT_EQ(scroll::KeepInTrack(17, 30, 18, 182), 18);
    EXPECT_EQ(scroll::KeepInTrack(18, 30, 18, 182), 18);
    EXPECT_EQ(scroll::KeepInTrack(152, 30, 18, 182), 152);
    EXPECT_EQ(scroll::KeepInTrack(153, 30, 18, 182), 152);
    EXPECT_EQ(scroll::KeepInTrack(25, 30, 18, 40), 18) << "a thumb longer than the track begins where the track does";
}

TEST(ScrollThumbBox, IsAsBroadAsAnArrowAndStartsAtTheEdge) {
    EXPECT_EQ(scroll::ThumbBox(Direction::Vertical, 50, 30, 18), (Box{0, 50, 18, 80}));
    EXPECT_EQ(scroll::ThumbBox(Direction::Horizontal, 50, 30, 18), (Box{50, 0, 80, 18}));
}

TEST(ScrollSteps, TheRoomOfTheThumbIsSharedAmongThem) {
    EXPECT_DOUBLE_EQ(scroll::PixelsPerStep(164, 64, 10), 10);
    EXPECT_DOUBLE_EQ(scroll::PixelsPerStep(164, 64, 7.5), 100 / 7.5);
}

TEST(ScrollSteps, WithoutRoomOrStepsNothingMoves) {
    EXPECT_EQ(scroll::PixelsPerStep(15, 15, 10), 0);
    EXPECT_EQ(scroll::PixelsPerStep(-40, 15, 10), 0);
    EXPECT_EQ(scroll::PixelsPerStep(164, 64, 0), 0);
    EXPECT_EQ(scroll::StepsOfDrag(100, 0), 0);
    EXPECT_EQ(scroll::StepsOfDrag(INT_MIN, 0), 0);
}

TEST(ScrollDrag, LessThanSixTenthsOfAStepMoveNothing) {
    EXPECT_EQ(scroll::StepsOfDrag(5, 10), 0);
    EXPECT_EQ(scroll::StepsOfDrag(-5, 10), 0);
    EXPECT_EQ(scroll::StepsOfDrag(0, 10), 0);
    EXPECT_EQ(scroll::StepsOfDrag(59, 100), 0);
    EXPECT_EQ(scroll::StepsOfDrag(-59, 100), 0);
}

TEST(ScrollDrag, FromSixTenthsOnItIsOneStep) {
    EXPECT_EQ(scroll::StepsOfDrag(6, 10), 1);
    EXPECT_EQ(scroll::StepsOfDrag(-6, 10), -1);
    EXPECT_EQ(scroll::StepsOfDrag(15, 10), 1);
    EXPECT_EQ(scroll::StepsOfDrag(16, 10), 2);
    EXPECT_EQ(scroll::StepsOfDrag(-16, 10), -2);
}

TEST(ScrollDrag, ManyStepsInAPixelAreAllMade) { EXPECT_EQ(scroll::StepsOfDrag(3, 0.01), 300); }

TEST(ScrollThumbImage, ALongerTargetThanTheImageIsStretched) {
    EXPECT_TRUE(scroll::IsTooShort(Direction::Vertical, {18, 60}, {18, 61}));
    EXPECT_FALSE(scroll::IsTooShort(Direction::Vertical, {10, 60}, {18, 60}));
    EXPECT_TRUE(scroll::IsTooShort(Direction::Horizontal, {60, 18}, {61, 18}));
    EXPECT_FALSE(scroll::IsTooShort(Direction::Horizontal, {60, 10}, {60, 18}));
}

TEST(ScrollThumbImage, AVerticalOneKeepsTwoRowsAtEachEnd) {
    const auto pieces = scroll::CutPieces(Direction::Vertical, {16, 60}, {18, 40});
    ASSERT_EQ(pieces.size(), 3U);
    EXPECT_EQ(pieces[0].from, (Box{0, 0, 16, 2}));
    EXPECT_EQ(pieces[0].to, (Box{0, 0, 18, 2}));
    EXPECT_EQ(pieces[1].from, (Box{0, 12, 16, 48})) << "from (60 - 40) / 2 + 2 on";
    EXPECT_EQ(pieces[1].to, (Box{0, 2, 18, 38}));
    EXPECT_EQ(pieces[2].from, (Box{0, 58, 16, 60}));
    EXPECT_EQ(pieces[2].to, (Box{0, 38, 18, 40}));
}

TEST(ScrollThumbImage, AHorizontalOneKeepsTwoColumnsAtEachEnd) {
    const auto pieces = scroll::CutPieces(Direction::Horizontal, {61, 16}, {40, 18});
    ASSERT_EQ(pieces.size(), 3U);
    EXPECT_EQ(pieces[0].from, (Box{0, 0, 2, 16}));
    EXPECT_EQ(pieces[0].to, (Box{0, 0, 2, 18}));
    EXPECT_EQ(pieces[1].from, (Box{12, 0, 48, 16}));
    EXPECT_EQ(pieces[1].to, (Box{2, 0, 38, 18}));
    EXPECT_EQ(pieces[2].from, (Box{59, 0, 61, 16}));
    EXPECT_EQ(pieces[2].to, (Box{38, 0, 40, 18}));
}

TEST(ScrollThumbImage, AVerticalThumbOf19PixelsTakesItsMiddleFromTheTop) {
    EXPECT_EQ(scroll::CutPieces(Direction::Vertical, {18, 60}, {18, 19})[1].from, (Box{0, 2, 18, 17}));
}

TEST(ScrollThumbImage, AVerticalThumbOf20PixelsTakesItsMiddleFromTheCentre) {
    EXPECT_EQ(scroll::CutPieces(Direction::Vertical, {18, 60}, {18, 20})[1].from, (Box{0, 22, 18, 38}));
}

TEST(ScrollThumbImage, AHorizontalThumbTakesItsMiddleFromTheCentreHoweverShort) {
    EXPECT_EQ(scroll::CutPieces(Direction::Horizontal, {60, 18}, {19, 18})[1].from, (Box{22, 0, 37, 18}));
    EXPECT_EQ(scroll::CutPieces(Direction::Horizontal, {60, 18}, {20, 18})[1].from, (Box{22, 0, 38, 18}));
}

TEST(ScrollThumbImage, ATargetOfTheEndsAloneHasNoMiddle) {
    EXPECT_EQ(scroll::CutPieces(Direction::Vertical, {18, 60}, {18, 4}).size(), 2U);
    EXPECT_EQ(scroll::CutPieces(Direction::Vertical, {18, 60}, {18, 1}).size(), 2U);
}

TEST(ScrollArrowImage, StandsInTheMiddleInItsOwnSize) {
    EXPECT_EQ(scroll::CenteredIn({1, 182, 19, 200}, {9, 5}), (Box{5, 188, 14, 193}));
    EXPECT_EQ(scroll::CenteredIn({0, 0, 18, 18}, {24, 18}), (Box{-3, 0, 21, 18}));
}

} // namespace
