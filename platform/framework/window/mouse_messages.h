#pragma once

#include <windows.h>

namespace fx {

/// Whether a button went down, in a client area or beside it. Double clicks are none: the press before them was.
constexpr bool IsMouseButtonDown(UINT message) {
    switch (message) {
    case WM_LBUTTONDOWN:
    case WM_RBUTTONDOWN:
    case WM_MBUTTONDOWN:
    case WM_XBUTTONDOWN:
    case WM_NCLBUTTONDOWN:
    case WM_NCRBUTTONDOWN:
    case WM_NCMBUTTONDOWN:
    case WM_NCXBUTTONDOWN:
        return true;
    default:
        return false;
    }
}

} // namespace fx
