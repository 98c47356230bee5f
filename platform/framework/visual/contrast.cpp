#include "visual/contrast.h"

#include <algorithm>
#include <cmath>

namespace visual {

namespace {

// The relative luminance of a colour of the usual screen.
double Luminance(Argb color) {
    const auto linear = [](unsigned value) {
        const double part = value / 255.0;
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(RedOf(color)) + 0.7152 * linear(GreenOf(color)) + 0.0722 * linear(BlueOf(color));
}

} // namespace

double Contrast(Argb one, Argb other) {
    const auto [darker, lighter] = std::minmax({Luminance(one), Luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

Argb Readable(Argb pale, Argb full, std::initializer_list<Argb> grounds) {
    constexpr int steps = 32;
    for (int step = 0; step < steps; ++step) {
        const Argb color = Mix(pale, full, step, steps);
        const auto isRead = [color](Argb ground) { return Contrast(color, ground) >= g_leastContrast; };
        if (std::all_of(grounds.begin(), grounds.end(), isRead)) {
            return color;
        }
    }
    return full;
}

} // namespace visual
