#pragma once

#include <vector>

// Where rows of different heights lie and how they scroll; pure functions. RowGeometry does the same for rows of one
// height, of which there may be any number.
namespace toolbar {

/// Rows one below the other, in pixels. A row of no height takes no place. Room: the height that is there for them.
class RowStack {
public:
    explicit RowStack(std::vector<int> heights);

    int ContentHeight() const { return m_tops.back(); }
    int TopOf(int row) const { return m_tops[static_cast<std::size_t>(row)]; }

    // For a list that shows whole rows only, from one on.
    /// Rows from `first` on that the room has place for; one at least.
    int FitFrom(int first, int room) const;
    /// The first row of the last page.
    int LastFirst(int room) const;
    /// The first row from which on the given one is shown, changing the present one as little as possible.
    int FirstToShow(int row, int first, int room) const;

    // For a list that lies behind a window of its own and moves by pixels.
    /// The offset that shows the end.
    int LowestOffset(int room) const;
    /// The offset after so many rows down (up: less than 0): a row begins at the upper edge, unless the end is reached.
    int OffsetAfter(int offset, int rows, int room) const;
    /// The same for the shortest way to a row that shall be seen wholly.
    int OffsetToShow(int row, int offset, int room) const;

private:
    bool IsRow(int row) const { return row >= 0 && row < Count(); }
    int Count() const { return static_cast<int>(m_tops.size()) - 1; }

    std::vector<int> m_tops; // and the lower edge of the last one
};

} // namespace toolbar
