#pragma once

#include <windows.h>

/// Places in pixels of the device, whichever way a context counts.
namespace gdi {

bool IsMirrored(HDC dc);

/// Where the upper left pixel of a rectangle in the context's co-ordinates lies on its device.
POINT DeviceCorner(HDC dc, const RECT& rect);
/// Moves the context's origin so that the rectangle's upper left pixel is the device's first one.
void PutCornerAtOrigin(HDC dc, const RECT& rect);

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

/// Copies a rectangle of one size between two contexts pixel by pixel: what lies left on the one device lies left on
/// the other, in whatever units and directions the two contexts count. The corners are device pixels.
BOOL CopyPixels(HDC to, POINT toCorner, HDC from, POINT fromCorner, SIZE size);

} // namespace gdi
