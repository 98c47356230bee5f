#include "skins/menu_rules.h"

#include <fx/geometry.h>

#include <algorithm>

namespace skins {

namespace {
constexpr int kNearEdge = 50;                 // a gap narrower than this is closed
constexpr int kLessAbove = 3, kLessBelow = 4; // at 96 DPI
constexpr int kShortening = 5;                // one part of so many at each end
constexpr int kStatusBeside = 1, kStatusAbove = 5, kStatusBelow = 5, kStatusBelowInFrame = 2;
} // namespace

CRect MenuSeparatorRect(const MenuSeparatorPlace& place) {
    CRect line = place.rect;
    if (!place.hasImageColumn) {
        line.left = 0;
    } else if (place.isInPopup) {
        line.left += 3 * place.imageMargin + 2 * place.imageWidth + 2;
    } else {
        line.left += place.imageWidth + place.imageMargin + 1;
    }
    if (place.clientRight - line.right < kNearEdge) {
        line.right = place.clientRight;
    }
    line.top += fx::Scaled(kLessAbove, place.scale);
    line.bottom -= fx::Scaled(kLessBelow, place.scale);
    return line;
}

CRect ToolBarSeparatorRect(const CRect& rect, BOOL horizontal) {
    CRect line = rect;
    if (horizontal) {
        line.DeflateRect(0, rect.Height() / kShortening);
    } else {
        line.DeflateRect(rect.Width() / kShortening, 0);
    }
    return line;
}

CRect RibbonSeparatorRect(const CRect& rect, int width) {
    CRect area = rect;
    area.left = std::min<LONG>(area.left, area.right - width);
    return area;
}

CRect StatusSeparatorRect(const CRect& rect, BOOL isBottomFrame, int width) {
    CRect area = rect;
    area.InflateRect(kStatusBeside, kStatusAbove, kStatusBeside, isBottomFrame ? kStatusBelowInFrame : kStatusBelow);
    // Aligned at the right is a picture as wide as the area; its line stands in its middle.
    const LONG line = std::clamp<LONG>(width, 0, area.Width());
    area.left += (area.Width() - line) / 2;
    area.right = area.left + line;
    return area;
}

COLORREF FlatToolBarColor(int style, COLORREF color) {
    switch (style) {
    case kBlackStyle:
        return RGB(168, 176, 186);
    case kAquaStyle:
        return RGB(159, 158, 185);
    case kSilverStyle:
        return RGB(192, 192, 192);
    default:
        break;
    }
    return color;
}

} // namespace skins
