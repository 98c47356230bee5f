#include "map_stand_in.h"

#include <gtest/gtest.h>

namespace {

MapState StateOf(int width, int height, double pixelsPerDegree) {
    MapState state;
    state.SetWindowSize(width, height);
    state.SetScale(pixelsPerDegree);
    return state;
}

} // namespace

TEST(MapStandIn, ThePictureStandsWhereTheNewViewShowsIt) {
    struct Case {
        const char* what;
        void (*change)(MapState& shown);
        fx::Rect source;
        fx::Rect target;
    };
    const Case cases[] = {
        {"the same view: where it is", [](MapState&) {}, {0, 0, 800, 400}, {0, 0, 800, 400}},
        {"dragged: shifted, for the view goes east and south and the picture west and north",
         [](MapState& shown) { shown.Drag(30, -20); },
         {30, 20, 800, 400},
         {0, 0, 770, 380}},
        {"zoomed: the middle of it, enlarged",
         [](MapState& shown) { shown.Zoom(2); },
         {200, 100, 600, 300},
         {0, 0, 800, 400}},
        {"zoomed out: with room around it",
         [](MapState& shown) { shown.Zoom(0.5); },
         {0, 0, 800, 400},
         {200, 100, 600, 300}},
        {"a larger window: in its middle",
         [](MapState& shown) { shown.SetWindowSize(1000, 500); },
         {0, 0, 800, 400},
         {100, 50, 900, 450}},
    };
    for (const Case& one : cases) {
        const MapState drawn = StateOf(800, 400, 10);
        MapState shown = drawn;
        one.change(shown);
        const MapStandIn plan = PlanStandIn(drawn, shown);
        EXPECT_EQ(plan.source, one.source) << one.what;
        EXPECT_EQ(plan.target, one.target) << one.what;
    }
}

TEST(MapStandIn, WholePixelsOfThePictureCoverTheWindowUpToItsEdges) {
    const MapState drawn = StateOf(801, 401, 3);
    MapState shown = drawn;
    shown.SetScale(100);
    const MapStandIn plan = PlanStandIn(drawn, shown);
    EXPECT_LE(plan.target.left, 0);
    EXPECT_LE(plan.target.top, 0);
    EXPECT_GE(plan.target.right, 801);
    EXPECT_GE(plan.target.bottom, 401);
    EXPECT_GT(plan.target.left, -40) << "no more than the window needs";
    EXPECT_LT(plan.target.right, 841);
    const double factor = 100.0 / 3;
    EXPECT_NEAR(plan.target.right - plan.target.left, (plan.source.right - plan.source.left) * factor, 1);
}

TEST(MapStandIn, NothingOfThePictureIsSeenFarAway) {
    MapState drawn = StateOf(400, 200, 60);
    drawn.CenterOn({-120, 40});
    MapState shown = drawn;
    shown.CenterOn({120, -40});
    const MapStandIn plan = PlanStandIn(drawn, shown);
    EXPECT_TRUE(plan.source.IsEmpty());
    EXPECT_TRUE(plan.target.IsEmpty());
}
