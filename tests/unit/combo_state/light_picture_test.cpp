#include "combos/light_picture.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace {

struct Pixel {
    int alpha;
    int red;
    int green;
    int blue;
};

Pixel At(const std::vector<std::uint32_t>& picture, int side, int x, int y) {
    const std::uint32_t value =
        picture[static_cast<std::size_t>(y) * static_cast<std::size_t>(side) + static_cast<std::size_t>(x)];
    return {static_cast<int>(value >> 24), static_cast<int>(value >> 16 & 0xFF), static_cast<int>(value >> 8 & 0xFF),
            static_cast<int>(value & 0xFF)};
}

/// The sizes at 100, 125, 150, 175 and 200 %.
constexpr int sides[] = {13, 16, 20, 24, 26, 28, 32};

TEST(LightPicture, HasAsManyPixelsAsAsked) {
    for (const int side : {1, 2, 7, 13, 16, 64}) {
        EXPECT_EQ(DrawLightPicture(side, LightState::On).size(), static_cast<std::size_t>(side * side));
    }
    EXPECT_TRUE(DrawLightPicture(0, LightState::On).empty());
    EXPECT_TRUE(DrawLightPicture(-5, LightState::Off).empty());
}

TEST(LightPicture, IsWarmWhenOnAndGreyWhenOff) {
    for (const int side : sides) {
        const Pixel on = At(DrawLightPicture(side, LightState::On), side, side / 2, side / 3);
        const Pixel off = At(DrawLightPicture(side, LightState::Off), side, side / 2, side / 3);
        EXPECT_EQ(on.alpha, 255) << side;
        EXPECT_EQ(off.alpha, 255) << side;
        EXPECT_GT(on.red, 230) << side;
        EXPECT_GT(on.green, 200) << side;
        EXPECT_LT(on.blue, 200) << side;
        EXPECT_LT(std::abs(off.red - off.blue), 16) << side;
        EXPECT_LT(std::abs(off.red - off.green), 16) << side;
    }
}

TEST(LightPicture, GlowsRoundTheGlassWhenOnOnly) {
    for (const int side : sides) {
        const int row = side * 2 / 5;
        const Pixel on = At(DrawLightPicture(side, LightState::On), side, 1, row);
        EXPECT_GT(on.alpha, 0) << side;
        EXPECT_LT(on.alpha, 255) << side;
        EXPECT_GT(on.red, on.blue + 100) << side;
        EXPECT_EQ(At(DrawLightPicture(side, LightState::Off), side, 1, row).alpha, 0) << side;
    }
}

TEST(LightPicture, LeavesItsCornersFree) {
    for (const int side : sides) {
        for (const LightState state : {LightState::On, LightState::Off}) {
            const std::vector<std::uint32_t> picture = DrawLightPicture(side, state);
            for (const int x : {0, side - 1}) {
                EXPECT_EQ(At(picture, side, x, 0).alpha, 0) << side;
                EXPECT_EQ(At(picture, side, x, side - 1).alpha, 0) << side;
            }
        }
    }
}

TEST(LightPicture, ItsOutlineIsTheSameOnBothSides) {
    for (const int side : sides) {
        for (const LightState state : {LightState::On, LightState::Off}) {
            const std::vector<std::uint32_t> picture = DrawLightPicture(side, state);
            for (int y = 0; y < side; ++y) {
                for (int x = 0; x < side / 2; ++x) {
                    EXPECT_EQ(At(picture, side, x, y).alpha, At(picture, side, side - 1 - x, y).alpha)
                        << side << ": " << x << ' ' << y;
                }
            }
        }
    }
}

TEST(LightPicture, TheSidesOfItsSocketLieBetweenPixels) {
    for (const int side : sides) {
        const std::vector<std::uint32_t> picture = DrawLightPicture(side, LightState::Off);
        // In the upper half of the socket, above its round foot.
        const int row = side * 3 / 4;
        for (int x = 0; x < side; ++x) {
            const int alpha = At(picture, side, x, row).alpha;
            EXPECT_TRUE(alpha == 0 || alpha == 255) << side << ": " << x << " has " << alpha;
        }
    }
}

} // namespace
