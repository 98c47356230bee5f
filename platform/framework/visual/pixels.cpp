#include "visual/pixels.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace visual {

namespace {

unsigned Scale255(unsigned value, unsigned by) {
    const unsigned product = value * by + 128;
    return (product + (product >> 8)) >> 8;
}

Argb StopAt(const FourStops& stops, int row, int height) {
    const int split = height * stops.splitPercent / 100;
    if (row < split) {
        return Mix(stops.top1, stops.top2, row, std::max(split - 1, 1));
    }
    return Mix(stops.bottom1, stops.bottom2, row - split, std::max(height - split - 1, 1));
}

/// Empty, and not turned inside out, where the rectangle lies beside the view or has no extent.
fx::Rect Clipped(const fx::Rect& rect, const PixelView& view) {
    const int left = std::clamp(rect.left, 0, view.width);
    const int top = std::clamp(rect.top, 0, view.height);
    return {left, top, std::clamp(rect.right, left, view.width), std::clamp(rect.bottom, top, view.height)};
}

unsigned CornerCoverage(double centreX, double centreY, int radius, int x, int y) {
    const double distance = std::hypot(x + 0.5 - centreX, y + 0.5 - centreY);
    return static_cast<unsigned>(std::clamp(radius - distance + 0.5, 0.0, 1.0) * 255.0 + 0.5);
}

double EllipseCoverage(const fx::Rect& rect, int x, int y, double inset) {
    const double radiusX = rect.Width() / 2.0 - inset, radiusY = rect.Height() / 2.0 - inset;
    if (radiusX <= 0 || radiusY <= 0) {
        return 0;
    }
    const double dx = (x + 0.5 - (rect.left + rect.right) / 2.0) / radiusX;
    const double dy = (y + 0.5 - (rect.top + rect.bottom) / 2.0) / radiusY;
    // Distance from the edge in pixels, near enough for a smooth edge on ellipses that are nearly round.
    return std::clamp((1.0 - std::hypot(dx, dy)) * std::min(radiusX, radiusY) + 0.5, 0.0, 1.0);
}

} // namespace

Corners Corners::Deflated(int by) const {
    return {std::max(topLeft - by, 0), std::max(topRight - by, 0), std::max(bottomRight - by, 0),
            std::max(bottomLeft - by, 0)};
}

unsigned CoverageAt(const fx::Rect& rect, const Corners& corners, int x, int y) {
    if (x < rect.left || x >= rect.right || y < rect.top || y >= rect.bottom) {
        return 0;
    }
    const bool isTop = y - rect.top < rect.Height() / 2;
    const bool isLeft = x - rect.left < rect.Width() / 2;
    const int radius =
        isTop ? (isLeft ? corners.topLeft : corners.topRight) : (isLeft ? corners.bottomLeft : corners.bottomRight);
    const int fromSide = isLeft ? x - rect.left : rect.right - 1 - x;
    const int fromEdge = isTop ? y - rect.top : rect.bottom - 1 - y;
    if (fromSide >= radius || fromEdge >= radius) {
        return 255;
    }
    return CornerCoverage(isLeft ? rect.left + radius : rect.right - radius,
                          isTop ? rect.top + radius : rect.bottom - radius, radius, x, y);
}

void BlendPixel(std::uint32_t& target, Argb source, unsigned coverage) {
    const unsigned alpha = Scale255(AlphaOf(source), coverage);
    if (alpha == 0) {
        return;
    }
    const unsigned rest = 255 - alpha;
    const auto channel = [&](unsigned from, unsigned to) { return Scale255(from, alpha) + Scale255(to, rest); };
    target = MakeArgb(std::min(alpha + Scale255(AlphaOf(target), rest), 255u),
                      std::min(channel(RedOf(source), RedOf(target)), 255u),
                      std::min(channel(GreenOf(source), GreenOf(target)), 255u),
                      std::min(channel(BlueOf(source), BlueOf(target)), 255u));
}

void FillRounded(const PixelView& view, const fx::Rect& rect, const Corners& corners, const FourStops& stops) {
    const fx::Rect clip = Clipped(rect, view);
    const int radiusTop = std::max(corners.topLeft, corners.topRight);
    const int radiusBottom = std::max(corners.bottomLeft, corners.bottomRight);
    for (int y = clip.top; y < clip.bottom; ++y) {
        const Argb color = StopAt(stops, y - rect.top, rect.Height());
        if (AlphaOf(color) == 0) {
            continue;
        }
        const bool isStraight = y - rect.top >= radiusTop && rect.bottom - 1 - y >= radiusBottom;
        std::uint32_t* row = &view.At(0, y);
        if (isStraight && AlphaOf(color) == 255) {
            std::fill(row + clip.left, row + clip.right, color);
            continue;
        }
        for (int x = clip.left; x < clip.right; ++x) {
            BlendPixel(row[x], color, isStraight ? 255 : CoverageAt(rect, corners, x, y));
        }
    }
}

void StrokeRounded(const PixelView& view, const fx::Rect& rect, const Corners& corners, Argb color, int thickness) {
    if (AlphaOf(color) == 0) {
        return;
    }
    const fx::Rect clip = Clipped(rect, view);
    const fx::Rect inside = rect.Deflated(thickness);
    const Corners insideCorners = corners.Deflated(thickness);
    const auto isPlainRow = [&](int y) {
        return y - rect.top >= thickness + std::max(corners.topLeft, corners.topRight) &&
               rect.bottom - 1 - y >= thickness + std::max(corners.bottomLeft, corners.bottomRight);
    };
    for (int y = clip.top; y < clip.bottom; ++y) {
        std::uint32_t* row = &view.At(0, y);
        for (int x = clip.left; x < clip.right; ++x) {
            if (isPlainRow(y) && x >= rect.left + thickness && x < rect.right - thickness) {
                x = rect.right - thickness - 1;
                continue;
            }
            const unsigned outside = CoverageAt(rect, corners, x, y);
            const unsigned hole = CoverageAt(inside, insideCorners, x, y);
            if (outside > hole) {
                BlendPixel(row[x], color, outside - hole);
            }
        }
    }
}

void FillGlow(const PixelView& view, const fx::Rect& rect, const Corners& corners, PointF centre, double radiusX,
              double radiusY, Argb color) {
    if (radiusX <= 0 || radiusY <= 0) {
        return;
    }
    const fx::Rect clip = Clipped(rect, view);
    for (int y = clip.top; y < clip.bottom; ++y) {
        for (int x = clip.left; x < clip.right; ++x) {
            const double distance = std::hypot((x + 0.5 - centre.x) / radiusX, (y + 0.5 - centre.y) / radiusY);
            if (distance >= 1.0) {
                continue;
            }
            const double light = 1.0 - distance * distance;
            const auto strength = static_cast<unsigned>(light * light * CoverageAt(rect, corners, x, y));
            BlendPixel(view.At(x, y), color, strength);
        }
    }
}

void FillPolygon(const PixelView& view, std::span<const PointF> points, Argb color) {
    constexpr int samples = 8;
    double top = view.height, bottom = 0;
    for (const PointF& point : points) {
        top = std::min(top, point.y);
        bottom = std::max(bottom, point.y);
    }
    std::vector<int> hits(static_cast<std::size_t>(std::max(view.width, 0)));
    std::vector<double> crossings;
    const int firstRow = std::max(static_cast<int>(std::floor(top)), 0);
    const int lastRow = std::min(static_cast<int>(std::ceil(bottom)), view.height);
    for (int y = firstRow; y < lastRow; ++y) {
        std::ranges::fill(hits, 0);
        for (int sample = 0; sample < samples; ++sample) {
            const double line = y + (sample + 0.5) / samples;
            crossings.clear();
            for (std::size_t i = 0; i < points.size(); ++i) {
                const PointF &a = points[i], &b = points[(i + 1) % points.size()];
                if ((a.y <= line) != (b.y <= line)) {
                    crossings.push_back(a.x + (line - a.y) * (b.x - a.x) / (b.y - a.y));
                }
            }
            std::ranges::sort(crossings);
            for (std::size_t i = 0; i + 1 < crossings.size(); i += 2) {
                const int from = static_cast<int>(std::ceil(crossings[i] * samples - 0.5));
                const int to = static_cast<int>(std::ceil(crossings[i + 1] * samples - 0.5));
                for (int s = std::max(from, 0); s < std::min(to, view.width * samples); ++s) {
                    ++hits[static_cast<std::size_t>(s / samples)];
                }
            }
        }
        for (int x = 0; x < view.width; ++x) {
            if (hits[static_cast<std::size_t>(x)] > 0) {
                BlendPixel(view.At(x, y), color,
                           static_cast<unsigned>(hits[static_cast<std::size_t>(x)] * 255 / (samples * samples)));
            }
        }
    }
}

void FillEllipse(const PixelView& view, const fx::Rect& rect, const FourStops& stops) {
    const fx::Rect clip = Clipped(rect, view);
    for (int y = clip.top; y < clip.bottom; ++y) {
        const Argb color = StopAt(stops, y - rect.top, rect.Height());
        for (int x = clip.left; x < clip.right; ++x) {
            BlendPixel(view.At(x, y), color, static_cast<unsigned>(EllipseCoverage(rect, x, y, 0) * 255 + 0.5));
        }
    }
}

void StrokeEllipse(const PixelView& view, const fx::Rect& rect, Argb color, double thickness) {
    const fx::Rect clip = Clipped(rect, view);
    for (int y = clip.top; y < clip.bottom; ++y) {
        for (int x = clip.left; x < clip.right; ++x) {
            const double ring = EllipseCoverage(rect, x, y, 0) - EllipseCoverage(rect, x, y, thickness);
            if (ring > 0) {
                BlendPixel(view.At(x, y), color, static_cast<unsigned>(ring * 255 + 0.5));
            }
        }
    }
}

std::uint32_t DisabledPixel(std::uint32_t pixel) {
    const unsigned alpha = AlphaOf(pixel);
    if (alpha == 0) {
        return 0;
    }
    const unsigned luma = (RedOf(pixel) * 77 + GreenOf(pixel) * 151 + BlueOf(pixel) * 28) >> 8;
    // What is dark becomes one dark grey and what is light one light grey, so that an icon of two tones has one left.
    // Both have 3:1 on the grounds of a dark and of a light skin.
    const unsigned third = Scale255(96, alpha);
    const unsigned rise = luma > third ? std::min(luma - third, third) : 0;
    const unsigned grey = std::min(Scale255(88, alpha) + luma / 16 + rise, alpha);
    const unsigned kept = alpha * 3 / 4;
    return MakeArgb(kept, grey * 3 / 4, grey * 3 / 4, grey * 3 / 4);
}

void Resample(const PixelView& source, const PixelView& target) {
    if (source.width <= 0 || source.height <= 0) {
        return;
    }
    if (source.width == target.width && source.height == target.height) {
        std::copy_n(source.bits, static_cast<std::size_t>(source.width) * source.height, target.bits);
        return;
    }
    const double stepX = static_cast<double>(source.width) / target.width;
    const double stepY = static_cast<double>(source.height) / target.height;
    // Each target pixel is the mean of the source area below it; when enlarging, the area is one source pixel wide.
    const double reachX = std::max(stepX, 1.0) / 2, reachY = std::max(stepY, 1.0) / 2;
    for (int y = 0; y < target.height; ++y) {
        const double middleY = (y + 0.5) * stepY;
        for (int x = 0; x < target.width; ++x) {
            const double middleX = (x + 0.5) * stepX;
            std::array<double, 4> sum{};
            double weights = 0;
            for (int sy = static_cast<int>(std::floor(middleY - reachY)); sy < middleY + reachY; ++sy) {
                const double weightY = std::min(sy + 1.0, middleY + reachY) - std::max<double>(sy, middleY - reachY);
                for (int sx = static_cast<int>(std::floor(middleX - reachX)); sx < middleX + reachX; ++sx) {
                    const double weight =
                        weightY * (std::min(sx + 1.0, middleX + reachX) - std::max<double>(sx, middleX - reachX));
                    if (weight <= 0) {
                        continue;
                    }
                    const std::uint32_t pixel =
                        source.At(std::clamp(sx, 0, source.width - 1), std::clamp(sy, 0, source.height - 1));
                    for (int i = 0; i < 4; ++i) {
                        sum[static_cast<std::size_t>(i)] += weight * (pixel >> (8 * i) & 0xFF);
                    }
                    weights += weight;
                }
            }
            std::uint32_t pixel = 0;
            for (int i = 0; i < 4; ++i) {
                pixel |= static_cast<std::uint32_t>(sum[static_cast<std::size_t>(i)] / weights + 0.5) << (8 * i);
            }
            target.At(x, y) = pixel;
        }
    }
}

void MirrorRows(const PixelView& view) {
    for (int y = 0; y < view.height; ++y) {
        std::reverse(&view.At(0, y), &view.At(0, y) + view.width);
    }
}

void PreMultiply(const PixelView& view, bool onlyIfNeeded) {
    const std::span pixels(view.bits, static_cast<std::size_t>(view.width) * view.height);
    if (onlyIfNeeded && std::ranges::all_of(pixels, [](std::uint32_t pixel) {
            return std::max({RedOf(pixel), GreenOf(pixel), BlueOf(pixel)}) <= AlphaOf(pixel);
        })) {
        return;
    }
    for (std::uint32_t& pixel : pixels) {
        const unsigned alpha = AlphaOf(pixel);
        pixel = MakeArgb(alpha, Scale255(RedOf(pixel), alpha), Scale255(GreenOf(pixel), alpha),
                         Scale255(BlueOf(pixel), alpha));
    }
}

bool HasAlpha(const PixelView& view) {
    const std::span pixels(view.bits, static_cast<std::size_t>(view.width) * view.height);
    return std::ranges::any_of(pixels, [](std::uint32_t pixel) { return AlphaOf(pixel) != 0; });
}

namespace {

/// Which column (or row) of a stretched picture shows at a place of the target. The margins at both ends come as they
/// are, of narrow targets their outer parts.
int SliceSource(int at, int target, int source, int first, int last) {
    if (first + last > target) {
        first = target * first / std::max(first + last, 1);
        last = target - first;
    }
    if (at < first) {
        return at;
    }
    if (at >= target - last) {
        return source - (target - at);
    }
    const int middle = std::max(source - first - last, 1);
    return first + (at - first) * middle / std::max(target - first - last, 1);
}

void BlendMultiplied(std::uint32_t& target, std::uint32_t source) {
    const unsigned rest = 255 - AlphaOf(source);
    const auto channel = [rest](unsigned over, unsigned below) { return over + (below * rest + 127) / 255; };
    target = MakeArgb(channel(AlphaOf(source), AlphaOf(target)), channel(RedOf(source), RedOf(target)),
                      channel(GreenOf(source), GreenOf(target)), channel(BlueOf(source), BlueOf(target)));
}

} // namespace

void FillSlices(const PixelView& view, const fx::Rect& rect, std::span<const std::uint32_t> picture, int width,
                const SliceMargins& margins) {
    if (width <= 0 || picture.size() < static_cast<std::size_t>(width)) {
        return;
    }
    const int height = static_cast<int>(picture.size()) / width;
    const fx::Rect inside{std::max(rect.left, 0), std::max(rect.top, 0), std::min(rect.right, view.width),
                          std::min(rect.bottom, view.height)};
    for (int y = inside.top; y < inside.bottom; ++y) {
        const int row = SliceSource(y - rect.top, rect.Height(), height, margins.top, margins.bottom);
        for (int x = inside.left; x < inside.right; ++x) {
            const int column = SliceSource(x - rect.left, rect.Width(), width, margins.left, margins.right);
            BlendMultiplied(view.At(x, y), picture[static_cast<std::size_t>(row) * width + column]);
        }
    }
}

} // namespace visual
