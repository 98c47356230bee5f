#pragma once

#include "map_canvas.h"

/// Closed lines, filled where there is a colour for it; `width` in pixels at 96 DPI.
void DrawRings(const MapCanvas& canvas, const std::vector<GeoRing>& rings, const Gdiplus::Color* fill,
               Gdiplus::Color line, double width);
/// What the user opened: areas with a faint fill, lines, places.
void DrawOpened(const MapCanvas& canvas);
void DrawGraticuleLines(const MapCanvas& canvas);
/// Their marks, without names.
void DrawCities(const MapCanvas& canvas, const std::vector<City>& cities);
