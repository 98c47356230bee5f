#pragma once

#include "afxglobals.h"

namespace tooltip {

/// The shape of a tooltip with rounded corners that fills the rectangle; the caller's.
inline HRGN RoundedShape(const CRect& rect) {
    constexpr int corner = 4; // at 96 DPI
    const int diameter = afxGlobalData.ScalePixels(corner);
    // The function leaves out one row and one column more than its rectangle does.
    return ::CreateRoundRectRgn(rect.left, rect.top, rect.right + 1, rect.bottom + 1, diameter, diameter);
}

} // namespace tooltip
