#include "ribbon/paint_buffer.h"

#include "gdi/device_pixels.h"
#include "visual/canvas.h"

#include <algorithm>
#include <utility>

namespace {

/// The bitmap between two paints. Pictures larger than this are not kept: they come from one paint of many windows.
constexpr LONG g_mostKeptPixels = LONG(4) << 20;

LONG Pixels(CSize size) { return size.cx * size.cy; }

struct KeptBitmap {
    HBITMAP handle = nullptr;
    CSize size = CSize(0, 0);

    KeptBitmap() = default;
    ~KeptBitmap() { Drop(); }
    KeptBitmap(const KeptBitmap&) = delete;
    KeptBitmap& operator=(const KeptBitmap&) = delete;

    void Drop() {
        if (handle != nullptr) {
            ::DeleteObject(handle);
        }
        handle = nullptr;
    }
    /// The bitmap if it is large enough, else nothing.
    HBITMAP Take(CSize wanted) {
        const bool fits = size.cx >= wanted.cx && size.cy >= wanted.cy;
        return fits ? std::exchange(handle, nullptr) : nullptr;
    }
    /// The size of a new bitmap that can take this one's place: low and wide ones and high and narrow ones alternate.
    CSize GrownTo(CSize wanted) const {
        const CSize grown(std::max(size.cx, wanted.cx), std::max(size.cy, wanted.cy));
        return handle != nullptr && Pixels(grown) <= g_mostKeptPixels ? grown : wanted;
    }
    /// Takes a bitmap back, or deletes it where it is not to be kept.
    void Keep(HBITMAP bitmap, CSize bitmapSize) {
        const bool isCovered = handle != nullptr && size.cx >= bitmapSize.cx && size.cy >= bitmapSize.cy;
        if (isCovered || Pixels(bitmapSize) > g_mostKeptPixels) {
            ::DeleteObject(bitmap);
            return;
        }
        Drop();
        handle = bitmap;
        size = bitmapSize;
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
        m_size = kept.GrownTo(m_size);
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
    if (gdi::IsMirrored(targetDC)) {
        // Text and images keep their direction, only their places change sides.
        ::SetLayout(memory, LAYOUT_RTL | LAYOUT_BITMAPORIENTATIONPRESERVED);
    }
    ::SetViewportOrgEx(memory, -area.left, -area.top, nullptr);
    CRgn all;
    all.CreateRectRgnIndirect(area);
    gdi::SelectClip(memory, shown != nullptr ? shown : all);
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
    Kept().Keep(m_bitmap, m_size);
}

RibbonWindowPaint::UpdateRegion::UpdateRegion(CWnd& window) {
    region.CreateRectRgn(0, 0, 0, 0);
    ::GetUpdateRgn(window.GetSafeHwnd(), region, FALSE);
}

RibbonWindowPaint::RibbonWindowPaint(CWnd& window)
    : m_shown(window), m_target(&window), m_buffer(m_target, CRect(m_target.m_ps.rcPaint), m_shown.region) {}
