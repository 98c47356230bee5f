#include <gtest/gtest.h>

#include <set>

#include "shapes.h"

namespace {

std::vector<RibbonPanelLadder> AnyPanels(unsigned seed, const RibbonMetrics& metrics) {
    std::mt19937 random(seed);
    const int count = std::uniform_int_distribution(1, 14)(random);
    std::vector<RibbonPanelLadder> panels;
    for (int index = 0; index < count; ++index) {
        panels.emplace_back(shapes::AnyPanel(random, metrics), metrics);
    }
    return panels;
}

/// The panels that can be seen at this width, scrolled as far as the scroll buttons allow.
std::set<size_t> PanelsInReach(const std::vector<RibbonPanelLadder>& panels, const RibbonMetrics& metrics, int width) {
    std::set<size_t> seen;
    for (int first = 0;; ++first) {
        const RibbonCategoryArrangement arrangement = ArrangeCategory(panels, metrics, width, {}, first);
        for (size_t panel = 0; panel < panels.size(); ++panel) {
            if (!arrangement.panels[panel].rect.IsEmpty()) {
                seen.insert(panel);
            }
        }
        if (!arrangement.canScrollRight || arrangement.scrollRight.IsEmpty() || arrangement.firstPanel < first) {
            return seen;
        }
    }
}

TEST(RibbonCategoryLayout, AtEveryWidthEveryPanelCanBeReached) {
    for (unsigned seed = 1; seed <= 12; ++seed) {
        const RibbonMetrics metrics = RibbonMetrics::FromFont(13 + seed % 8, 1.0 + (seed % 4) * 0.25);
        const auto panels = AnyPanels(seed, metrics);
        for (int width = 300; width <= 3840; ++width) {
            ASSERT_EQ(PanelsInReach(panels, metrics, width).size(), panels.size()) << "seed " << seed << " " << width;
        }
    }
}

TEST(RibbonCategoryLayout, EveryElementOfAShownPanelHasAPlaceUnlessThePanelIsCollapsed) {
    for (unsigned seed = 1; seed <= 60; ++seed) {
        const RibbonMetrics metrics = RibbonMetrics::FromFont(13 + seed % 8, 1.0 + (seed % 4) * 0.25);
        std::mt19937 random(seed);
        const RibbonPanelShape shape = shapes::AnyPanel(random, metrics);
        const RibbonPanelLadder panel(shape, metrics);
        for (int steps = 0; steps <= static_cast<int>(panel.Steps().size()); ++steps) {
            const RibbonPanelArrangement arrangement = panel.Arrange(steps);
            for (size_t index = 0; index < shape.elements.size(); ++index) {
                const bool isHidden = shape.elements[index].flow == RibbonElementFlow::Hidden;
                ASSERT_EQ(arrangement.elements[index].rect.IsEmpty(), isHidden || arrangement.collapsed)
                    << "seed " << seed << " step " << steps << " element " << index;
            }
        }
    }
}

TEST(RibbonCategoryLayout, AWiderBarNeverMakesAPanelNarrower) {
    for (unsigned seed = 1; seed <= 12; ++seed) {
        const RibbonMetrics metrics = RibbonMetrics::FromFont(13, 1.0);
        const auto panels = AnyPanels(seed, metrics);
        std::vector<int> narrower(panels.size(), 0);
        for (int width = 300; width <= 3840; ++width) {
            const RibbonCategoryArrangement arrangement = ArrangeCategory(panels, metrics, width);
            for (size_t index = 0; index < panels.size(); ++index) {
                const int panelWidth = panels[index].Arrange(arrangement.panels[index].stepCount).width;
                ASSERT_GE(panelWidth, narrower[index]) << "seed " << seed << " width " << width << " panel " << index;
                narrower[index] = panelWidth;
            }
        }
    }
}

} // namespace
