#pragma once

#include <vector>

#include "ribbon/face_types.h"

// The places in the application menu. Scaled pixels.
namespace ribbon {

struct MainPanelContent {
    std::vector<Size> left;
    std::vector<Size> right;
    std::vector<Size> bottom;
    int rightWidth = 0; // at least
    int maxHeight = 0;  // of the whole; 0: any. What is higher scrolls
    int firstRow = 0;   // of both columns, while they scroll
};

struct MainPanelPlaces {
    std::vector<Rect> left;
    std::vector<Rect> right;
    std::vector<Rect> bottom; // from the right end on
    Rect frame;               // commands and right side
    Rect rightFrame;          // empty without a right side
    Rect scrollUp;            // both empty unless the columns scroll
    Rect scrollDown;
    int firstRow = 0;
    bool canScrollUp = false;
    bool canScrollDown = false;
    Size size;
};

// The height that a column's list of rows gets when the columns scroll: lower than the rows themselves where they do
// not fit between the strips.
int ColumnRoom(const std::vector<Size>& rows, int columnHeight, const FaceMetrics& metrics);

// Rows that are scrolled out of view have empty places.
MainPanelPlaces PlaceMainPanel(const MainPanelContent& content, const FaceMetrics& metrics);

} // namespace ribbon
