#include <gmock/gmock.h>

#include "shapes.h"

namespace {

using Phase = RibbonPanelLadder::Phase;
using testing::Each;

const RibbonMetrics g_metrics = RibbonMetrics::FromFont(13, 1.0);

RibbonPanelShape Panel(std::vector<RibbonElementShape> elements) {
    RibbonPanelShape panel;
    panel.elements = std::move(elements);
    panel.captionWidth = 60;
    panel.collapsedWidth = 44;
    return panel;
}

std::vector<RibbonElementMode> Modes(const RibbonPanelArrangement& arrangement) {
    std::vector<RibbonElementMode> modes;
    for (const auto& element : arrangement.elements) {
        modes.push_back(element.mode);
    }
    return modes;
}

fx::Rect ContentRect(const RibbonPanelArrangement& arrangement) {
    return {0, 0, arrangement.width, arrangement.caption.top};
}

TEST(RibbonPanelLayout, ThreeLargeButtonsBecomeOneColumnOfIntermediateOnesThenOfCompactOnes) {
    const RibbonElementShape button = shapes::LargeButton(60, g_metrics);
    const RibbonPanelLadder ladder(Panel({button, button, button}), g_metrics);
    ASSERT_EQ(ladder.Steps().size(), 3u);
    EXPECT_EQ(ladder.Steps()[0].phase, Phase::Intermediate);
    EXPECT_EQ(ladder.Steps()[1].phase, Phase::Compact);
    EXPECT_EQ(ladder.Steps()[2].phase, Phase::Collapsed);

    const auto full = ladder.Arrange(0);
    EXPECT_THAT(Modes(full), Each(RibbonElementMode::Large));
    EXPECT_EQ(full.elements[0].rect.top, full.elements[2].rect.top);
    EXPECT_LE(full.elements[0].rect.right, full.elements[1].rect.left);

    const auto stacked = ladder.Arrange(1);
    EXPECT_THAT(Modes(stacked), Each(RibbonElementMode::Intermediate));
    EXPECT_EQ(stacked.elements[0].rect.left, stacked.elements[2].rect.left);
    EXPECT_LE(stacked.elements[0].rect.bottom, stacked.elements[1].rect.top);

    EXPECT_THAT(Modes(ladder.Arrange(2)), Each(RibbonElementMode::Compact));
    EXPECT_TRUE(ladder.Arrange(3).collapsed);
}

TEST(RibbonPanelLayout, LargeButtonsReduceInThreesFromTheRight) {
    const RibbonElementShape button = shapes::LargeButton(60, g_metrics);
    const RibbonPanelLadder ladder(Panel({button, button, button, button}), g_metrics);
    const auto first = ladder.Arrange(1);
    EXPECT_EQ(first.elements[0].mode, RibbonElementMode::Large);
    for (size_t index = 1; index < 4; ++index) {
        EXPECT_EQ(first.elements[index].mode, RibbonElementMode::Intermediate) << index;
    }
}

TEST(RibbonPanelLayout, SmallElementsStackInColumnsOfThree) {
    const RibbonElementShape button = shapes::SmallButton(40, g_metrics);
    const RibbonPanelLadder ladder(Panel({button, button, button, button}), g_metrics);
    const auto full = ladder.Arrange(0);
    EXPECT_EQ(full.elements[0].rect.left, full.elements[2].rect.left);
    EXPECT_GT(full.elements[3].rect.left, full.elements[0].rect.right);
    EXPECT_EQ(full.elements[3].rect.top, full.elements[0].rect.top);
}

TEST(RibbonPanelLayout, GroupsTakeTwoRowsAndThreeWhenNarrow) {
    std::vector<RibbonElementShape> groups(6, shapes::Group(60, g_metrics));
    const RibbonPanelLadder ladder(Panel(groups), g_metrics);
    const auto wide = ladder.Arrange(0);
    EXPECT_EQ(wide.elements[0].rect.top, wide.elements[2].rect.top);
    EXPECT_EQ(wide.elements[3].rect.left, wide.elements[0].rect.left);
    const auto narrow = ladder.Arrange(1);
    EXPECT_EQ(narrow.elements[0].rect.top, narrow.elements[1].rect.top);
    EXPECT_EQ(narrow.elements[2].rect.left, narrow.elements[0].rect.left);
    EXPECT_LT(narrow.width, wide.width);
}

TEST(RibbonPanelLayout, AnEditNarrowsBeforeTheLabelsGo) {
    const RibbonElementShape edit = shapes::Elastic(30, 100, 40, g_metrics);
    const RibbonElementShape slider = shapes::Elastic(0, 120, 48, g_metrics);
    const RibbonPanelLadder ladder(Panel({edit, slider, shapes::SmallButton(30, g_metrics)}), g_metrics);
    std::vector<Phase> phases;
    for (const auto& step : ladder.Steps()) {
        phases.push_back(step.phase);
    }
    EXPECT_THAT(phases, testing::ElementsAre(Phase::Narrow, Phase::Narrow, Phase::Compact, Phase::Collapsed));
    EXPECT_EQ(ladder.Arrange(0).elements[0].rect.Width(), 130);
    EXPECT_EQ(ladder.Arrange(0).elements[1].rect.Width(), 120);
    const auto half = ladder.Arrange(1);
    EXPECT_EQ(half.elements[0].rect.Width(), 100);
    EXPECT_EQ(half.elements[1].rect.Width(), 100) << "no narrower than the column";
    const auto narrow = ladder.Arrange(2);
    EXPECT_THAT(Modes(narrow), Each(RibbonElementMode::Intermediate)) << "with their labels";
    EXPECT_EQ(narrow.elements[0].rect.Width(), 70);
    EXPECT_EQ(narrow.elements[1].rect.Width(), 70);
    const auto compact = ladder.Arrange(3);
    EXPECT_EQ(compact.elements[0].mode, RibbonElementMode::Compact);
    EXPECT_EQ(compact.elements[0].rect.Width(), 48) << "narrow it stays, as wide as the slider now";
}

TEST(RibbonPanelLayout, AnEditBelowAWideTextNarrowsWhenTheTextHasGone) {
    const RibbonElementShape edit = shapes::Elastic(0, 100, 40, g_metrics);
    const RibbonPanelLadder ladder(Panel({shapes::SmallButton(140, g_metrics), edit}), g_metrics);
    EXPECT_EQ(ladder.Steps().front().phase, Phase::Compact) << "narrowing it before would gain nothing";
    EXPECT_EQ(ladder.Arrange(1).elements[1].rect.Width(), 100);
    EXPECT_EQ(ladder.Arrange(2).elements[1].rect.Width(), 70);
    EXPECT_EQ(ladder.Arrange(3).elements[1].rect.Width(), 40);
}

TEST(RibbonPanelLayout, AnElementThatKeepsItsWidthNeverNarrows) {
    const RibbonPanelLadder ladder(Panel({shapes::Edit(130, g_metrics)}), g_metrics);
    ASSERT_EQ(ladder.Steps().size(), 1u);
    EXPECT_EQ(ladder.Steps()[0].phase, Phase::Collapsed);
}

TEST(RibbonPanelLayout, NothingNarrowsBelowItsLeastWidthOrWhileThereIsRoom) {
    std::mt19937 random(2711);
    for (int round = 0; round < 300; ++round) {
        const RibbonPanelShape shape = shapes::AnyPanel(random, g_metrics);
        const RibbonPanelLadder ladder(shape, g_metrics);
        for (int step = 0; step <= static_cast<int>(ladder.Steps().size()); ++step) {
            const auto arrangement = ladder.Arrange(step);
            for (size_t index = 0; index < shape.elements.size() && !arrangement.collapsed; ++index) {
                const RibbonElementShape& element = shape.elements[index];
                if (element.narrowest == 0 || shape.justifyColumns) {
                    continue;
                }
                const auto& placed = arrangement.elements[index];
                const bool isCompact = placed.mode == RibbonElementMode::Compact;
                const int full = isCompact ? element.compact.width : element.intermediate.width;
                const int spare = std::max(0, element.intermediate.width - element.narrowest);
                ASSERT_GE(placed.rect.Width(), full - spare);
                ASSERT_LE(placed.rect.Width(), full);
                ASSERT_TRUE(step > 0 || placed.rect.Width() == full);
            }
        }
    }
}

TEST(RibbonPanelLayout, StackedButtonsStandALineApartAtEveryScale) {
    for (const auto& [percent, textHeight] :
         {std::pair{100, 13}, {125, 16}, {150, 20}, {150, 18}, {175, 23}, {200, 26}}) {
        const double scale = percent / 100.0;
        const RibbonMetrics metrics = RibbonMetrics::FromFont(textHeight, scale);
        RibbonElementShape button = shapes::SmallButton(60, metrics);
        button.intermediate.height = button.compact.height = ribbon::FaceMetrics{scale, textHeight}.RowHeight();
        const auto placed = RibbonPanelLadder(Panel({button, button, button}), metrics).Arrange(0).elements;
        for (size_t row = 1; row < placed.size(); ++row) {
            EXPECT_GE(placed[row].rect.top - placed[row - 1].rect.bottom, 1) << percent << " %, text " << textHeight;
        }
    }
}

TEST(RibbonPanelLayout, AnElementHigherThanOneRowTakesSeveral) {
    RibbonElementShape high = shapes::Edit(80, g_metrics);
    high.intermediate.height = 2 * g_metrics.rowHeight;
    const RibbonPanelLadder ladder(
        Panel({high, shapes::SmallButton(40, g_metrics), shapes::SmallButton(40, g_metrics)}), g_metrics);
    const auto full = ladder.Arrange(0);
    EXPECT_EQ(full.elements[0].rect.Height(), 2 * g_metrics.rowHeight);
    EXPECT_EQ(full.elements[1].rect.left, full.elements[0].rect.left);
    EXPECT_GT(full.elements[2].rect.left, full.elements[0].rect.left);
}

TEST(RibbonPanelLayout, APanelIsAtLeastAsWideAsItsCaption) {
    RibbonPanelShape panel = Panel({shapes::SmallButton(10, g_metrics)});
    panel.captionWidth = 200;
    panel.collapsedWidth = 0;
    const RibbonPanelLadder ladder(panel, g_metrics);
    EXPECT_EQ(ladder.FullWidth(), 200 + 2 * (g_metrics.panelPaddingX + g_metrics.panelCaptionPadding));
    EXPECT_TRUE(ladder.Steps().empty()) << "no reduction makes the caption narrower";
}

TEST(RibbonPanelLayout, HiddenElementsHaveNoPlace) {
    const RibbonPanelLadder with(Panel({shapes::LargeButton(40, g_metrics), shapes::Hidden()}), g_metrics);
    const RibbonPanelLadder without(Panel({shapes::LargeButton(40, g_metrics)}), g_metrics);
    EXPECT_EQ(with.FullWidth(), without.FullWidth());
    EXPECT_TRUE(with.Arrange(0).elements[1].rect.IsEmpty());
}

TEST(RibbonPanelLayout, AnEmptyPanelHasItsCaption) {
    const RibbonPanelLadder ladder(Panel({}), g_metrics);
    const auto full = ladder.Arrange(0);
    EXPECT_FALSE(full.caption.IsEmpty());
    EXPECT_GE(full.width, 60);
}

TEST(RibbonPanelLayout, EveryStepOfAnyPanelIsNarrowerAndKeepsItsElementsApartAndInside) {
    std::mt19937 random(4711);
    for (int round = 0; round < 300; ++round) {
        const RibbonMetrics metrics = RibbonMetrics::FromFont(13 + round % 9, 1.0 + (round % 5) * 0.25);
        const RibbonPanelShape shape = shapes::AnyPanel(random, metrics);
        const RibbonPanelLadder ladder(shape, metrics);
        int previous = ladder.FullWidth() + 1;
        for (int step = 0; step <= static_cast<int>(ladder.Steps().size()); ++step) {
            SCOPED_TRACE(testing::Message() << "round " << round << " step " << step);
            const auto arrangement = ladder.Arrange(step);
            ASSERT_LT(arrangement.width, previous);
            previous = arrangement.width;
            ASSERT_EQ(arrangement.elements.size(), shape.elements.size());
            for (size_t one = 0; one < arrangement.elements.size(); ++one) {
                const fx::Rect& rect = arrangement.elements[one].rect;
                const bool shown = !arrangement.collapsed && shape.elements[one].flow != RibbonElementFlow::Hidden;
                ASSERT_EQ(!rect.IsEmpty(), shown) << one;
                if (!shown) {
                    continue;
                }
                ASSERT_TRUE(ContentRect(arrangement).Contains(rect)) << one;
                for (size_t other = one + 1; other < arrangement.elements.size(); ++other) {
                    ASSERT_FALSE(rect.Overlaps(arrangement.elements[other].rect)) << one << " and " << other;
                }
            }
        }
    }
}

TEST(RibbonPanelLayout, AModeThatAnElementDoesNotHaveIsNeverChosen) {
    std::mt19937 random(99);
    for (int round = 0; round < 200; ++round) {
        const RibbonPanelShape shape = shapes::AnyPanel(random, g_metrics);
        const RibbonPanelLadder ladder(shape, g_metrics);
        for (int step = 0; step <= static_cast<int>(ladder.Steps().size()); ++step) {
            const auto arrangement = ladder.Arrange(step);
            for (size_t index = 0; index < shape.elements.size(); ++index) {
                const RibbonElementMode mode = arrangement.elements[index].mode;
                ASSERT_TRUE(mode != RibbonElementMode::Large || shape.elements[index].hasLarge);
                ASSERT_TRUE(mode != RibbonElementMode::Compact || shape.elements[index].hasCompact);
            }
        }
    }
}

} // namespace
