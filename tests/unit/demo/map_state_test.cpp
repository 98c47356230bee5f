#include "map_state.h"

#include <gtest/gtest.h>

namespace {

MapState MakeState() {
    MapState state;
    state.SetWindowSize(720, 360);
    return state;
}

} // namespace

TEST(MapState, FirstSizeShowsTheWholeWorld) {
    const MapState state = MakeState();
    EXPECT_DOUBLE_EQ(state.View().pixelsPerDegree, 2);
    EXPECT_DOUBLE_EQ(state.View().center.longitude, 0);
    EXPECT_FALSE(state.CanStep(-1));
}

TEST(MapState, ZoomKeepsThePlaceUnderThePointer) {
    MapState state = MakeState();
    const GeoPoint before = state.ToPlace(100, 50);
    state.Zoom(2, 100 - 360, 50 - 180);
    const GeoPoint after = state.ToPlace(100, 50);
    EXPECT_NEAR(before.longitude, after.longitude, 1e-9);
    EXPECT_NEAR(before.latitude, after.latitude, 1e-9);
}

TEST(MapState, ScaleStaysWithinItsLimits) {
    MapState state = MakeState();
    state.Zoom(1e9);
    EXPECT_DOUBLE_EQ(state.View().pixelsPerDegree, MapState::kMaxPixelsPerDegree);
    state.Zoom(1e-9);
    EXPECT_DOUBLE_EQ(state.View().pixelsPerDegree, MapState::kMinPixelsPerDegree);
}

TEST(MapState, HistoryGoesBackAndForwardAndANewViewDropsTheForwardPart) {
    MapState state = MakeState();
    state.Zoom(2);
    state.Zoom(2);
    ASSERT_TRUE(state.Step(-1));
    EXPECT_DOUBLE_EQ(state.View().pixelsPerDegree, 4);
    ASSERT_TRUE(state.Step(1));
    EXPECT_DOUBLE_EQ(state.View().pixelsPerDegree, 8);
    EXPECT_FALSE(state.Step(1));
    ASSERT_TRUE(state.Step(-1));
    state.Pan(0.25, 0);
    EXPECT_FALSE(state.CanStep(1));
}

TEST(MapState, PanMovesByAFractionOfTheWindow) {
    MapState state = MakeState();
    state.Pan(0.25, 0.1);
    EXPECT_DOUBLE_EQ(state.View().center.longitude, 90);
    EXPECT_DOUBLE_EQ(state.View().center.latitude, 18);
}

TEST(MapState, SliderPositionAndScaleAgreeBothWays) {
    MapState state = MakeState();
    for (int position = 0; position <= MapState::kSliderMax; ++position) {
        state.SetSliderPosition(position);
        EXPECT_EQ(state.SliderPosition(), position);
    }
}

TEST(MapState, DragMakesOneHistoryEntry) {
    MapState state = MakeState();
    state.Drag(10, 0);
    state.Drag(10, 0);
    state.EndDrag();
    ASSERT_TRUE(state.Step(-1));
    EXPECT_DOUBLE_EQ(state.View().center.longitude, 0);
    EXPECT_FALSE(state.CanStep(-1));
}

TEST(MapState, BookmarksGoRound) {
    MapState state = MakeState();
    EXPECT_FALSE(state.StepBookmark(1));
    state.AddBookmark();
    state.Zoom(4);
    state.AddBookmark();
    ASSERT_TRUE(state.StepBookmark(1));
    EXPECT_DOUBLE_EQ(state.View().pixelsPerDegree, 2);
    ASSERT_TRUE(state.StepBookmark(1));
    EXPECT_DOUBLE_EQ(state.View().pixelsPerDegree, 8);
}

TEST(MapState, BookmarksGoRoundTheOtherWay) {
    MapState state = MakeState();
    for (int i = 0; i < 3; ++i) {
        state.AddBookmark();
        state.Zoom(2);
    }
    ASSERT_TRUE(state.StepBookmark(-1));
    EXPECT_DOUBLE_EQ(state.View().pixelsPerDegree, 4);
    ASSERT_TRUE(state.StepBookmark(-1));
    EXPECT_DOUBLE_EQ(state.View().pixelsPerDegree, 2);
    ASSERT_TRUE(state.StepBookmark(-1));
    EXPECT_DOUBLE_EQ(state.View().pixelsPerDegree, 8);
}

TEST(MapState, ClearedBookmarksLeadNowhere) {
    MapState state = MakeState();
    state.AddBookmark();
    state.ClearBookmarks();
    EXPECT_EQ(state.BookmarkCount(), 0u);
    EXPECT_FALSE(state.StepBookmark(1));
    EXPECT_FALSE(state.StepBookmark(-1));
}

TEST(MapState, LineWidthAndNameSizeStayWithinWhatCanBeRead) {
    MapState state = MakeState();
    state.SetLineWidth(99);
    EXPECT_EQ(state.LineWidth(), MapState::kMaxLineWidth);
    state.SetLineWidth(0);
    EXPECT_EQ(state.LineWidth(), MapState::kMinLineWidth);
    state.SetNameSize(1);
    EXPECT_EQ(state.NameSize(), MapState::kMinNameSize);
    state.SetNameSize(16);
    EXPECT_EQ(state.NameSize(), 16);
}

TEST(MapState, WindowAndPlaceAreInverse) {
    MapState state = MakeState();
    state.Show({73, 15, 146, 54});
    double x = 0;
    double y = 0;
    state.ToWindow({121.47, 31.23}, x, y);
    const GeoPoint place = state.ToPlace(x, y);
    EXPECT_NEAR(place.longitude, 121.47, 1e-9);
    EXPECT_NEAR(place.latitude, 31.23, 1e-9);
}

TEST(MapState, AnEnlargedStateShowsTheSamePlaceAtTheEnlargedPosition) {
    MapState state = MakeState();
    state.Show({73, 15, 146, 54});
    const MapState enlarged = state.Enlarged(2);
    const GeoPoint place = state.ToPlace(100, 40);
    double x = 0;
    double y = 0;
    enlarged.ToWindow(place, x, y);
    EXPECT_NEAR(x, 200, 1e-6);
    EXPECT_NEAR(y, 80, 1e-6);
}

TEST(ParseNumbers, TakesWholeTextsOnly) {
    EXPECT_TRUE(ParseBox(L"73,15,146,54"));
    EXPECT_DOUBLE_EQ(ParseBox(L"-12, 34,42 ,71.5")->north, 71.5);
    EXPECT_TRUE(ParsePair(L"31.2 121.5"));
    for (const wchar_t* text : {L"", L"1", L"1,2,3", L"a,b", L"1,2x", L"1,2,", L"1;2"}) {
        EXPECT_FALSE(ParsePair(text)) << text;
    }
}

TEST(MapState, LockedLayerKeepsItsLight) {
    MapState state = MakeState();
    ASSERT_TRUE(state.IsLit(MapLayer::Coast));
    state.ToggleLock(MapLayer::Coast);
    EXPECT_FALSE(state.SetLit(MapLayer::Coast, false));
    EXPECT_TRUE(state.IsLit(MapLayer::Coast));
    EXPECT_TRUE(state.SetLit(MapLayer::Lakes, false));
    EXPECT_FALSE(state.IsLit(MapLayer::Lakes));
    state.ToggleLock(MapLayer::Coast);
    EXPECT_TRUE(state.SetLit(MapLayer::Coast, false));
    EXPECT_FALSE(state.IsLit(MapLayer::Coast));
}

TEST(MapState, LayerHasNoColorOfItsOwnUntilOneIsGiven) {
    MapState state = MakeState();
    EXPECT_FALSE(state.Color(MapLayer::Lakes).has_value());
    const unsigned version = state.Version();
    state.SetColor(MapLayer::Lakes, 0xFF123456);
    EXPECT_EQ(state.Color(MapLayer::Lakes), 0x123456u);
    EXPECT_FALSE(state.Color(MapLayer::Coast).has_value());
    EXPECT_GT(state.Version(), version);
}

TEST(MapState, ShowingWhatIsShownIsNoChange) {
    MapState state = MakeState();
    const unsigned version = state.Version();
    state.SetShown(MapLayer::Cities, true);
    EXPECT_EQ(state.Version(), version);
    state.SetShown(MapLayer::Cities, false);
    EXPECT_FALSE(state.IsShown(MapLayer::Cities));
    EXPECT_GT(state.Version(), version);
}

TEST(MapState, LightsOfTextsAreApartFromThoseOfLayers) {
    MapState state = MakeState();
    state.SetLit(MapLabel::CityNames, false);
    EXPECT_FALSE(state.IsLit(MapLabel::CityNames));
    EXPECT_TRUE(state.IsLit(MapLabel::GraticuleNumbers));
    EXPECT_TRUE(state.IsLit(MapLayer::Names));
}
TEST(MapMarks, AMarkStandsInTheMiddleOfWhatIsSeen) {
    MapState state;
    state.SetWindowSize(800, 600);
    state.CenterOn({10, 20});
    const unsigned before = state.Version();
    state.AddMark();
    ASSERT_EQ(state.Marks().size(), 1u);
    EXPECT_EQ(state.Marks()[0].longitude, 10);
    EXPECT_EQ(state.Marks()[0].latitude, 20);
    EXPECT_NE(state.Version(), before);
}

TEST(MapMarks, TheLastOneGoesFirst) {
    MapState state;
    state.SetWindowSize(800, 600);
    state.CenterOn({1, 1});
    state.AddMark();
    state.CenterOn({2, 2});
    state.AddMark();
    state.RemoveLastMark();
    ASSERT_EQ(state.Marks().size(), 1u);
    EXPECT_EQ(state.Marks()[0].longitude, 1);
    state.ClearMarks();
    EXPECT_TRUE(state.Marks().empty());
}

TEST(MapMarks, WithoutMarksNothingIsRemovedAndNothingShows) {
    MapState state;
    const unsigned before = state.Version();
    state.RemoveLastMark();
    state.ClearMarks();
    EXPECT_EQ(state.Version(), before);
}

TEST(MapModes, OnlyAnotherModeOrPageIsAChange) {
    MapState state;
    EXPECT_EQ(state.Mode(), MapMode::Browse);
    const unsigned before = state.Version();
    state.SetMode(MapMode::Browse);
    state.SetPage(state.Page());
    EXPECT_EQ(state.Version(), before);
    state.SetMode(MapMode::Print);
    state.SetPage(PageShape::Portrait);
    EXPECT_EQ(state.Version(), before + 2);
}

TEST(MapPage, TheSheetIsAsLargeAsTheWindowAllowsAndStandsInTheMiddle) {
    for (const PageShape shape : {PageShape::Portrait, PageShape::Landscape}) {
        for (const auto& [width, height] : {std::pair{1200, 600}, std::pair{300, 900}, std::pair{37, 41}}) {
            MapState state;
            state.SetWindowSize(width, height);
            state.SetPage(shape);
            const WindowBox page = state.PageBox();
            const int right = width - page.right;
            const int bottom = height - page.bottom;
            EXPECT_NEAR(page.left, right, 1);
            EXPECT_NEAR(page.top, bottom, 1);
            EXPECT_GT(page.left, 0);
            EXPECT_GT(page.top, 0);
            const double ratio = static_cast<double>(page.right - page.left) / (page.bottom - page.top);
            EXPECT_NEAR(ratio, shape == PageShape::Portrait ? 210.0 / 297 : 297.0 / 210, 0.08);
            EXPECT_TRUE(page.left <= width * 0.04 + 1 || page.top <= height * 0.04 + 1) << "it could be larger";
        }
    }
}

TEST(MapPage, AWindowWithoutRoomHasAnEmptyPage) {
    const WindowBox page = MapState().PageBox();
    EXPECT_EQ(page.right - page.left, 0);
    EXPECT_EQ(page.bottom - page.top, 0);
}

TEST(MapPage, TextsKeepToThePageWhileOneIsChosen) {
    MapState state;
    state.SetWindowSize(1200, 600);
    const WindowBox all = state.WrittenBox();
    EXPECT_EQ(std::tuple(all.left, all.top, all.right, all.bottom), std::tuple(0, 0, 1200, 600));
    state.SetMode(MapMode::Print);
    const WindowBox page = state.PageBox(), written = state.WrittenBox();
    EXPECT_EQ(std::tuple(written.left, written.top, written.right, written.bottom),
              std::tuple(page.left, page.top, page.right, page.bottom));
}

TEST(MapPage, OnItsOwnIsAMapThatShowsTheSamePlaces) {
    for (const int fineness : {1, 2}) {
        MapState state;
        state.SetWindowSize(1200, 600);
        state.SetMode(MapMode::Print);
        state.CenterOn({20, 45});
        const WindowBox box = state.PageBox();
        const MapState page = state.OfPage(fineness);
        EXPECT_EQ(page.WindowWidth(), fineness * (box.right - box.left));
        EXPECT_EQ(page.WindowHeight(), fineness * (box.bottom - box.top));
        EXPECT_EQ(page.WrittenBox().right, page.WindowWidth()) << "it is written on all over";
        const double pixel = 1 / state.View().pixelsPerDegree;
        const GeoPoint corner = page.ToPlace(0, 0), seen = state.ToPlace(box.left, box.top);
        EXPECT_NEAR(corner.longitude, seen.longitude, pixel);
        EXPECT_NEAR(corner.latitude, seen.latitude, pixel);
        const GeoPoint end = page.ToPlace(page.WindowWidth(), page.WindowHeight());
        const GeoPoint seenEnd = state.ToPlace(box.right, box.bottom);
        EXPECT_NEAR(end.longitude, seenEnd.longitude, pixel);
        EXPECT_NEAR(end.latitude, seenEnd.latitude, pixel);
    }
}

TEST(MapPage, OnItsOwnShowsNothingOfTheWorkingMode) {
    MapState state;
    state.SetWindowSize(1200, 600);
    state.SetMode(MapMode::Edit);
    state.AddMark();
    EXPECT_EQ(state.OfPage(1).Mode(), MapMode::Browse);
    EXPECT_EQ(state.OfPage(1).Marks().size(), 1u);
}

TEST(MapPalette, FollowsTheSkinUntilTheUserChoosesOne) {
    MapState state;
    EXPECT_EQ(state.Palette(), MapPalette::Natural);
    state.SetSkinPalette(MapPalette::Night);
    EXPECT_EQ(state.Palette(), MapPalette::Night);
    state.SetPalette(MapPalette::Plain);
    state.SetSkinPalette(MapPalette::Natural);
    EXPECT_EQ(state.Palette(), MapPalette::Plain);
    state.SetPalette(std::nullopt);
    EXPECT_EQ(state.Palette(), MapPalette::Natural);
}

TEST(MapPalette, OnlyAnotherOneIsDrawnAnew) {
    MapState state;
    state.SetPalette(MapPalette::Natural);
    const unsigned version = state.Version();
    state.SetSkinPalette(MapPalette::Night);
    state.SetPalette(MapPalette::Natural);
    EXPECT_EQ(state.Version(), version);
    state.SetPalette(std::nullopt);
    EXPECT_GT(state.Version(), version);
}

TEST(MapPalette, OfAPageIsTheSkinsOnlyWhereTheUserChoseIt) {
    MapState state;
    state.SetWindowSize(1200, 600);
    state.SetSkinPalette(MapPalette::Night);
    EXPECT_EQ(state.OfPage(1).Palette(), MapPalette::Natural);
    state.SetMode(MapMode::Print);
    EXPECT_EQ(state.Palette(), MapPalette::Natural) << "what is seen is what is printed";
    state.SetPalette(MapPalette::Night);
    EXPECT_EQ(state.Palette(), MapPalette::Night);
    EXPECT_EQ(state.OfPage(1).Palette(), MapPalette::Night);
}
