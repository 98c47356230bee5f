#pragma once

#include <algorithm>

// Plain rectangles for the geometry of ribbon elements. They know no windows header, so that geometry is tested
// natively.
namespace ribbon {

struct Point {
    int x = 0;
    int y = 0;
};

struct Size {
    int width = 0;
    int height = 0;

    bool IsEmpty() const { return width <= 0 || height <= 0; }
    friend bool operator==(const Size&, const Size&) = default;
};

// Right and bottom are outside.
struct Rect {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    int Width() const { return right - left; }
    int Height() const { return bottom - top; }
    bool IsEmpty() const { return right <= left || bottom <= top; }
    bool Contains(Point point) const {
        return point.x >= left && point.x < right && point.y >= top && point.y < bottom;
    }
    friend bool operator==(const Rect&, const Rect&) = default;
};

// Lengths of a face that follow the display: the height of a line of text as measured, everything else from lengths at
// 96 DPI.
struct FaceMetrics {
    double scale = 1.0;
    int textHeight = 15;

    int Scaled(int length) const { return static_cast<int>(length * scale + 0.5); }
    // Height of a row of small buttons, edits, check boxes and sliders.
    int RowHeight() const { return std::max(Scaled(16), textHeight) + 2 * Scaled(3); }
};

// A box of the given size, centred at the height of the rectangle, at its left edge.
inline Rect LeftCentred(const Rect& rect, Size size) {
    const int top = rect.top + (rect.Height() - size.height) / 2;
    return {rect.left, top, rect.left + size.width, top + size.height};
}

} // namespace ribbon
