#include "ribbon/menu_geometry.h"

#include <algorithm>
#include <utility>

#include "popups/row_stack.h"
#include "popups/scroll_strips.h"

namespace ribbon {
namespace {

// Lengths at 96 DPI.
constexpr int kImageMargin = 4; // on all sides of an image
constexpr int kTextGap = 6;     // between the image column and the text
constexpr int kRightMargin = 10;
constexpr int kKeysGap = 24;
constexpr int kArrowColumn = 18;
constexpr int kSeparatorHeight = 8; // three above the line, four below

int ArrowColumn(const MenuRowContent& content, const FaceMetrics& metrics) {
    return content.menu == ButtonMenu::None ? metrics.Scaled(kRightMargin) : metrics.Scaled(kArrowColumn);
}

int TextBlockHeight(const MenuRowContent& content) { return content.text.height + content.description.height; }

toolbar::RowStack StackOf(std::span<const Size> rows) {
    std::vector<int> heights(rows.size());
    std::ranges::transform(rows, heights.begin(), &Size::height);
    return toolbar::RowStack(std::move(heights));
}

int RoomForRows(int maxHeight, const FaceMetrics& metrics) { return maxHeight - 2 * ScrollStripHeight(metrics); }

} // namespace

int MenuImageColumn(int imageSide, const FaceMetrics& metrics) { return imageSide + 2 * metrics.Scaled(kImageMargin); }

int MenuSeparatorHeight(const FaceMetrics& metrics) { return metrics.Scaled(kSeparatorHeight); }

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

int ScrollStripHeight(const FaceMetrics& metrics) { return metrics.Scaled(toolbar::ScrollStrips::kHeight); }

MenuList PlaceMenuList(std::span<const Size> rows, int minWidth, int maxHeight, int firstRow,
                       const FaceMetrics& metrics) {
    MenuList list;
    list.rows.resize(rows.size());
    int width = minWidth;
    for (const Size& row : rows) {
        width = std::max(width, row.width);
    }
    const toolbar::RowStack stack = StackOf(rows);
    const auto place = [&](int from, int end, int top) {
        for (int row = from; row < end; ++row) {
            list.rows[static_cast<size_t>(row)] = {0, top + stack.TopOf(row), width, top + stack.TopOf(row + 1)};
        }
    };
    if (stack.ContentHeight() <= maxHeight || rows.empty()) {
        place(0, static_cast<int>(rows.size()), 0);
        list.size = {width, stack.ContentHeight()};
        return list;
    }
    const int room = RoomForRows(maxHeight, metrics);
    const int scrollHeight = ScrollStripHeight(metrics);
    list.firstRow = std::clamp(firstRow, 0, stack.LastFirst(room));
    list.scrollUp = {0, 0, width, scrollHeight};
    const int count = stack.FitFrom(list.firstRow, room);
    const int top = scrollHeight - stack.TopOf(list.firstRow);
    place(list.firstRow, list.firstRow + count, top);
    // The list keeps its height while it scrolls, whatever rows are in view.
    const int bottom = std::max(top + stack.TopOf(list.firstRow + count), maxHeight - scrollHeight);
    list.scrollDown = {0, bottom, width, bottom + scrollHeight};
    list.canScrollUp = list.firstRow > 0;
    list.canScrollDown = list.firstRow + count < static_cast<int>(rows.size());
    list.size = {width, bottom + scrollHeight};
    return list;
}

int FirstRowThatShows(std::span<const Size> rows, int row, int maxHeight, int firstRow, const FaceMetrics& metrics) {
    const toolbar::RowStack stack = StackOf(rows);
    return stack.ContentHeight() <= maxHeight ? firstRow
                                              : stack.FirstToShow(row, firstRow, RoomForRows(maxHeight, metrics));
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
