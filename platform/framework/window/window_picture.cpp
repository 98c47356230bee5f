#include "window/window_picture.h"

void DrawWindowPicture(HDC target, HWND window, int dx, int dy) {
    RECT rect{};
    ::GetWindowRect(window, &rect);
    const HDC source = ::GetWindowDC(window);
    ::SetLayout(source, 0);
    ::BitBlt(target, dx, dy, rect.right - rect.left, rect.bottom - rect.top, source, 0, 0, SRCCOPY);
    ::ReleaseDC(window, source);
}
