#include "fx/geometry.h"

#include <gtest/gtest.h>

namespace {

using fx::Point;
using fx::Rect;
using fx::Size;

TEST(PlainGeometry, ALengthIsScaledToTheNearestPixel) {
    struct Case {
        int length;
        double scale;
        int expected;
    };
    const Case cases[] = {
        {15, 1.0, 15},  {15, 1.25, 19}, {15, 1.5, 23}, {15, 2.0, 30}, {13, 1.25, 16}, {13, 1.5, 20}, {13, 2.0, 26},
        {16, 1.75, 28}, {0, 2.0, 0},    {1, 0.4, 0},   {1, 0.5, 1},   {-1, 1.5, -2},  {-1, 1.4, -1}, {-3, 2.0, -6},
    };
    for (const Case& one : cases) {
        EXPECT_EQ(fx::Scaled(one.length, one.scale), one.expected) << one.length << " at " << one.scale;
    }
}

TEST(PlainGeometry, RightAndBottomAreOutside) {
    constexpr Rect rect{10, 20, 30, 40};
    EXPECT_TRUE(rect.Contains(Point{10, 20}));
    EXPECT_TRUE(rect.Contains(Point{29, 39}));
    for (const Point outside : {Point{9, 30}, Point{30, 30}, Point{20, 19}, Point{20, 40}}) {
        EXPECT_FALSE(rect.Contains(outside)) << outside.x << ' ' << outside.y;
    }
    EXPECT_EQ(rect.Width(), 20);
    EXPECT_EQ(rect.Height(), 20);
}

TEST(PlainGeometry, WhatHasNoPixelIsEmptyAndOverlapsNothing) {
    for (const Rect empty : {Rect{}, Rect{5, 5, 5, 9}, Rect{5, 5, 9, 5}, Rect{9, 5, 5, 9}}) {
        EXPECT_TRUE(empty.IsEmpty());
        EXPECT_FALSE(empty.Overlaps({0, 0, 100, 100}));
        EXPECT_FALSE(Rect({0, 0, 100, 100}).Overlaps(empty));
    }
    EXPECT_TRUE((Size{0, 5}).IsEmpty());
    EXPECT_TRUE((Size{5, -1}).IsEmpty());
    EXPECT_FALSE((Size{1, 1}).IsEmpty());
}

TEST(PlainGeometry, NeighboursThatTouchDoNotOverlap) {
    constexpr Rect rect{10, 20, 30, 40};
    EXPECT_FALSE(rect.Overlaps(rect.Moved(20, 0)));
    EXPECT_FALSE(rect.Overlaps(rect.Moved(0, -20)));
    EXPECT_TRUE(rect.Overlaps(rect.Moved(19, 0)));
    EXPECT_TRUE(rect.Overlaps(rect.Moved(0, -19)));
}

TEST(PlainGeometry, ARectangleContainsItselfAndWhatItIsDeflatedTo) {
    constexpr Rect rect{10, 20, 30, 40};
    EXPECT_TRUE(rect.Contains(rect));
    EXPECT_TRUE(rect.Contains(rect.Deflated(3)));
    EXPECT_EQ(rect.Deflated(3), (Rect{13, 23, 27, 37}));
    EXPECT_FALSE(rect.Contains(rect.Deflated(-1)));
    EXPECT_FALSE(rect.Contains(rect.Moved(1, 0)));
    EXPECT_TRUE(rect.Deflated(10).IsEmpty());
}

} // namespace
