#include "visual/color_math.h"

#include <algorithm>
#include <cmath>

namespace visual {

namespace {

BYTE Byte(double value) { return static_cast<BYTE>(std::clamp(value, 0.0, 255.0) + 0.5); }

struct Extremes {
    double red, green, blue, low, high;
};

Extremes Split(COLORREF color) {
    const double red = GetRValue(color) / 255.0, green = GetGValue(color) / 255.0, blue = GetBValue(color) / 255.0;
    return {red, green, blue, std::min({red, green, blue}), std::max({red, green, blue})};
}

/// 0 to 6, counted from red.
double HueOf(const Extremes& c) {
    const double range = c.high - c.low;
    if (range == 0) {
        return 0;
    }
    double hue = 4 + (c.red - c.green) / range;
    if (c.high == c.red) {
        hue = (c.green - c.blue) / range;
    } else if (c.high == c.green) {
        hue = 2 + (c.blue - c.red) / range;
    }
    return hue < 0 ? hue + 6 : hue;
}

double Channel(double low, double high, double hue) {
    hue -= std::floor(hue);
    if (hue * 6 < 1) {
        return low + (high - low) * hue * 6;
    }
    if (hue * 2 < 1) {
        return high;
    }
    if (hue * 3 < 2) {
        return low + (high - low) * (2.0 / 3 - hue) * 6;
    }
    return low;
}

} // namespace

Hsl ToHsl(COLORREF color) {
    const Extremes c = Split(color);
    const double sum = c.high + c.low, range = c.high - c.low;
    const double saturation = range == 0 ? 0 : (sum <= 1 ? range / sum : range / (2 - sum));
    return {HueOf(c) / 6, saturation, sum / 2};
}

COLORREF FromHsl(const Hsl& color) {
    const double lightness = std::clamp(color.lightness, 0.0, 1.0), saturation = std::clamp(color.saturation, 0.0, 1.0);
    const double high =
        lightness <= 0.5 ? lightness * (1 + saturation) : lightness + saturation - lightness * saturation;
    const double low = 2 * lightness - high;
    return RGB(Byte(Channel(low, high, color.hue + 1.0 / 3) * 255), Byte(Channel(low, high, color.hue) * 255),
               Byte(Channel(low, high, color.hue - 1.0 / 3) * 255));
}

Hsv ToHsv(COLORREF color) {
    const Extremes c = Split(color);
    return {HueOf(c) * 60, c.high == 0 ? 0 : (c.high - c.low) / c.high, c.high};
}

COLORREF FromHsv(const Hsv& color) {
    const double sector = std::fmod(std::max(color.hue, 0.0), 360.0) / 60;
    const double part = sector - std::floor(sector);
    const double low = color.value * (1 - color.saturation);
    const double falling = color.value * (1 - color.saturation * part);
    const double rising = color.value * (1 - color.saturation * (1 - part));
    const double channels[6][3] = {{color.value, rising, low}, {falling, color.value, low},
                                   {low, color.value, rising}, {low, falling, color.value},
                                   {rising, low, color.value}, {color.value, low, falling}};
    const double* rgb = channels[static_cast<int>(sector) % 6];
    return RGB(Byte(rgb[0] * 255), Byte(rgb[1] * 255), Byte(rgb[2] * 255));
}

COLORREF Percent(COLORREF color, double red, double green, double blue) {
    return RGB(Byte(GetRValue(color) * red / 100), Byte(GetGValue(color) * green / 100),
               Byte(GetBValue(color) * blue / 100));
}

} // namespace visual
