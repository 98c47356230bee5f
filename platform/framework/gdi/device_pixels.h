#pragma once

#include <windows.h>

/// Places in pixels of the device, whichever way a context counts.
namespace gdi {

bool IsMirrored(HDC dc);
/// Whether the context is mirrored but not what is copied to it; such a one also puts that one pixel beside.
bool KeepsPictures(HDC dc);

/// Where the upper left pixel of a rectangle in the context's co-ordinates lies on its device.
POINT DeviceCorner(HDC dc, const RECT& rect);
/// The whole rectangle on its device.
RECT DeviceRect(HDC dc, const RECT& rect);
/// Moves the context's origin so that the rectangle's upper left pixel is the device's first one.
void PutCornerAtOrigin(HDC dc, const RECT& rect);

/// Lets the context count device pixels from the left until RestoreDC gets the number that this returns.
int CountDevicePixels(HDC dc);

/// FillRect and FrameRect, in the rectangle's own pixels in every context.
BOOL FillWith(HDC dc, const RECT& rect, HBRUSH brush);
BOOL FrameWith(HDC dc, const RECT& rect, HBRUSH brush);
/// Fills the rectangle with the context's background colour.
void FillGround(HDC dc, const RECT& rect);

/// Clips the context to a region in the context's co-ordinates. The system itself takes regions in pixels of the
/// device. A mirrored context may draw one pixel more on the left of each rectangle: RectVisible asks for places that
/// far beside those which are drawn.
void SelectClip(HDC dc, HRGN region);

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
