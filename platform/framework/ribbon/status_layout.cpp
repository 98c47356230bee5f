#include "ribbon/status_layout.h"

#include <algorithm>
#include <cstddef>

namespace {

fx::Rect RectOf(const StatusBarItem& item, const fx::Rect& area, int left) {
    if (item.fillsHeight) {
        return {left, area.top, left + item.width, area.bottom};
    }
    const int height = std::min(item.height, std::max(area.Height(), 0));
    const int top = area.top + (area.Height() - height) / 2;
    return {left, top, left + item.width, top + height};
}

/// Takes back a separator that nothing follows.
void DropSeparator(std::vector<fx::Rect>& rects, std::size_t& last, const std::vector<StatusBarItem>& items) {
    if (last < items.size() && items[last].isSeparator) {
        rects[last] = {};
    }
    last = items.size();
}

int PackFromRight(const std::vector<StatusBarItem>& items, const fx::Rect& area, std::vector<fx::Rect>& rects) {
    int right = area.right;
    int rightOfSeparator = right;
    std::size_t last = items.size();
    rects.assign(items.size(), {});
    for (std::size_t index = items.size(); index-- > 0;) {
        const StatusBarItem& item = items[index];
        const bool followsNothing = last == items.size() || items[last].isSeparator;
        if (!item.isVisible || (item.isSeparator && followsNothing)) {
            continue;
        }
        if (right - item.width < area.left) {
            break;
        }
        rightOfSeparator = item.isSeparator ? right : right - item.width;
        right -= item.width;
        rects[index] = RectOf(item, area, right);
        last = index;
    }
    const bool endsInSeparator = last < items.size() && items[last].isSeparator;
    DropSeparator(rects, last, items);
    return endsInSeparator ? rightOfSeparator : right;
}

int PackFromLeft(const std::vector<StatusBarItem>& items, const fx::Rect& area, std::vector<fx::Rect>& rects) {
    int left = area.left;
    int leftOfSeparator = left;
    std::size_t last = items.size();
    rects.assign(items.size(), {});
    for (std::size_t index = 0; index < items.size(); ++index) {
        const StatusBarItem& item = items[index];
        const bool followsNothing = last == items.size() || items[last].isSeparator;
        if (!item.isVisible || (item.isSeparator && followsNothing)) {
            continue;
        }
        if (left + item.width > area.right) {
            break;
        }
        rects[index] = RectOf(item, area, left);
        leftOfSeparator = item.isSeparator ? left : left + item.width;
        left += item.width;
        last = index;
    }
    const bool endsInSeparator = last < items.size() && items[last].isSeparator;
    DropSeparator(rects, last, items);
    return endsInSeparator ? leftOfSeparator : left;
}

void PlaceGrip(const StatusBarShape& shape, int right, StatusBarPlaces& places) {
    if (shape.gripWidth <= 0) {
        return;
    }
    places.sizeGrip = {right, 0, shape.client.width, shape.client.height};
    if (shape.borderHeight > 0) {
        places.sizeGrip = places.sizeGrip.Moved(0, -shape.borderHeight);
        places.bottomResize = {0, shape.client.height - shape.borderHeight, shape.client.width, shape.client.height};
    }
}

} // namespace

StatusBarPlaces ArrangeStatusBar(const StatusBarShape& shape) {
    StatusBarPlaces places;
    const int right = std::max(shape.client.width - std::max(shape.gripWidth, 0), 0);
    PlaceGrip(shape, right, places);
    fx::Rect area{0, shape.marginY, right, shape.client.height - shape.marginY};
    area.right = PackFromRight(shape.extended, area, places.extended);
    area.right = std::max(area.right - shape.gap, area.left);
    places.elements.assign(shape.elements.size(), {});
    if (shape.showsInformation) {
        places.information = area;
        return places;
    }
    places.space = area.right - PackFromLeft(shape.elements, area, places.elements);
    return places;
}
