#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <initializer_list>

// Colours with transparency, and how well one can be seen on another. Knows no window system.
namespace visual {

/// 0xAARRGGBB, colour not multiplied by alpha.
using Argb = std::uint32_t;

constexpr Argb WithAlpha(Argb color, unsigned alpha) { return (color & 0xFFFFFFu) | (alpha << 24); }
constexpr unsigned AlphaOf(Argb color) { return color >> 24; }
constexpr unsigned RedOf(Argb color) { return color >> 16 & 0xFF; }
constexpr unsigned GreenOf(Argb color) { return color >> 8 & 0xFF; }
constexpr unsigned BlueOf(Argb color) { return color & 0xFF; }
constexpr Argb MakeArgb(unsigned alpha, unsigned red, unsigned green, unsigned blue) {
    return alpha << 24 | red << 16 | green << 8 | blue;
}

/// The colour at part/whole of the way from one to the other, channel by channel, alpha too.
constexpr Argb Mix(Argb from, Argb to, int part, int whole) {
    if (whole <= 0 || part <= 0) {
        return from;
    }
    if (part >= whole) {
        return to;
    }
    const auto channel = [&](unsigned a, unsigned b) {
        return static_cast<unsigned>((static_cast<int>(a) * (whole - part) + static_cast<int>(b) * part + whole / 2) /
                                     whole);
    };
    return MakeArgb(channel(AlphaOf(from), AlphaOf(to)), channel(RedOf(from), RedOf(to)),
                    channel(GreenOf(from), GreenOf(to)), channel(BlueOf(from), BlueOf(to)));
}

/// What is seen where the colour lies on an opaque one.
constexpr Argb Over(Argb color, Argb ground) {
    return WithAlpha(Mix(ground, WithAlpha(color, 255), static_cast<int>(AlphaOf(color)), 255), 255);
}

/// What text must have at least to be read at all, while it says by its paleness that it cannot be used.
constexpr double g_leastContrast = 3.0;

/// Of the lightness of two opaque colours, from 1 for equal ones to 21 for black and white.
inline double Contrast(Argb one, Argb other) {
    // The relative luminance of a colour of the usual screen.
    const auto luminance = [](Argb color) {
        const auto linear = [](unsigned value) {
            const double part = value / 255.0;
            return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(RedOf(color)) + 0.7152 * linear(GreenOf(color)) + 0.0722 * linear(BlueOf(color));
    };
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

/// The colour itself where it has the contrast on each of the grounds; otherwise the first one on the way to `full`
/// that has; `full` when there is none.
inline Argb Readable(Argb pale, Argb full, std::initializer_list<Argb> grounds, double contrast = g_leastContrast) {
    constexpr int steps = 32;
    for (int step = 0; step < steps; ++step) {
        const Argb color = Mix(pale, full, step, steps);
        const auto isRead = [color, contrast](Argb ground) { return Contrast(color, ground) >= contrast; };
        if (std::all_of(grounds.begin(), grounds.end(), isRead)) {
            return color;
        }
    }
    return full;
}

} // namespace visual
