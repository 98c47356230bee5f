#pragma once

#include "map_state.h"

#include <fx/geometry.h>

/// Which part of a finished picture stands where in the window until the new one is drawn.
struct MapStandIn {
    fx::Rect source; ///< In the picture; whole pixels, those that the window cuts included.
    fx::Rect target; ///< In the window, and possibly beyond its edges by less than one of the picture's pixels.
};

/// Where the picture that shows `drawn` stands in a window that is to show `shown`. Both boxes are empty when nothing
/// of it is seen.
MapStandIn PlanStandIn(const MapState& drawn, const MapState& shown);
