#include "gdi/device_pixels.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <vector>

namespace gdi {

bool IsMirrored(HDC dc) {
    const DWORD layout = GetLayout(dc);
    return layout != GDI_ERROR && (layout & LAYOUT_RTL) != 0;
}

bool KeepsPictures(HDC dc) {
    constexpr DWORD both = LAYOUT_RTL | LAYOUT_BITMAPORIENTATIONPRESERVED;
    const DWORD layout = GetLayout(dc);
    return layout != GDI_ERROR && (layout & both) == both;
}

POINT DeviceCorner(HDC dc, const RECT& rect) {
    POINT corners[] = {{rect.left, rect.top}, {rect.right, rect.bottom}};
    LPtoDP(dc, corners, 2);
    // A mirrored context's edges lie right of the pixels that they open.
    return {std::min(corners[0].x, corners[1].x) + (IsMirrored(dc) ? 1 : 0), std::min(corners[0].y, corners[1].y)};
}

RECT DeviceRect(HDC dc, const RECT& rect) {
    const POINT corner = DeviceCorner(dc, rect);
    return {corner.x, corner.y, corner.x + rect.right - rect.left, corner.y + rect.bottom - rect.top};
}

void PutCornerAtOrigin(HDC dc, const RECT& rect) {
    const POINT corner = DeviceCorner(dc, rect);
    OffsetViewportOrgEx(dc, IsMirrored(dc) ? corner.x : -corner.x, -corner.y, nullptr);
}

void SelectClip(HDC dc, HRGN region) {
    std::vector<std::byte> buffer(GetRegionData(region, 0, nullptr));
    auto* const data = reinterpret_cast<RGNDATA*>(buffer.data());
    if (GetRegionData(region, static_cast<DWORD>(buffer.size()), data) == 0) {
        return;
    }
    const HRGN pixels = CreateRectRgn(0, 0, 0, 0);
    const HRGN part = CreateRectRgn(0, 0, 0, 0);
    const int beside = IsMirrored(dc) ? 1 : 0;
    for (const RECT& rect : std::span(reinterpret_cast<const RECT*>(data->Buffer), data->rdh.nCount)) {
        const RECT onDevice = DeviceRect(dc, rect);
        SetRectRgn(part, onDevice.left - beside, onDevice.top, onDevice.right, onDevice.bottom);
        CombineRgn(pixels, pixels, part, RGN_OR);
    }
    const DWORD layout = SetLayout(dc, 0);
    SelectClipRgn(dc, pixels);
    SetLayout(dc, layout);
    DeleteObject(part);
    DeleteObject(pixels);
}

int CountDevicePixels(HDC dc) {
    const int saved = SaveDC(dc);
    SetLayout(dc, 0);
    SetMapMode(dc, MM_TEXT);
    SetViewportOrgEx(dc, 0, 0, nullptr);
    SetWindowOrgEx(dc, 0, 0, nullptr);
    return saved;
}

namespace {

/// The same for FillRect and FrameRect.
template <typename Paint>
BOOL PaintWith(HDC dc, const RECT& rect, HBRUSH brush, Paint paint) {
    if (!KeepsPictures(dc)) {
        return paint(dc, &rect, brush);
    }
    const RECT onDevice = DeviceRect(dc, rect);
    const ScopedDevicePixels pixels(dc);
    return paint(dc, &onDevice, brush);
}

} // namespace

BOOL FillWith(HDC dc, const RECT& rect, HBRUSH brush) { return PaintWith(dc, rect, brush, FillRect); }

BOOL FrameWith(HDC dc, const RECT& rect, HBRUSH brush) { return PaintWith(dc, rect, brush, FrameRect); }

void FillGround(HDC dc, const RECT& rect) {
    if (!IsMirrored(dc)) {
        ExtTextOutW(dc, 0, 0, ETO_OPAQUE, &rect, nullptr, 0, nullptr);
        return;
    }
    // The ground of a text lies one pixel beside the rectangle there.
    const COLORREF previous = SetDCBrushColor(dc, GetBkColor(dc));
    FillWith(dc, rect, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
    SetDCBrushColor(dc, previous);
}

ScopedDevicePixels::ScopedDevicePixels(HDC dc) : m_dc(dc), m_saved(CountDevicePixels(dc)) {}

ScopedDevicePixels::~ScopedDevicePixels() { RestoreDC(m_dc, m_saved); }

BOOL CopyPixels(HDC to, POINT toCorner, HDC from, POINT fromCorner, SIZE size) {
    const ScopedDevicePixels toPixels(to);
    const ScopedDevicePixels fromPixels(from);
    return BitBlt(to, toCorner.x, toCorner.y, size.cx, size.cy, from, fromCorner.x, fromCorner.y, SRCCOPY);
}

} // namespace gdi
