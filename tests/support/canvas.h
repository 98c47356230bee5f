#pragma once

#include <afxwin.h>

#include <algorithm>
#include <cstdint>

/// A 32-bit memory bitmap to draw into and to look at, pixel by pixel.
class Canvas {
public:
    static constexpr std::uint32_t background = 0x808040;

    explicit Canvas(int side = 64) : m_side(side) {
        BITMAPINFO info = {};
        info.bmiHeader.biSize = sizeof(info.bmiHeader);
        info.bmiHeader.biWidth = side;
        info.bmiHeader.biHeight = -side;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        void* bits = nullptr;
        m_bitmap = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        m_pixels = static_cast<std::uint32_t*>(bits);
        m_dc.CreateCompatibleDC(nullptr);
        m_oldBitmap = ::SelectObject(m_dc.GetSafeHdc(), m_bitmap);
        Clear();
    }
    ~Canvas() {
        ::SelectObject(m_dc.GetSafeHdc(), m_oldBitmap);
        ::DeleteObject(m_bitmap);
    }
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    CDC* Dc() { return &m_dc; }
    void Clear() {
        ::GdiFlush();
        std::fill_n(m_pixels, m_side * m_side, background);
    }
    /// 0x00RRGGBB.
    std::uint32_t At(int x, int y) const {
        ::GdiFlush();
        return m_pixels[y * m_side + x] & 0xFFFFFF;
    }
    /// Right and lower edge of what was drawn on; 0 when nothing was.
    CSize Extent() const {
        CSize extent(0, 0);
        for (int y = 0; y < m_side; ++y) {
            for (int x = 0; x < m_side; ++x) {
                if (At(x, y) != background)
                    extent = CSize(std::max<int>(extent.cx, x + 1), std::max<int>(extent.cy, y + 1));
            }
        }
        return extent;
    }

private:
    int m_side;
    CDC m_dc;
    HBITMAP m_bitmap = nullptr;
    HGDIOBJ m_oldBitmap = nullptr;
    std::uint32_t* m_pixels = nullptr;
};
