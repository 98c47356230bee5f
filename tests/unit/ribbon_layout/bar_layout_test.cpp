#include <gmock/gmock.h>

#include <numeric>

#include "ribbon/bar_layout.h"

namespace {

using testing::ElementsAre;

const RibbonMetrics g_metrics = RibbonMetrics::FromFont(13, 1.0);

RibbonBarShape Shape(int width) {
    RibbonBarShape shape;
    shape.width = width;
    shape.tabWidths = {60, 80, 100};
    return shape;
}

TEST(RibbonBarLayout, WithoutCaptionAndQuickAccessTheTabsAreTheFirstRow) {
    const auto bar = ArrangeBar(Shape(800), g_metrics);
    EXPECT_EQ(bar.tabRow.top, 0);
    EXPECT_TRUE(bar.caption.IsEmpty());
    EXPECT_TRUE(bar.quickAccess.IsEmpty());
    EXPECT_EQ(bar.category.top, bar.tabRow.bottom);
    EXPECT_EQ(bar.height, g_metrics.tabHeight + g_metrics.CategoryHeight());
}

TEST(RibbonBarLayout, QuickAccessHasARowAboveTheTabsOrBelowTheCategory) {
    RibbonBarShape shape = Shape(800);
    shape.quickAccessWidth = 120;
    const auto above = ArrangeBar(shape, g_metrics);
    EXPECT_EQ(above.quickAccess.Width(), 120);
    EXPECT_EQ(above.quickAccess.bottom, above.tabRow.top);
    shape.quickAccessOnTop = false;
    const auto below = ArrangeBar(shape, g_metrics);
    EXPECT_EQ(below.tabRow.top, 0);
    EXPECT_EQ(below.quickAccess.top, below.category.bottom);
    EXPECT_EQ(below.height, below.quickAccess.bottom);
    EXPECT_EQ(below.height, above.height);
}

TEST(RibbonBarLayout, AReplacedCaptionKeepsItsRowWithoutQuickAccess) {
    RibbonBarShape shape = Shape(800);
    shape.replacesCaption = true;
    const auto bar = ArrangeBar(shape, g_metrics);
    EXPECT_EQ(bar.caption, (RibbonRect{0, 0, 800, g_metrics.captionHeight}));
    EXPECT_EQ(bar.tabRow.top, g_metrics.captionHeight);
}

TEST(RibbonBarLayout, ApplicationButtonSpansTheRowsAboveTheCategory) {
    RibbonBarShape shape = Shape(800);
    shape.replacesCaption = true;
    shape.applicationButton = {45, 45};
    const auto bar = ArrangeBar(shape, g_metrics);
    EXPECT_EQ(bar.applicationButton, (RibbonRect{0, 0, 45, bar.tabRow.bottom}));
    EXPECT_GT(bar.tabs[0].left, 45);
}

TEST(RibbonBarLayout, AMinimizedBarHasNoCategory) {
    RibbonBarShape shape = Shape(800);
    shape.minimized = true;
    const auto bar = ArrangeBar(shape, g_metrics);
    EXPECT_TRUE(bar.category.IsEmpty());
    EXPECT_EQ(bar.height, g_metrics.tabHeight);
}

TEST(RibbonBarLayout, TheWidestTabsGiveUpWidthFirst) {
    EXPECT_THAT(ShortenWidths({60, 80, 100}, 300, 16), ElementsAre(60, 80, 100));
    EXPECT_THAT(ShortenWidths({60, 80, 100}, 220, 16), ElementsAre(60, 80, 80));
    EXPECT_THAT(ShortenWidths({60, 80, 100}, 150, 16), ElementsAre(50, 50, 50));
    EXPECT_THAT(ShortenWidths({60, 80, 100}, 30, 16), ElementsAre(16, 16, 16));
}

TEST(RibbonBarLayout, TheReductionOfTabsIsToldInPercent) {
    EXPECT_EQ(ArrangeBar(Shape(800), g_metrics).tabReduction, 0);
    const int margins = 2 * g_metrics.categoryMarginX + 2 * g_metrics.tabGap;
    EXPECT_EQ(ArrangeBar(Shape(120 + margins), g_metrics).tabReduction, 50);
}

TEST(RibbonBarLayout, AtEveryWidthThePartsStayApartAndInside) {
    for (int count = 0; count <= 30; count += 5) {
        for (const bool quickAccessOnTop : {true, false}) {
            RibbonBarShape shape;
            shape.replacesCaption = count % 2 == 0;
            shape.quickAccessOnTop = quickAccessOnTop;
            shape.quickAccessWidth = count * 20;
            shape.applicationButton = {count % 3 * 20, 40};
            shape.tabElementWidths.assign(static_cast<size_t>(count / 10), 24);
            for (int tab = 0; tab < count; ++tab) {
                shape.tabWidths.push_back(40 + tab * 7 % 90);
            }
            for (shape.width = 0; shape.width <= 2000; ++shape.width) {
                const auto bar = ArrangeBar(shape, g_metrics);
                std::vector<RibbonRect> rects{bar.applicationButton, bar.quickAccess, bar.category};
                rects.insert(rects.end(), bar.tabs.begin(), bar.tabs.end());
                rects.insert(rects.end(), bar.tabElements.begin(), bar.tabElements.end());
                const RibbonRect whole{0, 0, shape.width, bar.height};
                for (size_t one = 0; one < rects.size(); ++one) {
                    ASSERT_TRUE(rects[one].IsEmpty() || whole.Contains(rects[one])) << shape.width << ' ' << one;
                    for (size_t other = one + 1; other < rects.size(); ++other) {
                        ASSERT_FALSE(rects[one].Overlaps(rects[other])) << shape.width << ' ' << one << ' ' << other;
                    }
                }
            }
        }
    }
}

} // namespace
