#pragma once

#include <windows.h>

namespace fx {

/// Whether the window is there, shown and enabled.
inline bool CanTakeFocus(HWND window) {
    return ::IsWindow(window) && ::IsWindowVisible(window) && ::IsWindowEnabled(window);
}

} // namespace fx
