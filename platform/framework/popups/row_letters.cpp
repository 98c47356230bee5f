#include "popups/row_letters.h"

namespace toolbar {
namespace {

LetterGoal FindBy(std::span<const RowLetters> rows, wchar_t RowLetters::*kind, wchar_t letter, int current) {
    int first = -1;
    int next = -1;
    int found = 0;
    for (int row = 0; row < static_cast<int>(rows.size()); ++row) {
        if (rows[static_cast<std::size_t>(row)].*kind != letter) {
            continue;
        }
        ++found;
        first = first < 0 ? row : first;
        next = next < 0 && row > current ? row : next;
    }
    return {next >= 0 ? next : first, found == 1};
}

} // namespace

LetterGoal FindByLetter(std::span<const RowLetters> rows, wchar_t letter, int current) {
    if (letter == 0) {
        return {};
    }
    const LetterGoal byKey = FindBy(rows, &RowLetters::key, letter, current);
    return byKey.row >= 0 ? byKey : FindBy(rows, &RowLetters::first, letter, current);
}

} // namespace toolbar
