#include "visual/canvas.h"

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

Canvas::Canvas(HDC dc, const RECT& bounds, const Recipe& recipe) : m_dc(dc), m_bounds(bounds), m_recipe(recipe) {
    const int width = bounds.right - bounds.left, height = bounds.bottom - bounds.top;
    if (width <= 0 || height <= 0 || !RectVisible(dc, &bounds))
        return;
    // A kept picture would have the wrong direction half of the time.
    if (const DWORD layout = GetLayout(dc); layout != GDI_ERROR && (layout & LAYOUT_RTL) != 0)
        m_recipe = Recipe();
    if (!m_recipe.IsEmpty() && PictureCache::Instance().Draw(dc, bounds, m_recipe))
        return;
    m_memory = CreateCompatibleDC(dc);
    std::uint32_t* bits = nullptr;
    m_bitmap = MakeBitmap32(width, height, &bits);
    if (m_memory == nullptr || m_bitmap == nullptr)
        return;
    m_previous = SelectObject(m_memory, m_bitmap);
    m_view = {bits, width, height};
}

namespace {

/// While it lives a mirrored context places pictures mirrored but does not mirror them.
class ScopedPictureLayout {
public:
    explicit ScopedPictureLayout(HDC dc) : m_dc(dc), m_layout(GetLayout(dc)) {
        if (IsMirrored())
            SetLayout(m_dc, m_layout | LAYOUT_BITMAPORIENTATIONPRESERVED);
    }
    ~ScopedPictureLayout() {
        if (IsMirrored())
            SetLayout(m_dc, m_layout);
    }
    ScopedPictureLayout(const ScopedPictureLayout&) = delete;
    ScopedPictureLayout& operator=(const ScopedPictureLayout&) = delete;

    bool IsMirrored() const { return m_layout != GDI_ERROR && (m_layout & LAYOUT_RTL) != 0; }

private:
    HDC m_dc;
    DWORD m_layout;
};

} // namespace

Canvas::~Canvas() {
    if (m_view.bits != nullptr) {
        GdiFlush();
        // What was drawn from left to right belongs from right to left: tabs' gaps, round ends of groups.
        const ScopedPictureLayout layout(m_dc);
        if (layout.IsMirrored()) {
            for (int y = 0; y < m_view.height; ++y) {
                std::uint32_t* const row = m_view.bits + static_cast<std::ptrdiff_t>(y) * m_view.width;
                std::reverse(row, row + m_view.width);
            }
        }
        const BLENDFUNCTION over{AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
        AlphaBlend(m_dc, m_bounds.left, m_bounds.top, m_view.width, m_view.height, m_memory, 0, 0, m_view.width,
                   m_view.height, over);
    }
    if (m_previous != nullptr)
        SelectObject(m_memory, m_previous);
    if (m_view.bits != nullptr && !m_recipe.IsEmpty())
        PictureCache::Instance().Put(m_recipe, m_bitmap, m_view);
    else if (m_bitmap != nullptr)
        DeleteObject(m_bitmap);
    if (m_memory != nullptr)
        DeleteDC(m_memory);
}

} // namespace visual
