#pragma once

#include "map_state.h"

/// Millimetres.
struct SheetSize {
    double width = 0;
    double height = 0;
};

/// The sheet that a page of this shape goes on, where no printer says otherwise: A4.
SheetSize UsualSheet(PageShape shape);

/// The room for a sheet in the preview, in pixels.
struct PreviewRoom {
    int width = 0;
    int height = 0;
    int margin = 0; ///< That stays free around a sheet that is wholly seen.
};

/// Percent of its true size in which the whole sheet is seen; at least the least of the steps. `dotsPerInch` of the
/// screen.
double FittingZoom(const SheetSize& sheet, const PreviewRoom& room, double dotsPerInch);
/// The next of the steps above (direction 1) or below (-1), from any percentage; the last one at the ends.
double NextZoom(double percent, int direction);

/// Where the sheet lies in the room: in the middle where it is smaller, otherwise moved by the scroll, which is held so
/// that no more than the margin is seen beside the sheet.
struct PreviewPlace {
    WindowBox sheet;
    int scrollAcross = 0; ///< As far as it could be followed, pixels from the sheet's left and upper edge.
    int scrollDown = 0;
};
PreviewPlace PlaceSheet(const SheetSize& sheet, const PreviewRoom& room, double pixelsPerMillimetre, int scrollAcross,
                        int scrollDown);
