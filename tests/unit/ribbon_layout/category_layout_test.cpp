#include <gtest/gtest.h>

#include "shapes.h"
#include "tests/support/growth.h"

namespace {

const RibbonMetrics g_metrics = RibbonMetrics::FromFont(13, 1.0);

std::vector<RibbonPanelLadder> Ladders(const std::vector<RibbonPanelShape>& shapes, const RibbonMetrics& metrics) {
    return {[&] {
        std::vector<RibbonPanelLadder> ladders;
        for (const RibbonPanelShape& shape : shapes) {
            ladders.emplace_back(shape, metrics);
        }
        return ladders;
    }()};
}

std::vector<RibbonPanelShape> AnyCategory(unsigned seed, const RibbonMetrics& metrics) {
    std::mt19937 random(seed);
    std::vector<RibbonPanelShape> panels;
    const int count = std::uniform_int_distribution(1, 12)(random);
    for (int index = 0; index < count; ++index) {
        panels.push_back(shapes::AnyPanel(random, metrics));
    }
    return panels;
}

void ExpectSame(const RibbonCategoryArrangement& one, const RibbonCategoryArrangement& two) {
    ASSERT_EQ(one.panels.size(), two.panels.size());
    for (size_t index = 0; index < one.panels.size(); ++index) {
        ASSERT_EQ(one.panels[index].rect, two.panels[index].rect);
        ASSERT_EQ(one.panels[index].stepCount, two.panels[index].stepCount);
    }
}

void ExpectApartAndInside(const RibbonCategoryArrangement& arrangement, const RibbonMetrics& metrics, int width) {
    const fx::Rect bar{0, 0, width, metrics.CategoryHeight()};
    std::vector<fx::Rect> rects{arrangement.scrollLeft, arrangement.scrollRight};
    for (const auto& panel : arrangement.panels) {
        rects.push_back(panel.rect);
    }
    for (size_t one = 0; one < rects.size(); ++one) {
        ASSERT_TRUE(rects[one].IsEmpty() || bar.Contains(rects[one])) << one;
        for (size_t other = one + 1; other < rects.size(); ++other) {
            ASSERT_FALSE(rects[one].Overlaps(rects[other])) << one << " and " << other;
        }
    }
}

TEST(RibbonCategoryLayout, AtEveryWidthPanelsStayApartAndInsideTheSameWidthGivesTheSameAndWiderNeverReducesMore) {
    for (unsigned seed = 1; seed <= 12; ++seed) {
        const RibbonMetrics metrics = RibbonMetrics::FromFont(13 + seed % 8, 1.0 + (seed % 4) * 0.25);
        const auto ladders = Ladders(AnyCategory(seed, metrics), metrics);
        RibbonCategoryArrangement narrower;
        for (int width = 300; width <= 2000; ++width) {
            SCOPED_TRACE(testing::Message() << "seed " << seed << " width " << width);
            const auto arrangement = ArrangeCategory(ladders, metrics, width);
            ASSERT_NO_FATAL_FAILURE(ExpectApartAndInside(arrangement, metrics, width));
            ASSERT_NO_FATAL_FAILURE(ExpectSame(arrangement, ArrangeCategory(ladders, metrics, width)));
            for (size_t index = 0; index < narrower.panels.size(); ++index) {
                ASSERT_LE(arrangement.panels[index].stepCount, narrower.panels[index].stepCount) << index;
            }
            narrower = arrangement;
        }
    }
}

TEST(RibbonCategoryLayout, ElementsOfShownPanelsLieInsideTheirPanels) {
    for (unsigned seed = 1; seed <= 6; ++seed) {
        const auto shapes = AnyCategory(seed, g_metrics);
        const auto ladders = Ladders(shapes, g_metrics);
        for (int width = 300; width <= 2000; width += 37) {
            const auto arrangement = ArrangeCategory(ladders, g_metrics, width);
            for (size_t panel = 0; panel < ladders.size(); ++panel) {
                const fx::Rect& rect = arrangement.panels[panel].rect;
                const auto inner = ladders[panel].Arrange(arrangement.panels[panel].stepCount, rect.Width());
                ASSERT_TRUE(rect.IsEmpty() || rect.Width() == inner.width);
                for (const auto& element : inner.elements) {
                    ASSERT_TRUE(rect.IsEmpty() || element.rect.IsEmpty() ||
                                rect.Contains(element.rect.Moved(rect.left, rect.top)));
                }
            }
        }
    }
}

TEST(RibbonCategoryLayout, WithRoomNothingIsReducedAndPanelsFollowEachOther) {
    const auto ladders = Ladders(AnyCategory(3, g_metrics), g_metrics);
    const auto arrangement = ArrangeCategory(ladders, g_metrics, 100000);
    int x = g_metrics.categoryMarginX;
    for (size_t index = 0; index < ladders.size(); ++index) {
        EXPECT_EQ(arrangement.panels[index].stepCount, 0);
        EXPECT_EQ(arrangement.panels[index].rect.left, x);
        EXPECT_EQ(arrangement.panels[index].rect.Width(), ladders[index].FullWidth());
        x = arrangement.panels[index].rect.right + g_metrics.panelGap;
    }
    EXPECT_FALSE(arrangement.scrolls);
}

TEST(RibbonCategoryLayout, APanelThatIsWiderThanTheRowIsShownAsAButtonCutToTheRow) {
    RibbonPanelShape panel;
    panel.elements.assign(3, shapes::Edit(350, g_metrics));
    panel.captionWidth = 20;
    for (const int collapsedWidth : {60, 320, 500}) {
        for (const size_t count : {1, 3}) {
            panel.collapsedWidth = collapsedWidth;
            const auto ladders = Ladders(std::vector(count, panel), g_metrics);
            for (int first = 0; first < static_cast<int>(count); ++first) {
                const auto arrangement = ArrangeCategory(ladders, g_metrics, 300, {}, first);
                ASSERT_NO_FATAL_FAILURE(ExpectApartAndInside(arrangement, g_metrics, 300));
                const auto& shown = arrangement.panels[static_cast<size_t>(arrangement.firstPanel)];
                ASSERT_FALSE(shown.rect.IsEmpty()) << collapsedWidth << ", from " << first;
                const auto inner = ladders[0].Arrange(shown.stepCount, shown.rect.Width());
                EXPECT_TRUE(inner.collapsed);
                EXPECT_EQ(inner.width, shown.rect.Width());
            }
        }
    }
}

TEST(RibbonCategoryLayout, OnePanelAloneNeedsNoRoomForScrollButtons) {
    RibbonPanelShape panel;
    panel.elements.assign(1, shapes::Edit(350, g_metrics));
    panel.collapsedWidth = 500;
    const auto arrangement = ArrangeCategory(Ladders({panel}, g_metrics), g_metrics, 300);
    EXPECT_FALSE(arrangement.scrolls);
    EXPECT_EQ(arrangement.panels[0].rect.left, g_metrics.categoryMarginX);
    EXPECT_EQ(arrangement.panels[0].rect.right, 300 - g_metrics.categoryMarginX);
}

/// The panels' own widths and the gaps and margins around them.
int TotalWidth(const std::vector<RibbonPanelLadder>& ladders, const RibbonCategoryArrangement& arrangement) {
    int width = 2 * g_metrics.categoryMarginX - g_metrics.panelGap;
    for (size_t panel = 0; panel < ladders.size(); ++panel) {
        width += ladders[panel].Arrange(arrangement.panels[panel].stepCount).width + g_metrics.panelGap;
    }
    return width;
}

TEST(RibbonCategoryLayout, NoPanelIsCollapsedThatWouldFitOpen) {
    int collapsed = 0;
    for (unsigned seed = 1; seed <= 12; ++seed) {
        const auto ladders = Ladders(AnyCategory(seed, g_metrics), g_metrics);
        for (int width = 100; width <= 2000; ++width) {
            const auto arrangement = ArrangeCategory(ladders, g_metrics, width);
            const int total = TotalWidth(ladders, arrangement);
            for (size_t panel = 0; panel < ladders.size(); ++panel) {
                const int steps = arrangement.panels[panel].stepCount;
                const auto shown = ladders[panel].Arrange(steps);
                if (!shown.collapsed) {
                    continue;
                }
                ++collapsed;
                const int open = ladders[panel].Arrange(steps - 1).width;
                ASSERT_GT(total - shown.width + open, width) << "seed " << seed << " panel " << panel;
            }
        }
    }
    EXPECT_GT(collapsed, 1000);
}

TEST(RibbonCategoryLayout, ThePanelThatGivesUpMostCollapsesFirst) {
    RibbonPanelShape wide;
    wide.elements.assign(1, shapes::Edit(250, g_metrics));
    wide.captionWidth = 20;
    wide.collapsedWidth = 44;
    RibbonPanelShape narrow = wide;
    narrow.elements.assign(1, shapes::Edit(90, g_metrics));
    const auto ladders = Ladders({narrow, wide, narrow}, g_metrics);
    const int full = TotalWidth(ladders, ArrangeCategory(ladders, g_metrics, 100000));
    const auto steps = [&](int width, std::span<const int> order = {}) {
        const auto arrangement = ArrangeCategory(ladders, g_metrics, width, order);
        std::vector<int> result;
        for (const auto& panel : arrangement.panels) {
            result.push_back(panel.stepCount);
        }
        return result;
    };
    EXPECT_EQ(steps(full), (std::vector{0, 0, 0}));
    EXPECT_EQ(steps(full - 1), (std::vector{0, 1, 0}));
    EXPECT_EQ(steps(full - 207), (std::vector{0, 1, 1})) << "of equal ones the right one";
    const int order[] = {0, 2};
    EXPECT_EQ(steps(full - 1, order), (std::vector{1, 0, 0})) << "an order that is set comes first";
    EXPECT_EQ(steps(full - 60, order), (std::vector{1, 0, 1}));
}

TEST(RibbonCategoryLayout, APanelDoesNotCollapseWhereThatSavesNothing) {
    RibbonPanelShape panel;
    panel.elements.assign(3, shapes::SmallButton(60, g_metrics));
    panel.captionWidth = 50;
    const int compact = 50 + 2 * g_metrics.panelCaptionPadding; // the caption's
    panel.collapsedWidth = compact - g_metrics.minCollapseGain + 1;
    const int order[] = {0, 0, 0};
    auto arrangement = ArrangeCategory(Ladders({panel}, g_metrics), g_metrics, 10, order);
    EXPECT_EQ(arrangement.panels[0].stepCount, 1);
    --panel.collapsedWidth;
    arrangement = ArrangeCategory(Ladders({panel}, g_metrics), g_metrics, 10, order);
    EXPECT_EQ(arrangement.panels[0].stepCount, 2) << "collapsed";
}

class TwoEqualPanels : public testing::Test {
protected:
    TwoEqualPanels() {
        RibbonPanelShape panel;
        panel.elements.assign(3, shapes::LargeButton(60, g_metrics));
        panel.captionWidth = 20;
        panel.collapsedWidth = 44;
        m_ladders = Ladders({panel, panel}, g_metrics);
        m_justTooNarrow = 2 * m_ladders[0].FullWidth() + g_metrics.panelGap + 2 * g_metrics.categoryMarginX - 1;
    }
    std::vector<RibbonPanelLadder> m_ladders;
    int m_justTooNarrow = 0;
};

TEST_F(TwoEqualPanels, TheRightOneReducesFirst) {
    const auto arrangement = ArrangeCategory(m_ladders, g_metrics, m_justTooNarrow);
    EXPECT_EQ(arrangement.panels[0].stepCount, 0);
    EXPECT_EQ(arrangement.panels[1].stepCount, 1);
}

TEST_F(TwoEqualPanels, TheCollapseOrderNamesWhoReducesFirst) {
    const int order[] = {0, 0, 0, 7, -1};
    const auto arrangement = ArrangeCategory(m_ladders, g_metrics, m_justTooNarrow, order);
    EXPECT_EQ(arrangement.panels[0].stepCount, 1);
    EXPECT_EQ(arrangement.panels[1].stepCount, 0);
}

TEST(RibbonCategoryLayout, WhatDoesNotFitCollapsedScrollsByWholePanels) {
    std::vector<RibbonPanelShape> panels(20);
    for (auto& panel : panels) {
        panel.elements.assign(3, shapes::LargeButton(60, g_metrics));
        panel.captionWidth = 20;
        panel.collapsedWidth = 44;
    }
    const auto ladders = Ladders(panels, g_metrics);
    const auto start = ArrangeCategory(ladders, g_metrics, 400);
    ASSERT_TRUE(start.scrolls);
    EXPECT_FALSE(start.panels[0].rect.IsEmpty());
    EXPECT_TRUE(start.panels[19].rect.IsEmpty());
    EXPECT_TRUE(start.scrollLeft.IsEmpty());
    EXPECT_FALSE(start.scrollRight.IsEmpty());
    EXPECT_EQ(start.panels[0].rect.left, g_metrics.categoryMarginX) << "no room for a button that is not there";

    const auto next = ArrangeCategory(ladders, g_metrics, 400, {}, 1);
    EXPECT_FALSE(next.scrollLeft.IsEmpty());
    EXPECT_EQ(next.panels[1].rect.left, next.scrollLeft.right);

    const auto end = ArrangeCategory(ladders, g_metrics, 400, {}, 1000);
    EXPECT_FALSE(end.panels[19].rect.IsEmpty()) << "the first panel is held so that the last page is full";
    EXPECT_FALSE(end.panels[static_cast<size_t>(end.firstPanel)].rect.IsEmpty());
    EXPECT_TRUE(end.scrollRight.IsEmpty());
    EXPECT_FALSE(end.scrollLeft.IsEmpty());
}

TEST(RibbonCategoryLayout, ABarTooNarrowForAnythingShowsNothingOutside) {
    const auto ladders = Ladders(AnyCategory(5, g_metrics), g_metrics);
    for (int width = 0; width < 300; ++width) {
        ASSERT_NO_FATAL_FAILURE(ExpectApartAndInside(ArrangeCategory(ladders, g_metrics, width), g_metrics, width));
    }
}

TEST(RibbonCategoryLayout, TwentyTimesTheElementsTakeNoMoreThanEightyTimesTheTime) {
    const auto measure = [](size_t elements) {
        RibbonPanelShape panel;
        panel.captionWidth = 20;
        panel.collapsedWidth = 44;
        panel.elements.assign(elements, shapes::LargeButton(60, g_metrics));
        return MeasureSeconds([&panel] {
            const auto ladders = Ladders({panel}, g_metrics);
            const auto arrangement = ArrangeCategory(ladders, g_metrics, 300);
            const auto placed = ladders[0].Arrange(arrangement.panels[0].stepCount);
        });
    };
    // Quadratic work would take 400 times the time.
    EXPECT_LT(MeasureGrowth(
                  20, [&] { return measure(2000); }, [&] { return measure(40000); }),
              80);
}

} // namespace
