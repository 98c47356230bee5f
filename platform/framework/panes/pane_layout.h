#pragma once

#include "window/bar_strip.h"

#include <vector>

/// The places of a frame's panes as a pure function of their wishes. All values are pixels of one co-ordinate system.
namespace panes {

using frame_bars::Side;

struct PaneRequest {
    Side side;
    SIZE size;          ///< as wanted; along the side it may be more than there is
    bool wantsWholeRow; ///< shares its row with nobody and fills it
};

struct PaneLayout {
    std::vector<RECT> panes; ///< in the order of the requests
    RECT rest;               ///< what is left in the middle, never negative
};

/// Requests of one side stand from the frame's edge inwards. Top and bottom take the whole width, left and right what
/// is left between them. Panes that share stand side by side while they fit; the last of a row fills it up.
PaneLayout LayOutPanes(const RECT& area, const std::vector<PaneRequest>& requests);

} // namespace panes
