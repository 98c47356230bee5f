#pragma once

/// Plain geometry of the ribbon, free of windows headers so that it is tested without a window. All lengths are scaled
/// pixels.
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

/// Right and bottom are outside.
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
    bool Contains(const Rect& other) const {
        return other.left >= left && other.right <= right && other.top >= top && other.bottom <= bottom;
    }
    bool Overlaps(const Rect& other) const {
        return !IsEmpty() && !other.IsEmpty() && left < other.right && other.left < right && top < other.bottom &&
               other.top < bottom;
    }
    Rect Moved(int dx, int dy) const { return {left + dx, top + dy, right + dx, bottom + dy}; }
    friend bool operator==(const Rect&, const Rect&) = default;
};

} // namespace ribbon

using RibbonSize = ribbon::Size;
using RibbonRect = ribbon::Rect;
