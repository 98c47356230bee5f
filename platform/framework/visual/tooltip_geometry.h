#pragma once

#include <algorithm>
#include <windows.h>

namespace visual {

struct TooltipParts {
    SIZE icon{}, label{}, description{};
    SIZE margin{};
    int gap = 0; // between icon and text, and above and below the separator
    bool hasSeparator = false;
};

struct TooltipPlaces {
    SIZE size{};
    RECT icon{}, label{}, description{};
    int separatorY = 0; // 0: none
};

/// Icon on the left, label on top, description below it. Client pixels.
inline TooltipPlaces PlaceTooltip(const TooltipParts& parts) {
    TooltipPlaces places;
    const bool hasIcon = parts.icon.cx > 0, hasDescription = parts.description.cy > 0;
    const LONG left = parts.margin.cx + (hasIcon ? parts.icon.cx + parts.gap : 0);
    const LONG width = std::max(parts.label.cx, parts.description.cx);
    places.icon = {parts.margin.cx, parts.margin.cy, parts.margin.cx + parts.icon.cx, parts.margin.cy + parts.icon.cy};
    places.label = {left, parts.margin.cy, left + width, parts.margin.cy + parts.label.cy};
    LONG bottom = places.label.bottom;
    if (hasDescription) {
        const LONG top = bottom + parts.gap * (parts.hasSeparator ? 2 : 1);
        if (parts.hasSeparator)
            places.separatorY = bottom + parts.gap;
        places.description = {left, top, left + width, top + parts.description.cy};
        bottom = places.description.bottom;
    } else if (hasIcon && parts.icon.cy > parts.label.cy) {
        OffsetRect(&places.label, 0, (parts.icon.cy - parts.label.cy) / 2);
    }
    places.size = {left + width + parts.margin.cx,
                   std::max(bottom, hasIcon ? places.icon.bottom : bottom) + parts.margin.cy};
    return places;
}

/// The corner moved so that the window lies in the work area.
inline POINT KeepInside(POINT corner, SIZE size, const RECT& work) {
    return {std::max(std::min(corner.x, work.right - size.cx), work.left),
            std::max(std::min(corner.y, work.bottom - size.cy), work.top)};
}

} // namespace visual
