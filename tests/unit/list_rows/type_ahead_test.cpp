#include "popups/type_ahead.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

class TypeAheadTest : public ::testing::Test {
protected:
    int Type(wchar_t character, std::uint64_t after = 100) {
        now += after;
        const int row = typed.Type(character, now, current, static_cast<int>(rows.size()),
                                   [this](int index, const std::wstring& text) {
                                       ++compared;
                                       return rows[static_cast<std::size_t>(index)].compare(0, text.size(), text) == 0;
                                   });
        current = row >= 0 ? row : current;
        return row;
    }
    std::vector<std::wstring> rows{L"alpha", L"beta", L"bravo", L"bb", L"new delhi", L"new york"};
    toolbar::TypeAhead typed;
    std::uint64_t now = 5000;
    int current = -1;
    int compared = 0;
};

TEST_F(TypeAheadTest, CharactersTypedInARowNarrowDown) {
    EXPECT_EQ(Type(L'n'), 4);
    EXPECT_EQ(Type(L'e'), 4);
    EXPECT_EQ(Type(L'w'), 4);
    EXPECT_TRUE(typed.IsGoingOn(now));
    EXPECT_EQ(Type(L' '), 4);
    EXPECT_EQ(Type(L'y'), 5);
}

TEST_F(TypeAheadTest, AfterAPauseAWordBeginsAnewBehindTheCurrentRow) {
    EXPECT_EQ(Type(L'b'), 1);
    EXPECT_EQ(Type(L'b', toolbar::TypeAhead::pause + 1), 2);
    EXPECT_EQ(Type(L'a', toolbar::TypeAhead::pause + 1), 0);
}

TEST_F(TypeAheadTest, OneLetterAgainAndAgainGoesToTheRowThatBeginsSoAndElseWalks) {
    EXPECT_EQ(Type(L'b'), 1);
    EXPECT_EQ(Type(L'b'), 3) << "there is one that begins with both";
    EXPECT_EQ(Type(L'b'), 1) << "with three there is none: the next one with the letter";
}

TEST_F(TypeAheadTest, WhatNoRowBeginsWithLeadsNowhere) {
    EXPECT_EQ(Type(L'x'), -1);
    EXPECT_EQ(Type(L'a'), -1) << "the word goes on";
    EXPECT_EQ(Type(L'a', toolbar::TypeAhead::pause + 1), 0);
}

TEST_F(TypeAheadTest, AnEmptyListHasNothing) {
    rows.clear();
    EXPECT_EQ(Type(L'a'), -1);
    EXPECT_EQ(compared, 0);
}

TEST_F(TypeAheadTest, ForgettingEndsTheWord) {
    Type(L'n');
    typed.Forget();
    EXPECT_FALSE(typed.IsGoingOn(now));
    EXPECT_EQ(Type(L'b'), 1);
}

} // namespace
