#pragma once

#include <windows.h>

#include <shellapi.h>

/// What decides where a maximised frame without system caption lies. Rectangles on the screen.
struct MaximizedSurroundings {
    RECT monitor;        ///< the one that shows the frame
    RECT work;           ///< of that monitor, without task bar and docked tool bars
    RECT primary;        ///< the primary monitor
    UINT hiddenBars = 0; ///< a bit 1 << ABE_x for each edge of the monitor behind which a bar hides
};

/// What WM_GETMINMAXINFO asks for.
struct MaximizedRequest {
    POINT position; ///< from the monitor's upper left corner
    SIZE size;
};

/// The frame covers the work area. An edge where a bar hides keeps one pixel free, or the bar would never come out.
inline RECT MaximizedFrameRect(const MaximizedSurroundings& around) {
    const auto isHidden = [&around](UINT edge) { return (around.hiddenBars >> edge & 1) != 0; };
    RECT frame = around.work;
    frame.left += isHidden(ABE_LEFT) && frame.left == around.monitor.left ? 1 : 0;
    frame.top += isHidden(ABE_TOP) && frame.top == around.monitor.top ? 1 : 0;
    frame.right -= isHidden(ABE_RIGHT) && frame.right == around.monitor.right ? 1 : 0;
    frame.bottom -= isHidden(ABE_BOTTOM) && frame.bottom == around.monitor.bottom ? 1 : 0;
    return frame;
}

/// What to ask the system for. It takes a size that covers the primary monitor for "all of the monitor" and adds to it
/// what the monitor is larger by: then the primary's size is asked for, and the place that the system makes of it has
/// to be corrected to MaximizedFrameRect. Every smaller size is kept as it is.
inline MaximizedRequest RequestMaximized(const MaximizedSurroundings& around) {
    const RECT frame = MaximizedFrameRect(around);
    const SIZE primary{around.primary.right - around.primary.left, around.primary.bottom - around.primary.top};
    const SIZE size{frame.right - frame.left, frame.bottom - frame.top};
    const bool coversPrimary = size.cx >= primary.cx && size.cy >= primary.cy;
    return {{frame.left - around.monitor.left, frame.top - around.monitor.top}, coversPrimary ? primary : size};
}
