#include "visual/soft_shadow.h"

#include "visual/canvas.h"

#include <algorithm>
#include <cmath>

namespace visual {

double SoftShadowStrength(POINT pixel, const RECT& object, int depth) {
    if (depth <= 0 || ::PtInRect(&object, pixel)) {
        return 0;
    }
    // What casts the shadow is a little smaller at the sides and lower than the object.
    const double side = depth / 4.0;
    const double left = object.left + side;
    const double right = std::max(left, object.right - side);
    const double top = object.top + 2 * side;
    const double bottom = std::max(top, static_cast<double>(object.bottom));
    const double x = pixel.x + 0.5;
    const double y = pixel.y + 0.5;
    const double distance = std::hypot(std::max({0.0, left - x, x - right}), std::max({0.0, top - y, y - bottom}));
    const double rest = std::max(0.0, 1 - distance / depth);
    return rest * rest;
}

void PaintSoftShadow(HDC dc, const RECT& object, int depth, int percent) {
    RECT around = object;
    ::InflateRect(&around, depth, depth);
    const Canvas canvas(dc, around);
    if (canvas.IsEmpty()) {
        return;
    }
    for (LONG y = around.top; y < around.bottom; ++y) {
        const bool isBeside = y >= object.top && y < object.bottom;
        for (LONG x = around.left; x < around.right; ++x) {
            if (isBeside && x == object.left) {
                x = std::max(object.left, object.right - 1); // nothing of the object itself
                continue;
            }
            const double strength = SoftShadowStrength({x, y}, object, depth);
            const auto alpha = static_cast<unsigned>(std::lround(strength * std::clamp(percent, 0, 100) * 2.55));
            const fx::Rect at = canvas.Local(RECT{x, y, x + 1, y + 1});
            canvas.View().At(at.left, at.top) = WithAlpha(0, alpha);
        }
    }
}

} // namespace visual
