#pragma once

#include "fx/geometry.h"

#include <vector>

namespace status {

/// An element of the extended status bar, as the layout sees it. Pixels.
struct Item {
    fx::Size size;            ///< as it measures itself
    int fixedWidth = 0;       ///< of a main element, instead of its own; below 1: none
    bool isVisible = true;    ///< else it is hidden
    bool isSeparator = false; ///< upright
    bool fillsHeight = false; ///< from the upper margin to the lower one
    bool isRight = false;     ///< a label for the right end of the main area
};

/// What the layout depends on. Pixels; the rules' own lengths do not follow the display's scale.
struct Shape {
    fx::Size client;
    int gripWidth = 0; ///< 0: no size grip
    bool showsInformation = false;
    std::vector<Item> elements;
    std::vector<Item> extended;
};

/// Where everything lies, in client pixels; what is not shown has an empty rectangle.
struct Places {
    std::vector<fx::Rect> elements;
    std::vector<fx::Rect> extended;
    /// Main elements that keep out of the layout: a separator that follows none, and all of them in information mode.
    std::vector<bool> isSkipped;
    fx::Rect information;
    int space = 0; ///< between the last main element and the extended ones
};

/// The extended elements are packed from the right end. The main elements run from the left one, in steps that make
/// neighbours keep their places while others come and go:
/// - the first two are slots; the first one also takes the width of a hidden second one, which is always 23 high;
/// - from the third on an element that is hidden, or has no room, keeps its width free;
/// - right labels all stand at the right end of the main area, over each other;
/// - no separator comes first, last or after another one.
Places Arrange(const Shape& shape);

} // namespace status
