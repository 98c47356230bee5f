#pragma once

#include <span>

// Which row of a menu a letter means; a pure function.
namespace toolbar {

/// By what a row is found, as capitals; 0: not by that.
struct RowLetters {
    wchar_t key = 0;   ///< the mnemonic or a key tip of one letter
    wchar_t first = 0; ///< of the text, where the row has no key
};

struct LetterGoal {
    int row = -1;           ///< -1: no row has the letter
    bool isOnlyOne = false; ///< no other row is meant: it is chosen at once; among several the letter walks
};

/// Keys go before first letters. letter: a capital. current: the hot row or -1.
LetterGoal FindByLetter(std::span<const RowLetters> rows, wchar_t letter, int current);

} // namespace toolbar
