#pragma once

/// Plain geometry of the ribbon's layout, free of windows headers so that it is tested without a window.
/// All lengths are scaled pixels.
struct RibbonSize {
    int cx = 0;
    int cy = 0;
};

struct RibbonRect {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    int Width() const { return right - left; }
    int Height() const { return bottom - top; }
    bool IsEmpty() const { return right <= left || bottom <= top; }
    bool Contains(const RibbonRect& other) const {
        return other.left >= left && other.right <= right && other.top >= top && other.bottom <= bottom;
    }
    bool Overlaps(const RibbonRect& other) const {
        return !IsEmpty() && !other.IsEmpty() && left < other.right && other.left < right && top < other.bottom &&
               other.top < bottom;
    }
    RibbonRect Moved(int dx, int dy) const { return {left + dx, top + dy, right + dx, bottom + dy}; }
    bool operator==(const RibbonRect&) const = default;
};
