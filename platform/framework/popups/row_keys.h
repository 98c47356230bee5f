#pragma once

#include "popups/row_walk.h"

#include <windows.h>

#include <optional>

namespace toolbar {

/// What a key (virtual code) means to the rows of a menu or a list; nothing when it leads to no row. Tab goes on, and
/// back while Shift is down.
inline std::optional<RowStep> RowStepOf(UINT key) {
    switch (key) {
    case VK_DOWN:
        return RowStep::Next;
    case VK_UP:
        return RowStep::Previous;
    case VK_TAB:
        return ::GetKeyState(VK_SHIFT) < 0 ? RowStep::Previous : RowStep::Next;
    case VK_NEXT:
        return RowStep::NextPage;
    case VK_PRIOR:
        return RowStep::PreviousPage;
    case VK_HOME:
        return RowStep::First;
    case VK_END:
        return RowStep::Last;
    default:
        return std::nullopt;
    }
}

} // namespace toolbar
