#include "ribbon/focus_walk.h"

#include <gtest/gtest.h>

#include <deque>

#include "tests/unit/ribbon_layout/shapes.h"

using ribbon::FocusNeighbour;
using ribbon::FocusStep;

namespace {

constexpr FocusStep kSteps[] = {FocusStep::Left, FocusStep::Right, FocusStep::Up, FocusStep::Down};

/// A large button, a column of three small ones, a column of two wider ones.
const std::vector<fx::Rect> g_panel{{0, 0, 40, 60},   {42, 0, 80, 20},  {42, 20, 80, 40},
                                    {42, 40, 80, 60}, {82, 0, 140, 20}, {82, 20, 140, 40}};

TEST(FocusWalk, GoesToWhatLiesBeside) {
    EXPECT_EQ(FocusNeighbour(g_panel, 0, FocusStep::Right), 2u) << "beside the middle of the large one";
    EXPECT_EQ(FocusNeighbour(g_panel, 1, FocusStep::Right), 4u);
    EXPECT_EQ(FocusNeighbour(g_panel, 5, FocusStep::Left), 2u);
    EXPECT_EQ(FocusNeighbour(g_panel, 3, FocusStep::Left), 0u);
    EXPECT_EQ(FocusNeighbour(g_panel, 1, FocusStep::Down), 2u);
    EXPECT_EQ(FocusNeighbour(g_panel, 5, FocusStep::Up), 4u);
}

TEST(FocusWalk, GoesToTheNearestFurtherOnWhereNothingLiesBeside) {
    EXPECT_EQ(FocusNeighbour(g_panel, 3, FocusStep::Right), 5u) << "the lower one is empty";
}

TEST(FocusWalk, EndsAtTheEnds) {
    EXPECT_EQ(FocusNeighbour(g_panel, 0, FocusStep::Left), std::nullopt);
    EXPECT_EQ(FocusNeighbour(g_panel, 0, FocusStep::Up), std::nullopt);
    EXPECT_EQ(FocusNeighbour(g_panel, 3, FocusStep::Down), std::nullopt);
    EXPECT_EQ(FocusNeighbour(g_panel, 4, FocusStep::Right), std::nullopt);
    EXPECT_EQ(FocusNeighbour({}, 0, FocusStep::Right), std::nullopt);
}

TEST(FocusWalk, LeavesOutWhatIsNotShown) {
    std::vector<fx::Rect> panel = g_panel;
    panel[2] = {};
    EXPECT_EQ(FocusNeighbour(panel, 1, FocusStep::Down), 3u);
}

TEST(FocusWalk, BordersThatOverlapDoNotHideANeighbour) {
    const std::vector<fx::Rect> row{{0, 0, 23, 20}, {22, 0, 45, 20}, {44, 0, 67, 20}};
    EXPECT_EQ(FocusNeighbour(row, 0, FocusStep::Right), 1u);
    EXPECT_EQ(FocusNeighbour(row, 2, FocusStep::Left), 1u);
}

std::vector<fx::Rect> ShownElements(const std::vector<RibbonPanelLadder>& ladders,
                                    const std::vector<RibbonPanelShape>& shapes,
                                    const RibbonCategoryArrangement& category) {
    std::vector<fx::Rect> rects;
    for (std::size_t panel = 0; panel < ladders.size(); ++panel) {
        const fx::Rect place = category.panels[panel].rect;
        if (place.IsEmpty()) {
            continue;
        }
        const RibbonPanelArrangement inside = ladders[panel].Arrange(category.panels[panel].stepCount);
        if (inside.collapsed) {
            rects.push_back(place);
            continue;
        }
        for (std::size_t element = 0; element < inside.elements.size(); ++element) {
            const fx::Rect rect = inside.elements[element].rect.Moved(place.left, place.top);
            const RibbonElementFlow flow = shapes[panel].elements[element].flow;
            if (rect.IsEmpty() || flow == RibbonElementFlow::WholeHeight) {
                continue; // separators take no focus
            }
            if (flow != RibbonElementFlow::Row) {
                rects.push_back(rect);
                continue;
            }
            // A group is walked inside, button by button.
            for (int left = rect.left; left < rect.right; left += 22) {
                rects.push_back({left, rect.top, std::min(left + 22, rect.right), rect.bottom});
            }
        }
    }
    return rects;
}

std::size_t CountReached(const std::vector<fx::Rect>& rects, std::size_t start) {
    std::vector<bool> isReached(rects.size());
    std::deque<std::size_t> open{start};
    isReached[start] = true;
    std::size_t count = 1;
    while (!open.empty()) {
        const std::size_t from = open.front();
        open.pop_front();
        for (const FocusStep step : kSteps) {
            const auto next = FocusNeighbour(rects, from, step);
            if (next && !isReached[*next]) {
                isReached[*next] = true;
                ++count;
                open.push_back(*next);
            }
        }
    }
    return count;
}

TEST(FocusWalk, ReachesEveryElementOfAnyCategoryFromAnyOther) {
    std::size_t elements = 0;
    for (unsigned seed = 1; seed <= 60; ++seed) {
        const RibbonMetrics metrics = RibbonMetrics::FromFont(13 + seed % 8, 1.0 + (seed % 4) * 0.25);
        std::mt19937 random(seed);
        std::vector<RibbonPanelShape> shapes;
        std::vector<RibbonPanelLadder> ladders;
        for (unsigned count = 1 + random() % 9; count > 0; --count) {
            shapes.push_back(shapes::AnyPanel(random, metrics));
            ladders.emplace_back(shapes.back(), metrics);
        }
        for (int width = 300; width <= 2400; width += 170) {
            const std::vector<fx::Rect> rects =
                ShownElements(ladders, shapes, ArrangeCategory(ladders, metrics, width));
            if (rects.empty()) {
                continue;
            }
            elements += rects.size();
            ASSERT_EQ(CountReached(rects, 0), rects.size()) << "seed " << seed << " width " << width;
            const std::size_t other = random() % rects.size();
            ASSERT_EQ(CountReached(rects, other), rects.size()) << "seed " << seed << " width " << width;
        }
    }
    EXPECT_GT(elements, 10000u);
}

TEST(KeyTipPlace, LiesBelowTheMiddleAndInARowBelowTheImage) {
    EXPECT_EQ(ribbon::PlaceKeyTip({0, 0, 40, 60}, {14, 16}, 32, {}), (fx::Rect{13, 52, 27, 68}));
    EXPECT_EQ(ribbon::PlaceKeyTip({100, 0, 180, 22}, {14, 16}, 16, {}), (fx::Rect{109, 14, 123, 30}));
}

TEST(KeyTipPlace, StaysInsideTheBounds) {
    const fx::Rect bounds{0, 0, 100, 100};
    EXPECT_EQ(ribbon::PlaceKeyTip({0, 90, 4, 100}, {14, 16}, 0, bounds), (fx::Rect{0, 84, 14, 100}));
}

} // namespace
