#include "option_table.h"

#include <gtest/gtest.h>

namespace {

using Words = std::vector<std::wstring>;

class OptionTableTest : public ::testing::Test {
protected:
    OptionTableTest() {
        table.AddText(L"--text", text)
            .AddTexts(L"--file", files)
            .AddChoice(L"--skin", {L"black", L"silver"}, skin)
            .AddNumber(L"--scale", -50, 400, number)
            .AddSize(L"--size", 1000, width, height)
            .AddFlag(L"--watch", isWatched)
            .AddSwitch(L"--more", [this] { ++times; });
    }
    bool Read(const Words& arguments, std::size_t mostWords = 1) {
        words.clear();
        error.clear();
        return table.Read(arguments, mostWords, words, error);
    }

    OptionTable table;
    Words words, files;
    std::wstring text = L"as it was", skin = L"silver", error;
    int number = 7, times = 0, width = 640, height = 480;
    bool isWatched = false;
};

TEST_F(OptionTableTest, AFlagTakesNoValue) {
    EXPECT_TRUE(Read({L"--scale", L"3", L"word"}));
    EXPECT_FALSE(isWatched);
    EXPECT_TRUE(Read({L"--watch", L"word"}));
    EXPECT_TRUE(isWatched);
    EXPECT_EQ(words, (Words{L"word"}));
}

TEST_F(OptionTableTest, ASwitchIsThrownEachTimeItIsNamed) {
    EXPECT_TRUE(Read({L"--more", L"word", L"--more"}));
    EXPECT_EQ(times, 2);
    EXPECT_EQ(words, (Words{L"word"}));
}

TEST_F(OptionTableTest, AnyNumberOfWordsMayBeAllowed) {
    EXPECT_TRUE(Read({L"one", L"two", L"--watch", L"three"}, OptionTable::kAnyNumber));
    EXPECT_EQ(words, (Words{L"one", L"two", L"three"}));
}

TEST_F(OptionTableTest, EachOptionTakesTheValueBehindIt) {
    ASSERT_TRUE(Read({L"--text", L"地图", L"--file", L"a", L"--skin", L"black", L"place", L"--file", L"b", L"--scale",
                      L"-50", L"--size", L"1x1000"}));
    EXPECT_EQ(text, L"地图");
    EXPECT_EQ(files, (Words{L"a", L"b"}));
    EXPECT_EQ(skin, L"black");
    EXPECT_EQ(number, -50);
    EXPECT_EQ(width, 1);
    EXPECT_EQ(height, 1000);
    EXPECT_EQ(words, Words{L"place"});
    EXPECT_EQ(error, L"");
}

TEST_F(OptionTableTest, AValueMayLookLikeAnOption) {
    ASSERT_TRUE(Read({L"--text", L"--skin"}));
    EXPECT_EQ(text, L"--skin");
}

TEST_F(OptionTableTest, AnImproperValueIsRefusedAndTheTargetStays) {
    const std::vector<Words> improper{
        {L"--text", L""},
        {L"--text"},
        {L"--file", L""},
        {L"--skin", L"Black"},
        {L"--skin", L""},
        {L"--scale", L""},
        {L"--scale", L"-51"},
        {L"--scale", L"401"},
        {L"--scale", L"12a"},
        {L"--scale", L" 12"},
        {L"--scale", L"+12"},
        {L"--scale", L"-"},
        {L"--scale", L"1e2"},
        {L"--size", L"10"},
        {L"--size", L"x10"},
        {L"--size", L"10x"},
        {L"--size", L"10x0"},
        {L"--size", L"-1x10"},
        {L"--size", L"1001x1"},
        {L"--size", L"10x20x30"},
        {L"--size", L"1 x 10"},
        {L"--size"},
        {L"--scale", L"99999999999999999999"},
    };
    for (const Words& arguments : improper) {
        EXPECT_FALSE(Read(arguments));
        EXPECT_EQ(error, arguments.front() + L" needs a proper value");
    }
    EXPECT_EQ(text, L"as it was");
    EXPECT_TRUE(files.empty());
    EXPECT_EQ(skin, L"silver");
    EXPECT_EQ(number, 7);
    EXPECT_EQ(width, 640);
    EXPECT_EQ(height, 480);
}

TEST_F(OptionTableTest, WhatNobodyKnowsIsRefused) {
    EXPECT_FALSE(Read({L"--nonsense", L"1"}));
    EXPECT_EQ(error, L"unknown option --nonsense");
    EXPECT_FALSE(Read({L"-"}));
    EXPECT_EQ(error, L"unknown option -");
    EXPECT_FALSE(Read({L"--Text", L"a"})) << "letter case counts";
}

TEST_F(OptionTableTest, OneWordTooManyIsRefused) {
    EXPECT_FALSE(Read({L"one", L"two"}));
    EXPECT_EQ(error, L"not understood: two");
    EXPECT_FALSE(Read({L"one"}, 0));
    EXPECT_EQ(error, L"not understood: one");
    EXPECT_TRUE(Read({}, 0));
    EXPECT_TRUE(words.empty());
}

} // namespace
