#include "ribbon/main_panel_geometry.h"

#include <algorithm>

namespace ribbon {
namespace {

// Lengths at 96 DPI.
constexpr int kSide = 6;
constexpr int kTop = 8;
constexpr int kBottomGap = 6;
constexpr int kMinimumHeight = 48;

int Widest(const std::vector<Size>& sizes) {
    int width = 0;
    for (const Size& size : sizes)
        width = std::max(width, size.width);
    return width;
}

int Height(const std::vector<Size>& sizes) {
    int height = 0;
    for (const Size& size : sizes)
        height += size.height;
    return height;
}

int Width(const std::vector<Size>& sizes, int gap) {
    int width = 0;
    for (const Size& size : sizes)
        width += size.width + gap;
    return width;
}

std::vector<Rect> StackRows(const std::vector<Size>& sizes, int left, int right, int top) {
    std::vector<Rect> rects;
    for (const Size& size : sizes) {
        rects.push_back({left, top, size.height > 0 ? right : left, top + size.height});
        top += size.height;
    }
    return rects;
}

} // namespace

MainPanelPlaces PlaceMainPanel(const MainPanelContent& content, const FaceMetrics& metrics) {
    MainPanelPlaces places;
    const int side = metrics.Scaled(kSide);
    const int gap = metrics.Scaled(kBottomGap);
    const int top = metrics.Scaled(kTop);
    const int leftWidth = Widest(content.left);
    int rightWidth = content.right.empty() ? 0 : std::max(content.rightWidth, Widest(content.right));
    const int bottomWidth = Width(content.bottom, gap);
    const int inner = std::max(leftWidth + rightWidth, bottomWidth);
    if (!content.right.empty())
        rightWidth = inner - leftWidth;
    const int height = std::max({Height(content.left), Height(content.right), metrics.Scaled(kMinimumHeight)});
    places.frame = {side, top, side + inner, top + height};
    const int leftEnd = places.frame.right - rightWidth;
    places.left = StackRows(content.left, places.frame.left, leftEnd, top);
    if (rightWidth > 0)
        places.rightFrame = {leftEnd, top, places.frame.right, places.frame.bottom};
    places.right = StackRows(content.right, leftEnd + 1, places.frame.right, top);

    int rowHeight = 0;
    for (const Size& size : content.bottom)
        rowHeight = std::max(rowHeight, size.height);
    int x = places.frame.right - bottomWidth + gap;
    const int y = places.frame.bottom + gap;
    for (const Size& size : content.bottom) {
        places.bottom.push_back({x, y, x + size.width, y + (size.width > 0 ? rowHeight : 0)});
        x += size.width + gap;
    }
    const int bottom = content.bottom.empty() ? places.frame.bottom + side : y + rowHeight + gap;
    places.size = {places.frame.right + side, bottom};
    return places;
}

} // namespace ribbon
