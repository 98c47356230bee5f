#include "ribbon/menu_geometry.h"

#include <algorithm>

namespace ribbon {
namespace {

// Lengths at 96 DPI.
constexpr int kImageMargin = 4; // on all sides of an image
constexpr int kTextGap = 6;     // between the image column and the text
constexpr int kRightMargin = 10;
constexpr int kKeysGap = 24;
constexpr int kArrowColumn = 18;
constexpr int kSeparatorSpace = 3; // above and below the line
constexpr int kScrollHeight = 12;

int ArrowColumn(const MenuRowContent& content, const FaceMetrics& metrics) {
    return content.menu == ButtonMenu::None ? metrics.Scaled(kRightMargin) : metrics.Scaled(kArrowColumn);
}

int TextBlockHeight(const MenuRowContent& content) { return content.text.height + content.description.height; }

int TotalHeight(std::span<const Size> rows) {
    int height = 0;
    for (const Size& row : rows) {
        height += std::max(row.height, 0);
    }
    return height;
}

// Rows from first on that fit; at least one.
int RowsThatFit(std::span<const Size> rows, int first, int height) {
    int count = 0;
    for (auto index = static_cast<size_t>(first); index < rows.size(); ++index) {
        height -= rows[index].height;
        if (height < 0 && count > 0) {
            break;
        }
        ++count;
    }
    return count;
}

// The first row of the last page.
int LastFirstRow(std::span<const Size> rows, int height) {
    auto first = rows.size();
    while (first > 0) {
        height -= rows[first - 1].height;
        if (height < 0 && first < rows.size()) {
            break;
        }
        --first;
    }
    return static_cast<int>(std::min(first, rows.empty() ? 0 : rows.size() - 1));
}

int RoomForRows(int maxHeight, const FaceMetrics& metrics) { return maxHeight - 2 * metrics.Scaled(kScrollHeight); }

} // namespace

int MenuImageColumn(int imageSide, const FaceMetrics& metrics) { return imageSide + 2 * metrics.Scaled(kImageMargin); }

int MenuSeparatorHeight(const FaceMetrics& metrics) { return 2 * metrics.Scaled(kSeparatorSpace) + 1; }

Size MeasureMenuRow(const MenuRowContent& content, const FaceMetrics& metrics) {
    const int margins = 2 * metrics.Scaled(kImageMargin);
    const int column = std::max(content.imageColumn, content.image.width > 0 ? content.image.width + margins : 0);
    const int text = std::max(content.text.width, content.description.width);
    const int keys = content.keys.width > 0 ? metrics.Scaled(kKeysGap) + content.keys.width : 0;
    const int height =
        std::max({content.image.height + margins, TextBlockHeight(content) + margins, metrics.RowHeight()});
    return {column + 2 * metrics.Scaled(kTextGap) + text + keys + ArrowColumn(content, metrics), height};
}

MenuRowFace PlaceMenuRow(const Rect& rect, const MenuRowContent& content, const FaceMetrics& metrics) {
    MenuRowFace face;
    if (rect.IsEmpty()) {
        return face;
    }
    const int margin = metrics.Scaled(kImageMargin);
    const int column = std::max(content.imageColumn, content.image.width + 2 * margin);
    const int imageLeft = rect.left + (column - content.image.width) / 2;
    if (!content.image.IsEmpty()) {
        face.image = LeftCentred({imageLeft, rect.top, rect.right, rect.bottom}, content.image);
    }
    const int side = std::max({content.image.width, content.image.height, metrics.Scaled(16)}) + 2 * (margin / 2);
    face.frame = LeftCentred({rect.left + (column - side) / 2, rect.top, rect.right, rect.bottom}, {side, side});

    const int arrowColumn = ArrowColumn(content, metrics);
    const int textLeft = rect.left + column + metrics.Scaled(kTextGap);
    const int textRight = rect.right - arrowColumn;
    const int textTop = rect.top + (rect.Height() - TextBlockHeight(content)) / 2;
    face.text = {textLeft, textTop, textRight, textTop + content.text.height};
    if (content.description.height > 0) {
        face.description = {textLeft, face.text.bottom, textRight, face.text.bottom + content.description.height};
    }
    if (content.keys.width > 0) {
        face.keys = {textRight - content.keys.width, textTop, textRight, textTop + content.keys.height};
        face.text.right = std::max(face.text.left, face.keys.left - margin);
    }

    face.command = rect;
    if (content.menu == ButtonMenu::None) {
        return face;
    }
    face.arrow = {rect.right - arrowColumn, rect.top, rect.right, rect.bottom};
    if (content.menu == ButtonMenu::Split) {
        face.menu = face.arrow;
        face.command.right = face.arrow.left;
    } else {
        face.menu = rect;
        face.command = {};
    }
    return face;
}

int ScrollStripHeight(const FaceMetrics& metrics) { return metrics.Scaled(kScrollHeight); }

MenuList PlaceMenuList(std::span<const Size> rows, int minWidth, int maxHeight, int firstRow,
                       const FaceMetrics& metrics) {
    MenuList list;
    list.rows.resize(rows.size());
    int width = minWidth;
    for (const Size& row : rows) {
        width = std::max(width, row.width);
    }
    const int total = TotalHeight(rows);
    int y = 0;
    if (total <= maxHeight || rows.empty()) {
        for (size_t index = 0; index < rows.size(); ++index) {
            list.rows[index] = {0, y, width, y + std::max(rows[index].height, 0)};
            y += std::max(rows[index].height, 0);
        }
        list.size = {width, total};
        return list;
    }
    const int room = RoomForRows(maxHeight, metrics);
    const int scrollHeight = metrics.Scaled(kScrollHeight);
    list.firstRow = std::clamp(firstRow, 0, LastFirstRow(rows, room));
    list.scrollUp = {0, 0, width, scrollHeight};
    y = scrollHeight;
    const int count = RowsThatFit(rows, list.firstRow, room);
    for (int row = list.firstRow; row < list.firstRow + count; ++row) {
        const int height = rows[static_cast<size_t>(row)].height;
        list.rows[static_cast<size_t>(row)] = {0, y, width, y + height};
        y += height;
    }
    // The list keeps its height while it scrolls, whatever rows are in view.
    const int bottom = std::max(y, maxHeight - scrollHeight);
    list.scrollDown = {0, bottom, width, bottom + scrollHeight};
    list.canScrollUp = list.firstRow > 0;
    list.canScrollDown = list.firstRow + count < static_cast<int>(rows.size());
    list.size = {width, bottom + scrollHeight};
    return list;
}

int FirstRowThatShows(std::span<const Size> rows, int row, int maxHeight, int firstRow, const FaceMetrics& metrics) {
    if (row < 0 || static_cast<size_t>(row) >= rows.size() || TotalHeight(rows) <= maxHeight) {
        return firstRow;
    }
    if (row < firstRow) {
        return row;
    }
    const int room = RoomForRows(maxHeight, metrics);
    int first = firstRow;
    while (first < row && row >= first + RowsThatFit(rows, first, room)) {
        ++first;
    }
    return first;
}

std::vector<Rect> PlaceLines(std::span<const Size> elements, int width, int gap) {
    std::vector<Rect> places(elements.size());
    size_t lineStart = 0;
    int x = 0;
    int y = 0;
    int lineHeight = 0;
    const auto endLine = [&](size_t end) {
        for (size_t index = lineStart; index < end; ++index) {
            Rect& rect = places[index];
            const int height = rect.Height();
            rect.top = y + (lineHeight - height) / 2;
            rect.bottom = rect.top + height;
        }
        y += lineHeight;
        x = lineHeight = 0;
        lineStart = end;
    };
    for (size_t index = 0; index < elements.size(); ++index) {
        const Size& size = elements[index];
        if (x > 0 && x + gap + size.width > width) {
            endLine(index);
        }
        x += x > 0 ? gap : 0;
        places[index] = {x, y, x + size.width, y + size.height};
        x += size.width;
        lineHeight = std::max(lineHeight, size.height);
    }
    endLine(elements.size());
    return places;
}

} // namespace ribbon
