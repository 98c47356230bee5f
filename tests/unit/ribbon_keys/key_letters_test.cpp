#include "ribbon/key_letters.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>

using ribbon::AssignKeyTips;
using ribbon::KeyTipWish;
using ::testing::ElementsAre;

namespace {

std::vector<KeyTipWish> Texts(std::initializer_list<const wchar_t*> texts) {
    std::vector<KeyTipWish> wishes;
    for (const wchar_t* text : texts) {
        wishes.push_back({L"", text});
    }
    return wishes;
}

/// Empty when the rule holds; else which keys break it. With prefixes sorted, a key stands right before what it begins.
std::wstring FirstClash(const std::vector<std::wstring>& keys) {
    std::vector<std::wstring> sorted = keys;
    std::sort(sorted.begin(), sorted.end());
    for (std::size_t place = 0; place < sorted.size(); ++place) {
        if (sorted[place].empty()) {
            return L"an empty key";
        }
        if (place > 0 && sorted[place].compare(0, sorted[place - 1].size(), sorted[place - 1]) == 0) {
            return sorted[place - 1] + L" begins " + sorted[place];
        }
    }
    return {};
}

std::wstring RandomText(std::mt19937& random) {
    static constexpr std::wstring_view characters = L"aaabcdeeefghiijklmnooprstuvwxyz  &\x5730\x56FE\x00E4 0";
    std::wstring text;
    for (std::size_t length = random() % 12; length > 0; --length) {
        text += characters[random() % characters.size()];
    }
    return text;
}

TEST(KeyLetters, AreTheFirstOfTheText) {
    EXPECT_THAT(AssignKeyTips(Texts({L"Home", L"Insert", L"View"})), ElementsAre(L"H", L"I", L"V"));
}

TEST(KeyLetters, FollowTheOrderWhereTextsWantTheSame) {
    EXPECT_THAT(AssignKeyTips(Texts({L"Cut", L"Copy", L"Format Copy"})), ElementsAre(L"C", L"O", L"F"));
    EXPECT_THAT(AssignKeyTips(Texts({L"Copy", L"Cut", L"Cut"})), ElementsAre(L"C", L"U", L"T"));
}

TEST(KeyLetters, PreferTheMarkedLetterThenTheWordsFirst) {
    EXPECT_THAT(AssignKeyTips(Texts({L"E&xit"})), ElementsAre(L"X"));
    EXPECT_THAT(AssignKeyTips(Texts({L"Save", L"Save As"})), ElementsAre(L"S", L"A"));
}

TEST(KeyLetters, ComeFromTheAlphabetWhereATextHasNone) {
    EXPECT_THAT(AssignKeyTips(Texts({L"\x5730\x56FE", L"", L"Apple", L"42"})), ElementsAre(L"A", L"B", L"P", L"C"));
}

TEST(KeyLetters, GivenKeysWinWhereverTheyStand) {
    EXPECT_THAT(AssignKeyTips({{L"", L"Home"}, {L"h", L"Other"}, {L"ho", L"Second"}}), ElementsAre(L"O", L"H", L"HO"));
}

TEST(KeyLetters, AnAutomaticKeyDoesNotBeginAGivenOne) {
    EXPECT_THAT(AssignKeyTips({{L"FA", L""}, {L"", L"Find"}, {L"", L"F"}}), ElementsAre(L"FA", L"I", L"FB"));
}

TEST(KeyLetters, GrowWhenTheAlphabetIsNotEnough) {
    std::vector<KeyTipWish> wishes(27, {L"", L"Pencil"});
    const std::vector<std::wstring> keys = AssignKeyTips(wishes);
    EXPECT_EQ(FirstClash(keys), L"");
    // The first letter that most texts share begins the longer keys.
    EXPECT_THAT(std::vector<std::wstring>(keys.begin(), keys.begin() + 6),
                ElementsAre(L"E", L"N", L"C", L"I", L"L", L"PE"));
}

TEST(KeyLetters, AreUniqueAndNoneBeginsAnother) {
    std::mt19937 random(7);
    for (const std::size_t count : {1u, 5u, 26u, 27u, 40u, 200u, 676u, 677u, 900u, 3000u}) {
        std::vector<KeyTipWish> wishes;
        for (std::size_t place = 0; place < count; ++place) {
            wishes.push_back({L"", RandomText(random)});
        }
        EXPECT_EQ(FirstClash(AssignKeyTips(wishes)), L"") << count;
    }
}

TEST(KeyLetters, AreUniqueBesideGivenOnes) {
    std::mt19937 random(11);
    for (int round = 0; round < 300; ++round) {
        std::vector<KeyTipWish> wishes;
        std::set<std::wstring> given;
        for (std::size_t count = 1 + random() % 120; count > 0; --count) {
            KeyTipWish wish{L"", RandomText(random)};
            // Given keys of the same length are no prefixes of each other.
            const std::wstring key{static_cast<wchar_t>(L'A' + random() % 26),
                                   static_cast<wchar_t>(L'A' + random() % 5)};
            if (random() % 3 == 0 && given.insert(key).second) {
                wish.keys = key;
            }
            wishes.push_back(wish);
        }
        const std::vector<std::wstring> keys = AssignKeyTips(wishes);
        ASSERT_EQ(FirstClash(keys), L"") << round;
        for (std::size_t place = 0; place < wishes.size(); ++place) {
            if (!wishes[place].keys.empty()) {
                ASSERT_EQ(keys[place], wishes[place].keys);
            }
        }
    }
}

TEST(KeyLetters, DependOnTheWishesAlone) {
    std::mt19937 random(13);
    std::vector<KeyTipWish> wishes;
    for (int place = 0; place < 300; ++place) {
        wishes.push_back({L"", RandomText(random)});
    }
    EXPECT_EQ(AssignKeyTips(wishes), AssignKeyTips(wishes));
    // What is appended takes nothing from those before it while the alphabet is enough.
    std::vector<KeyTipWish> few(wishes.begin(), wishes.begin() + 10);
    const std::vector<std::wstring> before = AssignKeyTips(few);
    few.push_back({L"", L"More"});
    std::vector<std::wstring> after = AssignKeyTips(few);
    after.pop_back();
    EXPECT_EQ(after, before);
}

TEST(KeyLetters, GivenKeysThatTakeEverythingLeaveTheRestEmpty) {
    std::vector<KeyTipWish> wishes;
    for (wchar_t letter = L'A'; letter <= L'Z'; ++letter) {
        wishes.push_back({std::wstring(1, letter), L""});
    }
    wishes.push_back({L"", L"Last"});
    EXPECT_EQ(AssignKeyTips(wishes).back(), L"");
}

TEST(QuickAccessKeys, CountUpThenDownBehindAZero) {
    EXPECT_EQ(ribbon::QuickAccessKeyTip(0), L"1");
    EXPECT_EQ(ribbon::QuickAccessKeyTip(8), L"9");
    EXPECT_EQ(ribbon::QuickAccessKeyTip(9), L"09");
    EXPECT_EQ(ribbon::QuickAccessKeyTip(17), L"01");
    EXPECT_EQ(ribbon::QuickAccessKeyTip(18), L"0A");
}

TEST(QuickAccessKeys, AreUniqueAndNoneBeginsAnother) {
    std::vector<std::wstring> keys;
    for (std::size_t place = 0; place < 200; ++place) {
        keys.push_back(ribbon::QuickAccessKeyTip(place));
    }
    EXPECT_EQ(FirstClash(keys), L"");
}

TEST(KeyLetters, PreferTheMarkedLetterOfAnyScript) {
    EXPECT_THAT(AssignKeyTips(Texts({L"&\x00D6"
                                     L"ffnen",
                                     L"&\x0424\x0430\x0439\x043B", L"\x0395&\x03BE\x03BF\x03B4\x03BF\x03C2",
                                     L"&\x0161"
                                     L"ablona"})),
                ElementsAre(L"\x00D6", L"\x0424", L"\x039E", L"\x0160"));
}

TEST(KeyLetters, TakeNoUnmarkedLetterThatSomeKeyboardsLack) {
    EXPECT_THAT(AssignKeyTips(Texts({L"\x00D6"
                                     L"ffnen",
                                     L"\x0424\x0430\x0439\x043B"})),
                ElementsAre(L"F", L"A"));
}

TEST(KeyLetters, TakeNoMarkedIdeograph) {
    EXPECT_THAT(AssignKeyTips(Texts({L"&\x5730\x56FE", L"\x6587\x4EF6(&F)"})), ElementsAre(L"A", L"F"));
}

TEST(KeyLetters, ALetterWithAMarkDoesNotEndAWord) {
    EXPECT_THAT(AssignKeyTips(Texts({L"\x00DC"
                                     L"ber Export",
                                     L"Beta"})),
                ElementsAre(L"E", L"B"));
}

TEST(KeyLetters, GivenKeysAreCapitalsInEveryScript) {
    EXPECT_THAT(AssignKeyTips({{L"\x0444\x044F", L""}, {L"\x00F6", L""}}), ElementsAre(L"\x0424\x042F", L"\x00D6"));
}

} // namespace
