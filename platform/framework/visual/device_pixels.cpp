#include "visual/device_pixels.h"

namespace visual {

bool IsMirrored(HDC dc) {
    const DWORD layout = GetLayout(dc);
    return layout != GDI_ERROR && (layout & LAYOUT_RTL) != 0;
}

POINT DeviceCorner(HDC dc, const RECT& rect) {
    POINT corner{IsMirrored(dc) ? rect.right - 1 : rect.left, rect.top};
    LPtoDP(dc, &corner, 1);
    return corner;
}

ScopedDevicePixels::ScopedDevicePixels(HDC dc) : m_dc(dc), m_saved(SaveDC(dc)) {
    SetLayout(dc, 0);
    SetViewportOrgEx(dc, 0, 0, nullptr);
    SetWindowOrgEx(dc, 0, 0, nullptr);
}

ScopedDevicePixels::~ScopedDevicePixels() { RestoreDC(m_dc, m_saved); }

} // namespace visual
