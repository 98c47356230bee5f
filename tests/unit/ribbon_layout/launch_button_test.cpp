#include <gtest/gtest.h>

#include "shapes.h"

namespace {

class LaunchButtonLayout : public testing::TestWithParam<int> {
protected:
    RibbonPanelShape Panel(int captionWidth, bool hasLaunchButton) const {
        RibbonPanelShape panel;
        panel.elements = {shapes::LargeButton(60, m_metrics), shapes::SmallButton(80, m_metrics)};
        panel.captionWidth = captionWidth;
        panel.collapsedWidth = 44;
        panel.hasLaunchButton = hasLaunchButton;
        return panel;
    }
    RibbonPanelLadder Ladder(int captionWidth, bool hasLaunchButton) const {
        return {Panel(captionWidth, hasLaunchButton), m_metrics};
    }

    RibbonMetrics m_metrics = RibbonMetrics::FromFont(13 * GetParam() / 100, GetParam() / 100.0);
};

TEST_P(LaunchButtonLayout, TheButtonIsASquareInsideTheCaptionAtItsEnd) {
    const auto place = Ladder(40, true).Arrange(0);
    const fx::Rect& button = place.launchButton;
    ASSERT_FALSE(button.IsEmpty());
    EXPECT_EQ(button.Width(), button.Height());
    EXPECT_EQ(button.right, place.caption.right - m_metrics.launchButtonMargin);
    EXPECT_GE(button.top, place.caption.top);
    EXPECT_LT(button.bottom, place.caption.bottom) << "clear of the panel's frame";
    EXPECT_GE(button.Width(), m_metrics.Scaled(12)) << "large enough to be hit";
}

TEST_P(LaunchButtonLayout, ACaptionThatNeedsThePanelsWidthGetsTheButtonsWidthOnTop) {
    const int plain = Ladder(300, false).FullWidth();
    EXPECT_EQ(Ladder(300, true).FullWidth(), plain + m_metrics.launchButtonSide + 2 * m_metrics.launchButtonMargin);
    EXPECT_EQ(Ladder(40, true).FullWidth(), Ladder(40, false).FullWidth()) << "a short one has room already";
}

TEST_P(LaunchButtonLayout, TheTextAndTheButtonNeverMeetInAnyStepOfThePanel) {
    const RibbonPanelLadder ladder = Ladder(70, true);
    for (int step = 0; step <= static_cast<int>(ladder.Steps().size()); ++step) {
        const auto place = ladder.Arrange(step);
        if (!place.collapsed) {
            EXPECT_GE(place.launchButton.left - place.caption.left, 70) << step;
        }
    }
}

TEST_P(LaunchButtonLayout, ACollapsedPanelAndOneWithoutTheButtonShowNone) {
    const RibbonPanelLadder ladder = Ladder(40, true);
    const auto collapsed = ladder.Arrange(static_cast<int>(ladder.Steps().size()));
    ASSERT_TRUE(collapsed.collapsed);
    EXPECT_TRUE(collapsed.launchButton.IsEmpty());
    EXPECT_TRUE(Ladder(40, false).Arrange(0).launchButton.IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Scales, LaunchButtonLayout, testing::Values(100, 125, 150, 200));

} // namespace
