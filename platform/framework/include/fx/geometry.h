#pragma once

/// Plain geometry that knows no window system, so that it is tested on any machine; fx/to_rect.h leads from it to the
/// framework's classes and back. Pixels, unless it says otherwise.
namespace fx {

/// A length at 96 DPI on a display of that scale (1.5: 150 %), rounded to whole pixels; half a pixel goes away from
/// zero.
constexpr int Scaled(int length, double scale) {
    const double exact = length * scale;
    return static_cast<int>(exact < 0 ? exact - 0.5 : exact + 0.5);
}

struct Point {
    int x = 0;
    int y = 0;

    friend bool operator==(const Point&, const Point&) = default;
};

struct Size {
    int width = 0;
    int height = 0;

    constexpr bool IsEmpty() const { return width <= 0 || height <= 0; }
    friend bool operator==(const Size&, const Size&) = default;
};

/// Right and bottom are outside.
struct Rect {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    constexpr int Width() const { return right - left; }
    constexpr int Height() const { return bottom - top; }
    constexpr bool IsEmpty() const { return right <= left || bottom <= top; }
    constexpr bool Contains(Point point) const {
        return point.x >= left && point.x < right && point.y >= top && point.y < bottom;
    }
    constexpr bool Contains(const Rect& other) const {
        return other.left >= left && other.right <= right && other.top >= top && other.bottom <= bottom;
    }
    /// They share a pixel.
    constexpr bool Overlaps(const Rect& other) const {
        return !IsEmpty() && !other.IsEmpty() && left < other.right && other.left < right && top < other.bottom &&
               other.top < bottom;
    }
    constexpr Rect Moved(int dx, int dy) const { return {left + dx, top + dy, right + dx, bottom + dy}; }
    /// Smaller by that much on each side; may turn out empty.
    constexpr Rect Deflated(int by) const { return {left + by, top + by, right - by, bottom - by}; }
    friend bool operator==(const Rect&, const Rect&) = default;
};

} // namespace fx
