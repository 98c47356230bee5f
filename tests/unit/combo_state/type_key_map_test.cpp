#include "combos/type_key_map.h"

#include "tests/support/growth.h"

#include <gtest/gtest.h>

#include <climits>

namespace {

using Map = std::map<std::wstring, int>;

TEST(TypeKeys, LeadToIndexesAndBack) {
    TypeKeyMap keys;
    keys.Set({{L"road", 0}, {L"river", 1}});
    EXPECT_EQ(keys.FindIndex(L"road"), 0);
    EXPECT_EQ(keys.FindKey(1), L"river");
    EXPECT_EQ(keys.FindIndex(L"rail"), -1);
    EXPECT_EQ(keys.FindIndex(L"Road"), -1) << "letter case counts";
    EXPECT_EQ(keys.FindKey(2), L"");
}

TEST(TypeKeys, AnEmptyKeyIsNotFoundEvenWhenItIsThere) {
    TypeKeyMap keys;
    keys.Set({{L"", 3}});
    EXPECT_EQ(keys.FindIndex(L""), -1);
}

TEST(TypeKeys, MinusOneHasNoKeyEvenWhenAKeyLeadsThere) {
    TypeKeyMap keys;
    keys.Set({{L"nowhere", -1}});
    EXPECT_EQ(keys.FindKey(-1), L"");
    EXPECT_EQ(keys.FindIndex(L"nowhere"), -1);
}

TEST(TypeKeys, TheSmallestKeyOfAnIndexIsGiven) {
    TypeKeyMap keys;
    keys.Set({{L"b", 4}, {L"a", 4}, {L"c", 4}});
    EXPECT_EQ(keys.FindKey(4), L"a");
}

TEST(TypeKeys, IndexesWithoutItemsAreKeptAsTheyAre) {
    TypeKeyMap keys;
    keys.Set({{L"far", INT_MAX}, {L"below", INT_MIN}});
    EXPECT_EQ(keys.FindIndex(L"far"), INT_MAX);
    EXPECT_EQ(keys.FindKey(INT_MIN), L"below");
}

TEST(TypeKeys, AreReplacedAsAWhole) {
    TypeKeyMap keys;
    keys.Set({{L"old", 1}, {L"both", 2}});
    keys.Set({{L"both", 5}});
    EXPECT_EQ(keys.FindIndex(L"old"), -1);
    EXPECT_EQ(keys.FindKey(1), L"");
    EXPECT_EQ(keys.FindKey(2), L"");
    EXPECT_EQ(keys.FindIndex(L"both"), 5);
    keys.Set({});
    EXPECT_EQ(keys.FindIndex(L"both"), -1);
}

TEST(TypeKeys, MayBeSetToTheirOwnMap) {
    TypeKeyMap keys;
    keys.Set({{L"a", 1}});
    keys.Set(keys.Get());
    EXPECT_EQ(keys.FindIndex(L"a"), 1);
    EXPECT_EQ(keys.FindKey(1), L"a");
}

TEST(TypeKeys, TheHostsMapIsCopied) {
    Map map{{L"a", 1}};
    TypeKeyMap keys;
    keys.Set(map);
    map[L"a"] = 2;
    EXPECT_EQ(keys.FindIndex(L"a"), 1);
}

TEST(TypeKeys, LongKeysWithLineBreaksAreKeysLikeOthers) {
    std::wstring key(100'000, L'x');
    key[50'000] = L'\n';
    TypeKeyMap keys;
    keys.Set({{key, 1}, {key + L"z", 2}});
    EXPECT_EQ(keys.FindIndex(key), 1);
    EXPECT_EQ(keys.FindKey(2), key + L"z");
}

/// The time for asking all of so many keys for index and key.
double LookAll(int count) {
    Map map;
    for (int i = 0; i < count; ++i) {
        map[std::to_wstring(i)] = i;
    }
    TypeKeyMap keys;
    keys.Set(map);
    return MeasureSeconds([&] {
        for (const auto& [key, index] : map) {
            if (keys.FindIndex(key) != index || keys.FindKey(index) != key) {
                ADD_FAILURE() << "wrong answer";
            }
        }
    });
}

TEST(TypeKeys, TenTimesAsManyTakeAboutTenTimesAsLong) {
    EXPECT_LT(MeasureGrowth(
                  10, [] { return LookAll(1'000); }, [] { return LookAll(10'000); }),
              40);
}

} // namespace
