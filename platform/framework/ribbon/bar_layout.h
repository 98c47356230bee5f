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
    fx::Size applicationButton;        // 0: none
    bool tabsOnlyButton = false;       // the application button is as high as the tabs, not as both rows
    std::vector<int> tabWidths;        // full width of each shown tab
    std::vector<int> tabElementWidths; // elements at the right end of the tab row
    bool captionOnly = false;          // the frame is too small for anything but its caption
    bool hasIcon = false;              // the frame's icon leads the caption
    int captionButtons = 0;            // the frame's own, at the right end of the caption
    int childButtons = 0;              // those of a maximised MDI child, at the right end of the tab row
    int firstTab = 0;                  // leftmost one that is asked for while the tabs scroll
};

/// Where the parts of the bar lie, in client pixels. Empty rectangles are not shown.
struct RibbonBarArrangement {
    int height = 0;
    fx::Rect caption; // the row above the tabs, when it stands for the frame's caption
    fx::Rect captionText;
    fx::Rect captionIcon;
    std::vector<fx::Rect> captionButtons; // from left to right
    std::vector<fx::Rect> childButtons;
    fx::Rect applicationButton;
    fx::Rect quickAccess;
    fx::Rect tabRow;
    std::vector<fx::Rect> tabs;
    fx::Rect tabScrollLeft; // empty unless the tabs can scroll there
    fx::Rect tabScrollRight;
    int firstTab = 0; // as asked for, or what is possible
    std::vector<fx::Rect> tabElements;
    fx::Rect category;
    int tabReduction = 0; // how much of their full width the tabs lost, in percent
};

RibbonBarArrangement ArrangeBar(const RibbonBarShape& shape, const RibbonMetrics& metrics);

/// Shortens the widest of the widths until their sum is at most available; none falls below minimum unless all do.
std::vector<int> ShortenWidths(const std::vector<int>& widths, int available, int minimum);

/// The wider of the parts of area that lie left and right of the taken part; all of it when nothing is taken.
fx::Rect WiderFreePart(const fx::Rect& area, const fx::Rect& taken);
