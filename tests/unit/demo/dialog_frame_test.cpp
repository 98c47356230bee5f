#include "dialog_frame.h"

#include <gtest/gtest.h>

#include <tuple>

namespace {

// border, caption, icon, button, gap
constexpr FrameMeasures kFixed{1, 32, 16, 44, 10, false};
constexpr FrameMeasures kSizable{4, 32, 16, 44, 10, true};
constexpr int kWidth = 400, kHeight = 300;

auto Sides(const WindowBox& box) { return std::tuple(box.left, box.top, box.right, box.bottom); }

FrameHit HitFixed(int x, int y) { return HitFrame(x, y, kWidth, kHeight, kFixed, false); }
FrameHit HitSizable(int x, int y) { return HitFrame(x, y, kWidth, kHeight, kSizable, true); }

} // namespace

TEST(DialogFrame, TheInsideLiesBelowTheCaptionAndWithinTheBorder) {
    EXPECT_EQ(Sides(PlaceFrame(kWidth, kHeight, kFixed).inside), std::tuple(1, 33, 399, 299));
    EXPECT_EQ(Sides(PlaceFrame(kWidth, kHeight, kSizable).inside), std::tuple(4, 36, 396, 296));
}

TEST(DialogFrame, TheTitleStandsBetweenTheIconAndTheButtons) {
    const FramePlaces places = PlaceFrame(kWidth, kHeight, kSizable);
    EXPECT_EQ(Sides(places.icon), std::tuple(14, 12, 30, 28));
    EXPECT_EQ(Sides(places.close), std::tuple(352, 4, 396, 36));
    EXPECT_EQ(Sides(places.maximize), std::tuple(308, 4, 352, 36));
    EXPECT_EQ(Sides(places.title), std::tuple(40, 4, 298, 36));
}

TEST(DialogFrame, WithoutThatButtonTheTitleHasItsRoom) {
    const FramePlaces places = PlaceFrame(kWidth, kHeight, kFixed);
    EXPECT_EQ(places.maximize.left, places.maximize.right);
    EXPECT_EQ(places.title.right, places.close.left - kFixed.gap);
}

TEST(DialogFrame, WithoutAButtonToCloseItTheCaptionIsHitThere) {
    FrameMeasures measures = kFixed;
    measures.hasClose = false;
    const FramePlaces places = PlaceFrame(kWidth, kHeight, measures);
    EXPECT_EQ(places.close.left, places.close.right);
    EXPECT_EQ(places.title.right, 399 - kFixed.gap);
    EXPECT_EQ(HitFrame(380, 20, kWidth, kHeight, measures, false), FrameHit::Caption);
}

TEST(DialogFrame, NothingIsTurnedInsideOutWhereThereIsNoRoom) {
    for (const int side : {0, 1, 20, 60}) {
        const FramePlaces places = PlaceFrame(side, side, kSizable);
        for (const WindowBox& box : {places.inside, places.title, places.maximize, places.close}) {
            EXPECT_LE(box.left, box.right) << side;
            EXPECT_LE(box.top, box.bottom) << side;
        }
    }
}

TEST(DialogFrame, ButtonsAndCaptionAreHitWhereTheyLie) {
    EXPECT_EQ(HitFixed(380, 20), FrameHit::Close);
    EXPECT_EQ(HitFixed(330, 20), FrameHit::Caption);
    EXPECT_EQ(HitSizable(330, 20), FrameHit::Maximize);
    EXPECT_EQ(HitFixed(100, 20), FrameHit::Caption);
    EXPECT_EQ(HitFixed(100, 33), FrameHit::Inside);
}

TEST(DialogFrame, ABorderSizesWhatCanBeSizedAlone) {
    EXPECT_EQ(HitSizable(2, 150), FrameHit::Left);
    EXPECT_EQ(HitSizable(397, 150), FrameHit::Right);
    EXPECT_EQ(HitSizable(200, 1), FrameHit::Top);
    EXPECT_EQ(HitSizable(200, 298), FrameHit::Bottom);
    EXPECT_EQ(HitFixed(0, 150), FrameHit::Inside);
    EXPECT_EQ(HitFixed(200, 0), FrameHit::Caption);
}

TEST(DialogFrame, CornersReachAsFarAsTheCaptionIsHigh) {
    EXPECT_EQ(HitSizable(1, 31), FrameHit::TopLeft);
    EXPECT_EQ(HitSizable(31, 1), FrameHit::TopLeft);
    EXPECT_EQ(HitSizable(32, 1), FrameHit::Top);
    EXPECT_EQ(HitSizable(398, 270), FrameHit::BottomRight);
    EXPECT_EQ(HitSizable(2, 298), FrameHit::BottomLeft);
    EXPECT_EQ(HitSizable(398, 2), FrameHit::TopRight);
}
