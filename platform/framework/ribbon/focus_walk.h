#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "ribbon/geometry.h"

namespace ribbon {

enum class FocusStep { Left, Right, Up, Down };

/// The rectangle that an arrow key leads to: what lies beside first, there the nearest; else the nearest of what lies
/// further in that direction. Empty rectangles are no goal. Nothing when there is none.
std::optional<std::size_t> FocusNeighbour(const std::vector<fx::Rect>& places, std::size_t from, FocusStep step);

/// Where a key tip lies: below the middle of its element, over its lower edge; for a row of image and text below the
/// image. At most as far out as the bounds allow when they are not empty.
fx::Rect PlaceKeyTip(const fx::Rect& element, fx::Size tip, int imageWidth, const fx::Rect& bounds);

} // namespace ribbon
