#pragma once

#include <atltypes.h>

// The columns of a menu's row; pure functions, shared by measuring, drawing and tests.
namespace toolbar {

/// Device pixels.
struct MenuRowMetrics {
    int gutter = 0; ///< width of the column of images; 0: none
    CSize image{0, 0};
    int textMargin = 0; ///< before and behind the text
    int arrow = 0;      ///< width of the column of arrows
};

struct MenuRow {
    CRect image; ///< empty without gutter
    CRect text;
    CRect arrow;
};

inline MenuRow LayOutMenuRow(const CRect& row, const MenuRowMetrics& metrics) {
    MenuRow parts{CRect(0, 0, 0, 0), row, row};
    if (metrics.gutter > 0) {
        const CPoint place(row.left + (metrics.gutter - metrics.image.cx) / 2,
                           row.top + (row.Height() - metrics.image.cy) / 2);
        parts.image = CRect(place, metrics.image);
    }
    parts.arrow.left = row.right - metrics.arrow;
    parts.text.left += metrics.gutter + metrics.textMargin;
    parts.text.right = parts.arrow.left - (metrics.arrow > 0 ? 0 : metrics.textMargin);
    return parts;
}

/// Width that a row needs for a text of that width, by the same columns.
inline int MenuRowWidth(int textWidth, const MenuRowMetrics& metrics) {
    return metrics.gutter + metrics.textMargin + textWidth + (metrics.arrow > 0 ? metrics.arrow : metrics.textMargin);
}

} // namespace toolbar
