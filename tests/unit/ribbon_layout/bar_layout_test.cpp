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
    EXPECT_EQ(bar.caption, (fx::Rect{0, 0, 800, g_metrics.captionHeight}));
    EXPECT_EQ(bar.tabRow.top, g_metrics.captionHeight);
}

TEST(RibbonBarLayout, ApplicationButtonSpansTheRowsAboveTheCategory) {
    RibbonBarShape shape = Shape(800);
    shape.replacesCaption = true;
    shape.applicationButton = {45, 45};
    const auto bar = ArrangeBar(shape, g_metrics);
    EXPECT_EQ(bar.applicationButton, (fx::Rect{0, 0, 45, bar.tabRow.bottom}));
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
            shape.hasIcon = count % 3 == 0;
            shape.captionButtons = count % 4;
            shape.childButtons = count % 2 * 3;
            shape.tabsOnlyButton = count % 3 == 1;
            shape.firstTab = count / 2;
            shape.tabElementWidths.assign(static_cast<size_t>(count / 10), 24);
            for (int tab = 0; tab < count; ++tab) {
                shape.tabWidths.push_back(40 + tab * 7 % 90);
            }
            for (shape.width = 0; shape.width <= 2000; ++shape.width) {
                const auto bar = ArrangeBar(shape, g_metrics);
                std::vector<fx::Rect> rects{bar.applicationButton, bar.quickAccess,   bar.category,
                                            bar.captionIcon,       bar.tabScrollLeft, bar.tabScrollRight};
                rects.insert(rects.end(), bar.captionButtons.begin(), bar.captionButtons.end());
                rects.insert(rects.end(), bar.childButtons.begin(), bar.childButtons.end());
                rects.insert(rects.end(), bar.tabs.begin(), bar.tabs.end());
                rects.insert(rects.end(), bar.tabElements.begin(), bar.tabElements.end());
                const fx::Rect whole{0, 0, shape.width, bar.height};
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

RibbonBarShape CaptionShape(int width) {
    RibbonBarShape shape = Shape(width);
    shape.replacesCaption = true;
    shape.captionButtons = 3;
    return shape;
}

TEST(RibbonBarLayout, WindowButtonsFillTheRightEndOfTheCaption) {
    const auto bar = ArrangeBar(CaptionShape(800), g_metrics);
    ASSERT_EQ(bar.captionButtons.size(), 3u);
    EXPECT_EQ(bar.captionButtons[2].right, 800);
    EXPECT_EQ(bar.captionButtons[2].top, 0) << "the corner belongs to the close button";
    EXPECT_EQ(bar.captionButtons[1].right, bar.captionButtons[2].left);
    EXPECT_EQ(bar.captionText.right, bar.captionButtons[0].left);
}

TEST(RibbonBarLayout, WithoutRoomTheCloseButtonStaysLongest) {
    const auto bar = ArrangeBar(CaptionShape(2 * g_metrics.captionButtonWidth - 1), g_metrics);
    EXPECT_TRUE(bar.captionButtons[0].IsEmpty());
    EXPECT_TRUE(bar.captionButtons[1].IsEmpty());
    EXPECT_FALSE(bar.captionButtons[2].IsEmpty());
}

TEST(RibbonBarLayout, TheQuickAccessToolbarNeverCoversTheWindowButtons) {
    RibbonBarShape shape = CaptionShape(300);
    shape.quickAccessWidth = 1000;
    const auto bar = ArrangeBar(shape, g_metrics);
    EXPECT_EQ(bar.quickAccess.right, bar.captionButtons[0].left);
}

TEST(RibbonBarLayout, TheIconLeadsTheCaptionUnlessAnApplicationButtonDoes) {
    RibbonBarShape shape = CaptionShape(800);
    shape.hasIcon = true;
    EXPECT_FALSE(ArrangeBar(shape, g_metrics).captionIcon.IsEmpty());
    shape.applicationButton = {45, 45};
    EXPECT_TRUE(ArrangeBar(shape, g_metrics).captionIcon.IsEmpty());
}

TEST(RibbonBarLayout, AChildsButtonsTakeTheirRoomFromTheTabs) {
    RibbonBarShape shape = CaptionShape(800);
    shape.childButtons = 3;
    const auto bar = ArrangeBar(shape, g_metrics);
    for (const fx::Rect& button : bar.childButtons) {
        EXPECT_TRUE(bar.tabRow.Contains(button));
    }
    shape.width = 240 + 4 * g_metrics.tabGap + 3 * g_metrics.childButtonSide;
    const auto narrow = ArrangeBar(shape, g_metrics);
    EXPECT_GT(narrow.tabReduction, 0);
    EXPECT_LE(narrow.tabs[2].right, narrow.childButtons[0].left);
}

TEST(RibbonBarLayout, TabsThatCannotShrinkFurtherScroll) {
    RibbonBarShape shape;
    shape.tabWidths.assign(20, 100);
    shape.width = 8 * g_metrics.minTabWidth;
    const auto start = ArrangeBar(shape, g_metrics);
    EXPECT_TRUE(start.tabScrollLeft.IsEmpty());
    ASSERT_FALSE(start.tabScrollRight.IsEmpty());
    EXPECT_FALSE(start.tabs[0].IsEmpty());
    EXPECT_TRUE(start.tabs[19].IsEmpty());
    shape.firstTab = 3;
    const auto scrolled = ArrangeBar(shape, g_metrics);
    EXPECT_TRUE(scrolled.tabs[2].IsEmpty());
    EXPECT_EQ(scrolled.tabs[3].left, start.tabs[0].left);
    EXPECT_FALSE(scrolled.tabScrollLeft.IsEmpty());
    shape.firstTab = 1000;
    const auto end = ArrangeBar(shape, g_metrics);
    EXPECT_TRUE(end.tabScrollRight.IsEmpty());
    EXPECT_FALSE(end.tabs[19].IsEmpty());
    EXPECT_LT(end.firstTab, 19) << "scrolling does not leave the row empty";
}

TEST(RibbonBarLayout, EveryTabIsReachedByScrolling) {
    RibbonBarShape shape;
    for (int tab = 0; tab < 25; ++tab) {
        shape.tabWidths.push_back(20 + tab * 13 % 80);
    }
    for (shape.width = 2 * g_metrics.scrollButtonWidth + 4 * g_metrics.minTabWidth; shape.width < 900;
         shape.width += 7) {
        std::vector<bool> seen(shape.tabWidths.size());
        for (shape.firstTab = 0;; ++shape.firstTab) {
            const auto bar = ArrangeBar(shape, g_metrics);
            for (size_t tab = 0; tab < bar.tabs.size(); ++tab) {
                seen[tab] = seen[tab] || !bar.tabs[tab].IsEmpty();
            }
            if (bar.tabScrollRight.IsEmpty()) {
                break;
            }
            ASSERT_LT(shape.firstTab, 25);
        }
        EXPECT_THAT(seen, testing::Each(true)) << shape.width;
    }
}

TEST(RibbonBarLayout, ATooSmallFrameKeepsOnlyItsCaption) {
    RibbonBarShape shape = CaptionShape(150);
    shape.captionOnly = true;
    shape.quickAccessWidth = 50;
    const auto bar = ArrangeBar(shape, g_metrics);
    EXPECT_EQ(bar.height, g_metrics.captionHeight);
    EXPECT_TRUE(bar.quickAccess.IsEmpty());
    EXPECT_TRUE(bar.tabs[0].IsEmpty());
    shape.replacesCaption = false;
    EXPECT_EQ(ArrangeBar(shape, g_metrics).height, 0);
}

TEST(RibbonBarLayout, ARectangularApplicationButtonLiesInTheRowOfTabs) {
    RibbonBarShape shape = CaptionShape(800);
    shape.applicationButton = {60, 45};
    shape.tabsOnlyButton = true;
    const auto bar = ArrangeBar(shape, g_metrics);
    EXPECT_EQ(bar.applicationButton, (fx::Rect{0, bar.tabRow.top, 60, bar.tabRow.bottom}));
}

TEST(RibbonBarLayout, TheTitleTakesTheWiderPartBesideContextCaptions) {
    const fx::Rect row{100, 0, 500, 26};
    EXPECT_EQ(WiderFreePart(row, {150, 0, 200, 26}), (fx::Rect{200, 0, 500, 26}));
    EXPECT_EQ(WiderFreePart(row, {400, 0, 480, 26}), (fx::Rect{100, 0, 400, 26}));
    EXPECT_EQ(WiderFreePart(row, {}), row);
    EXPECT_TRUE(WiderFreePart(row, {50, 0, 600, 26}).IsEmpty());
}

} // namespace
