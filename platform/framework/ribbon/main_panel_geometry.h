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
};

struct MainPanelPlaces {
    std::vector<Rect> left;
    std::vector<Rect> right;
    std::vector<Rect> bottom; // from the right end on
    Rect frame;               // commands and right side
    Rect rightFrame;          // empty without a right side
    Size size;
};

MainPanelPlaces PlaceMainPanel(const MainPanelContent& content, const FaceMetrics& metrics);

} // namespace ribbon
