#include "ribbon/paint_buffer.h"

#include "gdi/device_pixels.h"
#include "visual/canvas.h"

#include <algorithm>
#include <utility>

namespace {

/// The bitmap between two paints. Pictures larger than this are not kept: they come from one paint of many windows.
constexpr LONG g_mostKeptPixels = LONG(4) << 20;

struct KeptBitmap {
    HBITMAP handle = nullptr;
    CSize size = CSize(0, 0);

    KeptBitmap() = default;
    ~KeptBitmap() { Drop(); }
    KeptBitmap(const KeptBitmap&) = delete;
    KeptBitmap& operator=(const KeptBitmap&) = delete;

    void Drop() {
        if (handle != nullptr)
            ::DeleteObject(handle);
        handle = nullptr;
    }
    /// The bitmap if it is large enough, else nothing.
    HBITMAP Take(CSize wanted) {
        const bool fits = size.cx >= wanted.cx && size.cy >= wanted.cy;
        return fits ? std::exchange(handle, nullptr) : nullptr;
    }
};

KeptBitmap& Kept() {
    static thread_local KeptBitmap kept;
    return kept;
}

} // namespace

RibbonPaintBuffer::RibbonPaintBuffer(CDC& target, const CRect& area, HRGN shown)
    : m_target(target), m_area(area), m_size(area.Size()) {
    const HDC targetDC = target.GetSafeHdc();
    if (area.IsRectEmpty() || !m_memory.CreateCompatibleDC(&target)) {
        return;
    }
    KeptBitmap& kept = Kept();
    m_bitmap = kept.Take(m_size);
    if (m_bitmap != nullptr) {
        m_size = kept.size;
    } else {
        // Of one format whatever the screen's: asking for that takes longer than a small paint.
        std::uint32_t* bits = nullptr;
        m_bitmap = visual::MakeBitmap32(m_size.cx, m_size.cy, &bits);
    }
    if (m_bitmap == nullptr) {
        return;
    }
    m_isOpen = true;
    const HDC memory = m_memory.GetSafeHdc();
    m_previous = ::SelectObject(memory, m_bitmap);
    const bool isMirrored = gdi::IsMirrored(targetDC);
    if (isMirrored) {
        // Text and images keep their direction, only their places change sides.
        ::SetLayout(memory, LAYOUT_RTL | LAYOUT_BITMAPORIENTATIONPRESERVED);
    } else if (shown != nullptr) {
        ::SelectClipRgn(memory, shown);
        ::OffsetClipRgn(memory, -area.left, -area.top);
    }
    ::SetViewportOrgEx(memory, -area.left, -area.top, nullptr);
    // The target clips anyway, and a mirrored context clips one pixel beside what it draws.
    if (!isMirrored) {
        ::IntersectClipRect(memory, area.left, area.top, area.right, area.bottom);
    }
}

RibbonPaintBuffer::~RibbonPaintBuffer() {
    if (!m_isOpen) {
        return;
    }
    const HDC memory = m_memory.GetSafeHdc();
    const HDC target = m_target.GetSafeHdc();
    if (gdi::IsMirrored(target)) {
        gdi::CopyPixels(target, gdi::DeviceCorner(target, m_area), memory, gdi::DeviceCorner(memory, m_area),
                        m_area.Size());
    } else {
        ::BitBlt(target, m_area.left, m_area.top, m_area.Width(), m_area.Height(), memory, m_area.left, m_area.top,
                 SRCCOPY);
    }
    ::SelectObject(memory, m_previous);
    KeptBitmap& kept = Kept();
    if (m_size.cx * m_size.cy > g_mostKeptPixels || (kept.handle != nullptr && kept.size.cx > m_size.cx)) {
        ::DeleteObject(m_bitmap);
        return;
    }
    kept.Drop();
    kept.handle = m_bitmap;
    kept.size = m_size;
}
