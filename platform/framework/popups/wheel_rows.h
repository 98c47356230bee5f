#pragma once

#include <algorithm>

// How far the wheel scrolls; a pure function.
namespace toolbar {

/// Rows for one notch. lines: what the user has set (SPI_GETWHEELSCROLLLINES): 0 for none, more than a page, as
/// WHEEL_PAGESCROLL is, for a page. rowsPerPage: rows that are seen.
constexpr int WheelRowsPerNotch(unsigned lines, int rowsPerPage) {
    return static_cast<int>(std::min(lines, static_cast<unsigned>(std::max(1, rowsPerPage))));
}

} // namespace toolbar
