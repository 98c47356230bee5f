#pragma once

#include <algorithm>
#include <cstdint>

// How the keyboard goes from row to row in menus and lists; pure functions.
namespace toolbar {

enum class RowStep : std::uint8_t { Next, Previous, NextPage, PreviousPage, First, Last };

constexpr bool IsPage(RowStep step) { return step == RowStep::NextPage || step == RowStep::PreviousPage; }

/// What a single step does at the last and at the first row. A page never goes round.
enum class RowEnds : std::uint8_t {
    Round, ///< goes on at the other end, as menus do
    Stop,  ///< stays, as lists do; where no row is hot yet any step leads to the first one
};

struct RowWalk {
    int count = 0;
    int current = -1; ///< the hot row, or -1
    RowEnds ends = RowEnds::Round;
    int page = 1; ///< rows that a page goes
};

namespace walk {

/// The first row from there on, in a direction of 1 or -1, that takes the keyboard; -1 when there is none.
template <class TakesKeys>
int FirstFrom(int row, int direction, int count, TakesKeys takesKeys) {
    for (; row >= 0 && row < count; row += direction) {
        if (takesKeys(row)) {
            return row;
        }
    }
    return -1;
}

} // namespace walk

/// The row that the step leads to, -1 when no row takes the keyboard. takesKeys(row) is false for what the walk passes
/// over, as separators.
template <class TakesKeys>
int WalkRows(const RowWalk& rows, RowStep step, TakesKeys takesKeys) {
    const int last = rows.count - 1;
    const bool goesDown = step == RowStep::Next || step == RowStep::NextPage || step == RowStep::First;
    const int direction = goesDown ? 1 : -1;
    const bool isFromNowhere = rows.current < 0 && step != RowStep::Last;
    if (step == RowStep::First || (isFromNowhere && (goesDown || rows.ends == RowEnds::Stop))) {
        return walk::FirstFrom(0, 1, rows.count, takesKeys);
    }
    if (step == RowStep::Last || isFromNowhere) {
        return walk::FirstFrom(last, -1, rows.count, takesKeys);
    }
    if (rows.ends == RowEnds::Round && !IsPage(step)) {
        const int ahead = walk::FirstFrom(rows.current + direction, direction, rows.count, takesKeys);
        return ahead >= 0 ? ahead : walk::FirstFrom(goesDown ? 0 : last, direction, rows.count, takesKeys);
    }
    const int goal = std::clamp(rows.current + direction * (IsPage(step) ? rows.page : 1), 0, std::max(last, 0));
    const int ahead = walk::FirstFrom(goal, direction, rows.count, takesKeys);
    return ahead >= 0 ? ahead : walk::FirstFrom(goal, -direction, rows.count, takesKeys);
}

} // namespace toolbar
