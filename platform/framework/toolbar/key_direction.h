#pragma once

#include <afxwin.h>

namespace toolbar {

/// The key for a window that is laid out from the left: in a mirrored one the key to the left leads on, as the one to
/// the right does elsewhere. Other keys are what they are.
inline UINT KeyFromTheLeft(const CWnd& window, UINT key) {
    const bool isMirrored = window.GetSafeHwnd() != nullptr && (window.GetExStyle() & WS_EX_LAYOUTRTL) != 0;
    if (!isMirrored || (key != VK_LEFT && key != VK_RIGHT)) {
        return key;
    }
    return key == VK_LEFT ? VK_RIGHT : VK_LEFT;
}

} // namespace toolbar
