#include "visual/pixels.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

using namespace visual;

namespace {

class Pixels : public testing::Test {
protected:
    std::vector<std::uint32_t> m_bits = std::vector<std::uint32_t>(20 * 20);
    PixelView m_view{m_bits.data(), 20, 20};
    const fx::Rect m_rect{2, 2, 18, 18};
};

constexpr FourStops Plain(Argb color) { return {color, color, color, color, 50}; }

TEST(Colours, MixGoesFromOneEndToTheOther) {
    EXPECT_EQ(Mix(0xFF000000, 0xFFFFFFFF, 0, 4), 0xFF000000u);
    EXPECT_EQ(Mix(0xFF000000, 0xFFFFFFFF, 4, 4), 0xFFFFFFFFu);
    EXPECT_EQ(Mix(0xFF000000, 0xFF646464, 1, 2), 0xFF323232u);
}

TEST_F(Pixels, FillStaysInTheRectangle) {
    FillRounded(m_view, m_rect, {}, Plain(0xFF336699));
    EXPECT_EQ(m_view.At(2, 2), 0xFF336699u);
    EXPECT_EQ(m_view.At(17, 17), 0xFF336699u);
    EXPECT_EQ(m_view.At(1, 2), 0u);
    EXPECT_EQ(m_view.At(18, 17), 0u);
}

// Rows of a picture lie one behind the other: what is drawn beside one is drawn into another, or beside all of them.
TEST_F(Pixels, WhatLiesBesideThePictureOrHasNoExtentDrawsNothing) {
    constexpr fx::Rect nowhere[] = {{25, 5, 30, 15},  {-9, 5, -2, 15}, {5, 25, 15, 30}, {5, -9, 15, -2},
                                    {15, 5, 5, 15},   {5, 15, 15, 5},  {19, 5, -3, 15}, {30, 5, -30, 15},
                                    {25, 30, 22, 27}, {7, 7, 7, 7}};
    const std::vector<std::uint32_t> picture(9, 0xFFABCDEF);
    for (const fx::Rect& rect : nowhere) {
        for (const Corners& corners : {Corners{}, Corners::All(3)}) {
            FillRounded(m_view, rect, corners, Plain(0xFFFFFFFF));
            FillRounded(m_view, rect, corners, Plain(0x80FFFFFF));
            StrokeRounded(m_view, rect, corners, 0xFFFFFFFF, 1);
            FillGlow(m_view, rect, corners, {10, 10}, 8, 8, 0xFFFFFFFF);
        }
        FillEllipse(m_view, rect, Plain(0xFFFFFFFF));
        StrokeEllipse(m_view, rect, 0xFFFFFFFF, 2);
        FillSlices(m_view, rect, picture, 3, {1, 1, 1, 1});
        EXPECT_EQ(m_bits, std::vector<std::uint32_t>(m_bits.size()))
            << rect.left << ", " << rect.top << ", " << rect.right << ", " << rect.bottom;
    }
}

TEST_F(Pixels, RoundCornersAreClearOutsideAndSmoothOnTheEdge) {
    FillRounded(m_view, m_rect, Corners::All(5), Plain(0xFFFFFFFF));
    EXPECT_EQ(AlphaOf(m_view.At(2, 2)), 0u);
    EXPECT_EQ(AlphaOf(m_view.At(10, 2)), 255u);
    bool hasEdge = false;
    for (int x = 2; x < 8; ++x) {
        hasEdge |= AlphaOf(m_view.At(x, 3)) > 0 && AlphaOf(m_view.At(x, 3)) < 255;
    }
    EXPECT_TRUE(hasEdge);
}

TEST_F(Pixels, OnlyTheNamedCornersAreRound) {
    FillRounded(m_view, m_rect, Corners::Top(5), Plain(0xFFFFFFFF));
    EXPECT_EQ(AlphaOf(m_view.At(2, 2)), 0u);
    EXPECT_EQ(AlphaOf(m_view.At(17, 2)), 0u);
    EXPECT_EQ(AlphaOf(m_view.At(2, 17)), 255u);
    EXPECT_EQ(AlphaOf(m_view.At(17, 17)), 255u);
}

TEST_F(Pixels, GradientsMeetAtTheSplit) {
    FillRounded(m_view, {0, 0, 20, 20}, {}, {0xFF000000, 0xFF202020, 0xFF808080, 0xFFFFFFFF, 50});
    EXPECT_EQ(m_view.At(0, 0), 0xFF000000u);
    EXPECT_EQ(m_view.At(0, 9), 0xFF202020u);
    EXPECT_EQ(m_view.At(0, 10), 0xFF808080u);
    EXPECT_EQ(m_view.At(0, 19), 0xFFFFFFFFu);
}

TEST_F(Pixels, StrokeLeavesTheInsideClear) {
    StrokeRounded(m_view, m_rect, Corners::All(3), 0xFF112233, 1);
    EXPECT_EQ(m_view.At(10, 2), 0xFF112233u);
    EXPECT_EQ(m_view.At(2, 10), 0xFF112233u);
    EXPECT_EQ(m_view.At(17, 10), 0xFF112233u);
    EXPECT_EQ(m_view.At(10, 3), 0u);
    EXPECT_EQ(m_view.At(10, 10), 0u);
}

TEST_F(Pixels, StrokeIsAsThickAsAsked) {
    StrokeRounded(m_view, m_rect, {}, 0xFF112233, 2);
    EXPECT_EQ(m_view.At(10, 3), 0xFF112233u);
    EXPECT_EQ(m_view.At(3, 10), 0xFF112233u);
    EXPECT_EQ(m_view.At(10, 4), 0u);
}

TEST_F(Pixels, ShapesPartlyOutsideOfTheViewAreCut) {
    FillRounded(m_view, {-10, -10, 40, 40}, Corners::All(4), Plain(0xFF010203));
    StrokeRounded(m_view, {-10, -10, 40, 40}, Corners::All(4), 0xFFFFFFFF, 1);
    FillEllipse(m_view, {-10, 5, 40, 40}, Plain(0xFF040506));
    const PointF triangle[] = {{-5, -5}, {40, 10}, {5, 60}};
    FillPolygon(m_view, triangle, 0xFF070809);
    EXPECT_EQ(m_view.At(10, 10), 0xFF070809u);
}

TEST_F(Pixels, BlendingHalfMixesHalf) {
    m_view.At(0, 0) = 0xFF000000;
    BlendPixel(m_view.At(0, 0), 0x80FFFFFF);
    EXPECT_EQ(AlphaOf(m_view.At(0, 0)), 255u);
    EXPECT_NEAR(RedOf(m_view.At(0, 0)), 128, 1);
}

TEST_F(Pixels, EllipseIsRound) {
    FillEllipse(m_view, {0, 0, 20, 20}, Plain(0xFFFFFFFF));
    EXPECT_EQ(AlphaOf(m_view.At(0, 0)), 0u);
    EXPECT_EQ(AlphaOf(m_view.At(10, 10)), 255u);
    EXPECT_EQ(m_view.At(3, 7), m_view.At(16, 7));
}

TEST(Disabled, IsGreyAndKeepsClearPixelsClear) {
    EXPECT_EQ(DisabledPixel(0), 0u);
    for (const std::uint32_t pixel : {0xFFFF0000u, 0xFF00FF00u, 0xFF000000u, 0xFFFFFFFFu, 0x80400000u}) {
        const std::uint32_t grey = DisabledPixel(pixel);
        EXPECT_EQ(RedOf(grey), GreenOf(grey));
        EXPECT_EQ(GreenOf(grey), BlueOf(grey));
        EXPECT_LE(RedOf(grey), AlphaOf(grey));
    }
    const int contrast =
        static_cast<int>(RedOf(DisabledPixel(0xFFFFFFFF))) - static_cast<int>(RedOf(DisabledPixel(0xFF000000)));
    EXPECT_GT(contrast, 40);
    EXPECT_LT(contrast, 160);
}

/// A disabled pixel on an opaque ground.
std::uint32_t OnGround(std::uint32_t pixel, std::uint32_t ground) {
    const std::uint32_t grey = DisabledPixel(pixel);
    const auto channel = [&](unsigned above, unsigned below) { return above + below * (255 - AlphaOf(grey)) / 255; };
    return MakeArgb(255, channel(RedOf(grey), RedOf(ground)), channel(GreenOf(grey), GreenOf(ground)),
                    channel(BlueOf(grey), BlueOf(ground)));
}

struct IconsOnGrounds {
    std::vector<std::uint32_t> tones;
    std::vector<std::uint32_t> grounds;
};

TEST(Disabled, IconsOfBothSkinsHaveThreeToOneInNearlyOneTone) {
    const IconsOnGrounds skins[] = {{{0xFF2B3038, 0xFF1C64C8}, {0xFFFFFFFF, 0xFFFAFAFA, 0xFFE9EEEE, 0xFFEBF0F4}},
                                    {{0xFFECEFF5, 0xFFA2CAFF}, {0xFF3C4049, 0xFF4A4D59, 0xFF4B505C, 0xFF434752}}};
    for (const IconsOnGrounds& skin : skins) {
        for (const std::uint32_t tone : skin.tones) {
            for (const std::uint32_t ground : skin.grounds) {
                EXPECT_GE(Contrast(OnGround(tone, ground), ground), 3.0) << std::hex << tone << " on " << ground;
            }
        }
        EXPECT_NEAR(RedOf(DisabledPixel(skin.tones[0])), RedOf(DisabledPixel(skin.tones[1])), 8);
    }
}

TEST(Disabled, ASoftEdgeIsTheSameGreyWithLessOfIt) {
    // White and black at half strength, multiplied.
    for (const auto& [whole, half] : {std::pair{0xFFFFFFFFu, 0x80808080u}, std::pair{0xFF000000u, 0x80000000u}}) {
        EXPECT_NEAR(AlphaOf(DisabledPixel(half)) * 2, AlphaOf(DisabledPixel(whole)), 4);
        EXPECT_NEAR(RedOf(DisabledPixel(half)) * 2, RedOf(DisabledPixel(whole)), 4);
    }
}

TEST(Resampling, KeepsAPlainColourAndHalvesAChequer) {
    std::vector<std::uint32_t> plain(16, 0xFF336699), larger(36);
    Resample({plain.data(), 4, 4}, {larger.data(), 6, 6});
    for (const std::uint32_t pixel : larger) {
        EXPECT_EQ(pixel, 0xFF336699u);
    }
    std::vector<std::uint32_t> chequer{0xFF000000, 0xFFFFFFFF, 0xFFFFFFFF, 0xFF000000}, one(1);
    Resample({chequer.data(), 2, 2}, {one.data(), 1, 1});
    EXPECT_NEAR(RedOf(one[0]), 128, 1);
}

TEST(PreMultiplying, IsDoneOnceOnly) {
    std::uint32_t pixel = 0x80FF0000;
    const PixelView view{&pixel, 1, 1};
    PreMultiply(view, true);
    EXPECT_EQ(pixel, 0x80800000u);
    PreMultiply(view, true);
    EXPECT_EQ(pixel, 0x80800000u);
}

/// A picture of 6 x 6 pixels, each with a colour of its own.
std::vector<std::uint32_t> NumberedPicture() {
    std::vector<std::uint32_t> picture(36);
    for (std::size_t i = 0; i < picture.size(); ++i) {
        picture[i] = 0xFF000000 | static_cast<std::uint32_t>(i + 1);
    }
    return picture;
}

/// What a target of that size shows of it; the margins are 2 on each side.
std::vector<std::uint32_t> Sliced(int width, int height) {
    std::vector<std::uint32_t> target(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    FillSlices({target.data(), width, height}, {0, 0, width, height}, NumberedPicture(), 6, {2, 2, 2, 2});
    return target;
}

TEST(Slices, APictureOfTheSameSizeIsDrawnAsItIs) { EXPECT_EQ(Sliced(6, 6), NumberedPicture()); }

TEST(Slices, CornersKeepTheirSizeInALargerTarget) {
    const std::vector<std::uint32_t> picture = NumberedPicture(), target = Sliced(20, 10);
    for (const auto& [x, y, sourceX, sourceY] :
         {std::array{0, 0, 0, 0}, {1, 1, 1, 1}, {19, 0, 5, 0}, {18, 8, 4, 4}, {0, 9, 0, 5}, {19, 9, 5, 5}}) {
        EXPECT_EQ(target[static_cast<std::size_t>(y * 20 + x)],
                  picture[static_cast<std::size_t>(sourceY * 6 + sourceX)])
            << x << ", " << y;
    }
}

TEST(Slices, TheMiddleIsStretched) {
    const std::vector<std::uint32_t> picture = NumberedPicture(), target = Sliced(20, 6);
    for (int x = 2; x < 18; ++x) {
        EXPECT_EQ(target[static_cast<std::size_t>(x)], picture[x < 10 ? 2 : 3]) << x;
    }
}

TEST(Slices, ATargetWithoutRoomForTwoMarginsGetsTheOutermostPartOfEach) {
    const std::vector<std::uint32_t> picture = NumberedPicture(), target = Sliced(2, 6);
    EXPECT_EQ(target[0], picture[0]);
    EXPECT_EQ(target[1], picture[5]);
    EXPECT_EQ(Sliced(1, 1).size(), 1u);
}

TEST(Slices, APictureIsLaidOverWhatIsThere) {
    std::vector<std::uint32_t> target(1, 0xFF000000 | 0x0000FF);
    const std::vector<std::uint32_t> half(1, 0x80800000); // red, multiplied by its alpha
    FillSlices({target.data(), 1, 1}, {0, 0, 1, 1}, half, 1, {});
    EXPECT_EQ(AlphaOf(target[0]), 255u);
    EXPECT_EQ(RedOf(target[0]), 0x80u);
    EXPECT_NEAR(BlueOf(target[0]), 0x7F, 1);
}

TEST(Slices, NothingIsDrawnOutsideOfTheTargetOrWithoutAPicture) {
    std::vector<std::uint32_t> target(4, 7);
    FillSlices({target.data(), 2, 2}, {-3, -3, 40, 40}, {}, 0, {2, 2, 2, 2});
    EXPECT_EQ(target, std::vector<std::uint32_t>(4, 7));
    FillSlices({target.data(), 2, 2}, {-3, -3, 40, 40}, NumberedPicture(), 6, {2, 2, 2, 2});
    EXPECT_NE(target[0], 7u);
}

} // namespace
