#pragma once

#include <windows.h>

#include <cstddef>
#include <functional>
#include <vector>

/// An icon of `side` x `side` pixels at 32 bits: of the colour where `isOpaque` says so, nothing elsewhere. The caller
/// destroys it.
inline HICON MakeIcon(int side, COLORREF color, const std::function<bool(int x, int y)>& isOpaque) {
    const DWORD opaque = 0xFF000000u | GetRValue(color) << 16 | GetGValue(color) << 8 | GetBValue(color);
    std::vector<DWORD> pixels;
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            pixels.push_back(isOpaque(x, y) ? opaque : 0);
        }
    }
    ICONINFO info{};
    info.fIcon = TRUE;
    info.hbmColor = ::CreateBitmap(side, side, 1, 32, pixels.data());
    info.hbmMask = ::CreateBitmap(side, side, 1, 1, nullptr);
    const HICON icon = ::CreateIconIndirect(&info);
    ::DeleteObject(info.hbmColor);
    ::DeleteObject(info.hbmMask);
    return icon;
}
