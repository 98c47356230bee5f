#pragma once

#include "map_canvas.h"

/// Numbers and names, none over another and none over the marks of the cities. The map itself is drawn before.
void DrawMapTexts(const MapCanvas& canvas, const std::vector<City>& cities);
