#pragma once

#include "visual/picture_cache.h"
#include "visual/skin.h"

#include <windows.h>

namespace visual {

constexpr COLORREF ToColorRef(Argb color) { return RGB(RedOf(color), GreenOf(color), BlueOf(color)); }
constexpr Argb FromColorRef(COLORREF color) {
    return MakeArgb(255, GetRValue(color), GetGValue(color), GetBValue(color));
}

/// A transparent 32-bit picture over a rectangle of a device context; what was drawn is blended onto the context when
/// the canvas goes. An empty rectangle, or one outside of the clip box, gives an empty view.
class Canvas {
public:
    Canvas(HDC dc, const RECT& bounds) : Canvas(dc, bounds, Recipe()) {}
    /// For a picture that is often the same: it is kept under the recipe's name. Where it is there already, it is drawn
    /// at once and the view is empty. Nothing but the recipe and the size may decide about the picture.
    Canvas(HDC dc, const RECT& bounds, const Recipe& recipe);
    ~Canvas();
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    const PixelView& View() const { return m_view; }
    bool IsEmpty() const { return m_view.bits == nullptr; }
    /// Co-ordinates of the device context to those of the view.
    fx::Rect Local(const RECT& rect) const {
        return {static_cast<int>(rect.left - m_bounds.left), static_cast<int>(rect.top - m_bounds.top),
                static_cast<int>(rect.right - m_bounds.left), static_cast<int>(rect.bottom - m_bounds.top)};
    }
    PointF Local(double x, double y) const { return {x - m_bounds.left, y - m_bounds.top}; }

private:
    HDC m_dc;
    RECT m_bounds;
    Recipe m_recipe;
    HDC m_memory = nullptr;
    HBITMAP m_bitmap = nullptr;
    HGDIOBJ m_previous = nullptr;
    PixelView m_view;
};

/// A 32-bit top-down bitmap of at least 1 x 1 pixels, null when it cannot be made; the caller deletes it.
HBITMAP MakeBitmap32(int width, int height, std::uint32_t** bits);

} // namespace visual
