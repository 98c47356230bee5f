#pragma once

#include "bars/status_bar_layout.h"

#include <utility>
#include <vector>

namespace status {

inline Item Plain(int width, int height = 16) {
    Item item;
    item.size = {width, height};
    return item;
}
inline Item Hidden(int width, int height = 16) {
    Item item = Plain(width, height);
    item.isVisible = false;
    return item;
}
inline Item Separator(int width = 8) {
    Item item = Plain(width);
    item.isSeparator = true;
    item.fillsHeight = true;
    return item;
}
inline Item FullHeight(int width) {
    Item item = Plain(width);
    item.fillsHeight = true;
    return item;
}
inline Item Right(int width, int height = 16) {
    Item item = Plain(width, height);
    item.isRight = true;
    return item;
}
inline Item Fixed(Item item, int width) {
    item.fixedWidth = width;
    return item;
}

/// 400 x 28: the elements have the rows 2 to 26, and the main ones the columns up to 390 where nothing is extended.
inline Shape Bar(std::vector<Item> elements, std::vector<Item> extended = {}) {
    Shape shape;
    shape.client = {400, 28};
    shape.elements = std::move(elements);
    shape.extended = std::move(extended);
    return shape;
}

} // namespace status
