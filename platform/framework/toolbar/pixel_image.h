#pragma once

#include "fx/geometry.h"

#include <cstdint>
#include <optional>
#include <vector>

// A small image that is drawn upon pixel by pixel. Knows no window system.
namespace toolbar {

/// Pixels are 0xAARRGGBB as bitmaps have them: colours multiplied by alpha. What is drawn outside of it is left out.
class PixelImage {
public:
    using Pixel = std::uint32_t;

    PixelImage() = default;
    PixelImage(fx::Size size, std::vector<Pixel> pixels);

    fx::Size Size() const { return m_size; }
    bool Has(fx::Point at) const;
    /// `at` lies within it.
    Pixel At(fx::Point at) const { return m_pixels[Index(at)]; }
    /// Row by row from the top.
    const std::vector<Pixel>& Pixels() const { return m_pixels; }

    void Set(fx::Point at, Pixel pixel);
    /// Both ends are drawn.
    void DrawLine(fx::Point from, fx::Point to, Pixel pixel);
    /// The outline between two opposite corners, both within it.
    void DrawRectangle(fx::Point corner, fx::Point opposite, Pixel pixel);
    void DrawEllipse(fx::Point corner, fx::Point opposite, Pixel pixel);
    /// The pixel and all of its colour that touch it by their sides.
    void Fill(fx::Point at, Pixel pixel);

    friend bool operator==(const PixelImage&, const PixelImage&) = default;

private:
    std::size_t Index(fx::Point at) const {
        return static_cast<std::size_t>(at.y) * static_cast<std::size_t>(m_size.width) + static_cast<std::size_t>(at.x);
    }

    fx::Size m_size;
    std::vector<Pixel> m_pixels;
};

/// How an image's pixels lie enlarged in a room: squares of whole pixels, in its middle.
class PixelGrid {
public:
    PixelGrid(fx::Size image, fx::Size room);

    /// The side of a square; at least 1.
    int Side() const { return m_side; }
    fx::Rect SquareOf(fx::Point pixel) const;
    fx::Rect Bounds() const;
    /// Nothing beside the image.
    std::optional<fx::Point> PixelAt(fx::Point point) const;
    /// Also beside it: as if the squares went on.
    fx::Point NearestTo(fx::Point point) const;

private:
    fx::Size m_image;
    int m_side = 1;
    fx::Point m_origin;
};

} // namespace toolbar
