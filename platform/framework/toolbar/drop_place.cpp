#include "toolbar/drop_place.h"

#include <cstddef>

namespace toolbar {

namespace {

bool IsInRow(const fx::Rect& button, fx::Point point, bool isHorizontal) {
    return !isHorizontal || (point.y >= button.top && point.y < button.bottom);
}

fx::Rect Gap(const fx::Rect& button, bool isBehind, bool isHorizontal) {
    if (isHorizontal) {
        const int x = isBehind ? button.right : button.left;
        return {x, button.top, x + 1, button.bottom};
    }
    const int y = isBehind ? button.bottom : button.top;
    return {button.left, y, button.right, y + 1};
}

} // namespace

DropPlace FindDropPlace(const std::vector<fx::Rect>& buttons, fx::Point point, bool isHorizontal) {
    DropPlace place{static_cast<int>(buttons.size()), {}};
    for (std::size_t index = 0; index < buttons.size(); ++index) {
        const fx::Rect& button = buttons[index];
        if (button.IsEmpty() || !IsInRow(button, point, isHorizontal)) {
            continue;
        }
        const int middle = isHorizontal ? button.left + button.Width() / 2 : button.top + button.Height() / 2;
        if ((isHorizontal ? point.x : point.y) < middle) {
            return {static_cast<int>(index), Gap(button, false, isHorizontal)};
        }
        place = {static_cast<int>(index) + 1, Gap(button, true, isHorizontal)};
    }
    return place;
}

} // namespace toolbar
