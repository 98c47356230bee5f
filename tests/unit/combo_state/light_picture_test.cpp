#include "combos/light_picture.h"

#include <gtest/gtest.h>

#include <cmath>
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

TEST(LightPicture, IsFlatWithNothingRoundTheGlass) {
    for (const int side : sides) {
        for (const LightState state : {LightState::On, LightState::Off}) {
            const std::vector<std::uint32_t> picture = DrawLightPicture(side, state);
            EXPECT_EQ(At(picture, side, 0, side * 2 / 5).alpha, 0) << side;
            const std::uint32_t glass = picture[static_cast<std::size_t>(side / 3 * side + side / 2)];
            int alike = 0;
            for (const std::uint32_t pixel : picture) {
                alike += pixel == glass ? 1 : 0;
            }
            // A glass of one colour is a fifth of the square even where the outline is thick.
            EXPECT_GT(alike, side * side / 7) << side;
        }
    }
}

double Luminance(const Pixel& pixel) {
    const auto linear = [](int value) {
        const double share = value / 255.0;
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(pixel.red) + 0.7152 * linear(pixel.green) + 0.0722 * linear(pixel.blue);
}

TEST(LightPicture, ItsOutlineHasThreeToOneOnTheGroundsOfLists) {
    const Pixel grounds[] = {{255, 167, 170, 180}, {255, 242, 242, 246}, {255, 255, 255, 255}};
    for (const LightState state : {LightState::On, LightState::Off}) {
        constexpr int side = 32;
        const std::vector<std::uint32_t> picture = DrawLightPicture(side, state);
        // The socket's upper part is of the outline's colour.
        const Pixel outline = At(picture, side, side / 2, side * 23 / 32);
        ASSERT_EQ(outline.alpha, 255);
        for (const Pixel& ground : grounds) {
            EXPECT_GE((Luminance(ground) + 0.05) / (Luminance(outline) + 0.05), 3.0);
        }
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
