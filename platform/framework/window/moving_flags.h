#pragma once

#include <windows.h>

namespace fx {

/// For SetWindowPos of a child that goes to another place in its parent. The pixels that it takes along are those of
/// the other side where the parent is mirrored, so there it is drawn anew.
inline UINT MovingFlags(HWND child) {
    const HWND parent = ::GetAncestor(child, GA_PARENT);
    const bool isMirrored = (::GetWindowLongPtrW(parent, GWL_EXSTYLE) & WS_EX_LAYOUTRTL) != 0;
    return SWP_NOZORDER | SWP_NOACTIVATE | (isMirrored ? SWP_NOCOPYBITS : 0U);
}

} // namespace fx
