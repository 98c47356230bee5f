#pragma once

#include "map_state.h"

// The frame of the viewer's own windows, which they draw themselves: a line around, a caption with the program's icon,
// the title and the buttons. Pixels from the window's upper left corner; of a mirrored window from the upper right one.

struct FrameMeasures {
    int border = 0;  ///< Beside and below the inside, and above the caption.
    int caption = 0; ///< Its height.
    int icon = 0;    ///< Its side.
    int button = 0;  ///< Its width; it is as high as the caption.
    int gap = 0;     ///< Around the icon and before the buttons.
    bool hasMaximize = false;
    bool hasClose = true;
};

struct FramePlaces {
    WindowBox inside;
    WindowBox icon;
    WindowBox title;
    WindowBox maximize; ///< Empty where there is no such button.
    WindowBox close;    ///< As that one.
};

FramePlaces PlaceFrame(int width, int height, const FrameMeasures& measures);

enum class FrameHit {
    Inside,
    Caption,
    Maximize,
    Close,
    Left,
    Right,
    Top,
    Bottom,
    TopLeft,
    TopRight,
    BottomLeft,
    BottomRight
};

/// What lies there. Borders count as such where the window `isSizable`, otherwise as the caption above the inside and
/// as the inside below; corners reach as far as the caption is high.
FrameHit HitFrame(int x, int y, int width, int height, const FrameMeasures& measures, bool isSizable);
