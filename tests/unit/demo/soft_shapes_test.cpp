// Smooth edges, pixel by pixel.
#include "soft_shapes.h"

#include <gtest/gtest.h>

#include <array>

namespace {

constexpr int kSide = 12;

struct Sheet {
    std::array<std::uint32_t, kSide* kSide> bits = {};
    soft::Pixels pixels{bits.data(), kSide, kSide};

    std::uint32_t At(int x, int y) const { return bits[static_cast<std::size_t>(y) * kSide + x]; }
};

TEST(SoftShapes, AColourIsMixedByItsShare) {
    EXPECT_EQ(soft::Mixed(0x000000, 0xFF8040, 0), 0x000000U);
    EXPECT_EQ(soft::Mixed(0x000000, 0xFF8040, 1), 0xFF8040U);
    EXPECT_EQ(soft::Mixed(0x000000, 0xFF8040, 0.5), 0x804020U);
}

TEST(SoftShapes, ARoundedBoxIsWholeInsideClearOutsideAndSoftAtItsCorners) {
    Sheet sheet;
    soft::FillRounded(sheet.pixels, {2, 2, 10, 10}, 3, 0xFFFFFF);
    EXPECT_EQ(sheet.At(6, 6), 0xFFFFFFU);
    EXPECT_EQ(sheet.At(2, 6), 0xFFFFFFU) << "straight edges are sharp";
    EXPECT_EQ(sheet.At(1, 6), 0U);
    EXPECT_EQ(sheet.At(10, 6), 0U);
    EXPECT_LT(sheet.At(2, 2), 0x808080U);
    EXPECT_GT(sheet.At(3, 2), 0U);
    EXPECT_LT(sheet.At(3, 2), 0xFFFFFFU);
    for (int i = 0; i < kSide; ++i) {
        EXPECT_EQ(sheet.At(i, 3), sheet.At(kSide - 1 - i, 3)) << "it is as its mirror image";
        EXPECT_EQ(sheet.At(i, 3), sheet.At(3, i));
    }
}

TEST(SoftShapes, WhatLiesOutsideOfTheBitmapIsLeftOut) {
    Sheet sheet;
    soft::FillRounded(sheet.pixels, {-5, -5, 40, 40}, 2, 0xFFFFFF);
    EXPECT_EQ(sheet.At(0, 0), 0xFFFFFFU);
    EXPECT_EQ(sheet.At(kSide - 1, kSide - 1), 0xFFFFFFU);
}

TEST(SoftShapes, ALineCoversItsWidth) {
    Sheet sheet;
    soft::DrawLine(sheet.pixels, 2, 6, 10, 6, 2, 0xFFFFFF);
    EXPECT_EQ(sheet.At(6, 5), 0xFFFFFFU);
    EXPECT_EQ(sheet.At(6, 6), 0xFFFFFFU);
    EXPECT_EQ(sheet.At(6, 4), 0U);
    EXPECT_EQ(sheet.At(6, 7), 0U);
}

} // namespace
