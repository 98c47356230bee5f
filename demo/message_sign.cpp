#include "message_sign.h"

#include <cmath>
#include <numbers>

namespace {

constexpr double kMiddle = 0.5;

std::vector<SignStroke> Disc() { return {{kMiddle, kMiddle, kMiddle, kMiddle, 0.96}}; }

/// Three triangles, one in another, whose lines cover what is between them.
std::vector<SignStroke> Triangle() {
    constexpr double top = 0.13, bottom = 0.86, half = 0.4;
    constexpr double center = 0.62; // as far from all sides
    struct Ring {
        double share;
        double width;
    };
    std::vector<SignStroke> strokes;
    for (const Ring& ring : {Ring{1, 0.16}, Ring{0.6, 0.2}, Ring{0, 0.26}}) {
        const double y1 = center + (top - center) * ring.share, y2 = center + (bottom - center) * ring.share;
        const double left = kMiddle - half * ring.share, right = kMiddle + half * ring.share;
        strokes.push_back({kMiddle, y1, left, y2, ring.width});
        strokes.push_back({kMiddle, y1, right, y2, ring.width});
        strokes.push_back({left, y2, right, y2, ring.width});
    }
    return strokes;
}

/// The bow of a question mark over its stem and its dot.
std::vector<SignStroke> QuestionMark() {
    constexpr double y = 0.39, radius = 0.135, width = 0.09;
    constexpr int first = 170, last = -40, step = 15; // degrees
    const auto point = [](int degrees, double& px, double& py) {
        const double angle = degrees * std::numbers::pi / 180;
        px = kMiddle + radius * std::cos(angle);
        py = y - radius * std::sin(angle);
    };
    std::vector<SignStroke> strokes;
    SignStroke stroke{0, 0, 0, 0, width};
    for (int degrees = first; degrees > last; degrees -= step) {
        point(degrees, stroke.x1, stroke.y1);
        point(degrees - step, stroke.x2, stroke.y2);
        strokes.push_back(stroke);
    }
    strokes.push_back({stroke.x2, stroke.y2, kMiddle, 0.57, width});
    strokes.push_back({kMiddle, 0.57, kMiddle, 0.61, width});
    strokes.push_back({kMiddle, 0.755, kMiddle, 0.755, 0.11});
    return strokes;
}

} // namespace

MessageSign SignOf(MessageKind kind) {
    switch (kind) {
    case MessageKind::Question:
        return {Disc(), QuestionMark()};
    case MessageKind::Warning:
        return {Triangle(), {{kMiddle, 0.37, kMiddle, 0.6, 0.09}, {kMiddle, 0.76, kMiddle, 0.76, 0.11}}};
    case MessageKind::Error:
        return {Disc(), {{0.35, 0.35, 0.65, 0.65, 0.1}, {0.35, 0.65, 0.65, 0.35, 0.1}}};
    default:
        return {Disc(), {{kMiddle, 0.29, kMiddle, 0.29, 0.12}, {kMiddle, 0.47, kMiddle, 0.73, 0.1}}};
    }
}
