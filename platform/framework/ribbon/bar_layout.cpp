#include "ribbon/bar_layout.h"

#include <algorithm>
#include <numeric>

namespace {

// The common limit of the widths at which they just fit: those below it keep theirs.
int CommonLimit(std::vector<int> widths, int available) {
    std::sort(widths.begin(), widths.end());
    int rest = available;
    for (size_t position = 0; position < widths.size(); ++position) {
        const int others = static_cast<int>(widths.size() - position);
        if (widths[position] * others > rest) {
            return rest / others;
        }
        rest -= widths[position];
    }
    return widths.empty() ? 0 : widths.back();
}

void ArrangeTabs(const RibbonBarShape& shape, const RibbonMetrics& metrics, int left, int right,
                 RibbonBarArrangement& result) {
    int elementsRight = right;
    result.tabElements.resize(shape.tabElementWidths.size());
    for (size_t index = shape.tabElementWidths.size(); index-- > 0;) {
        const int width = shape.tabElementWidths[index];
        if (elementsRight - width < left) {
            break;
        }
        result.tabElements[index] = {elementsRight - width, result.tabRow.top, elementsRight, result.tabRow.bottom};
        elementsRight -= width + metrics.tabGap;
    }
    const int gaps = metrics.tabGap * static_cast<int>(shape.tabWidths.empty() ? 0 : shape.tabWidths.size() - 1);
    const int room = std::max(elementsRight - left - gaps, 0);
    const std::vector<int> widths = ShortenWidths(shape.tabWidths, room, metrics.minTabWidth);
    int x = left;
    for (const int width : widths) {
        RibbonRect tab{x, result.tabRow.top, x + width, result.tabRow.bottom};
        if (tab.right > elementsRight) {
            tab = {};
        }
        result.tabs.push_back(tab);
        x += width + metrics.tabGap;
    }
    const int full = std::accumulate(shape.tabWidths.begin(), shape.tabWidths.end(), 0);
    const int shown = std::accumulate(widths.begin(), widths.end(), 0);
    result.tabReduction = full > 0 ? 100 * (full - shown) / full : 0;
}

} // namespace

std::vector<int> ShortenWidths(const std::vector<int>& widths, int available, int minimum) {
    if (std::accumulate(widths.begin(), widths.end(), 0) <= available) {
        return widths;
    }
    const int limit = std::max(CommonLimit(widths, available), minimum);
    std::vector<int> result = widths;
    for (int& width : result) {
        width = std::min(width, limit);
    }
    return result;
}

RibbonBarArrangement ArrangeBar(const RibbonBarShape& shape, const RibbonMetrics& metrics) {
    RibbonBarArrangement result;
    const int width = std::max(shape.width, 0);
    const bool hasQuickAccess = shape.quickAccessWidth > 0;
    const bool topRow = shape.replacesCaption || (hasQuickAccess && shape.quickAccessOnTop);
    int y = 0;
    int left = 0;
    const int buttonWidth = std::min(shape.applicationButton.cx, width);
    if (buttonWidth > 0) {
        left = buttonWidth + metrics.quickAccessGap;
        result.applicationButton = {0, 0, buttonWidth, (topRow ? metrics.captionHeight : 0) + metrics.tabHeight};
    }
    if (topRow) {
        int x = left;
        if (hasQuickAccess && shape.quickAccessOnTop) {
            x = std::max(x, metrics.quickAccessGap);
            result.quickAccess = {x, 0, std::clamp(x + shape.quickAccessWidth, x, std::max(width, x)),
                                  metrics.captionHeight};
            x = result.quickAccess.right + metrics.quickAccessGap;
        }
        if (shape.replacesCaption) {
            result.caption = {0, 0, width, metrics.captionHeight};
            result.captionText = {std::min(x, width), 0, width, metrics.captionHeight};
        }
        y += metrics.captionHeight;
    }
    result.tabRow = {0, y, width, y + metrics.tabHeight};
    ArrangeTabs(shape, metrics, std::max(left, metrics.categoryMarginX), width - metrics.categoryMarginX, result);
    y += metrics.tabHeight;
    if (!shape.minimized) {
        result.category = {0, y, width, y + metrics.CategoryHeight()};
        y = result.category.bottom;
    }
    if (hasQuickAccess && !shape.quickAccessOnTop) {
        const int x = metrics.quickAccessGap;
        result.quickAccess = {x, y, std::clamp(x + shape.quickAccessWidth, x, std::max(width, x)),
                              y + metrics.captionHeight};
        y += metrics.captionHeight;
    }
    result.height = y;
    return result;
}
