#include "popups/row_stack.h"

#include <algorithm>

namespace toolbar {

RowStack::RowStack(std::vector<int> heights) : m_tops(std::move(heights)) {
    int top = 0;
    for (int& height : m_tops) {
        const int next = top + std::max(height, 0);
        height = top;
        top = next;
    }
    m_tops.push_back(top);
}

int RowStack::FitFrom(int first, int room) const {
    int end = std::clamp(first, 0, Count());
    const int lowest = TopOf(end) + room;
    while (end < Count() && TopOf(end + 1) <= lowest) {
        ++end;
    }
    return std::max(end - std::max(first, 0), first < Count() ? 1 : 0);
}

int RowStack::LastFirst(int room) const {
    int first = std::max(Count() - 1, 0);
    while (first > 0 && ContentHeight() - TopOf(first - 1) <= room) {
        --first;
    }
    return first;
}

int RowStack::FirstToShow(int row, int first, int room) const {
    if (!IsRow(row) || ContentHeight() <= room) {
        return first;
    }
    int goal = std::min(std::max(first, 0), row);
    while (goal < row && row >= goal + FitFrom(goal, room)) {
        ++goal;
    }
    return goal;
}

int RowStack::LowestOffset(int room) const { return std::max(0, ContentHeight() - room); }

int RowStack::OffsetAfter(int offset, int rows, int room) const {
    for (; rows > 0; --rows) {
        const auto below = std::upper_bound(m_tops.begin(), m_tops.end(), offset);
        offset = below != m_tops.end() ? *below : offset;
    }
    for (; rows < 0; ++rows) {
        const auto here = std::lower_bound(m_tops.begin(), m_tops.end(), offset);
        offset = here != m_tops.begin() ? *(here - 1) : 0;
    }
    return std::clamp(offset, 0, LowestOffset(room));
}

int RowStack::OffsetToShow(int row, int offset, int room) const {
    if (!IsRow(row)) {
        return offset;
    }
    if (TopOf(row) < offset) {
        offset = TopOf(row);
    } else if (TopOf(row + 1) > offset + room) {
        // A row that is higher than the room shows its beginning.
        offset = std::min(*std::lower_bound(m_tops.begin(), m_tops.end(), TopOf(row + 1) - room), TopOf(row));
    }
    return std::clamp(offset, 0, LowestOffset(room));
}

} // namespace toolbar
