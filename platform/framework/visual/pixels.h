#pragma once

#include "fx/argb.h"

#include <cstddef>
#include <cstdint>
#include <span>

#include "fx/geometry.h"

// Drawing on rows of 32-bit pixels with smooth edges. Knows no window system, so that it is tested on any machine.
namespace visual {

/// Pixels multiplied by alpha, row 0 on top. Does not own them.
struct PixelView {
    std::uint32_t* bits = nullptr;
    int width = 0;
    int height = 0;

    std::uint32_t& At(int x, int y) const { return bits[static_cast<std::size_t>(y) * width + x]; }
};

/// Radii in pixels; 0 is a square corner.
struct Corners {
    int topLeft = 0, topRight = 0, bottomRight = 0, bottomLeft = 0;

    static constexpr Corners All(int radius) { return {radius, radius, radius, radius}; }
    static constexpr Corners Top(int radius) { return {radius, radius, 0, 0}; }
    static constexpr Corners Bottom(int radius) { return {0, 0, radius, radius}; }
    static constexpr Corners Left(int radius) { return {radius, 0, 0, radius}; }
    static constexpr Corners Right(int radius) { return {0, radius, radius, 0}; }
    Corners Deflated(int by) const;
};

/// Two gradients, one below the other; the second begins splitPercent of the height down.
struct FourStops {
    Argb top1 = 0, top2 = 0, bottom1 = 0, bottom2 = 0;
    int splitPercent = 50;
};

struct PointF {
    double x = 0, y = 0;
};

/// Share of the pixel (x, y) that lies in the rounded rectangle, 0 to 255.
unsigned CoverageAt(const fx::Rect& rect, const Corners& corners, int x, int y);

/// source drawn over target at coverage 0 to 255.
void BlendPixel(std::uint32_t& target, Argb source, unsigned coverage = 255);

void FillRounded(const PixelView& view, const fx::Rect& rect, const Corners& corners, const FourStops& stops);
/// The outermost thickness pixels of the rounded rectangle.
void StrokeRounded(const PixelView& view, const fx::Rect& rect, const Corners& corners, Argb color, int thickness);
/// A spot of light that fades out towards the ellipse around centre, kept inside the rounded rectangle.
void FillGlow(const PixelView& view, const fx::Rect& rect, const Corners& corners, PointF centre, double radiusX,
              double radiusY, Argb color);
/// Any polygon, edges smooth.
void FillPolygon(const PixelView& view, std::span<const PointF> points, Argb color);
/// A ring or, thickness 0, a disc inside the rectangle, vertical gradient.
void FillEllipse(const PixelView& view, const fx::Rect& rect, const FourStops& stops);
void StrokeEllipse(const PixelView& view, const fx::Rect& rect, Argb color, double thickness);

/// The picture stretched over the rectangle; the margins, in pixels, keep their size. Both multiplied pixels; a
/// rectangle smaller than two margins gets the outermost part of each.
struct SliceMargins {
    int left = 0, top = 0, right = 0, bottom = 0;
};
void FillSlices(const PixelView& view, const fx::Rect& rect, std::span<const std::uint32_t> picture, int width,
                const SliceMargins& margins);

/// A dark grey for what is dark, a light one for what is light, with less contrast than before and a quarter of the
/// ground showing through. Multiplied pixels.
std::uint32_t DisabledPixel(std::uint32_t pixel);
/// Resampled with averaging (smaller) or bilinear (larger); multiplied pixels. Views must not overlap.
void Resample(const PixelView& source, const PixelView& target);
void MirrorRows(const PixelView& view);
/// Multiply colours by alpha. With onlyIfNeeded nothing is done when every colour is already at most its alpha.
void PreMultiply(const PixelView& view, bool onlyIfNeeded);
bool HasAlpha(const PixelView& view);

} // namespace visual
