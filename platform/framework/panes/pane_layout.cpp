#include "panes/pane_layout.h"

#include <algorithm>

namespace panes {

namespace {

LONG Along(const SIZE& size, Side side) { return IsHorizontal(side) ? size.cx : size.cy; }

LONG Across(const SIZE& size, Side side) { return IsHorizontal(side) ? size.cy : size.cx; }

LONG Length(const RECT& area, Side side) {
    return IsHorizontal(side) ? area.right - area.left : area.bottom - area.top;
}

/// The indexes of the panes that share a row, each row from the edge inwards.
std::vector<std::vector<size_t>> SplitIntoRows(const std::vector<PaneRequest>& requests, Side side, LONG length) {
    std::vector<std::vector<size_t>> rows;
    LONG used = 0;
    bool isOpen = false;
    for (size_t index = 0; index < requests.size(); ++index) {
        const PaneRequest& request = requests[index];
        if (request.side != side) {
            continue;
        }
        const LONG along = Along(request.size, side);
        if (request.wantsWholeRow || !isOpen || used + along > length) {
            rows.emplace_back();
            used = 0;
        }
        rows.back().push_back(index);
        used += along;
        isOpen = !request.wantsWholeRow;
    }
    return rows;
}

void PlaceRow(const std::vector<size_t>& row, const std::vector<PaneRequest>& requests, Side side, RECT& area,
              std::vector<RECT>& places) {
    LONG thickness = 0;
    for (const size_t index : row) {
        thickness = std::max(thickness, Across(requests[index].size, side));
    }
    RECT strip = TakeStrip(area, side, thickness);
    const Side start = IsHorizontal(side) ? Side::Left : Side::Top;
    for (const size_t index : row) {
        const bool isLast = index == row.back();
        const Side along = start;
        const LONG wanted = isLast ? Length(strip, side) : Along(requests[index].size, side);
        places[index] = TakeStrip(strip, along, wanted);
    }
}

} // namespace

PaneLayout LayOutPanes(const RECT& area, const std::vector<PaneRequest>& requests) {
    PaneLayout layout{std::vector<RECT>(requests.size()), area};
    layout.rest.right = std::max(area.left, area.right);
    layout.rest.bottom = std::max(area.top, area.bottom);
    for (const Side side : {Side::Top, Side::Bottom, Side::Left, Side::Right}) {
        for (const auto& row : SplitIntoRows(requests, side, Length(layout.rest, side))) {
            PlaceRow(row, requests, side, layout.rest, layout.panes);
        }
    }
    return layout;
}

} // namespace panes
