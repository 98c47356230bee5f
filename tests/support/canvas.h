#pragma once

#include <afxwin.h>

#include <algorithm>
#include <cstdint>
#include <set>

/// Size of the window's client area, for a canvas of all that it shows.
inline CSize ClientSize(const CWnd& window) {
    CRect client;
    window.GetClientRect(client);
    return client.Size();
}

/// A 32-bit memory bitmap to draw into and to look at, pixel by pixel; coloured all over with `blank` (0x00RRGGBB)
/// before anything is drawn.
class Canvas {
public:
    static constexpr std::uint32_t background = 0x808040;

    explicit Canvas(int side = 64) : Canvas(CSize(side, side)) {}
    explicit Canvas(CSize size, std::uint32_t blank = background) : m_size(size), m_blank(blank) {
        BITMAPINFO info = {};
        info.bmiHeader = {sizeof(BITMAPINFOHEADER), size.cx, -size.cy, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        void* bits = nullptr;
        m_bitmap = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        m_pixels = static_cast<std::uint32_t*>(bits);
        m_dc.CreateCompatibleDC(nullptr);
        m_oldBitmap = ::SelectObject(m_dc.GetSafeHdc(), m_bitmap);
        Clear();
    }
    ~Canvas() {
        Close();
        ::DeleteObject(m_bitmap);
    }
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    CDC* Dc() { return &m_dc; }
    /// Selected into the context until that is closed; owned by the canvas.
    HBITMAP Bitmap() const { return m_bitmap; }
    /// Ends the drawing, so that others may use the bitmap.
    void Close() {
        if (m_oldBitmap) {
            ::SelectObject(m_dc.GetSafeHdc(), m_oldBitmap);
        }
        m_oldBitmap = nullptr;
    }
    CSize Size() const { return m_size; }
    void Clear() {
        ::GdiFlush();
        std::fill_n(m_pixels, m_size.cx * m_size.cy, m_blank);
    }
    /// 0x00RRGGBB.
    std::uint32_t At(int x, int y) const {
        ::GdiFlush();
        return m_pixels[y * m_size.cx + x] & 0xFFFFFF;
    }
    std::set<std::uint32_t> Colours(const CRect& rect) const {
        std::set<std::uint32_t> colours;
        for (int y = rect.top; y < rect.bottom; ++y) {
            for (int x = rect.left; x < rect.right; ++x) {
                colours.insert(At(x, y));
            }
        }
        return colours;
    }
    std::set<std::uint32_t> Colours() const { return Colours(CRect(CPoint(0, 0), m_size)); }
    /// The smallest rectangle with all that has the colour; empty when nothing has.
    CRect BoundsOf(std::uint32_t colour) const {
        CRect bounds(0, 0, 0, 0);
        for (int y = 0; y < m_size.cy; ++y) {
            for (int x = 0; x < m_size.cx; ++x) {
                if (At(x, y) == colour) {
                    bounds.UnionRect(bounds, CRect(x, y, x + 1, y + 1));
                }
            }
        }
        return bounds;
    }
    /// Right and lower edge of what was drawn on; 0 when nothing was.
    CSize Extent() const {
        CSize extent(0, 0);
        for (int y = 0; y < m_size.cy; ++y) {
            for (int x = 0; x < m_size.cx; ++x) {
                if (At(x, y) != m_blank) {
                    extent = CSize(std::max<int>(extent.cx, x + 1), std::max<int>(extent.cy, y + 1));
                }
            }
        }
        return extent;
    }

private:
    CSize m_size;
    std::uint32_t m_blank;
    CDC m_dc;
    HBITMAP m_bitmap = nullptr;
    HGDIOBJ m_oldBitmap = nullptr;
    std::uint32_t* m_pixels = nullptr;
};
