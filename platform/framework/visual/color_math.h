#pragma once

#include <windows.h>

namespace visual {

struct Hsl {
    double hue, saturation, lightness; // each 0 to 1
};
struct Hsv {
    double hue, saturation, value; // hue in degrees, 0 to 360; the others 0 to 1
};

Hsl ToHsl(COLORREF color);
COLORREF FromHsl(const Hsl& color);
Hsv ToHsv(COLORREF color);
COLORREF FromHsv(const Hsv& color);
/// Channels at percent of their value, kept below 256.
COLORREF Percent(COLORREF color, double red, double green, double blue);

} // namespace visual
