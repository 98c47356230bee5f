#pragma once

#include <limits>
#include <span>
#include <vector>

#include "ribbon/geometry.h"
#include "ribbon/metrics.h"

/// How large an element shows itself. An element without size modes is always Intermediate.
enum class RibbonElementMode { Large, Intermediate, Compact };

/// How an element takes its place in a panel.
enum class RibbonElementFlow {
    Column,      // stacked with its neighbours, or as high as the panel in its large mode
    Row,         // side by side with its neighbours in two or three rows, like groups
    WholeHeight, // as high as the panel, in one size only
    Hidden       // no place at all
};

/// What the layout knows of one element.
struct RibbonElementShape {
    RibbonElementFlow flow = RibbonElementFlow::Column;
    bool hasLarge = false;
    bool hasIntermediate = true;
    bool hasCompact = false;
    fx::Size large;
    fx::Size intermediate;
    fx::Size compact;
    int narrowest = 0; // width that the intermediate size may give way to, like an edit's; 0: none
};

/// What the layout knows of one panel.
struct RibbonPanelShape {
    std::vector<RibbonElementShape> elements;
    int captionWidth = 0;   // of the text alone
    int collapsedWidth = 0; // of the button that stands for the panel; 0: the panel does not collapse
    bool hasLaunchButton = false;
    bool centerColumns = false;
    bool justifyColumns = false;
};

struct RibbonPlacedElement {
    fx::Rect rect; // in the panel, whose top left corner is 0, 0; empty: not shown
    RibbonElementMode mode = RibbonElementMode::Intermediate;
};

struct RibbonPanelArrangement {
    int width = 0;
    int height = 0;
    bool collapsed = false;
    fx::Rect caption;                          // empty when collapsed
    fx::Rect launchButton;                     // at the caption's end; empty when there is none
    std::vector<RibbonPlacedElement> elements; // one for each element of the shape
};

/// The ways in which one panel can give up width, from its full width to its collapsed button. Which of them are
/// taken depends on the category; their order does not.
class RibbonPanelLadder {
public:
    enum class Phase { Intermediate, Narrow, Compact, Collapsed };
    struct Step {
        Phase phase;
        int width; // of the whole panel after this step
    };

    RibbonPanelLadder(const RibbonPanelShape& shape, const RibbonMetrics& metrics);

    int FullWidth() const { return m_fullWidth; }
    /// Each step is narrower than the one before it; the collapsed button by so much that it is worth the click.
    const std::vector<Step>& Steps() const { return m_steps; }

    /// Places the elements as they are after the first stepCount steps. A panel that is wider than the room collapses
    /// nevertheless, and its button is cut to the room.
    RibbonPanelArrangement Arrange(int stepCount, int room = std::numeric_limits<int>::max()) const;

private:
    // Elements that reduce together: some neighbours of one column, of one flow, or one element.
    struct BlockLevel {
        RibbonPanelLadder::Phase phase; // in which the level is reached; unused for the first level
        RibbonElementMode mode;
        int rows; // of a flow
        int width;
        int narrowing = 0; // how many of the stages its elements have been narrowed by that can be
    };
    struct Block {
        enum class Kind { Stack, Flow, WholeHeight } kind;
        std::vector<size_t> elements; // positions in the shape, hidden ones left out
        std::vector<BlockLevel> levels;
    };

    void MakeBlocks();
    size_t AddLargeRun(size_t first);
    size_t AddStack(size_t first);
    size_t AddFlow(size_t first);
    void AddWholeHeight(size_t index);
    void MakeSteps();
    int PanelWidth(int contentWidth) const;
    fx::Rect PlaceLaunchButton(const fx::Rect& caption) const;
    int StackWidth(const Block& block, RibbonElementMode mode, int narrowing = 0) const;
    int FlowWidth(const Block& block, int rows) const;
    void PlaceBlock(const Block& block, size_t level, int x, std::vector<RibbonPlacedElement>& placed) const;
    void PlaceSideBySide(const Block& block, int x, std::vector<RibbonPlacedElement>& placed) const;
    void PlaceStack(const Block& block, const BlockLevel& level, int x, std::vector<RibbonPlacedElement>& placed) const;
    void PlaceFlow(const Block& block, int rows, int width, int x, std::vector<RibbonPlacedElement>& placed) const;
    RibbonElementMode ModeOf(size_t index, RibbonElementMode wanted) const;
    fx::Size SizeOf(size_t index, RibbonElementMode mode) const;
    int NarrowedWidth(size_t index, RibbonElementMode mode, int narrowing) const;
    int RowsOf(size_t index, RibbonElementMode mode) const;

    RibbonPanelShape m_shape;
    RibbonMetrics m_metrics;
    std::vector<Block> m_blocks;
    std::vector<Step> m_steps;
    std::vector<size_t> m_stepBlocks; // which block each step reduces; the collapsing step has none
    int m_fullWidth = 0;
};

/// Where the panels of a category lie. Rectangles start at 0, 0, the top left corner of the category.
struct RibbonCategoryArrangement {
    struct Panel {
        fx::Rect rect; // empty: scrolled out of view
        int stepCount = 0;
    };
    std::vector<Panel> panels;
    bool scrolls = false;
    int firstPanel = 0; // the leftmost panel in view; it has a place however wide it is
    bool canScrollLeft = false;
    bool canScrollRight = false;
    fx::Rect scrollLeft; // empty unless it can scroll there
    fx::Rect scrollRight;
};

/// Fits the panels into width: first larger elements become intermediate, panel by panel from the right, then edits
/// and sliders narrow, then elements become compact, then panels collapse, the one that gives up most first, so that
/// none is collapsed that there is room for; what does not fit even then scrolls by whole panels, from firstPanel on.
/// collapseOrder names panels that give up a whole phase before the others, narrowing with the one after it; it may
/// name a panel several times.
RibbonCategoryArrangement ArrangeCategory(std::span<const RibbonPanelLadder> panels, const RibbonMetrics& metrics,
                                          int width, std::span<const int> collapseOrder = {}, int firstPanel = 0);
