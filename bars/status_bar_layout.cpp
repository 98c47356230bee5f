#include "bars/status_bar_layout.h"

#include <algorithm>
#include <cstddef>

namespace status {

namespace {

constexpr int kMarginY = 2;
constexpr int kBesideFullHeight = 5; // to the right of an extended element that fills the height
constexpr int kBesideExtended = 10;  // to the left of the extended elements
constexpr int kRoomOfMain = 4;       // added to the height of a main element
constexpr std::size_t kSlots = 2;
constexpr int kSecondSlotHeight = 23;

int CentredTop(const fx::Rect& area, int height) { return area.top + std::max((area.Height() - height) / 2, 0); }

/// From the last to the first; answers the left end of what was placed.
int PackExtended(const std::vector<Item>& items, const fx::Rect& area, std::vector<fx::Rect>& rects) {
    int x = area.right;
    rects.assign(items.size(), {});
    for (std::size_t index = items.size(); index-- > 0;) {
        const Item& item = items[index];
        if (x - item.size.width < area.left || !item.isVisible) {
            continue;
        }
        if (item.fillsHeight) {
            const int right = x - kBesideFullHeight;
            rects[index] = {right - item.size.width, area.top, right, area.bottom};
        } else {
            const int top = CentredTop(area, item.size.height);
            rects[index] = {x - item.size.width, top, x, top + item.size.height};
        }
        x = rects[index].left;
    }
    return x;
}

/// The main area, element by element from the left.
class MainArea {
public:
    MainArea(const std::vector<Item>& items, const fx::Rect& area, Places& places)
        : m_items(items), m_area(area), m_places(places), m_x(area.left), m_last(items.size()) {
        m_places.space = area.right - area.left;
    }

    void Place(std::size_t index) {
        const Item& item = m_items[index];
        if (item.isSeparator && m_followsSeparator) {
            m_places.isSkipped[index] = true;
            return;
        }
        const int width = item.fixedWidth >= 1 ? item.fixedWidth : item.size.width;
        const int height = item.size.height + kRoomOfMain;
        if (!item.isRight && index < kSlots) {
            PlaceSlot(index, width, height);
        } else {
            PlaceInRow(index, width, height);
        }
    }

    void DropLastSeparator() {
        if (m_last < m_items.size() && m_items[m_last].isSeparator) {
            m_places.elements[m_last] = {};
        }
    }

private:
    bool HasRoom(std::size_t index, int width) const { return m_x + width <= m_area.right && m_items[index].isVisible; }

    void PlaceSlot(std::size_t index, int width, int height) {
        if (!HasRoom(index, width)) {
            return;
        }
        const int top = CentredTop(m_area, height);
        if (index == 0) {
            const bool takesNext = m_items.size() > 1 && !m_items[1].isVisible;
            width += takesNext ? m_items[1].size.width : 0;
        } else {
            height = kSecondSlotHeight;
        }
        m_places.elements[index] = {m_x, top, m_x + width, top + height};
        m_x += width;
    }

    void PlaceInRow(std::size_t index, int width, int height) {
        const Item& item = m_items[index];
        if (!HasRoom(index, width)) {
            m_x += width;
            return;
        }
        fx::Rect& rect = m_places.elements[index];
        if (item.fillsHeight) {
            rect = {m_x, m_area.top, m_x + width, m_area.bottom};
        } else {
            const int cut = std::min(height, std::max(m_area.Height(), 0));
            const int top = CentredTop(m_area, cut);
            const int left = item.isRight ? m_area.right - width : m_x;
            rect = {left, top, left + width, top + cut};
        }
        const bool staysBehind = item.isRight && !item.fillsHeight;
        m_x += staysBehind ? 0 : width;
        m_places.space = m_area.right - (staysBehind ? rect.left : m_x);
        m_followsSeparator = item.isSeparator;
        m_last = index;
    }

    const std::vector<Item>& m_items;
    const fx::Rect m_area;
    Places& m_places;
    int m_x;
    bool m_followsSeparator = true;
    std::size_t m_last; ///< placed in the row; past the end: none
};

} // namespace

Places Arrange(const Shape& shape) {
    Places places;
    const int right = shape.client.width - std::max(shape.gripWidth, 0);
    fx::Rect area{0, kMarginY, right, shape.client.height - kMarginY};
    area.right = PackExtended(shape.extended, area, places.extended) - kBesideExtended;
    places.elements.assign(shape.elements.size(), {});
    places.isSkipped.assign(shape.elements.size(), shape.showsInformation);
    if (shape.showsInformation) {
        places.information = area;
        return places;
    }
    MainArea main(shape.elements, area, places);
    for (std::size_t index = 0; index < shape.elements.size(); ++index) {
        main.Place(index);
    }
    main.DropLastSeparator();
    return places;
}

} // namespace status
