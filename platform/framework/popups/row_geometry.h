#pragma once

#include <algorithm>

// Where the rows of a list lie; pure functions, shared by layout, drawing, hit test and tests.
namespace toolbar {

/// Rows of one height, one below the other. A list scrolls by whole rows, so that each of them begins at a multiple of
/// the height below the list's upper edge. Pixels of the list's client area.
struct RowGeometry {
    int count = 0;
    int height = 1; ///< of a row, at least 1
    int offset = 0; ///< pixels by which the list is scrolled up, whole rows

    /// Of all rows; an empty list has the place of one.
    int ContentHeight() const { return std::max(count, 1) * height; }
    int TopOf(int row) const { return row * height - offset; }
    /// -1 above the first and below the last row.
    int RowAt(int y) const {
        const int place = y + offset;
        return place < 0 || place / height >= count ? -1 : place / height;
    }
    bool IsRow(int row) const { return row >= 0 && row < count; }

    /// Rows that are seen wholly; one at least, though it may be cut.
    int RowsPerPage(int listHeight) const { return std::max(1, listHeight / height); }
    int LowestOffset(int listHeight) const { return std::max(0, count - RowsPerPage(listHeight)) * height; }
    /// The nearest offset that is whole rows and shows no place below the last one.
    int Snap(int wanted, int listHeight) const {
        return std::clamp((wanted + height / 2) / height * height, 0, LowestOffset(listHeight));
    }
    /// The offset so many rows on; up: less than 0.
    int OffsetAfter(int rows, int listHeight) const {
        const int lowest = LowestOffset(listHeight);
        return std::clamp(offset / height + std::clamp(rows, -count, count), 0, lowest / height) * height;
    }
    /// The offset that shows the row wholly and is nearest to the present one.
    int OffsetToShow(int row, int listHeight) const {
        const int last = offset / height + RowsPerPage(listHeight) - 1;
        const int first = offset / height;
        const int moved = row < first ? row : row > last ? row - RowsPerPage(listHeight) + 1 : first;
        return std::clamp(moved * height, 0, LowestOffset(listHeight));
    }
};

/// First and one behind the last row of which something is seen between two heights; empty when none is.
struct RowSpan {
    int first = 0;
    int end = 0;
};

inline RowSpan RowsBetween(const RowGeometry& rows, int top, int bottom) {
    if (bottom <= top || rows.count <= 0) {
        return {};
    }
    const int first = std::max(0, (top + rows.offset) / rows.height);
    const int end = (bottom + rows.offset + rows.height - 1) / rows.height;
    return {std::min(first, rows.count), std::clamp(end, std::min(first, rows.count), rows.count)};
}

} // namespace toolbar
