#pragma once

#include "map_painter.h"

/// Draws over the finished map what belongs to the working mode: the user's marks in every mode, the cross where the
/// next one would come while they are edited, and the sheet of paper while a page is chosen.
void DrawModeOverlay(Gdiplus::Graphics& graphics, const MapState& state, const MapPaintStyle& style);
