#include "popups/tooltip_layout.h"

#include <algorithm>

namespace tooltip {

Layout Arrange(const Content& content, CSize margin) {
    Layout layout;
    const bool hasIcon = content.icon.cx > 0 && content.icon.cy > 0;
    const bool hasDescription = content.description.cx > 0 && content.description.cy > 0;
    const LONG gap = hasDescription ? 2 * margin.cy : 0;
    const LONG textWidth = std::max(content.label.cx, content.description.cx);
    const LONG textHeight = content.label.cy + gap + (hasDescription ? content.description.cy : 0);
    const LONG innerHeight = std::max(textHeight, hasIcon ? content.icon.cy : 0);
    const LONG textLeft = margin.cx + (hasIcon ? content.icon.cx + margin.cx : 0);
    layout.window = CSize(textLeft + textWidth + margin.cx, innerHeight + 2 * margin.cy);
    if (hasIcon) {
        layout.icon = CRect(CPoint(margin.cx, margin.cy), content.icon);
        if (!hasDescription || content.icon.cy < content.label.cy) {
            layout.icon.OffsetRect(0, ((hasDescription ? content.label.cy : innerHeight) - content.icon.cy) / 2);
        }
    }
    // Alone, the label stands in the middle of the icon; above a description it is the title at the top.
    const LONG labelTop = margin.cy + (hasDescription ? 0 : (innerHeight - content.label.cy) / 2);
    layout.label = CRect(textLeft, labelTop, textLeft + textWidth, labelTop + content.label.cy);
    if (hasDescription) {
        const LONG top = layout.label.bottom + gap;
        layout.description = CRect(textLeft, top, textLeft + textWidth, top + content.description.cy);
        layout.separatorY = static_cast<int>(layout.label.bottom + gap / 2);
    }
    return layout;
}

CPoint KeepInside(CPoint wanted, CSize size, const CRect& workArea, int avoidTop) {
    CPoint corner = wanted;
    if (corner.y + size.cy > workArea.bottom) {
        corner.y = avoidTop - size.cy;
    }
    corner.x = std::max(workArea.left, std::min(corner.x, workArea.right - size.cx - 1));
    corner.y = std::max(workArea.top, std::min(corner.y, workArea.bottom - size.cy));
    return corner;
}

} // namespace tooltip
