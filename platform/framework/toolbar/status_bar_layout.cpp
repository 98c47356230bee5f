// Where a status bar's panes lie.
#include "toolbar/status_bar_parts.h"

#include <algorithm>
#include <utility>

std::vector<toolbar::StatusPanePlace> toolbar::PlaceStatusPanes(const std::vector<StatusPaneWidth>& panes, int length,
                                                                int gap) {
    int fixed = panes.empty() ? 0 : gap * (static_cast<int>(panes.size()) - 1);
    int stretching = 0;
    for (const StatusPaneWidth& pane : panes) {
        fixed += pane.stretches ? 0 : pane.width;
        stretching += pane.stretches ? 1 : 0;
    }
    const int room = std::max(0, length - fixed);
    int rest = stretching > 0 ? room % stretching : 0;
    std::vector<StatusPanePlace> places;
    int left = 0;
    for (const StatusPaneWidth& pane : panes) {
        int width = pane.stretches ? room / stretching + std::exchange(rest, 0) : pane.width;
        width = std::clamp(width, 0, std::max(0, length - left));
        // A pane that is cut would say something else.
        const bool isCut = !pane.stretches && width < pane.width;
        places.push_back({left, isCut ? left : left + width});
        left = isCut ? length : left + width + (width > 0 || !pane.stretches ? gap : 0);
    }
    return places;
}
