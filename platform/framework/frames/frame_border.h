#pragma once

#include <windows.h>

/// What a point is for a frame without system caption: a corner, a border, or HTCLIENT. Screen rectangles; corner: how
/// far the corners reach along the borders. HTBORDER where the frame cannot be sized.
inline LRESULT HitFrameBorder(const RECT& window, const RECT& client, int corner, bool isSizable, POINT point) {
    if (PtInRect(&client, point)) {
        return HTCLIENT;
    }
    if (!PtInRect(&window, point)) {
        return HTNOWHERE;
    }
    if (!isSizable) {
        return HTBORDER;
    }
    // On a border both directions reach as far as a corner.
    const bool isLeft = point.x < window.left + corner;
    const bool isRight = point.x >= window.right - corner;
    const bool isTop = point.y < window.top + corner;
    const bool isBottom = point.y >= window.bottom - corner;
    if (isTop && (isLeft || isRight)) {
        return isLeft ? HTTOPLEFT : HTTOPRIGHT;
    }
    if (isBottom && (isLeft || isRight)) {
        return isLeft ? HTBOTTOMLEFT : HTBOTTOMRIGHT;
    }
    if (point.y < client.top) {
        return HTTOP;
    }
    if (point.y >= client.bottom) {
        return HTBOTTOM;
    }
    return point.x < client.left ? HTLEFT : HTRIGHT;
}
