#include "tests/ui/frame_caption/caption_frame.h"

void SendMouse(CPoint screen, DWORD flags) {
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dx = ::MulDiv(screen.x, 65536, ::GetSystemMetrics(SM_CXSCREEN)) + 1;
    input.mi.dy = ::MulDiv(screen.y, 65536, ::GetSystemMetrics(SM_CYSCREEN)) + 1;
    input.mi.dwFlags = MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_MOVE | flags;
    ASSERT_EQ(::SendInput(1, &input, sizeof(input)), 1u);
}

void SendClick(CPoint screen, DWORD down, DWORD up) {
    SendMouse(screen, 0);
    SendMouse(screen, down);
    SendMouse(screen, up);
}
