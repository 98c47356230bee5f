#include "soft_canvas.h"

#include <afxglobals.h>

#include <array>
#include <cmath>

namespace {

std::uint32_t ToRgb(COLORREF color) {
    return static_cast<std::uint32_t>(GetRValue(color)) << 16 | GetGValue(color) << 8 | GetBValue(color);
}

soft::Box ToBox(const CRect& rect) {
    return {static_cast<double>(rect.left), static_cast<double>(rect.top), static_cast<double>(rect.right),
            static_cast<double>(rect.bottom)};
}

/// The device context without mirroring, as long as this lives.
class PlainLayout {
public:
    explicit PlainLayout(HDC dc) : m_dc(dc), m_before(::GetLayout(dc)) { ::SetLayout(dc, 0); }
    ~PlainLayout() { ::SetLayout(m_dc, m_before); }
    PlainLayout(const PlainLayout&) = delete;
    PlainLayout& operator=(const PlainLayout&) = delete;

private:
    HDC m_dc;
    DWORD m_before;
};

CRect PlainPlace(HDC dc, const CRect& area) {
    std::array<POINT, 2> corners = {{{area.left, area.top}, {area.right, area.bottom}}};
    ::LPtoDP(dc, corners.data(), static_cast<int>(corners.size()));
    const PlainLayout plain(dc);
    ::DPtoLP(dc, corners.data(), static_cast<int>(corners.size()));
    const bool isMirrored = corners[0].x > corners[1].x;
    // A mirrored context counts the pixels from the other end: the right edge is the first pixel, not the one behind
    // it.
    const LONG shift = isMirrored ? 1 : 0;
    return {std::min(corners[0].x, corners[1].x) + shift, corners[0].y, std::max(corners[0].x, corners[1].x) + shift,
            corners[1].y};
}

} // namespace

SoftCanvas::SoftCanvas(CDC& target, const CRect& area)
    : m_target(target), m_place(PlainPlace(target.GetSafeHdc(), area)) {
    const CSize size = m_place.Size();
    BITMAPINFO info = {};
    info.bmiHeader = {sizeof info.bmiHeader, size.cx, -size.cy, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    const bool isWanted = size.cx > 0 && size.cy > 0;
    if (!isWanted || !m_memory.CreateCompatibleDC(&target) ||
        !m_bitmap.Attach(::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0))) {
        return;
    }
    ::SetLayout(m_memory.GetSafeHdc(), 0);
    m_pixels = {static_cast<std::uint32_t*>(bits), static_cast<int>(size.cx), static_cast<int>(size.cy)};
    m_bitmapBefore = ::SelectObject(m_memory.GetSafeHdc(), m_bitmap.GetSafeHandle());
    m_fontBefore = ::SelectObject(m_memory.GetSafeHdc(), afxGlobalData.fontRegular.GetSafeHandle());
    m_memory.SetBkMode(TRANSPARENT);
    const PlainLayout plain(target.GetSafeHdc());
    ::BitBlt(m_memory.GetSafeHdc(), 0, 0, size.cx, size.cy, target.GetSafeHdc(), m_place.left, m_place.top, SRCCOPY);
    ::GdiFlush();
}

SoftCanvas::~SoftCanvas() {
    if (IsEmpty()) {
        return;
    }
    {
        const PlainLayout plain(m_target.GetSafeHdc());
        ::BitBlt(m_target.GetSafeHdc(), m_place.left, m_place.top, m_pixels.width, m_pixels.height,
                 m_memory.GetSafeHdc(), 0, 0, SRCCOPY);
    }
    ::SelectObject(m_memory.GetSafeHdc(), m_fontBefore);
    ::SelectObject(m_memory.GetSafeHdc(), m_bitmapBefore);
}

void SoftCanvas::Fill(const CRect& rect, COLORREF color) { m_memory.FillSolidRect(rect, color); }

void SoftCanvas::FillRounded(const CRect& rect, int corner, COLORREF color, double strength) {
    ::GdiFlush();
    soft::FillRounded(m_pixels, ToBox(rect), corner, ToRgb(color), strength);
}

void SoftCanvas::DrawRounded(const CRect& rect, int corner, int width, COLORREF line, COLORREF ground) {
    FillRounded(rect, corner, line);
    CRect inside = rect;
    inside.DeflateRect(width, width);
    FillRounded(inside, std::max(corner - width, 0), ground);
}

void SoftCanvas::DrawLine(double x1, double y1, double x2, double y2, double width, COLORREF color) {
    ::GdiFlush();
    soft::DrawLine(m_pixels, x1, y1, x2, y2, width, ToRgb(color));
}

void SoftCanvas::DrawRing(double x, double y, double radius, double width, COLORREF color) {
    ::GdiFlush();
    const double outer = radius + width / 2, inner = radius - width / 2;
    soft::Fill(m_pixels, {x - outer, y - outer, x + outer, y + outer}, ToRgb(color), 1, [&](double px, double py) {
        const double distance = std::hypot(px - x, py - y);
        return distance <= outer && distance >= inner;
    });
}
