#pragma once

#include "map_state.h"

/// A sheet as a printer knows it, in its own pixels.
struct PrintSheet {
    int width = 0; ///< Of the whole sheet, with what the printer cannot reach.
    int height = 0;
    int left = 0; ///< What it cannot reach at the left and at the top; its co-ordinates begin behind it.
    int top = 0;
    int dotsPerInchAcross = 0;
    int dotsPerInchDown = 0;
};

/// Where a picture goes on the sheet: as large as fits inside of the margins, in its own proportions, in the middle of
/// the sheet. In the printer's co-ordinates. `margin` in millimetres; empty where there is no room.
WindowBox PlaceOnSheet(const PrintSheet& sheet, double margin, int pictureWidth, int pictureHeight);
