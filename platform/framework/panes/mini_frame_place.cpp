#include "panes/mini_frame_place.h"

#include <algorithm>

namespace panes {

namespace {

struct Edges {
    bool left, top, right, bottom;
};

Edges EdgesOf(int hit) {
    return {hit == HTLEFT || hit == HTTOPLEFT || hit == HTBOTTOMLEFT,
            hit == HTTOP || hit == HTTOPLEFT || hit == HTTOPRIGHT,
            hit == HTRIGHT || hit == HTTOPRIGHT || hit == HTBOTTOMRIGHT,
            hit == HTBOTTOM || hit == HTBOTTOMLEFT || hit == HTBOTTOMRIGHT};
}

int HitOf(const Edges& edges) {
    if (edges.top) {
        return edges.left ? HTTOPLEFT : edges.right ? HTTOPRIGHT : HTTOP;
    }
    if (edges.bottom) {
        return edges.left ? HTBOTTOMLEFT : edges.right ? HTBOTTOMRIGHT : HTBOTTOM;
    }
    return edges.left ? HTLEFT : edges.right ? HTRIGHT : 0;
}

} // namespace

int BorderAt(const CRect& window, const CRect& border, int corner, CPoint point) {
    const Edges on{point.x < window.left + border.left, point.y < window.top + border.top,
                   point.x >= window.right - border.right, point.y >= window.bottom - border.bottom};
    if (!on.left && !on.top && !on.right && !on.bottom) {
        return 0;
    }
    const Edges reach{point.x < window.left + corner, point.y < window.top + corner, point.x >= window.right - corner,
                      point.y >= window.bottom - corner};
    return HitOf({on.left || reach.left, on.top || reach.top, on.right || reach.right, on.bottom || reach.bottom});
}

CRect Resized(const CRect& window, int hit, CPoint point) {
    const Edges edges = EdgesOf(hit);
    CRect rect = window;
    rect.left = edges.left ? std::min(point.x, window.right) : window.left;
    rect.top = edges.top ? std::min(point.y, window.bottom) : window.top;
    rect.right = edges.right ? std::max(point.x, window.left) : window.right;
    rect.bottom = edges.bottom ? std::max(point.y, window.top) : window.bottom;
    return rect;
}

CRect Anchored(const CRect& window, int hit, CSize size) {
    const Edges edges = EdgesOf(hit);
    const int left = edges.left ? window.right - size.cx : window.left;
    const int top = edges.top ? window.bottom - size.cy : window.top;
    return {left, top, left + size.cx, top + size.cy};
}

CRect BroughtOnScreen(CRect rect) {
    MONITORINFO monitor{};
    monitor.cbSize = sizeof(monitor);
    if (!::GetMonitorInfoW(::MonitorFromRect(rect, MONITOR_DEFAULTTONEAREST), &monitor)) {
        return rect;
    }
    const CRect area = monitor.rcWork;
    const auto into = [](LONG begin, LONG end, LONG low, LONG high) {
        return begin < low ? low - begin : end > high ? std::max(high - end, low - begin) : 0;
    };
    rect.OffsetRect(into(rect.left, rect.right, area.left, area.right),
                    into(rect.top, rect.bottom, area.top, area.bottom));
    return rect;
}

} // namespace panes
