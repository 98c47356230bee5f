#include "fine_surface.h"

#include "bitmap_info.h"

#include <vector>

namespace {

/// Of each colour on its own: two colours at a time, with eight free bits above each.
DWORD Average(DWORD a, DWORD b, DWORD c, DWORD d) {
    constexpr DWORD kEven = 0x00FF00FF;
    const DWORD even = (a & kEven) + (b & kEven) + (c & kEven) + (d & kEven);
    const DWORD odd = ((a >> 8) & kEven) + ((b >> 8) & kEven) + ((c >> 8) & kEven) + ((d >> 8) & kEven);
    return (even >> 2 & kEven) | ((odd >> 2 & kEven) << 8);
}

} // namespace

FineSurface::FineSurface(int width, int height)
    : m_width(width), m_height(height), m_dc(::CreateCompatibleDC(nullptr)) {
    const BITMAPINFO info = TopDownPixels(2 * width, 2 * height);
    void* bits = nullptr;
    m_bitmap = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    m_fine = static_cast<DWORD*>(bits);
    m_earlier = ::SelectObject(m_dc, m_bitmap);
}

FineSurface::~FineSurface() {
    ::SelectObject(m_dc, m_earlier);
    ::DeleteObject(m_bitmap);
    ::DeleteDC(m_dc);
}

void FineSurface::AverageTo(HDC target) {
    ::GdiFlush();
    std::vector<DWORD> pixels(static_cast<std::size_t>(m_width) * m_height);
    const std::size_t stride = 2 * static_cast<std::size_t>(m_width);
    for (int y = 0; y < m_height; ++y) {
        const DWORD* upper = m_fine + 2 * y * stride;
        const DWORD* lower = upper + stride;
        DWORD* out = pixels.data() + static_cast<std::size_t>(y) * m_width;
        for (int x = 0; x < m_width; ++x, upper += 2, lower += 2) {
            out[x] = Average(upper[0], upper[1], lower[0], lower[1]);
        }
    }
    const BITMAPINFO info = TopDownPixels(m_width, m_height);
    ::SetDIBitsToDevice(target, 0, 0, m_width, m_height, 0, 0, 0, m_height, pixels.data(), &info, DIB_RGB_COLORS);
}
