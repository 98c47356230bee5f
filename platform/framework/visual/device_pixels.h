#pragma once

#include <windows.h>

namespace visual {

bool IsMirrored(HDC dc);

/// Where the upper left pixel of a rectangle in the context's co-ordinates lies on its device.
POINT DeviceCorner(HDC dc, const RECT& rect);

/// While it lives the context counts device pixels from the left. Pictures are copied like this where a window is
/// mirrored: a mirrored context puts them one pixel beside what else it draws.
class ScopedDevicePixels {
public:
    explicit ScopedDevicePixels(HDC dc);
    ~ScopedDevicePixels();
    ScopedDevicePixels(const ScopedDevicePixels&) = delete;
    ScopedDevicePixels& operator=(const ScopedDevicePixels&) = delete;

private:
    HDC m_dc;
    int m_saved;
};

} // namespace visual
