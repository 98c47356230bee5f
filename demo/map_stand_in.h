#pragma once

#include "map_state.h"

/// A rectangle in pixels, right and bottom edge outside.
struct PixelBox {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    bool IsEmpty() const noexcept { return left >= right || top >= bottom; }
    friend bool operator==(const PixelBox&, const PixelBox&) = default;
};

/// Which part of a finished picture stands where in the window until the new one is drawn.
struct MapStandIn {
    PixelBox source; ///< In the picture; whole pixels, those that the window cuts included.
    PixelBox target; ///< In the window, and possibly beyond its edges by less than one of the picture's pixels.
};

/// Where the picture that shows `drawn` stands in a window that is to show `shown`. Both boxes are empty when nothing
/// of it is seen.
MapStandIn PlanStandIn(const MapState& drawn, const MapState& shown);
