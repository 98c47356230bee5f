#pragma once

#include "map_state.h"

enum class MapAxis { Across, Down };

/// The whole map as something that is scrolled along one axis.
struct MapScroll {
    /// Pixels of a step.
    static constexpr int kStep = 12;

    int length = 0;   ///< Of the map, pixels.
    int limit = 0;    ///< Steps from one end to the other; 0 where all of it is seen.
    int position = 0; ///< Steps from the west or the north, 0 to limit, wherever the view is.

    friend bool operator==(const MapScroll&, const MapScroll&) = default;
};

MapScroll ScrollOf(const MapState& state, MapAxis axis);

/// Which scroll bars the map has.
struct MapBars {
    bool down = false;
    bool across = false;

    friend bool operator==(const MapBars&, const MapBars&) = default;
};

/// Those that a map of the view's scale needs in a place of that size, of which each bar takes `breadth` from the map.
/// All in pixels.
MapBars BarsFor(const MapView& view, int width, int height, int breadth);

/// Moves the view by steps, towards the west or the north where they are negative, no farther than the map goes. Makes
/// no entry in the history: EndDrag does.
void ScrollBy(MapState& state, MapAxis axis, int steps);
