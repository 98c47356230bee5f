#pragma once

#include <windows.h>

#include <objidl.h>

#include <gdiplus.h>

namespace fx {

/// Starts GDI+ for the module that asks, once; false when there is none. It stays started: it must not be shut down
/// while the process unloads its DLLs.
inline bool StartGdiPlus() {
    static const bool isStarted = [] {
        ULONG_PTR token = 0;
        const Gdiplus::GdiplusStartupInput input;
        return Gdiplus::GdiplusStartup(&token, &input, nullptr) == Gdiplus::Ok;
    }();
    return isStarted;
}

} // namespace fx
