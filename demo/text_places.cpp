#include "text_places.h"

#include <algorithm>

bool TextPlaces::Take(const TextBox& box) {
    const bool isInside = box.left >= m_written.left && box.top >= m_written.top && box.right <= m_written.right &&
                          box.bottom <= m_written.bottom;
    const auto covers = [&box](const TextBox& other) {
        return box.left < other.right && other.left < box.right && box.top < other.bottom && other.top < box.bottom;
    };
    if (!isInside || std::any_of(m_taken.begin(), m_taken.end(), covers)) {
        return false;
    }
    m_taken.push_back(box);
    return true;
}

int LinesToANumber(double linesApart, double room) {
    for (const int lines : {1, 2, 3, 4, 6}) {
        if (lines * linesApart >= room) {
            return lines;
        }
    }
    return 12;
}
