#include "dialog_frame.h"

#include <algorithm>
#include <array>

namespace {

bool Contains(const WindowBox& box, int x, int y) {
    return x >= box.left && x < box.right && y >= box.top && y < box.bottom;
}

/// Rows from the top down, columns from the left: which border or corner.
constexpr std::array<std::array<FrameHit, 3>, 3> kBorders = {
    {{FrameHit::TopLeft, FrameHit::Top, FrameHit::TopRight},
     {FrameHit::Left, FrameHit::Inside, FrameHit::Right},
     {FrameHit::BottomLeft, FrameHit::Bottom, FrameHit::BottomRight}}};

/// 0 near the beginning, 2 near the end, 1 between.
std::size_t Third(int at, int length, int reach) { return at < reach ? 0 : at >= length - reach ? 2 : 1; }

} // namespace

FramePlaces PlaceFrame(int width, int height, const FrameMeasures& measures) {
    FramePlaces places;
    const int left = measures.border, right = std::max(width - measures.border, left);
    const int top = measures.border, under = top + measures.caption;
    places.inside = {left, under, right, std::max(height - measures.border, under)};
    const int close = measures.hasClose ? std::max(right - measures.button, left) : right;
    const int maximize = measures.hasMaximize ? std::max(close - measures.button, left) : close;
    places.close = {close, top, right, under};
    places.maximize = {maximize, top, close, under};
    const int icon = left + measures.gap, iconTop = top + (measures.caption - measures.icon) / 2;
    places.icon = {icon, iconTop, icon + measures.icon, iconTop + measures.icon};
    const int title = places.icon.right + measures.gap;
    places.title = {title, top, std::max(maximize - measures.gap, title), under};
    return places;
}

FrameHit HitFrame(int x, int y, int width, int height, const FrameMeasures& measures, bool isSizable) {
    const FramePlaces places = PlaceFrame(width, height, measures);
    const bool isOnBorder =
        x < measures.border || y < measures.border || x >= width - measures.border || y >= height - measures.border;
    if (isSizable && isOnBorder) {
        const std::size_t row = Third(y, height, measures.caption), column = Third(x, width, measures.caption);
        return kBorders[row][column];
    }
    if (Contains(places.close, x, y)) {
        return FrameHit::Close;
    }
    if (Contains(places.maximize, x, y)) {
        return FrameHit::Maximize;
    }
    return y < places.inside.top ? FrameHit::Caption : FrameHit::Inside;
}
