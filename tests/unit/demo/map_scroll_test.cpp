// The map and the list as things to scroll.
#include "layer_rows.h"
#include "map_scroll.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

/// A window of 400 x 300 pixels on a world of 1440 x 720.
MapState State(double pixelsPerDegree = 4) {
    MapState state;
    state.SetWindowSize(400, 300);
    state.SetScale(pixelsPerDegree);
    state.CenterOn({0, 0});
    return state;
}

TEST(MapScroll, IsAsLongAsTheMapAndHasAStepForEachTwelvePixelsThatAreNotSeen) {
    const MapScroll across = ScrollOf(State(), MapAxis::Across);
    EXPECT_EQ(across.length, 1440);
    EXPECT_EQ(across.limit, static_cast<int>(std::ceil((1440 - 400) / 12.0)));
    const MapScroll down = ScrollOf(State(), MapAxis::Down);
    EXPECT_EQ(down.length, 720);
    EXPECT_EQ(down.limit, 35);
    EXPECT_EQ(down.position, 18) << "half of the 420 hidden pixels";
}

TEST(MapScroll, AMapThatIsSeenWholeHasNothingToScroll) {
    EXPECT_EQ(ScrollOf(State(1), MapAxis::Across).limit, 0);
    MapState state = State(1);
    ScrollBy(state, MapAxis::Across, 5);
    EXPECT_EQ(state.View().center.longitude, 0);
}

TEST(MapScroll, AMapThatFillsItsWindowToTheLastDigitHasNothingToScrollAndNoBars) {
    for (int height = 180; height < 1500; ++height) {
        for (const int width : {2 * height, 2 * height + 31, 2 * height - 1}) {
            MapState state;
            state.SetWindowSize(width, height);
            if (state.View().pixelsPerDegree <= MapState::kMinPixelsPerDegree) {
                continue; // it does not become any smaller
            }
            ASSERT_EQ(ScrollOf(state, MapAxis::Across).limit, 0) << width << " x " << height;
            ASSERT_EQ(ScrollOf(state, MapAxis::Down).limit, 0) << width << " x " << height;
            ASSERT_EQ(BarsFor(state.View(), width, height, 20), MapBars()) << width << " x " << height;
        }
    }
}

TEST(MapScroll, AStepToTheEastAndToTheSouthMovesTheViewThere) {
    MapState state = State();
    const MapScroll before = ScrollOf(state, MapAxis::Across);
    ScrollBy(state, MapAxis::Across, 3);
    EXPECT_EQ(ScrollOf(state, MapAxis::Across).position, before.position + 3);
    EXPECT_GT(state.View().center.longitude, 0);
    EXPECT_EQ(state.View().center.latitude, 0);
    ScrollBy(state, MapAxis::Down, 3);
    EXPECT_LT(state.View().center.latitude, 0);
}

TEST(MapScroll, ItEndsWhereTheMapDoes) {
    for (const MapAxis axis : {MapAxis::Across, MapAxis::Down}) {
        MapState state = State();
        ScrollBy(state, axis, 100000);
        const MapScroll end = ScrollOf(state, axis);
        EXPECT_EQ(end.position, end.limit);
        ScrollBy(state, axis, -100000);
        EXPECT_EQ(ScrollOf(state, axis).position, 0);
    }
    MapState state = State();
    ScrollBy(state, MapAxis::Across, 100000);
    EXPECT_DOUBLE_EQ(state.View().center.longitude, 180 - 50) << "the eastern edge lies at the window's";
    ScrollBy(state, MapAxis::Down, 100000);
    EXPECT_DOUBLE_EQ(state.View().center.latitude, -90 + 37.5);
}

TEST(MapScroll, AViewBeyondTheEdgeStandsAtTheEnd) {
    MapState state = State();
    state.CenterOn({-180, 90});
    EXPECT_EQ(ScrollOf(state, MapAxis::Across).position, 0);
    EXPECT_EQ(ScrollOf(state, MapAxis::Down).position, 0);
    ScrollBy(state, MapAxis::Across, -1);
    EXPECT_EQ(state.View().center.longitude, -180) << "there is no step";
}

TEST(MapScroll, MakesNoEntryInTheHistoryUntilTheDragEnds) {
    MapState state = State();
    state.ShowWorld();
    state.SetScale(4);
    ScrollBy(state, MapAxis::Across, 5);
    const double scrolled = state.View().center.longitude;
    state.EndDrag();
    ASSERT_TRUE(state.Step(-1));
    EXPECT_NE(state.View().center.longitude, scrolled);
    ASSERT_TRUE(state.Step(1));
    EXPECT_EQ(state.View().center.longitude, scrolled);
}

MapData ThreeCities() {
    MapData data;
    data.cities = {
        {{1, 2}, 1, L"Paris", L"\u5DF4\u9ECE"}, {{3, 4}, 1, L"Accra", L""}, {{5, 6}, 1, L"London", L"\u4F26"}};
    return data;
}

bool IsBefore(const std::wstring& a, const std::wstring& b) { return a < b; }

TEST(MapBars, OnlyAMapThatIsLargerThanItsPlaceHasThem) {
    const MapView view{{0, 0}, 2}; // 720 x 360 pixels
    constexpr int breadth = 20;
    EXPECT_EQ(BarsFor(view, 720, 360, breadth), (MapBars{false, false}));
    EXPECT_EQ(BarsFor(view, 740, 359, breadth), (MapBars{true, false}));
    EXPECT_EQ(BarsFor(view, 719, 380, breadth), (MapBars{false, true}));
    EXPECT_EQ(BarsFor(view, 100, 100, breadth), (MapBars{true, true}));
}

TEST(MapBars, OneBarTakesTheRoomThatMakesTheOtherOneNecessary) {
    const MapView view{{0, 0}, 2};
    EXPECT_EQ(BarsFor(view, 739, 359, 20), (MapBars{true, true}));
    EXPECT_EQ(BarsFor(view, 719, 379, 20), (MapBars{true, true}));
}

TEST(LayerRows, AreTheLayersInTheirOrderAndTheCitiesInThatOfTheirNames) {
    const auto rows = MakeLayerRows(ThreeCities(), {L"Layers", L"Cities", {L"Relief", L"Coast"}, false}, IsBefore);
    std::vector<std::wstring> texts;
    for (const LayerRow& row : rows) {
        texts.push_back(row.text);
    }
    EXPECT_EQ(texts,
              (std::vector<std::wstring>{L"Layers", L"Relief", L"Coast", L"Cities", L"Accra", L"London", L"Paris"}));
    EXPECT_EQ(rows[4].index, 1) << "of the data";
    EXPECT_FALSE(rows[0].IsChoosable());
    EXPECT_TRUE(rows[2].IsChoosable());
}

TEST(LayerRows, ACityWithoutAChineseNameKeepsItsOwn) {
    const auto rows = MakeLayerRows(ThreeCities(), {L"L", L"C", {}, true}, IsBefore);
    ASSERT_EQ(rows.size(), 5U);
    EXPECT_EQ(rows[2].text, L"Accra");
    EXPECT_EQ(rows[3].text, L"\u4F26");
}

TEST(LayerRows, WithoutCitiesThereIsNoHeadingForThem) {
    EXPECT_EQ(MakeLayerRows({}, {L"L", L"C", {L"Relief"}, false}, IsBefore).size(), 2U);
}

TEST(LayerRows, KeysPassOverHeadingsAndStopAtTheEnds) {
    const auto rows = MakeLayerRows(ThreeCities(), {L"L", L"C", {L"Relief"}, false}, IsBefore);
    EXPECT_EQ(NextChoosableRow(rows, -1, 1), 1);
    EXPECT_EQ(NextChoosableRow(rows, 1, 1), 3);
    EXPECT_EQ(NextChoosableRow(rows, 3, -1), 1);
    EXPECT_EQ(NextChoosableRow(rows, 1, -1), 1);
    EXPECT_EQ(NextChoosableRow(rows, 5, 1), 5);
}

TEST(LayerRows, ARowOutOfSightIsBroughtInByTheShortestWay) {
    EXPECT_EQ(FirstRowToShow(3, 5, 4), 3);
    EXPECT_EQ(FirstRowToShow(6, 5, 4), 5);
    EXPECT_EQ(FirstRowToShow(12, 5, 4), 9);
    EXPECT_EQ(FirstRowToShow(0, 0, 0), 0);
}

} // namespace
