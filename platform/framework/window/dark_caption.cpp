#include "fx/dark_caption.h"

#include <dwmapi.h>

namespace fx {

namespace {

/// The attribute in the system's headers of today, and the number that it had in the first systems that knew it.
constexpr DWORD kAttributes[] = {20, 19};

bool IsAlready(HWND window, DWORD attribute, BOOL wanted) {
    BOOL current = FALSE;
    return SUCCEEDED(::DwmGetWindowAttribute(window, attribute, &current, sizeof(current))) &&
           (current != FALSE) == (wanted != FALSE);
}

// Some systems draw a caption in its new colours when its window is next activated. Not by messages to the window: for
// whoever hears them nothing has become active.
void DrawCaption(HWND window) {
    const auto style = static_cast<DWORD>(::GetWindowLongPtrW(window, GWL_STYLE));
    if ((style & WS_CAPTION) != WS_CAPTION || !::IsWindowVisible(window)) {
        return;
    }
    const bool isActive = ::GetForegroundWindow() == window;
    ::DefWindowProcW(window, WM_NCACTIVATE, isActive ? FALSE : TRUE, 0);
    ::DefWindowProcW(window, WM_NCACTIVATE, isActive ? TRUE : FALSE, 0);
}

} // namespace

bool SetDarkCaption(HWND window, bool isDark) {
    const BOOL wanted = isDark ? TRUE : FALSE;
    for (const DWORD attribute : kAttributes) {
        if (IsAlready(window, attribute, wanted)) {
            return true;
        }
        if (SUCCEEDED(::DwmSetWindowAttribute(window, attribute, &wanted, sizeof(wanted)))) {
            DrawCaption(window);
            return true;
        }
    }
    return false;
}

} // namespace fx
