#include "visual/canvas.h"

#include "gdi/device_pixels.h"

#include <algorithm>

namespace visual {

HBITMAP MakeBitmap32(int width, int height, std::uint32_t** bits) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = std::max(width, 1);
    info.bmiHeader.biHeight = -std::max(height, 1);
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    void* memory = nullptr;
    const HBITMAP bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &memory, nullptr, 0);
    *bits = static_cast<std::uint32_t*>(memory);
    return bitmap;
}

namespace {

void Blend(HDC target, POINT corner, HDC source, SIZE size) {
    const BLENDFUNCTION over{AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
    AlphaBlend(target, corner.x, corner.y, size.cx, size.cy, source, 0, 0, size.cx, size.cy, over);
}

} // namespace

Canvas::Canvas(HDC dc, const RECT& bounds, const Recipe& recipe) : m_dc(dc), m_bounds(bounds), m_recipe(recipe) {
    const int width = bounds.right - bounds.left, height = bounds.bottom - bounds.top;
    if (width <= 0 || height <= 0 || !RectVisible(dc, &bounds)) {
        return;
    }
    // A kept picture would have the wrong direction half of the time.
    if (gdi::IsMirrored(dc)) {
        m_recipe = Recipe();
    }
    if (!m_recipe.IsEmpty() && PictureCache::Instance().Draw(dc, bounds, m_recipe)) {
        return;
    }
    m_memory = CreateCompatibleDC(dc);
    std::uint32_t* bits = nullptr;
    m_bitmap = MakeBitmap32(width, height, &bits);
    if (m_memory == nullptr || m_bitmap == nullptr) {
        return;
    }
    m_previous = SelectObject(m_memory, m_bitmap);
    m_view = {bits, width, height};
}

Canvas::~Canvas() {
    if (m_view.bits != nullptr) {
        GdiFlush();
        const SIZE size{m_view.width, m_view.height};
        if (gdi::IsMirrored(m_dc)) {
            // What was drawn from left to right belongs from right to left: tabs' gaps, round ends of groups.
            for (int y = 0; y < m_view.height; ++y) {
                std::uint32_t* const row = m_view.bits + static_cast<std::ptrdiff_t>(y) * m_view.width;
                std::reverse(row, row + m_view.width);
            }
            const POINT corner = gdi::DeviceCorner(m_dc, m_bounds);
            const gdi::ScopedDevicePixels pixels(m_dc);
            Blend(m_dc, corner, m_memory, size);
        } else {
            Blend(m_dc, {m_bounds.left, m_bounds.top}, m_memory, size);
        }
    }
    if (m_previous != nullptr) {
        SelectObject(m_memory, m_previous);
    }
    if (m_view.bits != nullptr && !m_recipe.IsEmpty()) {
        PictureCache::Instance().Put(m_recipe, m_bitmap, m_view);
    } else if (m_bitmap != nullptr) {
        DeleteObject(m_bitmap);
    }
    if (m_memory != nullptr) {
        DeleteDC(m_memory);
    }
}

} // namespace visual
