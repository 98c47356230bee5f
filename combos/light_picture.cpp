#include "combos/light_picture.h"

#include <algorithm>
#include <cmath>

namespace {

/// Samples of a pixel in each direction.
constexpr int samples = 8;

struct Color {
    double red = 0;
    double green = 0;
    double blue = 0;
};

/// The colours of one state: flat, as the icons beside it are. Outline and socket can be seen on the light grounds of
/// lists in both skins.
struct Tones {
    Color glass;
    Color outline; // of the glass, and the socket
};

constexpr Tones onTones{{255, 206, 70}, {122, 80, 0}};
constexpr Tones offTones{{232, 234, 238}, {80, 86, 96}};

/// The shape for one size, in pixels. Straight edges lie between pixels, so that they are sharp in every size.
struct Shape {
    explicit Shape(int side) : size(side) {
        centerX = side / 2.0;
        outline = std::max(1.0, side / 16.0);
        // As many columns on the left of the socket as on its right.
        const int width = std::max(1, static_cast<int>(std::lround(side * 0.36)));
        socketHalf = (width + (side - width) % 2) / 2.0;
        socketBottom = side - std::floor(side * 0.04);
        socketTop = socketBottom - std::max(1.0, std::round(side * 0.27));
        radius = side * 0.37;
        glassY = std::max(radius + side * 0.05, socketTop * 0.53);
        // The glass narrows from its lower part to the socket.
        neckTop = glassY + radius * 0.62;
        gap = std::max(1.0, std::floor(side / 24.0));
        gapTop = std::max(1.0, std::round((socketBottom - socketTop - gap) / 2.0));
    }

    /// Pixels from the glass's edge, negative inside.
    double FromGlass(double x, double y) const {
        const double fromBall = std::hypot(x - centerX, y - glassY) - radius;
        if (y < neckTop || y > socketTop) {
            return y > socketTop ? std::max(fromBall, y - socketTop) : fromBall;
        }
        const double part = (y - neckTop) / std::max(0.001, socketTop - neckTop);
        const double wide = std::sqrt(std::max(0.0, radius * radius - (neckTop - glassY) * (neckTop - glassY)));
        const double half = wide + (socketHalf - wide) * part * (2 - part);
        return std::min(fromBall, std::abs(x - centerX) - half);
    }
    double FromSocket(double x, double y) const {
        // Round at the foot.
        const double round = std::min(socketHalf, (socketBottom - socketTop) * 0.5);
        const double outX = std::abs(x - centerX) - (socketHalf - round);
        const double outY = y - (socketBottom - round);
        if (outX > 0 && outY > 0) {
            return std::hypot(outX, outY) - round;
        }
        return std::max({std::abs(x - centerX) - socketHalf, y - socketBottom, socketTop - y});
    }

    int size;
    double centerX = 0;
    double glassY = 0;
    double radius = 0;
    double neckTop = 0;
    double outline = 0;
    double socketHalf = 0;
    double socketTop = 0;
    double socketBottom = 0;
    double gapTop = 0; // from the socket's top to the gap between its threads
    double gap = 0;    // height of the gap
};

struct Sample {
    Color color;
    double alpha = 0;
};

Sample SampleAt(const Shape& shape, const Tones& tones, double x, double y) {
    const double fromGlass = shape.FromGlass(x, y);
    if (fromGlass <= 0) {
        return {-fromGlass < shape.outline ? tones.outline : tones.glass, 1};
    }
    if (shape.FromSocket(x, y) <= 0) {
        // A line of ground between the threads.
        const bool isGap = y - shape.socketTop >= shape.gapTop && y - shape.socketTop < shape.gapTop + shape.gap;
        return {tones.outline, isGap ? 0.0 : 1.0};
    }
    return {};
}

std::uint32_t Byte(double value) { return static_cast<std::uint32_t>(std::clamp(value, 0.0, 255.0) + 0.5); }

/// The mean of a pixel's samples; colours count as much as they cover.
std::uint32_t PixelAt(const Shape& shape, const Tones& tones, int column, int row) {
    Sample sum;
    for (int inRow = 0; inRow < samples; ++inRow) {
        for (int inColumn = 0; inColumn < samples; ++inColumn) {
            const Sample one =
                SampleAt(shape, tones, column + (inColumn + 0.5) / samples, row + (inRow + 0.5) / samples);
            sum.alpha += one.alpha;
            sum.color.red += one.color.red * one.alpha;
            sum.color.green += one.color.green * one.alpha;
            sum.color.blue += one.color.blue * one.alpha;
        }
    }
    const std::uint32_t alpha = Byte(255 * sum.alpha / (samples * samples));
    if (alpha == 0) {
        return 0;
    }
    return alpha << 24 | Byte(sum.color.red / sum.alpha) << 16 | Byte(sum.color.green / sum.alpha) << 8 |
           Byte(sum.color.blue / sum.alpha);
}

} // namespace

std::vector<std::uint32_t> DrawLightPicture(int side, LightState state) {
    std::vector<std::uint32_t> pixels;
    if (side < 1) {
        return pixels;
    }
    const Shape shape(side);
    const Tones& tones = state == LightState::On ? onTones : offTones;
    pixels.reserve(static_cast<std::size_t>(side) * static_cast<std::size_t>(side));
    for (int row = 0; row < side; ++row) {
        for (int column = 0; column < side; ++column) {
            pixels.push_back(PixelAt(shape, tones, column, row));
        }
    }
    return pixels;
}
