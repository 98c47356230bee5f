#pragma once

#include <gtest/gtest.h>
#include <windows.h>

/// Moves the real mouse to a point of the screen and does there what `flags` (MOUSEEVENTF_LEFTDOWN, ...) say. The
/// program must have the desktop to itself.
inline void SendMouse(POINT screen, DWORD flags) {
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dx = ::MulDiv(screen.x, 65536, ::GetSystemMetrics(SM_CXSCREEN)) + 1;
    input.mi.dy = ::MulDiv(screen.y, 65536, ::GetSystemMetrics(SM_CYSCREEN)) + 1;
    input.mi.dwFlags = MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_MOVE | flags;
    ASSERT_EQ(::SendInput(1, &input, sizeof(input)), 1u);
}
