#pragma once

#include <windows.h>

#include <vector>

namespace fx {

namespace detail {

inline BOOL CALLBACK Collect(HWND window, LPARAM list) {
    reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
    return TRUE;
}

} // namespace detail

/// The top-level windows of the calling thread, from the front to the back.
inline std::vector<HWND> ThreadWindows() {
    std::vector<HWND> windows;
    ::EnumThreadWindows(::GetCurrentThreadId(), &detail::Collect, reinterpret_cast<LPARAM>(&windows));
    return windows;
}

/// All windows below one.
inline std::vector<HWND> DescendantsOf(HWND window) {
    std::vector<HWND> windows;
    ::EnumChildWindows(window, &detail::Collect, reinterpret_cast<LPARAM>(&windows));
    return windows;
}

} // namespace fx
