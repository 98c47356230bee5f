#include "page_layout.h"

#include <algorithm>
#include <cmath>

WindowBox PlaceOnSheet(const PrintSheet& sheet, double margin, int pictureWidth, int pictureHeight) {
    constexpr double millimetres = 25.4; // an inch
    const double across = margin / millimetres * sheet.dotsPerInchAcross;
    const double down = margin / millimetres * sheet.dotsPerInchDown;
    // The unreachable edge is as wide on the other side, or the picture would not be in the middle.
    const double roomWidth = sheet.width - 2 * std::max<double>(across, sheet.left);
    const double roomHeight = sheet.height - 2 * std::max<double>(down, sheet.top);
    if (roomWidth < 1 || roomHeight < 1 || pictureWidth <= 0 || pictureHeight <= 0 || sheet.dotsPerInchAcross <= 0 ||
        sheet.dotsPerInchDown <= 0) {
        return {};
    }
    // Dots need not be square; inches are.
    const double inches = std::min(roomWidth / sheet.dotsPerInchAcross / pictureWidth,
                                   roomHeight / sheet.dotsPerInchDown / pictureHeight);
    const int width = static_cast<int>(std::lround(pictureWidth * inches * sheet.dotsPerInchAcross));
    const int height = static_cast<int>(std::lround(pictureHeight * inches * sheet.dotsPerInchDown));
    const int left = (sheet.width - width) / 2 - sheet.left;
    const int top = (sheet.height - height) / 2 - sheet.top;
    return {left, top, left + width, top + height};
}
