#include "settings/kept_commands.h"

#include <gtest/gtest.h>

#include <set>

namespace {

const IsShowable kAll = [](const std::wstring&) { return true; };

IsShowable AllBut(std::set<std::wstring> missing) {
    return [missing](const std::wstring& keyword) { return !missing.contains(keyword); };
}

/// What is kept when the user has made `shown` of what was configured.
KeptCommands Changed(const Keywords& configured, const Keywords& shown) {
    return KeepCommands({}, shown, configured, kAll).value_or(KeptCommands{L"", {L"nothing is kept"}, {}});
}

TEST(KeptCommands, NothingIsKeptWhenTheUserChangedNothing) {
    EXPECT_FALSE(KeepCommands({}, {L"A", L"B"}, {L"A", L"B"}, kAll));
    EXPECT_FALSE(KeepCommands({}, {}, {}, kAll));
}

TEST(KeptCommands, WithoutAnythingKeptTheConfigurationIsShown) {
    EXPECT_EQ(MergeCommands({}, {L"B", L"A"}), (Keywords{L"B", L"A"}));
}

TEST(KeptCommands, TheUsersOrderStays) {
    EXPECT_EQ(MergeCommands(Changed({L"A", L"B", L"C"}, {L"C", L"A", L"B"}), {L"A", L"B", L"C"}),
              (Keywords{L"C", L"A", L"B"}));
}

TEST(KeptCommands, WhatTheUserAddedStays) {
    EXPECT_EQ(MergeCommands(Changed({L"A"}, {L"A", L"X"}), {L"A"}), (Keywords{L"A", L"X"}));
}

TEST(KeptCommands, WhatTheUserTookAwayStaysAway) {
    EXPECT_EQ(MergeCommands(Changed({L"A", L"B"}, {L"B"}), {L"A", L"B"}), Keywords{L"B"});
}

TEST(KeptCommands, WhatTheConfigurationGainsIsShownBehindItsPredecessor) {
    const KeptCommands kept = Changed({L"A", L"B", L"C"}, {L"C", L"B", L"A"});
    EXPECT_EQ(MergeCommands(kept, {L"A", L"N", L"B", L"C"}), (Keywords{L"C", L"B", L"A", L"N"}));
    EXPECT_EQ(MergeCommands(kept, {L"N", L"M", L"A", L"B", L"C"}), (Keywords{L"N", L"M", L"C", L"B", L"A"}));
}

TEST(KeptCommands, WhatTheUserAddedAndTheConfigurationGainsIsThereOnce) {
    EXPECT_EQ(MergeCommands(Changed({L"A"}, {L"X", L"A"}), {L"A", L"X"}), (Keywords{L"X", L"A"}));
}

TEST(KeptCommands, ACommandThatIsNotThereKeepsItsPlaceForLater) {
    const KeptCommands before = Changed({L"A", L"B"}, {L"A", L"X", L"B"});
    const auto after = KeepCommands(before, {L"B", L"A"}, {L"A", L"B"}, AllBut({L"X"}));
    ASSERT_TRUE(after);
    EXPECT_EQ(after->commands, (Keywords{L"B", L"A", L"X"}));
}

TEST(KeptCommands, ACommandThatIsThereAndNotShownWasTakenAway) {
    const auto after = KeepCommands(Changed({L"A"}, {L"A", L"X"}), {L"A"}, {L"A"}, kAll);
    EXPECT_FALSE(after) << "that is what the configuration shows";
}

TEST(KeptCommands, AConfiguredCommandThatCannotBeShownIsNotTakenAway) {
    const auto after = KeepCommands({}, {L"B", L"X"}, {L"A", L"B"}, AllBut({L"A"}));
    ASSERT_TRUE(after);
    EXPECT_EQ(MergeCommands(*after, {L"A", L"B"}), (Keywords{L"A", L"B", L"X"}));
    EXPECT_FALSE(KeepCommands({}, {L"B"}, {L"A", L"B"}, AllBut({L"A"})));
}

TEST(KeptCommands, ATakenAwayCommandStaysAwayWhenItWasGoneMeanwhile) {
    const KeptCommands before = Changed({L"A", L"B"}, {L"B"});
    const auto without = KeepCommands(before, {L"B"}, {L"B"}, AllBut({L"A"}));
    ASSERT_TRUE(without);
    EXPECT_EQ(MergeCommands(*without, {L"A", L"B"}), Keywords{L"B"});
}

TEST(KeptCommands, ACommandTwiceInTheConfigurationIsNoChangeOfTheUsers) {
    EXPECT_EQ(MergeCommands({}, {L"A", L"A"}), Keywords{L"A"});
    EXPECT_FALSE(KeepCommands({}, {L"A"}, {L"A", L"A"}, kAll));
}

TEST(KeptCommands, LongListsTakeTimeInProportion) {
    Keywords configured, shown;
    for (int i = 0; i < 20000; ++i) {
        configured.push_back(std::to_wstring(i));
        shown.push_back(std::to_wstring(19999 - i));
    }
    const auto kept = KeepCommands({}, shown, configured, kAll);
    ASSERT_TRUE(kept);
    EXPECT_EQ(MergeCommands(*kept, configured), shown);
}

} // namespace
