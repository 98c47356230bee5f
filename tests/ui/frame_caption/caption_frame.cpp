#include "tests/ui/frame_caption/caption_frame.h"

void SendClick(CPoint screen, DWORD down, DWORD up) {
    SendMouse(screen, 0);
    SendMouse(screen, down);
    SendMouse(screen, up);
}

namespace {

constexpr int kSteps = 10;

struct RunningDrag {
    CPoint from;
    CPoint to;
    int step = 0;
} g_drag;

void CALLBACK GoOnDragging(HWND, UINT, UINT_PTR timer, DWORD) {
    const int step = ++g_drag.step;
    if (step > kSteps) {
        ::KillTimer(nullptr, timer);
        SendMouse(g_drag.to, MOUSEEVENTF_LEFTUP);
        return;
    }
    const CPoint way = g_drag.to - g_drag.from;
    SendMouse(g_drag.from + CPoint(way.x * step / kSteps, way.y * step / kSteps), 0);
}

} // namespace

// The system measures the way from where the pointer is when its loop begins: the first step comes inside the loop.
void StartDrag(CPoint from, CPoint to) {
    SendMouse(from, 0);
    g_drag = {from, to, 0};
    ::SetTimer(nullptr, 0, 20, &GoOnDragging);
    SendMouse(from, MOUSEEVENTF_LEFTDOWN);
}
