#pragma once

#include <span>
#include <vector>

#include "ribbon/button_geometry.h"
#include "ribbon/face_types.h"

// Rows of a ribbon menu and the list that they stand in. All lengths are scaled pixels.
namespace ribbon {

// What one row shows; a zero size is "not there".
struct MenuRowContent {
    ButtonMenu menu = ButtonMenu::None;
    Size image;
    Size text;        // one line
    Size description; // below the text
    Size keys;        // short-cut at the right end
    int imageColumn = 0;
};

// Rectangles of the parts; parts that are not there are empty. The frame of a check mark fills frame.
struct MenuRowFace {
    Rect image;
    Rect frame;
    Rect text;
    Rect description;
    Rect keys;
    Rect arrow;
    Rect command;
    Rect menu;
};

// Width of the column that holds images of this side, with the space around them.
int MenuImageColumn(int imageSide, const FaceMetrics& metrics);
// Height of the line between rows, with the space around it.
int MenuSeparatorHeight(const FaceMetrics& metrics);

Size MeasureMenuRow(const MenuRowContent& content, const FaceMetrics& metrics);
MenuRowFace PlaceMenuRow(const Rect& rect, const MenuRowContent& content, const FaceMetrics& metrics);

// Rows one below the other. All rows are as wide as the widest one.
struct MenuList {
    std::vector<Rect> rows; // empty: scrolled out of view
    Size size;              // of the list as it is shown
    Rect scrollUp;          // both empty unless the list scrolls
    Rect scrollDown;
    int firstRow = 0;
    bool canScrollUp = false;
    bool canScrollDown = false;
};

// Height of the strips at the ends of a list that scrolls.
int ScrollStripHeight(const FaceMetrics& metrics);

// Shows as many whole rows from firstRow on as maxHeight has room for, at least one; a first row that would leave room
// unused at the end moves up. A row of no height takes no place.
MenuList PlaceMenuList(std::span<const Size> rows, int minWidth, int maxHeight, int firstRow,
                       const FaceMetrics& metrics);

// The first row from which on the list shows the given row, changing the present one as little as possible.
int FirstRowThatShows(std::span<const Size> rows, int row, int maxHeight, int firstRow, const FaceMetrics& metrics);

// Elements side by side that go on in a new line where the width ends. Lines are as high as their highest element.
std::vector<Rect> PlaceLines(std::span<const Size> elements, int width, int gap);

} // namespace ribbon
