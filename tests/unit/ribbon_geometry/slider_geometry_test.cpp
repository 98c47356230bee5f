#include "ribbon/slider_geometry.h"

#include <gtest/gtest.h>

namespace ribbon {
namespace {

FaceMetrics At(double scale) { return {scale, static_cast<int>(15 * scale + 0.5)}; }

struct SliderCase {
    double scale;
    int minimum;
    int maximum;
    bool hasButtons;
};

class Sliders : public ::testing::TestWithParam<SliderCase> {};

INSTANTIATE_TEST_SUITE_P(ScalesAndRanges, Sliders,
                         ::testing::Values(SliderCase{1.0, 0, 80, false}, SliderCase{1.0, -20, 20, true},
                                           SliderCase{1.5, 0, 100, true}, SliderCase{2.0, 50, 150, false}));

TEST_P(Sliders, EveryPositionComesBackFromTheMiddleOfItsThumb) {
    const SliderCase& row = GetParam();
    const FaceMetrics metrics = At(row.scale);
    const Size size = MeasureSlider(100, row.hasButtons, metrics);
    const Rect rect{11, 3, 11 + size.width, 3 + size.height};
    for (int position = row.minimum; position <= row.maximum; ++position) {
        const SliderState state{row.minimum, row.maximum, position, row.hasButtons};
        const SliderFace face = PlaceSlider(rect, state, metrics);
        EXPECT_EQ(SliderPositionAt(rect, state, metrics, (face.thumb.left + face.thumb.right) / 2), position);
        EXPECT_GE(face.thumb.left, face.channel.left);
        EXPECT_LE(face.thumb.right, face.channel.right);
    }
}

TEST_P(Sliders, TheEndsOfTheChannelAreTheEndsOfTheRange) {
    const SliderCase& row = GetParam();
    const FaceMetrics metrics = At(row.scale);
    const Size size = MeasureSlider(100, row.hasButtons, metrics);
    const Rect rect{0, 0, size.width, size.height};
    SliderState state{row.minimum, row.maximum, row.minimum, row.hasButtons};
    EXPECT_EQ(PlaceSlider(rect, state, metrics).thumb.left, PlaceSlider(rect, state, metrics).channel.left);
    EXPECT_EQ(SliderPositionAt(rect, state, metrics, rect.left - 50), row.minimum);
    EXPECT_EQ(SliderPositionAt(rect, state, metrics, rect.right + 50), row.maximum);
    state.position = row.maximum;
    EXPECT_EQ(PlaceSlider(rect, state, metrics).thumb.right, PlaceSlider(rect, state, metrics).channel.right);
}

TEST(SliderSize, IsTheChannelAndItsButtons) {
    EXPECT_EQ(MeasureSlider(100, false, At(1.0)), (Size{104, 22}));
    EXPECT_EQ(MeasureSlider(100, true, At(1.0)), (Size{140, 22}));
    EXPECT_EQ(MeasureSlider(100, true, At(1.5)), (Size{210, 34}));
    EXPECT_EQ(MeasureSlider(100, true, At(2.0)), (Size{280, 44}));
}

TEST(SliderPart, ThumbLiesOverTheChannelAndButtonsBesideIt) {
    const FaceMetrics metrics = At(1.0);
    const Rect rect{0, 0, 140, 22};
    const SliderFace face = PlaceSlider(rect, {0, 100, 50, true}, metrics);
    EXPECT_EQ(face.decrease, (Rect{2, 3, 18, 19}));
    EXPECT_EQ(face.increase, (Rect{122, 3, 138, 19}));
    EXPECT_EQ(SliderPartAt(face, {10, 11}), RibbonSliderPart::Decrease);
    EXPECT_EQ(SliderPartAt(face, {130, 11}), RibbonSliderPart::Increase);
    EXPECT_EQ(SliderPartAt(face, {70, 11}), RibbonSliderPart::Thumb);
    EXPECT_EQ(SliderPartAt(face, {30, 11}), RibbonSliderPart::Channel);
    EXPECT_EQ(SliderPartAt(face, {30, 30}), RibbonSliderPart::None);
    EXPECT_EQ(SliderPartAt(face, {0, 11}), RibbonSliderPart::None);
}

TEST(SliderPart, OfASliderWithoutButtonsIsNeverAButton) {
    const SliderFace face = PlaceSlider({0, 0, 104, 22}, {0, 100, 0, false}, At(1.0));
    for (int x = 0; x < 104; ++x) {
        const RibbonSliderPart part = SliderPartAt(face, {x, 11});
        EXPECT_NE(part, RibbonSliderPart::Increase);
        EXPECT_NE(part, RibbonSliderPart::Decrease);
    }
}

TEST(SliderPosition, StaysWhereThereIsNoWayToGo) {
    const SliderState state{0, 100, 37, false};
    EXPECT_EQ(SliderPositionAt({0, 0, 12, 22}, state, At(1.0), 5), 37);
    const SliderState point{5, 5, 5, false};
    EXPECT_EQ(SliderPositionAt({0, 0, 104, 22}, point, At(1.0), 90), 5);
}

TEST(SliderPosition, OfAHugeRangeDoesNotOverflow) {
    const SliderState state{-2147483647, 2147483647, 0, false};
    EXPECT_EQ(SliderPositionAt({0, 0, 104, 22}, state, At(1.0), 1000), 2147483647);
    EXPECT_EQ(SliderPositionAt({0, 0, 104, 22}, state, At(1.0), -1000), -2147483647);
}

} // namespace
} // namespace ribbon
