#include "toolbar/pixel_image.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace toolbar {

namespace {

/// Rounded down, below zero too.
int FloorDivided(int value, int by) { return value >= 0 ? value / by : -((-value + by - 1) / by); }

/// The ellipse that touches the sides of a box of pixels.
struct Ellipse {
    fx::Rect box;

    bool Contains(int x, int y) const {
        const double radiusX = box.Width() / 2.0;
        const double radiusY = box.Height() / 2.0;
        const double dx = (x + 0.5 - (box.left + radiusX)) / radiusX;
        const double dy = (y + 0.5 - (box.top + radiusY)) / radiusY;
        return dx * dx + dy * dy <= 1.0;
    }
    /// One of its pixels that has one outside at a side.
    bool IsOutline(int x, int y) const {
        const bool isSurrounded = Contains(x - 1, y) && Contains(x + 1, y) && Contains(x, y - 1) && Contains(x, y + 1);
        return Contains(x, y) && !isSurrounded;
    }
};

fx::Rect BoxOf(fx::Point one, fx::Point other) {
    return {std::min(one.x, other.x), std::min(one.y, other.y), std::max(one.x, other.x) + 1,
            std::max(one.y, other.y) + 1};
}

} // namespace

PixelImage::PixelImage(fx::Size size, std::vector<Pixel> pixels) : m_size(size), m_pixels(std::move(pixels)) {
    m_pixels.resize(static_cast<std::size_t>(std::max(0, size.width)) *
                    static_cast<std::size_t>(std::max(0, size.height)));
}

bool PixelImage::Has(fx::Point at) const {
    return at.x >= 0 && at.y >= 0 && at.x < m_size.width && at.y < m_size.height;
}

void PixelImage::Set(fx::Point at, Pixel pixel) {
    if (Has(at)) {
        m_pixels[Index(at)] = pixel;
    }
}

void PixelImage::DrawLine(fx::Point from, fx::Point to, Pixel pixel) {
    const int dx = to.x - from.x;
    const int dy = to.y - from.y;
    const int steps = std::max(std::abs(dx), std::abs(dy));
    Set(from, pixel);
    for (int step = 1; step <= steps; ++step) {
        // Rounded to the nearest.
        Set({from.x + FloorDivided(2 * dx * step + steps, 2 * steps),
             from.y + FloorDivided(2 * dy * step + steps, 2 * steps)},
            pixel);
    }
}

void PixelImage::DrawRectangle(fx::Point corner, fx::Point opposite, Pixel pixel) {
    DrawLine(corner, {opposite.x, corner.y}, pixel);
    DrawLine({opposite.x, corner.y}, opposite, pixel);
    DrawLine(opposite, {corner.x, opposite.y}, pixel);
    DrawLine({corner.x, opposite.y}, corner, pixel);
}

void PixelImage::DrawEllipse(fx::Point corner, fx::Point opposite, Pixel pixel) {
    const Ellipse ellipse{BoxOf(corner, opposite)};
    for (int y = ellipse.box.top; y < ellipse.box.bottom; ++y) {
        for (int x = ellipse.box.left; x < ellipse.box.right; ++x) {
            if (ellipse.IsOutline(x, y)) {
                Set({x, y}, pixel);
            }
        }
    }
}

void PixelImage::Fill(fx::Point at, Pixel pixel) {
    if (!Has(at) || At(at) == pixel) {
        return;
    }
    const Pixel replaced = At(at);
    std::vector<fx::Point> left{at};
    while (!left.empty()) {
        const fx::Point next = left.back();
        left.pop_back();
        if (!Has(next) || At(next) != replaced) {
            continue;
        }
        Set(next, pixel);
        for (const auto& [dx, dy] : {std::pair{1, 0}, std::pair{-1, 0}, std::pair{0, 1}, std::pair{0, -1}}) {
            left.push_back({next.x + dx, next.y + dy});
        }
    }
}

PixelGrid::PixelGrid(fx::Size image, fx::Size room) : m_image(image) {
    if (!image.IsEmpty()) {
        m_side = std::max(1, std::min(room.width / image.width, room.height / image.height));
    }
    m_origin = {(room.width - m_side * image.width) / 2, (room.height - m_side * image.height) / 2};
}

fx::Rect PixelGrid::SquareOf(fx::Point pixel) const {
    const int left = m_origin.x + pixel.x * m_side;
    const int top = m_origin.y + pixel.y * m_side;
    return {left, top, left + m_side, top + m_side};
}

fx::Rect PixelGrid::Bounds() const {
    return {m_origin.x, m_origin.y, m_origin.x + m_image.width * m_side, m_origin.y + m_image.height * m_side};
}

std::optional<fx::Point> PixelGrid::PixelAt(fx::Point point) const {
    return Bounds().Contains(point) ? std::optional(NearestTo(point)) : std::nullopt;
}

fx::Point PixelGrid::NearestTo(fx::Point point) const {
    return {FloorDivided(point.x - m_origin.x, m_side), FloorDivided(point.y - m_origin.y, m_side)};
}

} // namespace toolbar
