#include "ribbon/focus_walk.h"

#include <algorithm>
#include <cstdlib>
#include <tuple>

namespace ribbon {
namespace {

/// A rectangle as seen along a step: `begin` to `end` grows in the direction of the step.
struct Span {
    int begin;
    int end;
    int sideBegin;
    int sideEnd;

    int Length() const { return end - begin; }
    int SideCentre() const { return (sideBegin + sideEnd) / 2; }
};

Span Along(const fx::Rect& rect, FocusStep step) {
    switch (step) {
    case FocusStep::Left:
        return {-rect.right, -rect.left, rect.top, rect.bottom};
    case FocusStep::Right:
        return {rect.left, rect.right, rect.top, rect.bottom};
    case FocusStep::Up:
        return {-rect.bottom, -rect.top, rect.left, rect.right};
    case FocusStep::Down:
        break;
    }
    return {rect.top, rect.bottom, rect.left, rect.right};
}

/// How far a goal is, the lower the better: first whether it lies beside, then the way, then the offset.
struct Distance {
    bool isAside;
    int way;
    int offset;
    bool operator<(const Distance& other) const {
        return std::tie(isAside, way, offset) < std::tie(other.isAside, other.way, other.offset);
    }
};

Distance Measure(const Span& from, const Span& goal) {
    const int way = std::max(0, goal.begin - from.end);
    const int gap = std::max({0, goal.sideBegin - from.sideEnd + 1, from.sideBegin - goal.sideEnd + 1});
    const int offset = std::abs(goal.SideCentre() - from.SideCentre());
    // Off the way the gap counts twice: three rows down are not nearer than the next column.
    return gap == 0 ? Distance{false, way, offset} : Distance{true, way + 2 * gap, offset};
}

} // namespace

std::optional<std::size_t> FocusNeighbour(const std::vector<fx::Rect>& places, std::size_t from, FocusStep step) {
    if (from >= places.size()) {
        return std::nullopt;
    }
    const Span start = Along(places[from], step);
    std::optional<std::size_t> best;
    Distance bestDistance{};
    for (std::size_t place = 0; place < places.size(); ++place) {
        if (place == from || places[place].IsEmpty()) {
            continue;
        }
        const Span goal = Along(places[place], step);
        // Neighbours may overlap by a border.
        const int tolerance = std::min(start.Length(), goal.Length()) / 2;
        if (goal.begin < start.end - tolerance || goal.end <= start.end) {
            continue;
        }
        const Distance distance = Measure(start, goal);
        if (!best || distance < bestDistance) {
            best = place;
            bestDistance = distance;
        }
    }
    return best;
}

fx::Rect PlaceKeyTip(const fx::Rect& element, fx::Size tip, int imageWidth, const fx::Rect& bounds) {
    const bool isRow = imageWidth > 0 && element.Width() > 2 * imageWidth && element.Height() < 2 * imageWidth;
    const int middle = isRow ? element.left + imageWidth : (element.left + element.right) / 2;
    fx::Rect rect{middle - tip.width / 2, element.bottom - tip.height / 2, 0, 0};
    if (!bounds.IsEmpty()) {
        rect.left = std::max(bounds.left, std::min(rect.left, bounds.right - tip.width));
        rect.top = std::max(bounds.top, std::min(rect.top, bounds.bottom - tip.height));
    }
    rect.right = rect.left + tip.width;
    rect.bottom = rect.top + tip.height;
    return rect;
}

} // namespace ribbon
