#pragma once

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace visual {

/// The height of the interface font without the user's wish for larger text: 9 points, in pixels at 96 DPI.
constexpr int kFontPixels = 12;

/// The height of the interface font in pixels: 9 points, or more where the user has the system show larger text.
/// menuFont: height of the system's menu font, negative or not, at systemScale (1.0 at 96 DPI). scale: of the bars.
inline int FontPixels(int menuFont, double systemScale, double scale) {
    const long usual = std::lround(kFontPixels * scale);
    const long wished = std::lround(std::abs(menuFont) * scale / systemScale);
    return static_cast<int>(std::max(usual, wished));
}

} // namespace visual
