#include "ribbon/panel_layout.h"

#include <algorithm>
#include <numeric>
#include <optional>

namespace {

using Phase = RibbonPanelLadder::Phase;

/// Takes steps off the panels until they fit; the order of the steps does not depend on the width.
class Reducer {
public:
    Reducer(std::span<const RibbonPanelLadder> panels, int total, int available)
        : m_panels(panels), m_taken(panels.size(), 0), m_total(total), m_available(available) {}

    bool Fits() const { return m_total <= m_available; }
    const std::vector<int>& Taken() const { return m_taken; }
    int Total() const { return m_total; }

    int Width(size_t panel) const {
        return m_taken[panel] == 0 ? m_panels[panel].FullWidth()
                                   : m_panels[panel].Steps()[static_cast<size_t>(m_taken[panel]) - 1].width;
    }

    // All steps of this phase, or as many as it takes to fit.
    void Take(size_t panel, Phase phase) {
        const auto& steps = m_panels[panel].Steps();
        while (!Fits() && static_cast<size_t>(m_taken[panel]) < steps.size() &&
               steps[static_cast<size_t>(m_taken[panel])].phase == phase) {
            m_total -= Width(panel);
            ++m_taken[panel];
            m_total += Width(panel);
        }
    }

    // What the panel's next step gives up when that step collapses it; 0 otherwise.
    int CollapseGain(size_t panel) const {
        const auto& steps = m_panels[panel].Steps();
        const auto next = static_cast<size_t>(m_taken[panel]);
        return next < steps.size() && steps[next].phase == Phase::Collapsed ? Width(panel) - steps[next].width : 0;
    }

    // Narrowing is no phase of its own to a host that orders them: what follows goes with it.
    void TakeNextPhase(size_t panel) {
        if (NextPhase(panel) == Phase::Narrow) {
            Take(panel, Phase::Narrow);
        }
        if (const auto next = NextPhase(panel)) {
            Take(panel, *next);
        }
    }

private:
    std::optional<Phase> NextPhase(size_t panel) const {
        const auto& steps = m_panels[panel].Steps();
        const auto next = static_cast<size_t>(m_taken[panel]);
        return next < steps.size() ? std::optional(steps[next].phase) : std::nullopt;
    }

    std::span<const RibbonPanelLadder> m_panels;
    std::vector<int> m_taken;
    int m_total;
    int m_available;
};

// The panel that gives up most goes first, of equal ones the right one. What is left over after the last collapse is
// less than that one gave up, so that none of the others would fit if it were opened again.
void Collapse(Reducer& reducer, size_t panelCount) {
    std::vector<size_t> order(panelCount);
    std::iota(order.rbegin(), order.rend(), size_t{0});
    std::stable_sort(order.begin(), order.end(), [&reducer](size_t one, size_t other) {
        return reducer.CollapseGain(one) > reducer.CollapseGain(other);
    });
    for (const size_t panel : order) {
        reducer.Take(panel, Phase::Collapsed);
    }
}

void Reduce(Reducer& reducer, size_t panelCount, std::span<const int> collapseOrder) {
    for (const int panel : collapseOrder) {
        if (panel >= 0 && static_cast<size_t>(panel) < panelCount) {
            reducer.TakeNextPhase(static_cast<size_t>(panel));
        }
    }
    for (const Phase phase : {Phase::Intermediate, Phase::Narrow, Phase::Compact}) {
        for (size_t panel = panelCount; panel-- > 0;) {
            reducer.Take(panel, phase);
        }
    }
    if (!reducer.Fits()) {
        Collapse(reducer, panelCount);
    }
}

// The leftmost panel from which on all others fit.
size_t LastFirstPanel(const Reducer& reducer, size_t panelCount, int gap, int room) {
    size_t first = panelCount;
    int used = 0;
    while (first > 0) {
        used += reducer.Width(first - 1) + (first < panelCount ? gap : 0);
        if (used > room) {
            break;
        }
        --first;
    }
    return std::min(first, panelCount - 1);
}

} // namespace

RibbonCategoryArrangement ArrangeCategory(std::span<const RibbonPanelLadder> panels, const RibbonMetrics& metrics,
                                          int width, std::span<const int> collapseOrder, int firstPanel) {
    RibbonCategoryArrangement result;
    result.panels.resize(panels.size());
    if (panels.empty()) {
        return result;
    }
    int total = metrics.panelGap * static_cast<int>(panels.size() - 1);
    for (const RibbonPanelLadder& panel : panels) {
        total += panel.FullWidth();
    }
    const int left = metrics.categoryMarginX;
    const int right = std::max(width - metrics.categoryMarginX, left);
    Reducer reducer(panels, total, right - left);
    Reduce(reducer, panels.size(), collapseOrder);

    int x = left;
    int end = right;
    size_t first = 0;
    if (!reducer.Fits() && panels.size() > 1) {
        result.scrolls = true;
        const int besideLeftButton = left + metrics.scrollButtonWidth;
        end -= metrics.scrollButtonWidth;
        first = std::min(static_cast<size_t>(std::max(firstPanel, 0)),
                         LastFirstPanel(reducer, panels.size(), metrics.panelGap, end - besideLeftButton));
        result.firstPanel = static_cast<int>(first);
        x = first > 0 ? besideLeftButton : left;
    }
    const int top = metrics.categoryMarginY;
    const int bottom = top + metrics.PanelHeight();
    size_t shown = first;
    for (size_t panel = 0; panel < panels.size(); ++panel) {
        result.panels[panel].stepCount = reducer.Taken()[panel];
        int panelWidth = reducer.Width(panel);
        if (panel == first) {
            panelWidth = std::min(panelWidth, std::max(end - x, 0));
        }
        if (panel == shown && x + panelWidth <= end) {
            result.panels[panel].rect = {x, top, x + panelWidth, bottom};
            x += panelWidth + metrics.panelGap;
            ++shown;
        }
    }
    if (result.scrolls) {
        result.canScrollLeft = first > 0;
        result.canScrollRight = shown < panels.size();
        const bool roomForButtons = right - left >= 2 * metrics.scrollButtonWidth;
        if (result.canScrollLeft && roomForButtons) {
            result.scrollLeft = {left, top, left + metrics.scrollButtonWidth, bottom};
        }
        if (result.canScrollRight && roomForButtons) {
            result.scrollRight = {right - metrics.scrollButtonWidth, top, right, bottom};
        }
    }
    return result;
}
