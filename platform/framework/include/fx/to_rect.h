#pragma once

// Between plain geometry and the classes of the framework.

#include "atltypes.h"
#include "fx/geometry.h"

namespace fx {

inline CPoint ToPoint(Point point) { return {point.x, point.y}; }
inline CSize ToSize(Size size) { return {size.width, size.height}; }
inline CRect ToRect(const Rect& rect) { return {rect.left, rect.top, rect.right, rect.bottom}; }

inline Point FromPoint(POINT point) { return {static_cast<int>(point.x), static_cast<int>(point.y)}; }
inline Size FromSize(SIZE size) { return {static_cast<int>(size.cx), static_cast<int>(size.cy)}; }
inline Rect FromRect(const RECT& rect) {
    return {static_cast<int>(rect.left), static_cast<int>(rect.top), static_cast<int>(rect.right),
            static_cast<int>(rect.bottom)};
}

} // namespace fx
