#include "window/bar_strip.h"

#include "fx/bar_styles.h"

#include <algorithm>

namespace frame_bars {

bool IsHorizontal(Side side) { return side == Side::Top || side == Side::Bottom; }

RECT TakeStrip(RECT& area, Side side, LONG thickness) {
    const LONG room = IsHorizontal(side) ? area.bottom - area.top : area.right - area.left;
    thickness = std::clamp(thickness, 0L, std::max(room, 0L));
    RECT strip = area;
    switch (side) {
    case Side::Top:
        strip.bottom = area.top += thickness;
        break;
    case Side::Bottom:
        strip.top = area.bottom -= thickness;
        break;
    case Side::Left:
        strip.right = area.left += thickness;
        break;
    case Side::Right:
        strip.left = area.right -= thickness;
        break;
    }
    return strip;
}

Side SideOfAlignment(DWORD alignment) {
    switch (alignment & CBRS_ALIGN_ANY) {
    case CBRS_ALIGN_BOTTOM:
        return Side::Bottom;
    case CBRS_ALIGN_LEFT:
        return Side::Left;
    case CBRS_ALIGN_RIGHT:
        return Side::Right;
    default:
        return Side::Top;
    }
}

} // namespace frame_bars
