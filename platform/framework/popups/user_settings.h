#pragma once

#include "popups/wheel_rows.h"

#include <windows.h>

#include <algorithm>

// What the user has set for menus and lists.
namespace toolbar {

/// Milliseconds after which what the pointer rests on opens its pop-up, or closes another's; within reason.
inline UINT MenuDelay() {
    constexpr UINT usual = 400, shortest = 10, longest = 2000;
    DWORD delay = 0;
    return ::SystemParametersInfoW(SPI_GETMENUSHOWDELAY, 0, &delay, 0) ? std::clamp<UINT>(delay, shortest, longest)
                                                                       : usual;
}

/// Rows that a notch of the wheel scrolls. rowsPerPage: rows that are seen.
inline int WheelRows(int rowsPerPage) {
    constexpr UINT usual = 3;
    UINT lines = 0;
    if (!::SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &lines, 0)) {
        lines = usual;
    }
    return WheelRowsPerNotch(lines, rowsPerPage);
}

/// Whether mnemonics are underlined without the keyboard too.
inline bool AlwaysShowsMnemonics() {
    BOOL always = FALSE;
    return ::SystemParametersInfoW(SPI_GETKEYBOARDCUES, 0, &always, 0) && always;
}

} // namespace toolbar
