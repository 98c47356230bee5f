#pragma once

#include "fx/geometry.h"

#include <vector>

namespace toolbar {

/// Where a button that is dropped at the point comes to lie among the buttons of a bar.
struct DropPlace {
    int index = 0;   ///< before the button with that index; their number: at the end
    fx::Rect mark{}; ///< the gap, one pixel wide, in which to show it; empty in a bar without buttons
};

/// Before the first button whose middle lies beyond the point, in the row of the point. Buttons without room have empty
/// rectangles and are passed over. isHorizontal: rows lie below each other; else one column.
DropPlace FindDropPlace(const std::vector<fx::Rect>& buttons, fx::Point point, bool isHorizontal);

} // namespace toolbar
