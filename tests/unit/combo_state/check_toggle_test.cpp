#include "combos/check_toggle.h"

#include <gtest/gtest.h>

namespace {

TEST(CheckToggle, AnOrdinaryClickInvertsAndTellsTheItem) {
    EXPECT_EQ(ToggleOne(3, false), (CheckChange{3, true, true, CheckNotice::Checked}));
    EXPECT_EQ(ToggleOne(3, true), (CheckChange{3, false, true, CheckNotice::Unchecked}));
}

TEST(CheckToggle, AnExclusiveClickOnACheckedItemChecksAllOthers) {
    const std::vector<CheckChange> expected{
        {0, false, false, CheckNotice::Unchecked},
        {1, true, true, CheckNotice::CheckedWithOthers},
        {2, true, true, CheckNotice::CheckedWithOthers},
    };
    EXPECT_EQ(ToggleExclusive(0, true, 3), expected);
}

TEST(CheckToggle, AnExclusiveClickOnAnUncheckedItemChecksItAlone) {
    const std::vector<CheckChange> expected{
        {0, false, true, CheckNotice::UncheckedWithOthers},
        {1, true, false, CheckNotice::Unchecked},
        {2, false, true, CheckNotice::UncheckedWithOthers},
    };
    EXPECT_EQ(ToggleExclusive(1, false, 3), expected);
}

TEST(CheckToggle, WithoutItemsNothingChanges) { EXPECT_TRUE(ToggleExclusive(0, true, 0).empty()); }

TEST(CheckToggle, AClickOnNoItemChangesTheOthersOnly) {
    for (const CheckChange& change : ToggleExclusive(-1, true, 4)) {
        EXPECT_TRUE(change.check && change.isTold);
    }
}

TEST(CheckToggle, TheNoticesHaveTheNumbersThatHostsKnow) {
    EXPECT_EQ(static_cast<int>(CheckNotice::Unchecked), 0);
    EXPECT_EQ(static_cast<int>(CheckNotice::Checked), 1);
    EXPECT_EQ(static_cast<int>(CheckNotice::CheckedWithOthers), 3);
    EXPECT_EQ(static_cast<int>(CheckNotice::UncheckedWithOthers), 4);
}

} // namespace
