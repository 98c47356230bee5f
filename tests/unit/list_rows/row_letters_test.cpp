#include "popups/row_letters.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

using toolbar::FindByLetter;
using toolbar::RowLetters;

constexpr RowLetters Key(wchar_t letter) { return {letter, 0}; }
constexpr RowLetters First(wchar_t letter) { return {0, letter}; }

TEST(RowLetters, TheOnlyRowWithAKeyIsChosen) {
    const std::vector<RowLetters> rows{Key(L'S'), Key(L'O'), First(L'X')};
    EXPECT_EQ(FindByLetter(rows, L'O', -1).row, 1);
    EXPECT_TRUE(FindByLetter(rows, L'O', -1).isOnlyOne);
    EXPECT_TRUE(FindByLetter(rows, L'X', 0).isOnlyOne) << "so is the only first letter";
}

TEST(RowLetters, AKeyGoesBeforeFirstLetters) {
    const std::vector<RowLetters> rows{First(L'S'), Key(L'S'), First(L'S')};
    for (int current = -1; current < 3; ++current) {
        EXPECT_EQ(FindByLetter(rows, L'S', current).row, 1);
        EXPECT_TRUE(FindByLetter(rows, L'S', current).isOnlyOne);
    }
}

TEST(RowLetters, ALetterThatSeveralRowsShareWalksRoundThem) {
    const std::vector<RowLetters> byText{First(L'A'), First(L'B'), First(L'A'), First(L'A')};
    const std::vector<RowLetters> byKey{Key(L'A'), Key(L'B'), Key(L'A'), Key(L'A')};
    for (const auto& rows : {byText, byKey}) {
        int current = -1;
        for (const int expected : {0, 2, 3, 0}) {
            const toolbar::LetterGoal goal = FindByLetter(rows, L'A', current);
            EXPECT_EQ(goal.row, expected);
            EXPECT_FALSE(goal.isOnlyOne);
            current = goal.row;
        }
        EXPECT_EQ(FindByLetter(rows, L'A', 1).row, 2) << "from another row on";
    }
}

TEST(RowLetters, ALetterThatNoRowHasLeadsNowhere) {
    const std::vector<RowLetters> rows{Key(L'S'), RowLetters(), First(L'X')};
    EXPECT_EQ(FindByLetter(rows, L'Q', 0).row, -1);
    EXPECT_EQ(FindByLetter(rows, L'\0', 0).row, -1) << "a row without a letter has none";
    EXPECT_EQ(FindByLetter({}, L'A', -1).row, -1);
}

} // namespace
