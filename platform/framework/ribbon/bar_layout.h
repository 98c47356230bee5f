#pragma once

#include <vector>

#include "ribbon/geometry.h"
#include "ribbon/metrics.h"

/// What the bar's layout depends on beside its metrics.
struct RibbonBarShape {
    int width = 0;                     // of the bar
    bool replacesCaption = false;      // the row above the tabs stands for the frame's caption
    bool quickAccessOnTop = true;      // else below the category
    bool minimized = false;            // tabs only
    int quickAccessWidth = 0;          // of all its commands; 0: no quick access toolbar
    RibbonSize applicationButton;      // 0: none
    std::vector<int> tabWidths;        // full width of each shown tab
    std::vector<int> tabElementWidths; // elements at the right end of the tab row
};

/// Where the parts of the bar lie, in client pixels. Empty rectangles are not shown.
struct RibbonBarArrangement {
    int height = 0;
    RibbonRect caption; // the row above the tabs, when it stands for the frame's caption
    RibbonRect captionText;
    RibbonRect applicationButton;
    RibbonRect quickAccess;
    RibbonRect tabRow;
    std::vector<RibbonRect> tabs;
    std::vector<RibbonRect> tabElements;
    RibbonRect category;
    int tabReduction = 0; // how much of their full width the tabs lost, in percent
};

RibbonBarArrangement ArrangeBar(const RibbonBarShape& shape, const RibbonMetrics& metrics);

/// Shortens the widest of the widths until their sum is at most available; none falls below minimum unless all do.
std::vector<int> ShortenWidths(const std::vector<int>& widths, int available, int minimum);
