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

// Rectangles of equal size from the right end of a row to the left; those that have no room stay empty.
std::vector<fx::Rect> ArrangeFromRight(int count, fx::Size size, const fx::Rect& row) {
    std::vector<fx::Rect> result(static_cast<size_t>(std::max(count, 0)));
    int right = row.right;
    for (size_t index = result.size(); index-- > 0 && right - size.width >= row.left;) {
        result[index] = {right - size.width, row.top, right, row.top + size.height};
        right -= size.width;
    }
    return result;
}

int LeftOf(const std::vector<fx::Rect>& rects, int otherwise) {
    for (const fx::Rect& rect : rects) {
        if (!rect.IsEmpty()) {
            return rect.left;
        }
    }
    return otherwise;
}

struct TabRoom {
    int left;
    int right;
};

// Tabs so many that not even their least widths fit: a part of them between two buttons.
void ScrollTabs(const RibbonBarShape& shape, const RibbonMetrics& metrics, TabRoom room, const std::vector<int>& widths,
                RibbonBarArrangement& result) {
    const int count = static_cast<int>(widths.size());
    const TabRoom inner{room.left + metrics.scrollButtonWidth, room.right - metrics.scrollButtonWidth};
    const auto fitsFrom = [&](int first) {
        int x = inner.left;
        int last = first;
        while (last < count && x + widths[static_cast<size_t>(last)] <= inner.right) {
            x += widths[static_cast<size_t>(last++)] + metrics.tabGap;
        }
        return last;
    };
    int first = std::clamp(shape.firstTab, 0, count - 1);
    while (first > 0 && fitsFrom(first - 1) == count) {
        --first;
    }
    const int end = fitsFrom(first);
    int x = inner.left;
    for (int index = first; index < end; ++index) {
        const int width = widths[static_cast<size_t>(index)];
        result.tabs[static_cast<size_t>(index)] = {x, result.tabRow.top, x + width, result.tabRow.bottom};
        x += width + metrics.tabGap;
    }
    result.firstTab = first;
    if (first > 0) {
        result.tabScrollLeft = {room.left, result.tabRow.top, inner.left, result.tabRow.bottom};
    }
    if (end < count) {
        result.tabScrollRight = {inner.right, result.tabRow.top, room.right, result.tabRow.bottom};
    }
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
    const int full = std::accumulate(shape.tabWidths.begin(), shape.tabWidths.end(), 0);
    const int shown = std::accumulate(widths.begin(), widths.end(), 0);
    result.tabReduction = full > 0 ? 100 * (full - shown) / full : 0;
    result.tabs.resize(widths.size());
    if (shown > room && elementsRight - left >= 2 * metrics.scrollButtonWidth + metrics.minTabWidth) {
        ScrollTabs(shape, metrics, {left, elementsRight}, widths, result);
        return;
    }
    int x = left;
    for (size_t index = 0; index < widths.size(); ++index) {
        if (x + widths[index] <= elementsRight) {
            result.tabs[index] = {x, result.tabRow.top, x + widths[index], result.tabRow.bottom};
        }
        x += widths[index] + metrics.tabGap;
    }
}

// The row above the tabs: application button, icon, quick access toolbar, title, buttons of the frame.
void ArrangeCaption(const RibbonBarShape& shape, const RibbonMetrics& metrics, int left, RibbonBarArrangement& result) {
    const int width = std::max(shape.width, 0);
    const fx::Rect row{0, 0, width, metrics.captionHeight};
    int right = width;
    if (shape.replacesCaption) {
        result.caption = row;
        const fx::Rect room{left, row.top, row.right, row.bottom};
        result.captionButtons =
            ArrangeFromRight(shape.captionButtons, {metrics.captionButtonWidth, metrics.captionButtonHeight}, room);
        right = LeftOf(result.captionButtons, width);
    }
    int x = left;
    if (shape.replacesCaption && shape.hasIcon && left == 0 && metrics.quickAccessGap + metrics.smallImage < right) {
        const int top = (metrics.captionHeight - metrics.smallImage) / 2;
        result.captionIcon = {metrics.quickAccessGap, top, metrics.quickAccessGap + metrics.smallImage,
                              top + metrics.smallImage};
        x = result.captionIcon.right + metrics.quickAccessGap;
    }
    if (shape.quickAccessWidth > 0 && shape.quickAccessOnTop && !shape.captionOnly) {
        x = std::max(x, metrics.quickAccessGap);
        result.quickAccess = {x, 0, std::clamp(x + shape.quickAccessWidth, x, std::max(right, x)),
                              metrics.captionHeight};
        x = result.quickAccess.right + metrics.quickAccessGap;
    }
    if (shape.replacesCaption) {
        result.captionText = {std::min(x, right), 0, right, metrics.captionHeight};
    }
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

fx::Rect WiderFreePart(const fx::Rect& area, const fx::Rect& taken) {
    if (!area.Overlaps(taken)) {
        return area;
    }
    const fx::Rect before{area.left, area.top, std::max(taken.left, area.left), area.bottom};
    const fx::Rect behind{std::min(taken.right, area.right), area.top, area.right, area.bottom};
    return before.Width() > behind.Width() ? before : behind;
}

RibbonBarArrangement ArrangeBar(const RibbonBarShape& shape, const RibbonMetrics& metrics) {
    RibbonBarArrangement result;
    const int width = std::max(shape.width, 0);
    const bool hasQuickAccess = shape.quickAccessWidth > 0;
    const bool topRow = shape.replacesCaption || (hasQuickAccess && shape.quickAccessOnTop);
    if (shape.captionOnly) {
        result.tabs.resize(shape.tabWidths.size());
        result.tabElements.resize(shape.tabElementWidths.size());
        result.childButtons.resize(static_cast<size_t>(std::max(shape.childButtons, 0)));
        if (shape.replacesCaption) {
            ArrangeCaption(shape, metrics, 0, result);
            result.height = metrics.captionHeight;
        }
        return result;
    }
    int y = 0;
    int left = 0;
    const int buttonWidth = std::min(shape.applicationButton.width, width);
    if (buttonWidth > 0) {
        left = buttonWidth + metrics.quickAccessGap;
        const int buttonTop = shape.tabsOnlyButton && topRow ? metrics.captionHeight : 0;
        if (buttonTop > 0) {
            result.applicationButton = {0, buttonTop, buttonWidth, buttonTop + metrics.tabHeight};
        } else {
            result.applicationButton = {0, 0, buttonWidth, (topRow ? metrics.captionHeight : 0) + metrics.tabHeight};
        }
    }
    if (topRow) {
        ArrangeCaption(shape, metrics, shape.tabsOnlyButton ? 0 : left, result);
        y += metrics.captionHeight;
    }
    result.tabRow = {0, y, width, y + metrics.tabHeight};
    const fx::Rect childRow{left, y + (metrics.tabHeight - metrics.childButtonSide) / 2,
                            width - metrics.categoryMarginX, result.tabRow.bottom};
    result.childButtons =
        ArrangeFromRight(shape.childButtons, {metrics.childButtonSide, metrics.childButtonSide}, childRow);
    const int tabsRight = LeftOf(result.childButtons, width) - metrics.categoryMarginX;
    ArrangeTabs(shape, metrics, std::max(left, metrics.categoryMarginX), tabsRight, result);
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
