#pragma once

#include "map_state.h"

#include <vector>

/// What the options' controls need, in pixels.
struct OptionsMeasures {
    int rows = 0;       ///< Labels with lists.
    int margin = 0;     ///< Around all.
    int gap = 0;        ///< Between rows and between buttons; twice as much between a label and its list.
    int labelWidth = 0; ///< Of the longest one.
    int listWidth = 0;  ///< At least.
    int listHeight = 0; ///< Of a closed list: the system gives it, and a label stands in its middle.
    int listDepth = 0;  ///< Of an open one.
    int noteWidth = 0;
    int rowHeight = 0;
    int takeWidth = 0;
    int cancelWidth = 0;
};

/// Where they lie in the window, and what size of its inside they need.
struct OptionsPlaces {
    std::vector<WindowBox> labels;
    std::vector<WindowBox> lists; ///< With their depth.
    WindowBox note;
    WindowBox take;
    WindowBox cancel;
    int width = 0;
    int height = 0;
};

OptionsPlaces PlaceOptions(const OptionsMeasures& measures);
