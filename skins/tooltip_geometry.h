#pragma once

#include <fx/geometry.h>

#include <optional>

/// Where the parts of a tooltip with a help hint lie, how large it is and where on the screen it opens. Pure functions;
/// pixels unless they say otherwise.
namespace hint {

using fx::Point;
using fx::Rect;
using fx::Size;

/// Icons that make room for a second one below them.
enum class IconKind { Other, Small, Large };

/// The kind of an icon of that side at a scale: 16 (small) or 32 (large) pixels at 96 DPI.
IconKind KindOfIcon(int side, double scale);

struct Margins {
    int x = 0;
    int y = 0;

    friend bool operator==(const Margins&, const Margins&) = default;
};

enum class Corners { Square, Rounded };
enum class Help { Without, With };

/// At 96 DPI.
Margins MarginsOf(Corners corners, Help help, IconKind icon);

/// Sizes of the parts; 0 x 0 for those that are left out. `description` is 0 x 0 for a tooltip without help.
struct Content {
    Size icon;
    Size label;
    Size description;
    Help help = Help::Without;
};

/// Rectangles in the window; those of parts left out are empty.
struct Layout {
    Size window;
    Rect icon;
    Rect bottomIcon; ///< below the icon, of its size
    Rect label;
    Rect description;
    std::optional<int> separator; ///< y; none where there is nothing to separate
};
Layout Arrange(const Content& content, Margins margins);

struct Request {
    std::optional<Point> wanted; ///< where the owner puts the tooltip, screen; none: the system below the pointer
    Point pointer;               ///< screen
    int pointerHeight = 0;
    Size size;
    Rect workArea;              ///< of the monitor there
    std::optional<Rect> ribbon; ///< the bar of the element that is shown, screen; none for anything else
};

struct Place {
    Point corner;
    bool isPlaced = false; ///< false: it may stay where the system puts it
};

/// Keeps the tooltip inside the work area. One that would pass its bottom opens above the ribbon, or above the pointer.
Place PlaceOnScreen(const Request& request);

/// The point whose monitor the tooltip belongs to.
Point PointOf(const Request& request);

} // namespace hint
