#pragma once

#include "atltypes.h"

namespace tooltip {

/// Sizes of the parts, 0 x 0 for those that are left out; pixels.
struct Content {
    CSize icon = CSize(0, 0);
    CSize label = CSize(0, 0);
    CSize description = CSize(0, 0);
};

/// Rectangles in the window; those of parts left out are empty.
struct Layout {
    CSize window = CSize(0, 0);
    CRect icon = CRect(0, 0, 0, 0);
    CRect label = CRect(0, 0, 0, 0);
    CRect description = CRect(0, 0, 0, 0);
    int separatorY = -1; ///< -1: there is nothing to separate
};

/// Icon to the left; label, and below it the description, to its right.
Layout Arrange(const Content& content, CSize margin);

/// The corner next to wanted at which a window of this size lies inside the work area. A window that would stick out
/// at the bottom goes above avoidTop.
CPoint KeepInside(CPoint wanted, CSize size, const CRect& workArea, int avoidTop);

} // namespace tooltip
