#include "skins/tooltip_geometry.h"

#include <algorithm>

namespace hint {

namespace {

constexpr int kSmallIcon = 16;
constexpr int kLargeIcon = 32;

constexpr Margins kSquare = {4, 2};
constexpr Margins kRounded = {6, 4};
constexpr Margins kRoundedSmallIcon = {6, 8};
constexpr Margins kRoundedLargeIcon = {6, 14};

/// The size in the middle of the rows from `top` on, `height` of them.
Rect InRows(Size size, int left, int top, int height) {
    const int start = top + (height - size.height) / 2;
    return {left, start, left + size.width, start + size.height};
}

} // namespace

IconKind KindOfIcon(int side, double scale) {
    if (side == fx::Scaled(kSmallIcon, scale)) {
        return IconKind::Small;
    }
    return side == fx::Scaled(kLargeIcon, scale) ? IconKind::Large : IconKind::Other;
}

Margins MarginsOf(Corners corners, Help help, IconKind icon) {
    if (corners == Corners::Square) {
        return kSquare;
    }
    if (help == Help::Without || icon == IconKind::Other) {
        return kRounded;
    }
    return icon == IconKind::Small ? kRoundedSmallIcon : kRoundedLargeIcon;
}

Layout Arrange(const Content& content, Margins margins) {
    Layout layout;
    const bool hasIcon = !content.icon.IsEmpty();
    const bool hasHelp = content.help == Help::With;
    const int textWidth = std::max(content.label.width, content.description.width);
    const int textLeft = margins.x + (hasIcon ? content.icon.width + margins.x : 0);
    const int iconHeight = hasIcon ? content.icon.height : 0;
    const int textHeight = content.label.height + (hasHelp ? 2 * margins.y + content.description.height : 0);
    const int innerHeight = std::max(textHeight, iconHeight);
    layout.window = {textLeft + textWidth + margins.x, innerHeight + 2 * margins.y};
    const int height = layout.window.height;
    const Size label = {textWidth, content.label.height};
    if (!hasHelp) {
        layout.label = InRows(label, textLeft, 0, height);
        layout.icon = hasIcon ? InRows(content.icon, margins.x, 0, height) : Rect();
        return layout;
    }
    layout.label = InRows(label, textLeft, margins.y, content.label.height);
    layout.separator = layout.label.bottom + margins.y;
    layout.description =
        InRows(content.description, textLeft, *layout.separator + margins.y, content.description.height);
    if (hasIcon) {
        layout.icon = InRows(content.icon, margins.x, 0, height / 2);
        layout.bottomIcon = InRows(content.icon, margins.x, height / 2, height / 2);
    }
    return layout;
}

Point PointOf(const Request& request) { return request.wanted.value_or(request.pointer); }

Place PlaceOnScreen(const Request& request) {
    const Size size = request.size;
    const Rect& area = request.workArea;
    const Point below = {request.pointer.x, request.pointer.y + request.pointerHeight};
    Place place = {request.wanted.value_or(below), request.wanted.has_value()};
    // The pointer says whether there is room, wherever the owner wants the tooltip. Beside a ribbon that place counts,
    // too: pushed back inside the area the tooltip would lie over the bar.
    const int top = request.ribbon ? std::max(below.y, place.corner.y) : below.y;
    if (top + size.height > area.bottom) {
        place.corner.y = (request.ribbon ? request.ribbon->top : request.pointer.y - 1) - size.height;
        place.isPlaced = true;
    }
    if (place.corner.x + size.width > area.right) {
        place.corner.x = area.right - size.width - 1;
        place.isPlaced = true;
    }
    const Point inside = {std::max(place.corner.x, area.left),
                          std::max(std::min(place.corner.y, area.bottom - size.height), area.top)};
    place.isPlaced = place.isPlaced || inside != place.corner;
    place.corner = inside;
    return place;
}

} // namespace hint
