#pragma once

#include <vector>

#include "ribbon/geometry.h"

/// An element of a status bar, as the layout sees it. Scaled pixels.
struct StatusBarItem {
    int width = 0;
    int height = 0;
    bool isVisible = true;
    bool isSeparator = false;
    bool fillsHeight = false;
};

/// What the layout of a status bar depends on. Scaled pixels.
struct StatusBarShape {
    fx::Size client;
    int gripWidth = 0;    // 0: no size grip
    int borderHeight = 0; // of the frame's lower border where the bar covers it; 0 elsewhere
    int marginY = 0;      // above and below the elements
    int gap = 0;          // between the extended area and what is left of it
    bool showsInformation = false;
    std::vector<StatusBarItem> elements;
    std::vector<StatusBarItem> extended;
};

/// Where the parts of a status bar lie, in client pixels. Empty rectangles are not shown.
struct StatusBarPlaces {
    std::vector<fx::Rect> elements;
    std::vector<fx::Rect> extended;
    fx::Rect information;
    fx::Rect sizeGrip;
    fx::Rect bottomResize;
    int space = 0; // between the areas
};

/// The extended area from the right end, the main area from the left one. What has no room is not shown, nor what lies
/// behind it; a separator is shown only between two elements of its area that are. In information mode the text has the
/// place of the main area.
StatusBarPlaces ArrangeStatusBar(const StatusBarShape& shape);
