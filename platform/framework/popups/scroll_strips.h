#pragma once

#include "fx/geometry.h"

#include <utility>

// The strips at the ends of a pop-up that has more rows than room. A click scrolls by a row; so does the pointer, again
// and again, while it rests on one.
namespace toolbar {

/// Where the strips lie in the pop-up's client area, and which one is lit.
class ScrollStrips {
public:
    static constexpr int kHeight = 12;         ///< pixels at 96 DPI
    static constexpr unsigned kInterval = 100; ///< milliseconds from row to row while the pointer rests

    void Place(const fx::Rect& up, const fx::Rect& down) {
        m_up = up;
        m_down = down;
    }
    bool AreShown() const { return !m_down.IsEmpty(); }
    const fx::Rect& Up() const { return m_up; }
    const fx::Rect& Down() const { return m_down; }

    /// The rows that the strip at the point scrolls by: -1 up, 1 down, 0 beside both.
    int RowsAt(fx::Point point) const { return m_up.Contains(point) ? -1 : m_down.Contains(point) ? 1 : 0; }
    /// The same for the strip that is lit.
    int Rows() const { return m_lit; }
    /// The pointer is there. true: that changes what is lit, which is to be drawn, and whether the timer runs.
    bool Light(fx::Point point) {
        const int rows = RowsAt(point);
        return std::exchange(m_lit, rows) != rows;
    }
    /// The pointer has left. true: as with Light.
    bool Unlight() { return std::exchange(m_lit, 0) != 0; }

private:
    fx::Rect m_up; ///< both empty where all rows have room
    fx::Rect m_down;
    int m_lit = 0;
};

} // namespace toolbar
