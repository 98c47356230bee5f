#pragma once

#include "map_state.h"

#include <string>

/// A place for people to read: "31.2300\u00b0 N  121.4700\u00b0 E", or in degrees, minutes and seconds. A dash for what
/// lies beside the world.
std::wstring PlaceText(GeoPoint place, bool hasSeconds);

/// The scale of the map on an ordinary screen, in three digits: "1 : 105 000 000".
std::wstring ScaleText(double pixelsPerDegree);
