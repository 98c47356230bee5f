#include "gdi/device_pixels.h"

#include <algorithm>

namespace gdi {

bool IsMirrored(HDC dc) {
    const DWORD layout = GetLayout(dc);
    return layout != GDI_ERROR && (layout & LAYOUT_RTL) != 0;
}

POINT DeviceCorner(HDC dc, const RECT& rect) {
    POINT corners[] = {{rect.left, rect.top}, {rect.right, rect.bottom}};
    LPtoDP(dc, corners, 2);
    // A mirrored context's edges lie right of the pixels that they open.
    return {std::min(corners[0].x, corners[1].x) + (IsMirrored(dc) ? 1 : 0), std::min(corners[0].y, corners[1].y)};
}

void PutCornerAtOrigin(HDC dc, const RECT& rect) {
    const POINT corner = DeviceCorner(dc, rect);
    OffsetViewportOrgEx(dc, IsMirrored(dc) ? corner.x : -corner.x, -corner.y, nullptr);
}

ScopedDevicePixels::ScopedDevicePixels(HDC dc) : m_dc(dc), m_saved(SaveDC(dc)) {
    SetLayout(dc, 0);
    SetMapMode(dc, MM_TEXT);
    SetViewportOrgEx(dc, 0, 0, nullptr);
    SetWindowOrgEx(dc, 0, 0, nullptr);
}

ScopedDevicePixels::~ScopedDevicePixels() { RestoreDC(m_dc, m_saved); }

BOOL CopyPixels(HDC to, POINT toCorner, HDC from, POINT fromCorner, SIZE size) {
    const ScopedDevicePixels toPixels(to);
    const ScopedDevicePixels fromPixels(from);
    return BitBlt(to, toCorner.x, toCorner.y, size.cx, size.cy, from, fromCorner.x, fromCorner.y, SRCCOPY);
}

} // namespace gdi
