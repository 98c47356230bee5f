#include "window_place.h"

#include <algorithm>
#include <cstdint>

namespace {

/// The strip at the window's top by which it is moved, and what of its width has to be seen.
constexpr int kTitleHeight = 24;
constexpr int kTitleWidth = 120;

bool CanBeReached(const WindowBox& place, const WindowBox& area) {
    const int width = std::min(place.right, area.right) - std::max(place.left, area.left);
    return place.top >= area.top && place.top + kTitleHeight <= area.bottom &&
           width >= std::min(kTitleWidth, place.right - place.left);
}

std::int64_t Distance(const WindowBox& a, const WindowBox& b) {
    const std::int64_t across = std::max({a.left - b.right, b.left - a.right, 0});
    const std::int64_t down = std::max({a.top - b.bottom, b.top - a.bottom, 0});
    return across * across + down * down;
}

} // namespace

WindowBox PlaceOnMonitors(const WindowBox& kept, const std::vector<WindowBox>& workAreas) {
    const auto reaches = [&kept](const WindowBox& area) { return CanBeReached(kept, area); };
    if (workAreas.empty() || std::any_of(workAreas.begin(), workAreas.end(), reaches)) {
        return kept;
    }
    const auto isNearer = [&kept](const WindowBox& a, const WindowBox& b) {
        return Distance(kept, a) < Distance(kept, b);
    };
    const WindowBox& area = *std::min_element(workAreas.begin(), workAreas.end(), isNearer);
    const int width = std::min(kept.right - kept.left, area.right - area.left);
    const int height = std::min(kept.bottom - kept.top, area.bottom - area.top);
    const int left = std::clamp(kept.left, area.left, area.right - width);
    const int top = std::clamp(kept.top, area.top, area.bottom - height);
    return {left, top, left + width, top + height};
}
