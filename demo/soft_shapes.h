#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>

/// Shapes with smooth edges, drawn into the pixels of a bitmap (0xRRGGBB, rows from the top).
namespace soft {

struct Pixels {
    std::uint32_t* bits = nullptr;
    int width = 0;
    int height = 0;
};

struct Box {
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;
};

/// `share` of a colour over another one, 0 to 1.
inline std::uint32_t Mixed(std::uint32_t below, std::uint32_t color, double share) {
    std::uint32_t mixed = 0;
    for (const int shift : {0, 8, 16}) {
        const double from = below >> shift & 0xFF, to = color >> shift & 0xFF;
        mixed |= static_cast<std::uint32_t>(std::lround(from + (to - from) * share)) << shift;
    }
    return mixed;
}

/// Colours what `isInside` says of points inside the box; a pixel at the edge takes as much as its part inside.
template <class IsInside>
void Fill(const Pixels& pixels, const Box& box, std::uint32_t color, double strength, IsInside isInside) {
    constexpr int samples = 4; // a side of a pixel
    const int left = std::max(0, static_cast<int>(std::floor(box.left)));
    const int top = std::max(0, static_cast<int>(std::floor(box.top)));
    const int right = std::min(pixels.width, static_cast<int>(std::ceil(box.right)));
    const int bottom = std::min(pixels.height, static_cast<int>(std::ceil(box.bottom)));
    for (int y = top; y < bottom; ++y) {
        for (int x = left; x < right; ++x) {
            int inside = 0;
            for (int i = 0; i < samples * samples; ++i) {
                inside += isInside(x + (i % samples + 0.5) / samples, y + (i / samples + 0.5) / samples) ? 1 : 0;
            }
            std::uint32_t& pixel = pixels.bits[static_cast<std::ptrdiff_t>(y) * pixels.width + x];
            pixel = Mixed(pixel & 0xFFFFFF, color, strength * inside / (samples * samples));
        }
    }
}

/// A rectangle with round corners; a circle where the corner is half of a square's side.
inline void FillRounded(const Pixels& pixels, const Box& box, double corner, std::uint32_t color, double strength = 1) {
    Fill(pixels, box, color, strength, [&](double x, double y) {
        const double dx = std::max({box.left + corner - x, x - (box.right - corner), 0.0});
        const double dy = std::max({box.top + corner - y, y - (box.bottom - corner), 0.0});
        return dx * dx + dy * dy <= corner * corner && x >= box.left && x < box.right && y >= box.top && y < box.bottom;
    });
}

/// A line with round ends.
inline void DrawLine(const Pixels& pixels, double x1, double y1, double x2, double y2, double width,
                     std::uint32_t color) {
    const double half = width / 2, length = (x2 - x1) * (x2 - x1) + (y2 - y1) * (y2 - y1);
    const Box box = {std::min(x1, x2) - half, std::min(y1, y2) - half, std::max(x1, x2) + half,
                     std::max(y1, y2) + half};
    Fill(pixels, box, color, 1, [&](double x, double y) {
        const double along = length > 0 ? ((x - x1) * (x2 - x1) + (y - y1) * (y2 - y1)) / length : 0;
        const double at = std::clamp(along, 0.0, 1.0);
        const double dx = x - x1 - at * (x2 - x1), dy = y - y1 - at * (y2 - y1);
        return dx * dx + dy * dy <= half * half;
    });
}

} // namespace soft
