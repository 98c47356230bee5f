#pragma once

#include "map_state.h"

#include <vector>

/// What the parts of a message need, in pixels.
struct MessageMeasures {
    int margin = 0; ///< Around all.
    int gap = 0;    ///< Between buttons; twice as much beside the text and above the buttons.
    int iconSide = 0;
    int textWidth = 0; ///< Of the text in its lines.
    int textHeight = 0;
    int rowHeight = 0; ///< Of a button.
    std::vector<int> buttonWidths;
};

/// Where they lie in the window, and what size of its inside they need. Of a mirrored window from the right.
struct MessagePlaces {
    WindowBox icon;
    WindowBox text;
    std::vector<WindowBox> buttons; ///< In the order of their widths.
    int width = 0;
    int height = 0;
};

/// The icon before the text, the lower of the two in the middle of the higher one; below them the buttons, at the end.
MessagePlaces PlaceMessage(const MessageMeasures& measures);
