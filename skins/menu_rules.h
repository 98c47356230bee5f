#pragma once

#include <atltypes.h>

// The dark skin's rules of menus and bars, as pure functions. Pixels.
namespace skins {

/// The platform's styles that have a colour of their own here.
inline constexpr int kBlackStyle = 1, kAquaStyle = 2, kSilverStyle = 3;

/// What a row of a pop-up menu is measured by.
struct MenuSeparatorPlace {
    CRect rect;          ///< of the separator as it was laid out
    int clientRight = 0; ///< of the bar
    int imageWidth = 0;  ///< of an image in the menu
    int imageMargin = 0; ///< the manager's, on each side of it
    bool hasImageColumn = true;
    bool isInPopup = true; ///< the bar lies in a pop-up menu in its ordinary state
    double scale = 1;      ///< of the display, 1 at 96 DPI
};

/// The line between a menu's rows: it begins behind the column of images and goes to the bar's edge when that is near.
/// Of a separator as high as the platform's it is a hairline.
CRect MenuSeparatorRect(const MenuSeparatorPlace& place);

/// Where the separator of a toolbar is drawn: shortened by a fifth at each end, across (upright) or along the bar.
CRect ToolBarSeparatorRect(const CRect& rect, BOOL horizontal);

/// At least as wide as the separator, to the left.
CRect RibbonSeparatorRect(const CRect& rect, int width);

/// On a status bar: over its edges, further down where the bar does not stand for the frame's border, and in there the
/// line, `width` wide, in the middle.
CRect StatusSeparatorRect(const CRect& rect, BOOL isBottomFrame, int width);

/// The first fill colour of toolbars that lie flat; `color` where the style keeps its own.
COLORREF FlatToolBarColor(int style, COLORREF color);

} // namespace skins
