// Margins, size and parts of a tooltip.
#include "skins/tooltip_geometry.h"

#include <gtest/gtest.h>

namespace {

using hint::Corners;
using hint::Help;
using hint::IconKind;
using hint::Margins;
using hint::Rect;
using hint::Size;

TEST(HintIcon, IsSmallOrLargeAtEveryScale) {
    EXPECT_EQ(hint::KindOfIcon(16, 1), IconKind::Small);
    EXPECT_EQ(hint::KindOfIcon(32, 1), IconKind::Large);
    EXPECT_EQ(hint::KindOfIcon(24, 1.5), IconKind::Small);
    EXPECT_EQ(hint::KindOfIcon(48, 1.5), IconKind::Large);
    EXPECT_EQ(hint::KindOfIcon(32, 2), IconKind::Small);
    EXPECT_EQ(hint::KindOfIcon(0, 1), IconKind::Other);
    EXPECT_EQ(hint::KindOfIcon(24, 1), IconKind::Other);
    EXPECT_EQ(hint::KindOfIcon(48, 1), IconKind::Other);
}

struct MarginsCase {
    Corners corners;
    Help help;
    IconKind icon;
    Margins margins;
};

class HintMargins : public testing::TestWithParam<MarginsCase> {};

TEST_P(HintMargins, DependOnCornersHelpAndIcon) {
    const MarginsCase& tooltip = GetParam();
    EXPECT_EQ(hint::MarginsOf(tooltip.corners, tooltip.help, tooltip.icon), tooltip.margins);
}

INSTANTIATE_TEST_SUITE_P(All, HintMargins,
                         testing::Values(MarginsCase{Corners::Rounded, Help::With, IconKind::Small, {6, 8}},
                                         MarginsCase{Corners::Rounded, Help::With, IconKind::Large, {6, 14}},
                                         MarginsCase{Corners::Rounded, Help::With, IconKind::Other, {6, 4}},
                                         MarginsCase{Corners::Rounded, Help::Without, IconKind::Small, {6, 4}},
                                         MarginsCase{Corners::Rounded, Help::Without, IconKind::Large, {6, 4}},
                                         MarginsCase{Corners::Square, Help::With, IconKind::Large, {4, 2}},
                                         MarginsCase{Corners::Square, Help::Without, IconKind::Other, {4, 2}}));

TEST(HintSize, WithHelpIsLabelAndDescriptionWithFourMarginsBetweenAndAround) {
    const hint::Layout layout = hint::Arrange({{32, 32}, {80, 14}, {120, 13}, Help::With}, {6, 14});
    EXPECT_EQ(layout.window, (Size{120 + 32 + 6 + 12, 14 + 28 + 13 + 28}));
}

TEST(HintSize, WithHelpIsAtLeastAsHighAsTheIcon) {
    const hint::Layout layout = hint::Arrange({{32, 32}, {80, 10}, {20, 10}, Help::With}, {4, 2});
    EXPECT_EQ(layout.window, (Size{80 + 32 + 4 + 8, 32 + 4}));
}

TEST(HintSize, WithoutHelpIsLabelOrIconWithTwoMargins) {
    EXPECT_EQ(hint::Arrange({{32, 32}, {80, 14}, {}, Help::Without}, {6, 4}).window, (Size{80 + 38 + 12, 40}));
    EXPECT_EQ(hint::Arrange({{16, 16}, {80, 28}, {}, Help::Without}, {6, 4}).window, (Size{80 + 22 + 12, 36}));
}

TEST(HintSize, WithoutAnIconTheTextBeginsAtTheMargin) {
    const hint::Layout layout = hint::Arrange({{}, {80, 14}, {}, Help::Without}, {6, 4});
    EXPECT_EQ(layout.window, (Size{92, 22}));
    EXPECT_EQ(layout.label, (Rect{6, 4, 86, 18}));
    EXPECT_TRUE(layout.icon.IsEmpty());
    EXPECT_TRUE(layout.bottomIcon.IsEmpty());
}

TEST(HintParts, WithHelpTheIconIsInTheMiddleOfTheUpperHalfAndTheSecondOneOfTheLower) {
    const hint::Layout layout = hint::Arrange({{32, 32}, {80, 14}, {120, 14}, Help::With}, {6, 14});
    ASSERT_EQ(layout.window.height, 84);
    EXPECT_EQ(layout.icon, (Rect{6, 5, 38, 37}));
    EXPECT_EQ(layout.bottomIcon, (Rect{6, 47, 38, 79}));
}

TEST(HintParts, WithoutHelpIconAndLabelStandInTheMiddle) {
    const hint::Layout layout = hint::Arrange({{32, 32}, {80, 14}, {}, Help::Without}, {6, 4});
    EXPECT_EQ(layout.icon, (Rect{6, 4, 38, 36}));
    EXPECT_EQ(layout.label, (Rect{44, 13, 124, 27}));
    EXPECT_TRUE(layout.bottomIcon.IsEmpty());
    EXPECT_FALSE(layout.separator.has_value());
}

TEST(HintParts, TheSeparatorIsHalfWayBetweenLabelAndDescription) {
    const hint::Layout layout = hint::Arrange({{16, 16}, {80, 14}, {120, 30}, Help::With}, {6, 8});
    EXPECT_EQ(layout.label, (Rect{28, 8, 148, 22}));
    EXPECT_EQ(layout.separator, 30);
    EXPECT_EQ(layout.description, (Rect{28, 38, 148, 68}));
    EXPECT_EQ(layout.window, (Size{154, 76}));
}

} // namespace
