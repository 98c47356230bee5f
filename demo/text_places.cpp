#include "text_places.h"

#include <algorithm>

namespace {

bool Cover(const TextBox& one, const TextBox& other) {
    return one.left < other.right && other.left < one.right && one.top < other.bottom && other.top < one.bottom;
}

} // namespace

bool TextPlaces::Take(const TextBox& box) {
    const bool isInside = box.left >= m_written.left && box.top >= m_written.top && box.right <= m_written.right &&
                          box.bottom <= m_written.bottom;
    const auto covers = [&box](const TextBox& other) { return Cover(box, other); };
    if (!isInside || std::any_of(m_taken.begin(), m_taken.end(), covers)) {
        return false;
    }
    m_taken.push_back(box);
    return true;
}

double TextPlaces::RiseOf(const TextBox& box, double limit) const {
    double rise = 0;
    const auto covers = [&](const TextBox& other) {
        return Cover({box.left, box.top - rise, box.right, box.bottom - rise}, other);
    };
    auto below = std::find_if(m_taken.begin(), m_taken.end(), covers);
    while (below != m_taken.end() && rise <= limit) {
        rise = box.bottom - below->top;
        below = std::find_if(m_taken.begin(), m_taken.end(), covers);
    }
    return rise <= limit ? rise : 0;
}

int LinesToANumber(double linesApart, double room) {
    for (const int lines : {1, 2, 3, 4, 6}) {
        if (lines * linesApart >= room) {
            return lines;
        }
    }
    return 12;
}
