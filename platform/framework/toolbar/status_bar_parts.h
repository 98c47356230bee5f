#pragma once

#include "afxstatusbar.h"

#include <vector>

namespace toolbar {

/// A pane as the layout sees it, pixels.
struct StatusPaneWidth {
    int width = 0;
    bool stretches = false;
};

/// Left and right edge of each pane in a bar of that length, gaps between them; equal edges: there is no room for it.
/// The panes that stretch share what the others leave; what is left over of the division is the first one's.
struct StatusPanePlace {
    int left = 0;
    int right = 0;
};
std::vector<StatusPanePlace> PlaceStatusPanes(const std::vector<StatusPaneWidth>& panes, int length, int gap);

} // namespace toolbar

/// What a pane owns beside what it shows.
struct CMFCStatusBar::Pane : CMFCStatusBarPaneInfo {
    Pane() = default;
    ~Pane();
    Pane(const Pane&) = delete;
    Pane& operator=(const Pane&) = delete;

    /// Takes the list over; NULL: the pane has no image.
    void SetImages(HIMAGELIST newImages);
    CSize ImageSize() const;

    HIMAGELIST images = nullptr; ///< one icon, or the frames of an animation
    int frame = 0;
    UINT frameTime = 0; ///< milliseconds; 0: it stands still
};
