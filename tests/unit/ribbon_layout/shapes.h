#pragma once

#include <random>

#include "ribbon/panel_layout.h"

/// Shapes as real elements give them, for the layout's tests.
namespace shapes {

inline RibbonElementShape LargeButton(int textWidth, const RibbonMetrics& m) {
    RibbonElementShape shape;
    shape.hasLarge = shape.hasCompact = true;
    shape.large = {std::max(textWidth * 2 / 3, m.largeImage) + 8, m.panelContentHeight};
    shape.intermediate = {m.smallImage + textWidth + 10, m.rowHeight};
    shape.compact = {m.smallImage + 6, m.rowHeight};
    return shape;
}

inline RibbonElementShape SmallButton(int textWidth, const RibbonMetrics& m) {
    RibbonElementShape shape = LargeButton(textWidth, m);
    shape.hasLarge = false;
    return shape;
}

inline RibbonElementShape Edit(int width, const RibbonMetrics& m) {
    RibbonElementShape shape;
    shape.intermediate = {width, m.rowHeight - 2};
    return shape;
}

/// An edit or a slider that may narrow, with a label that it may lose.
inline RibbonElementShape Elastic(int label, int box, int leastBox, const RibbonMetrics& m) {
    RibbonElementShape shape = Edit(label + box, m);
    shape.hasCompact = label > 0;
    shape.compact = {box, m.rowHeight - 2};
    shape.narrowest = label + leastBox;
    return shape;
}

inline RibbonElementShape Group(int width, const RibbonMetrics& m) {
    RibbonElementShape shape = Edit(width, m);
    shape.flow = RibbonElementFlow::Row;
    return shape;
}

inline RibbonElementShape Separator(const RibbonMetrics& m) {
    RibbonElementShape shape;
    shape.flow = RibbonElementFlow::WholeHeight;
    shape.intermediate = {m.separatorWidth, m.panelContentHeight};
    return shape;
}

inline RibbonElementShape Hidden() {
    RibbonElementShape shape;
    shape.flow = RibbonElementFlow::Hidden;
    return shape;
}

inline RibbonElementShape Any(std::mt19937& random, const RibbonMetrics& m) {
    const int width = std::uniform_int_distribution(20, 140)(random);
    switch (std::uniform_int_distribution(0, 11)(random)) {
    case 0:
    case 1:
    case 2:
        return LargeButton(width, m);
    case 3:
    case 4:
    case 5:
        return SmallButton(width, m);
    case 6:
        return Group(width, m);
    case 7:
        return Edit(width, m);
    case 8:
        return Separator(m);
    case 9:
        return Elastic(0, width + 20, 40, m);
    case 10:
        return Elastic(30, width + 20, std::uniform_int_distribution(10, 160)(random), m);
    default:
        return Hidden();
    }
}

inline RibbonPanelShape AnyPanel(std::mt19937& random, const RibbonMetrics& m) {
    RibbonPanelShape panel;
    const int count = std::uniform_int_distribution(1, 14)(random);
    for (int index = 0; index < count; ++index) {
        panel.elements.push_back(Any(random, m));
    }
    panel.captionWidth = std::uniform_int_distribution(20, 90)(random);
    panel.collapsedWidth = std::uniform_int_distribution(36, 400)(random);
    panel.centerColumns = random() % 2 == 0;
    panel.justifyColumns = random() % 2 == 0;
    return panel;
}

} // namespace shapes
