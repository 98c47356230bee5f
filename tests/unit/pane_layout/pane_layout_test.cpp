#include "panes/pane_layout.h"

#include <gtest/gtest.h>

#include <ostream>

using panes::LayOutPanes;
using panes::PaneRequest;
using panes::Side;

void PrintTo(const RECT& rect, std::ostream* out) {
    *out << '[' << rect.left << ", " << rect.top << ", " << rect.right << ", " << rect.bottom << ']';
}

bool operator==(const RECT& first, const RECT& second) { return ::EqualRect(&first, &second); }

namespace {

constexpr RECT area{10, 20, 210, 120}; // 200 x 100
constexpr LONG wholeLength = 32767;

PaneRequest Strip(Side side, LONG thickness) {
    const bool isHorizontal = side == Side::Top || side == Side::Bottom;
    return {side, isHorizontal ? SIZE{wholeLength, thickness} : SIZE{thickness, wholeLength}, true};
}

TEST(PaneLayout, WithoutPanesTheRestIsTheWholeArea) { EXPECT_EQ(LayOutPanes(area, {}).rest, area); }

TEST(PaneLayout, EachSideTakesItsStripAndTheRestStaysInTheMiddle) {
    const auto layout =
        LayOutPanes(area, {Strip(Side::Left, 7), Strip(Side::Top, 10), Strip(Side::Right, 9), Strip(Side::Bottom, 20)});
    EXPECT_EQ(layout.panes[1], (RECT{10, 20, 210, 30}));
    EXPECT_EQ(layout.panes[3], (RECT{10, 100, 210, 120}));
    EXPECT_EQ(layout.panes[0], (RECT{10, 30, 17, 100}));
    EXPECT_EQ(layout.panes[2], (RECT{201, 30, 210, 100}));
    EXPECT_EQ(layout.rest, (RECT{17, 30, 201, 100}));
}

TEST(PaneLayout, PanesOfOneSideStandFromTheEdgeInwards) {
    const auto layout = LayOutPanes(area, {Strip(Side::Bottom, 5), Strip(Side::Bottom, 6)});
    EXPECT_EQ(layout.panes[0], (RECT{10, 115, 210, 120}));
    EXPECT_EQ(layout.panes[1], (RECT{10, 109, 210, 115}));
}

TEST(PaneLayout, PanesThatShareStandSideBySideAndTheLastFillsTheRow) {
    const auto layout = LayOutPanes(area, {{Side::Top, {60, 10}, false}, {Side::Top, {70, 14}, false}});
    EXPECT_EQ(layout.panes[0], (RECT{10, 20, 70, 34}));
    EXPECT_EQ(layout.panes[1], (RECT{70, 20, 210, 34}));
    EXPECT_EQ(layout.rest.top, 34);
}

TEST(PaneLayout, APaneThatDoesNotFitBeginsANewRow) {
    const auto layout =
        LayOutPanes(area, {{Side::Top, {120, 10}, false}, {Side::Top, {80, 10}, false}, {Side::Top, {1, 10}, false}});
    EXPECT_EQ(layout.panes[1], (RECT{130, 20, 210, 30})) << "exactly fitting stays";
    EXPECT_EQ(layout.panes[2], (RECT{10, 30, 210, 40}));
}

TEST(PaneLayout, AWholeRowIsSharedWithNobodyBeforeOrBehind) {
    const auto layout =
        LayOutPanes(area, {{Side::Top, {20, 10}, false}, Strip(Side::Top, 8), {Side::Top, {20, 10}, false}});
    EXPECT_EQ(layout.panes[0], (RECT{10, 20, 210, 30}));
    EXPECT_EQ(layout.panes[1], (RECT{10, 30, 210, 38}));
    EXPECT_EQ(layout.panes[2], (RECT{10, 38, 210, 48}));
}

TEST(PaneLayout, RowsAtTheLeftRunDownwards) {
    const auto layout = LayOutPanes(area, {{Side::Left, {12, 40}, false}, {Side::Left, {10, 30}, false}});
    EXPECT_EQ(layout.panes[0], (RECT{10, 20, 22, 60}));
    EXPECT_EQ(layout.panes[1], (RECT{10, 60, 22, 120}));
}

TEST(PaneLayout, WithoutRoomNothingBecomesNegative) {
    const auto layout = LayOutPanes(area, {Strip(Side::Top, 90), Strip(Side::Bottom, 30), Strip(Side::Left, 500)});
    EXPECT_EQ(layout.panes[1], (RECT{10, 110, 210, 120}));
    EXPECT_EQ(layout.panes[2], (RECT{10, 110, 210, 110}));
    EXPECT_EQ(layout.rest, (RECT{210, 110, 210, 110}));
}

TEST(PaneLayout, AlignmentBitsNameTheirSideAndNoBitIsTheTop) {
    EXPECT_EQ(frame_bars::SideOfAlignment(0x1000), Side::Left);
    EXPECT_EQ(frame_bars::SideOfAlignment(0x2000), Side::Top);
    EXPECT_EQ(frame_bars::SideOfAlignment(0x4000), Side::Right);
    EXPECT_EQ(frame_bars::SideOfAlignment(0x8000), Side::Bottom);
    EXPECT_EQ(frame_bars::SideOfAlignment(0), Side::Top);
}

} // namespace
