#include "popups/popup_place.h"

#include <algorithm>

namespace {

using toolbar::NoRoom;
using toolbar::PopupPlacement;
using toolbar::PopupRequest;

int Clamp(int position, int length, int from, int to) { return std::max(from, std::min(position, to - length)); }

/// Beside the area: a menu that an item of a menu opens.
PopupPlacement PlaceBeside(const PopupRequest& request) {
    const CRect& work = request.workArea;
    PopupPlacement result;
    result.direction = CMFCPopupMenu::DROP_DIRECTION_RIGHT;
    int x = request.wanted.x;
    if (x + request.size.cx > work.right) {
        // The overlap with the menu before it is the same on both sides.
        const int overlap = request.avoid.right - request.wanted.x;
        const int left = request.avoid.left + overlap - request.size.cx;
        if (left >= work.left || request.avoid.left - work.left > work.right - request.avoid.right) {
            result.direction = CMFCPopupMenu::DROP_DIRECTION_LEFT;
            x = left;
        }
    }
    x = Clamp(x, request.size.cx, work.left, work.right);
    const int y = Clamp(request.wanted.y, request.size.cy, work.top, work.bottom);
    result.rect = CRect(CPoint(x, y), request.size);
    return result;
}

CRect Reflected(const CRect& rect) { return CRect(-rect.right, rect.top, -rect.left, rect.bottom); }

/// As seen in a mirror at the screen's left edge.
PopupPlacement PlaceMirrored(PopupRequest request) {
    request.isMirrored = false;
    request.wanted.x = -request.wanted.x;
    request.avoid = Reflected(request.avoid);
    request.workArea = Reflected(request.workArea);
    PopupPlacement result = toolbar::PlacePopup(request);
    result.rect = Reflected(result.rect);
    if (result.direction == CMFCPopupMenu::DROP_DIRECTION_RIGHT) {
        result.direction = CMFCPopupMenu::DROP_DIRECTION_LEFT;
    } else if (result.direction == CMFCPopupMenu::DROP_DIRECTION_LEFT) {
        result.direction = CMFCPopupMenu::DROP_DIRECTION_RIGHT;
    }
    return result;
}

} // namespace

PopupPlacement toolbar::PlacePopup(const PopupRequest& request) {
    if (request.isMirrored) {
        return PlaceMirrored(request);
    }
    const CRect& work = request.workArea;
    PopupRequest fitted = request;
    fitted.size.cx = std::min<int>(request.size.cx, work.Width());
    fitted.size.cy = std::min<int>(request.size.cy, work.Height());
    const bool hasAvoid = !request.avoid.IsRectEmpty();
    const bool isBeside = hasAvoid && !request.isRightAligned && request.wanted.y < request.avoid.bottom &&
                          request.wanted.x > request.avoid.left;
    if (isBeside) {
        return PlaceBeside(fitted);
    }
    PopupPlacement result;
    result.direction = CMFCPopupMenu::DROP_DIRECTION_BOTTOM;
    CSize size = fitted.size;
    int y = request.wanted.y;
    if (y + size.cy > work.bottom) {
        const int above = hasAvoid ? static_cast<int>(request.avoid.top) : y;
        const int roomAbove = above - work.top;
        const int roomBelow = work.bottom - y;
        const bool isCut = hasAvoid && request.noRoom == NoRoom::Cut;
        if (roomAbove >= size.cy || (roomAbove > roomBelow && (isCut || !hasAvoid))) {
            result.direction = CMFCPopupMenu::DROP_DIRECTION_TOP;
            // A menu at a point may cover the point; one that was dropped down never covers what dropped it.
            size.cy = isCut ? std::min<int>(size.cy, roomAbove) : size.cy;
            y = above - size.cy;
        } else if (isCut) {
            size.cy = std::min<int>(size.cy, roomBelow);
        }
    }
    int x = request.isRightAligned ? request.wanted.x - size.cx : request.wanted.x;
    if (!hasAvoid && !request.isRightAligned && x + size.cx > work.right && x - size.cx >= work.left) {
        x -= size.cx;
    }
    x = Clamp(x, size.cx, work.left, work.right);
    y = Clamp(y, size.cy, work.top, work.bottom);
    result.rect = CRect(CPoint(x, y), size);
    return result;
}
