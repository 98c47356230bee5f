#include "map_scroll.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double kWorldWidth = 360;
constexpr double kWorldHeight = 180;
/// Pixels that are none: a map that was made as wide as its window is so but for the last digits.
constexpr double kNothing = 1e-6;

/// Pixels of the map before the window and pixels that the window cannot show.
struct Extent {
    double length, before, hidden;
};

Extent ExtentOf(const MapState& state, MapAxis axis) {
    const MapView& view = state.View();
    const bool isAcross = axis == MapAxis::Across;
    const double window = isAcross ? state.WindowWidth() : state.WindowHeight();
    const double length = (isAcross ? kWorldWidth : kWorldHeight) * view.pixelsPerDegree;
    const double middle = isAcross ? view.center.longitude + kWorldWidth / 2 : kWorldHeight / 2 - view.center.latitude;
    const double hidden = length - window;
    return {length, middle * view.pixelsPerDegree - window / 2, hidden > kNothing ? hidden : 0};
}

} // namespace

MapScroll ScrollOf(const MapState& state, MapAxis axis) {
    const Extent extent = ExtentOf(state, axis);
    MapScroll scroll;
    scroll.length = static_cast<int>(extent.length);
    scroll.limit = static_cast<int>(std::ceil(extent.hidden / MapScroll::kStep));
    scroll.position = std::clamp(static_cast<int>(std::lround(extent.before / MapScroll::kStep)), 0, scroll.limit);
    return scroll;
}

MapBars BarsFor(const MapView& view, int width, int height, int breadth) {
    const double mapWidth = kWorldWidth * view.pixelsPerDegree - kNothing;
    const double mapHeight = kWorldHeight * view.pixelsPerDegree - kNothing;
    MapBars bars{mapHeight > height, mapWidth > width};
    // A bar takes room, for which the map may need the other one.
    bars.across = bars.across || (bars.down && mapWidth > width - breadth);
    bars.down = bars.down || (bars.across && mapHeight > height - breadth);
    return bars;
}

void ScrollBy(MapState& state, MapAxis axis, int steps) {
    const Extent extent = ExtentOf(state, axis);
    const MapScroll scroll = ScrollOf(state, axis);
    const int target = std::clamp(scroll.position + steps, 0, scroll.limit);
    if (target == scroll.position) {
        return;
    }
    // The last step may be a part of one.
    const double way = std::min<double>(target * MapScroll::kStep, extent.hidden) - extent.before;
    state.Drag(axis == MapAxis::Across ? way : 0, axis == MapAxis::Down ? -way : 0);
}
