#include "visual/text_size.h"

#include <gtest/gtest.h>

namespace {

struct Case {
    int menuFont;
    double systemScale;
    double scale;
    int pixels;
};

TEST(TextSize, NinePointsAtEveryScale) {
    const Case cases[] = {
        {-12, 1.0, 1.0, 12}, {-15, 1.25, 1.25, 15}, {-18, 1.5, 1.5, 18}, {-24, 2.0, 2.0, 24},
        {-12, 1.0, 2.0, 24}, {-24, 2.0, 1.0, 12}, // bars on another monitor than the system's first
    };
    for (const Case& row : cases) {
        EXPECT_EQ(visual::FontPixels(row.menuFont, row.systemScale, row.scale), row.pixels) << row.menuFont;
    }
}

TEST(TextSize, WhoWantsLargerTextGetsIt) {
    EXPECT_EQ(visual::FontPixels(-18, 1.0, 1.0), 18);
    EXPECT_EQ(visual::FontPixels(-27, 1.5, 1.5), 27);
    EXPECT_EQ(visual::FontPixels(-18, 1.0, 2.0), 36);
    EXPECT_EQ(visual::FontPixels(18, 1.0, 1.0), 18) << "the height of a line counts as well";
}

TEST(TextSize, TextIsNeverSmallerThanNinePoints) {
    EXPECT_EQ(visual::FontPixels(-11, 1.0, 1.0), 12);
    EXPECT_EQ(visual::FontPixels(0, 1.0, 1.5), 18);
}

} // namespace
