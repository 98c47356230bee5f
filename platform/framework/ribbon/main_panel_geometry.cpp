#include "ribbon/main_panel_geometry.h"

#include <algorithm>

#include "ribbon/menu_geometry.h"

namespace ribbon {
namespace {

// Lengths at 96 DPI.
constexpr int kSide = 6;
constexpr int kTop = 8;
constexpr int kBottomGap = 6;
constexpr int kMinimumHeight = 48;

int Widest(const std::vector<Size>& sizes) {
    int width = 0;
    for (const Size& size : sizes) {
        width = std::max(width, size.width);
    }
    return width;
}

int Height(const std::vector<Size>& sizes) {
    int height = 0;
    for (const Size& size : sizes) {
        height += size.height;
    }
    return height;
}

int Width(const std::vector<Size>& sizes, int gap) {
    int width = 0;
    for (const Size& size : sizes) {
        width += size.width + gap;
    }
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

// The rows of a column that is lower than they are, between the strips that scroll it.
std::vector<Rect> ScrollRows(const std::vector<Size>& sizes, const Rect& column, int firstRow, MainPanelPlaces& places,
                             const FaceMetrics& metrics) {
    const int room = ColumnRoom(sizes, column.Height(), metrics);
    const bool scrolls = Height(sizes) > room;
    MenuList list = PlaceMenuList(sizes, 0, room, firstRow, metrics);
    places.firstRow = std::max(places.firstRow, list.firstRow);
    places.canScrollUp = places.canScrollUp || list.canScrollUp;
    places.canScrollDown = places.canScrollDown || list.canScrollDown;
    const int top =
        column.top + (scrolls ? 0 : ScrollStripHeight(metrics)); // a list that scrolls begins below its own strip
    for (Rect& row : list.rows) {
        if (!row.IsEmpty()) {
            row = {column.left, top + row.top, column.right, top + row.bottom};
        }
    }
    return list.rows;
}

} // namespace

int ColumnRoom(const std::vector<Size>& rows, int columnHeight, const FaceMetrics& metrics) {
    const int total = Height(rows);
    const bool scrolls = total > columnHeight - 2 * ScrollStripHeight(metrics);
    return scrolls ? std::min(columnHeight, total - 1) : columnHeight;
}

MainPanelPlaces PlaceMainPanel(const MainPanelContent& content, const FaceMetrics& metrics) {
    MainPanelPlaces places;
    const int side = metrics.Scaled(kSide);
    const int gap = metrics.Scaled(kBottomGap);
    const int top = metrics.Scaled(kTop);
    const int leftWidth = Widest(content.left);
    int rightWidth = content.right.empty() ? 0 : std::max(content.rightWidth, Widest(content.right));
    const int bottomWidth = Width(content.bottom, gap);
    const int inner = std::max(leftWidth + rightWidth, bottomWidth);
    if (!content.right.empty()) {
        rightWidth = inner - leftWidth;
    }
    int rowHeight = 0;
    for (const Size& size : content.bottom) {
        rowHeight = std::max(rowHeight, size.height);
    }
    const int below = content.bottom.empty() ? side : 2 * gap + rowHeight;
    const int wanted = std::max({Height(content.left), Height(content.right), metrics.Scaled(kMinimumHeight)});
    const int room = content.maxHeight > 0 ? std::max(content.maxHeight - top - below, 1) : wanted;
    const int height = std::min(wanted, room);
    places.frame = {side, top, side + inner, top + height};
    const int leftEnd = places.frame.right - rightWidth;
    if (rightWidth > 0) {
        places.rightFrame = {leftEnd, top, places.frame.right, places.frame.bottom};
    }
    if (wanted > height) {
        const int strip = ScrollStripHeight(metrics);
        places.scrollUp = {places.frame.left, top, places.frame.right, top + strip};
        places.scrollDown = {places.frame.left, places.frame.bottom - strip, places.frame.right, places.frame.bottom};
        places.left = ScrollRows(content.left, {places.frame.left, top, leftEnd, places.frame.bottom}, content.firstRow,
                                 places, metrics);
        places.right = ScrollRows(content.right, {leftEnd + 1, top, places.frame.right, places.frame.bottom},
                                  content.firstRow, places, metrics);
    } else {
        places.left = StackRows(content.left, places.frame.left, leftEnd, top);
        places.right = StackRows(content.right, leftEnd + 1, places.frame.right, top);
    }

    int x = places.frame.right - bottomWidth + gap;
    const int y = places.frame.bottom + gap;
    for (const Size& size : content.bottom) {
        places.bottom.push_back({x, y, x + size.width, y + (size.width > 0 ? rowHeight : 0)});
        x += size.width + gap;
    }
    places.size = {places.frame.right + side, places.frame.bottom + below};
    return places;
}

} // namespace ribbon
