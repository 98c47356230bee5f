#pragma once

#include <algorithm>

#include "ribbon/geometry.h"

namespace ribbon {

// Lengths of a face that follow the display: the height of a line of text as measured, everything else from lengths at
// 96 DPI.
struct FaceMetrics {
    double scale = 1.0;
    int textHeight = 15;

    int Scaled(int length) const { return fx::Scaled(length, scale); }
    // Height of a row of small buttons, edits, check boxes and sliders.
    int RowHeight() const { return std::max(Scaled(16), textHeight) + 2 * Scaled(3); }
};

// A box of the given size, centred at the height of the rectangle, at its left edge.
inline Rect LeftCentred(const Rect& rect, Size size) {
    const int top = rect.top + (rect.Height() - size.height) / 2;
    return {rect.left, top, rect.left + size.width, top + size.height};
}

} // namespace ribbon
