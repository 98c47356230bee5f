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

TEST(MapStandIn, PictureOfTheSameViewStandsWhereItIs) {
    const MapState state = StateOf(800, 400, 10);
    const MapStandIn plan = PlanStandIn(state, state);
    EXPECT_EQ(plan.source, (fx::Rect{0, 0, 800, 400}));
    EXPECT_EQ(plan.target, (fx::Rect{0, 0, 800, 400}));
}

TEST(MapStandIn, DraggedMapIsThePictureShifted) {
    const MapState drawn = StateOf(800, 400, 10);
    MapState shown = drawn;
    shown.Drag(30, -20); // the view goes east and south, the picture west and north
    const MapStandIn plan = PlanStandIn(drawn, shown);
    EXPECT_EQ(plan.source, (fx::Rect{30, 20, 800, 400}));
    EXPECT_EQ(plan.target, (fx::Rect{0, 0, 770, 380}));
}

TEST(MapStandIn, ZoomedMapIsTheMiddleOfThePictureEnlarged) {
    const MapState drawn = StateOf(800, 400, 10);
    MapState shown = drawn;
    shown.Zoom(2);
    const MapStandIn plan = PlanStandIn(drawn, shown);
    EXPECT_EQ(plan.source, (fx::Rect{200, 100, 600, 300}));
    EXPECT_EQ(plan.target, (fx::Rect{0, 0, 800, 400}));
}

TEST(MapStandIn, MapZoomedOutLeavesRoomAroundThePicture) {
    const MapState drawn = StateOf(800, 400, 10);
    MapState shown = drawn;
    shown.Zoom(0.5);
    const MapStandIn plan = PlanStandIn(drawn, shown);
    EXPECT_EQ(plan.source, (fx::Rect{0, 0, 800, 400}));
    EXPECT_EQ(plan.target, (fx::Rect{200, 100, 600, 300}));
}

TEST(MapStandIn, PictureStaysInTheMiddleOfALargerWindow) {
    const MapState drawn = StateOf(800, 400, 10);
    MapState shown = drawn;
    shown.SetWindowSize(1000, 500);
    const MapStandIn plan = PlanStandIn(drawn, shown);
    EXPECT_EQ(plan.source, (fx::Rect{0, 0, 800, 400}));
    EXPECT_EQ(plan.target, (fx::Rect{100, 50, 900, 450}));
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
