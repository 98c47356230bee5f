#include "ribbon/panel_layout.h"

#include <algorithm>
#include <numeric>

namespace {

using Phase = RibbonPanelLadder::Phase;

constexpr size_t noBlock = static_cast<size_t>(-1);
// Edits and sliders narrow by halves, so that a few missing pixels do not cost them all that they can give.
constexpr int narrowingStages = 2;

// Rows that a greedy line break of the widths needs.
int RowsForWidth(const std::vector<int>& widths, int gap, int width) {
    int rows = 1;
    int x = 0;
    for (const int item : widths) {
        if (x > 0 && x + gap + item > width) {
            ++rows;
            x = item;
        } else {
            x += (x > 0 ? gap : 0) + item;
        }
    }
    return rows;
}

} // namespace

RibbonPanelLadder::RibbonPanelLadder(const RibbonPanelShape& shape, const RibbonMetrics& metrics)
    : m_shape(shape), m_metrics(metrics) {
    MakeBlocks();
    MakeSteps();
}

RibbonElementMode RibbonPanelLadder::ModeOf(size_t index, RibbonElementMode wanted) const {
    const RibbonElementShape& element = m_shape.elements[index];
    if (wanted == RibbonElementMode::Large && element.hasLarge) {
        return RibbonElementMode::Large;
    }
    if (wanted == RibbonElementMode::Compact && element.hasCompact) {
        return RibbonElementMode::Compact;
    }
    return element.hasIntermediate || !element.hasCompact ? RibbonElementMode::Intermediate
                                                          : RibbonElementMode::Compact;
}

fx::Size RibbonPanelLadder::SizeOf(size_t index, RibbonElementMode mode) const {
    const RibbonElementShape& element = m_shape.elements[index];
    switch (mode) {
    case RibbonElementMode::Large:
        return element.large;
    case RibbonElementMode::Compact:
        return element.compact;
    default:
        return element.intermediate;
    }
}

int RibbonPanelLadder::NarrowedWidth(size_t index, RibbonElementMode mode, int narrowing) const {
    const RibbonElementShape& element = m_shape.elements[index];
    const int width = SizeOf(index, mode).width;
    const int spare = element.narrowest > 0 ? std::max(0, element.intermediate.width - element.narrowest) : 0;
    return mode == RibbonElementMode::Large ? width : std::max(0, width - spare * narrowing / narrowingStages);
}

int RibbonPanelLadder::RowsOf(size_t index, RibbonElementMode mode) const {
    const int height = SizeOf(index, mode).height;
    return std::clamp((height + m_metrics.rowHeight - 1) / m_metrics.rowHeight, 1, RibbonMetrics::rowsPerPanel);
}

void RibbonPanelLadder::MakeBlocks() {
    size_t index = 0;
    while (index < m_shape.elements.size()) {
        const RibbonElementShape& element = m_shape.elements[index];
        switch (element.flow) {
        case RibbonElementFlow::Hidden:
            ++index;
            break;
        case RibbonElementFlow::WholeHeight:
            AddWholeHeight(index++);
            break;
        case RibbonElementFlow::Row:
            index = AddFlow(index);
            break;
        case RibbonElementFlow::Column:
            index = element.hasLarge ? AddLargeRun(index) : AddStack(index);
            break;
        }
    }
}

void RibbonPanelLadder::AddWholeHeight(size_t index) {
    const RibbonElementShape& element = m_shape.elements[index];
    const RibbonElementMode mode = element.hasLarge ? RibbonElementMode::Large : RibbonElementMode::Intermediate;
    m_blocks.push_back(
        {Block::Kind::WholeHeight, {index}, {{Phase::Intermediate, mode, 1, SizeOf(index, mode).width}}});
}

// Neighbours that can be large reduce in threes, counted from the right, so that each three becomes one full column.
size_t RibbonPanelLadder::AddLargeRun(size_t first) {
    std::vector<size_t> run;
    size_t end = first;
    for (; end < m_shape.elements.size(); ++end) {
        const RibbonElementShape& element = m_shape.elements[end];
        if (element.flow == RibbonElementFlow::Hidden) {
            continue;
        }
        if (element.flow != RibbonElementFlow::Column || !element.hasLarge) {
            break;
        }
        run.push_back(end);
    }
    constexpr size_t rows = RibbonMetrics::rowsPerPanel;
    size_t begin = 0;
    while (begin < run.size()) {
        const size_t remainder = (run.size() - begin) % rows;
        const size_t count = remainder != 0 ? remainder : rows;
        Block block{Block::Kind::Stack, {run.begin() + begin, run.begin() + begin + count}, {}};
        int width = m_metrics.elementGap * static_cast<int>(count - 1);
        for (const size_t index : block.elements) {
            width += m_shape.elements[index].large.width;
        }
        block.levels.push_back({Phase::Intermediate, RibbonElementMode::Large, 1, width});
        const bool canStack = std::all_of(block.elements.begin(), block.elements.end(), [this](size_t index) {
            return m_shape.elements[index].hasIntermediate || m_shape.elements[index].hasCompact;
        });
        if (canStack) {
            for (const auto& [phase, mode] : {std::pair{Phase::Intermediate, RibbonElementMode::Intermediate},
                                              std::pair{Phase::Compact, RibbonElementMode::Compact}}) {
                const int stacked = StackWidth(block, mode);
                if (stacked < block.levels.back().width) {
                    block.levels.push_back({phase, mode, 1, stacked});
                }
            }
        }
        m_blocks.push_back(std::move(block));
        begin += count;
    }
    return end;
}

size_t RibbonPanelLadder::AddStack(size_t first) {
    Block block{Block::Kind::Stack, {}, {}};
    int rows = 0;
    size_t end = first;
    for (; end < m_shape.elements.size(); ++end) {
        const RibbonElementShape& element = m_shape.elements[end];
        if (element.flow == RibbonElementFlow::Hidden) {
            continue;
        }
        if (element.flow != RibbonElementFlow::Column || element.hasLarge) {
            break;
        }
        const int needed = RowsOf(end, ModeOf(end, RibbonElementMode::Intermediate));
        if (rows + needed > RibbonMetrics::rowsPerPanel) {
            break;
        }
        rows += needed;
        block.elements.push_back(end);
    }
    block.levels.push_back(
        {Phase::Intermediate, RibbonElementMode::Intermediate, 1, StackWidth(block, RibbonElementMode::Intermediate)});
    const auto addLevel = [&](Phase phase, RibbonElementMode mode, int narrowing) {
        const int width = StackWidth(block, mode, narrowing);
        if (width < block.levels.back().width) {
            block.levels.push_back({phase, mode, 1, width, narrowing});
        }
    };
    for (int stage = 1; stage <= narrowingStages; ++stage) {
        addLevel(Phase::Narrow, RibbonElementMode::Intermediate, stage);
    }
    // A wide text may have hidden until now that the column can narrow.
    for (int stage = block.levels.back().narrowing; stage <= narrowingStages; ++stage) {
        addLevel(Phase::Compact, RibbonElementMode::Compact, stage);
    }
    m_blocks.push_back(std::move(block));
    return end;
}

size_t RibbonPanelLadder::AddFlow(size_t first) {
    Block block{Block::Kind::Flow, {}, {}};
    size_t end = first;
    for (; end < m_shape.elements.size(); ++end) {
        const RibbonElementFlow flow = m_shape.elements[end].flow;
        if (flow == RibbonElementFlow::Row) {
            block.elements.push_back(end);
        } else if (flow != RibbonElementFlow::Hidden) {
            break;
        }
    }
    for (int rows = 2; rows <= RibbonMetrics::rowsPerPanel; ++rows) {
        const int width = FlowWidth(block, rows);
        if (block.levels.empty() || width < block.levels.back().width) {
            block.levels.push_back({Phase::Intermediate, RibbonElementMode::Intermediate, rows, width});
        }
    }
    m_blocks.push_back(std::move(block));
    return end;
}

int RibbonPanelLadder::StackWidth(const Block& block, RibbonElementMode mode, int narrowing) const {
    int width = 0;
    for (const size_t index : block.elements) {
        width = std::max(width, NarrowedWidth(index, ModeOf(index, mode), narrowing));
    }
    return width;
}

// The narrowest width in which the groups, in their order, need no more than the given rows.
int RibbonPanelLadder::FlowWidth(const Block& block, int rows) const {
    std::vector<int> widths;
    for (const size_t index : block.elements) {
        widths.push_back(SizeOf(index, RibbonElementMode::Intermediate).width);
    }
    const int gap = m_metrics.elementGap;
    int low = *std::max_element(widths.begin(), widths.end());
    int high = std::accumulate(widths.begin(), widths.end(), gap * static_cast<int>(widths.size() - 1));
    while (low < high) {
        const int middle = low + (high - low) / 2;
        if (RowsForWidth(widths, gap, middle) <= rows) {
            high = middle;
        } else {
            low = middle + 1;
        }
    }
    return low;
}

int RibbonPanelLadder::PanelWidth(int contentWidth) const {
    const int launchButton =
        m_shape.hasLaunchButton ? m_metrics.launchButtonSide + 2 * m_metrics.launchButtonMargin : 0;
    const int inside = std::max(contentWidth, m_shape.captionWidth + 2 * m_metrics.panelCaptionPadding + launchButton);
    return std::max(inside + 2 * m_metrics.panelPaddingX, m_metrics.minPanelWidth);
}

// As far from the caption's end as from its lower edge, one line of the frame apart.
fx::Rect RibbonPanelLadder::PlaceLaunchButton(const fx::Rect& caption) const {
    if (!m_shape.hasLaunchButton) {
        return {};
    }
    const int side = m_metrics.launchButtonSide;
    const int right = caption.right - m_metrics.launchButtonMargin;
    const int top = caption.top + (caption.bottom - caption.top - side) / 2;
    return {right - side, top, right, top + side};
}

void RibbonPanelLadder::MakeSteps() {
    int content = 0;
    for (const Block& block : m_blocks) {
        content += block.levels.front().width;
    }
    content += m_metrics.elementGap * static_cast<int>(m_blocks.empty() ? 0 : m_blocks.size() - 1);
    m_fullWidth = PanelWidth(content);

    std::vector<size_t> level(m_blocks.size(), 0);
    for (const Phase phase : {Phase::Intermediate, Phase::Narrow, Phase::Compact}) {
        for (size_t position = m_blocks.size(); position-- > 0;) {
            const Block& block = m_blocks[position];
            while (level[position] + 1 < block.levels.size() && block.levels[level[position] + 1].phase == phase) {
                const int gain = block.levels[level[position]].width - block.levels[level[position] + 1].width;
                ++level[position];
                content -= gain;
                m_steps.push_back({phase, PanelWidth(content)});
                m_stepBlocks.push_back(position);
            }
        }
    }
    // Below the caption's width a reduction gains nothing.
    int previous = m_fullWidth;
    size_t useful = 0;
    while (useful < m_steps.size() && m_steps[useful].width < previous) {
        previous = m_steps[useful++].width;
    }
    m_steps.resize(useful);
    m_stepBlocks.resize(useful);
    const int collapsed = m_shape.collapsedWidth + 2 * m_metrics.panelPaddingX;
    if (m_shape.collapsedWidth > 0 && previous - collapsed >= m_metrics.minCollapseGain) {
        m_steps.push_back({Phase::Collapsed, collapsed});
        m_stepBlocks.push_back(noBlock);
    }
}

RibbonPanelArrangement RibbonPanelLadder::Arrange(int stepCount, int room) const {
    RibbonPanelArrangement result;
    const size_t taken = std::min(static_cast<size_t>(std::max(stepCount, 0)), m_steps.size());
    result.height = m_metrics.PanelHeight();
    result.width = taken == 0 ? m_fullWidth : m_steps[taken - 1].width;
    result.elements.resize(m_shape.elements.size());
    const bool isTooWide = result.width > room && m_shape.collapsedWidth > 0;
    if (isTooWide || (taken > 0 && m_steps[taken - 1].phase == Phase::Collapsed)) {
        result.collapsed = true;
        result.width = std::min(result.width, room);
        return result;
    }
    result.caption = {0, result.height - m_metrics.panelCaptionHeight, result.width, result.height};
    result.launchButton = PlaceLaunchButton(result.caption);

    std::vector<size_t> level(m_blocks.size(), 0);
    for (size_t step = 0; step < taken; ++step) {
        ++level[m_stepBlocks[step]];
    }
    int content = 0;
    for (size_t position = 0; position < m_blocks.size(); ++position) {
        content += m_blocks[position].levels[level[position]].width + (position > 0 ? m_metrics.elementGap : 0);
    }
    int x = (result.width - content) / 2;
    for (size_t position = 0; position < m_blocks.size(); ++position) {
        PlaceBlock(m_blocks[position], level[position], x, result.elements);
        x += m_blocks[position].levels[level[position]].width + m_metrics.elementGap;
    }
    return result;
}

void RibbonPanelLadder::PlaceBlock(const Block& block, size_t level, int x,
                                   std::vector<RibbonPlacedElement>& placed) const {
    const BlockLevel& chosen = block.levels[level];
    if (block.kind == Block::Kind::WholeHeight || chosen.mode == RibbonElementMode::Large) {
        PlaceSideBySide(block, x, placed);
    } else if (block.kind == Block::Kind::Flow) {
        PlaceFlow(block, chosen.rows, chosen.width, x, placed);
    } else {
        PlaceStack(block, chosen, x, placed);
    }
}

void RibbonPanelLadder::PlaceSideBySide(const Block& block, int x, std::vector<RibbonPlacedElement>& placed) const {
    const int top = m_metrics.panelPaddingY;
    for (const size_t index : block.elements) {
        const RibbonElementMode mode = block.levels.front().mode;
        const int width = SizeOf(index, mode).width;
        placed[index] = {{x, top, x + width, top + m_metrics.panelContentHeight}, mode};
        x += width + m_metrics.elementGap;
    }
}

void RibbonPanelLadder::PlaceStack(const Block& block, const BlockLevel& level, int x,
                                   std::vector<RibbonPlacedElement>& placed) const {
    const RibbonElementMode mode = level.mode;
    const int columnWidth = level.width;
    int rowsUsed = 0;
    for (const size_t index : block.elements) {
        rowsUsed += RowsOf(index, ModeOf(index, mode));
    }
    int y = m_metrics.panelPaddingY;
    if (m_shape.centerColumns) {
        y += (RibbonMetrics::rowsPerPanel - rowsUsed) * m_metrics.rowHeight / 2;
    }
    for (const size_t index : block.elements) {
        const RibbonElementMode own = ModeOf(index, mode);
        const fx::Size size = SizeOf(index, own);
        const int room = RowsOf(index, own) * m_metrics.rowHeight;
        const int height = std::min(size.height, room);
        const int top = y + (room - height) / 2;
        // What narrows takes no less than the column has.
        const int width = m_shape.justifyColumns ? columnWidth : std::min(size.width, columnWidth);
        placed[index] = {{x, top, x + width, top + height}, own};
        y += room;
    }
}

void RibbonPanelLadder::PlaceFlow(const Block& block, int rows, int width, int x,
                                  std::vector<RibbonPlacedElement>& placed) const {
    std::vector<int> widths;
    for (const size_t index : block.elements) {
        widths.push_back(SizeOf(index, RibbonElementMode::Intermediate).width);
    }
    // Two rows stand apart from each other and from the edges; one row alone stays at the top like a column.
    rows = std::min(rows, RowsForWidth(widths, m_metrics.elementGap, width));
    const int spare = m_metrics.panelContentHeight - rows * m_metrics.rowHeight;
    const int gap = rows == 2 ? spare / 3 : 0;
    int top = m_metrics.panelPaddingY + gap;
    if (rows == 1 && m_shape.centerColumns) {
        top += spare / 2;
    }
    int left = x;
    for (size_t position = 0; position < block.elements.size(); ++position) {
        if (left > x && left + widths[position] > x + width) {
            left = x;
            top += m_metrics.rowHeight + gap;
        }
        const int height =
            std::min(SizeOf(block.elements[position], RibbonElementMode::Intermediate).height, m_metrics.rowHeight);
        const int y = top + (m_metrics.rowHeight - height) / 2;
        placed[block.elements[position]] = {{left, y, left + widths[position], y + height},
                                            RibbonElementMode::Intermediate};
        left += widths[position] + m_metrics.elementGap;
    }
}
