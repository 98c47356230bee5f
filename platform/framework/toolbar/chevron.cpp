#include "toolbar/chevron.h"

#include "fx/dc_scope.h"

#include <cstdlib>

namespace toolbar {

void DrawChevron(CDC& dc, CPoint middle, int size, ChevronTo direction, COLORREF color) {
    CPen pen(PS_SOLID, 1, color);
    const fx::DcSelection selected(dc.m_hDC, pen.m_hObject);
    const bool pointsRight = direction == ChevronTo::Right;
    const int length = 2 * size;
    for (const int shift : {-size, size}) {
        for (int step = -size; step <= size; ++step) {
            const int depth = shift - size / 2 + size - std::abs(step);
            const CPoint at =
                pointsRight ? CPoint(middle.x + depth, middle.y + step) : CPoint(middle.x + step, middle.y + depth);
            dc.MoveTo(at);
            dc.LineTo(pointsRight ? CPoint(at.x + length / 2, at.y) : CPoint(at.x, at.y + length / 2));
        }
    }
}

} // namespace toolbar
