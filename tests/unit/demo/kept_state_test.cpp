#include "kept_state.h"

#include <gtest/gtest.h>

namespace {

/// A state in which nothing is as at first.
MapState ChangedMap() {
    MapState map;
    map.SetWindowSize(800, 400);
    map.CenterOn({116.25, 39.5});
    map.SetScale(24);
    map.AddBookmark();
    map.AddMark();
    map.SetShown(MapLayer::Lakes, false);
    map.SetColor(MapLayer::Coast, 0x12AB34);
    map.SetLit(MapLayer::Cities, false);
    map.ToggleLock(MapLayer::Cities);
    map.SetLit(MapLabel::CityNames, false);
    map.SetPalette(MapPalette::Night);
    map.SetGraticuleSpacing(30);
    map.ToggleSmooth();
    map.SetLineWidth(3);
    map.SetNameSize(16);
    map.SetPage(PageShape::Portrait);
    return map;
}

KeptViewer ChangedViewer() {
    KeptViewer viewer;
    viewer.language = L"zh-CN";
    viewer.skin = L"black";
    viewer.iconStyle = L"1";
    viewer.window = KeptWindow{{-1200, 30, 80, 900}, true};
    viewer.showsClassicBars = true;
    viewer.startMode = L"print";
    viewer.scalePercent = 150;
    viewer.hiddenToolbars = {L"\u5730\u56FE", L"Map"};
    viewer.openedFiles = {L"C:\\maps\\\u5730.geojson", L"D:\\a.json"};
    return viewer;
}

/// The kept text with one piece of it replaced.
std::string With(std::string text, const std::string& piece, const std::string& other) {
    const std::size_t at = text.find(piece);
    EXPECT_NE(at, std::string::npos) << piece;
    return text.replace(at, piece.size(), other);
}

} // namespace

TEST(KeptState, AllOfItComesBack) {
    const std::string text = WriteKept(ChangedViewer(), ChangedMap());
    KeptViewer viewer;
    MapState map;
    const auto unusable = ReadKept(text, viewer, map);
    ASSERT_TRUE(unusable);
    EXPECT_TRUE(unusable->empty());
    EXPECT_EQ(WriteKept(viewer, map), text);
    EXPECT_EQ(viewer.hiddenToolbars, ChangedViewer().hiddenToolbars);
    EXPECT_EQ(viewer.openedFiles, ChangedViewer().openedFiles);
}

TEST(KeptState, AFirstStartComesBackAsSuch) {
    KeptViewer viewer;
    MapState map;
    const std::string text = WriteKept(viewer, map);
    ASSERT_TRUE(ReadKept(text, viewer, map));
    EXPECT_FALSE(viewer.window);
    EXPECT_FALSE(viewer.iconStyle);
    EXPECT_FALSE(map.Color(MapLayer::Coast));
    EXPECT_FALSE(map.ChosenPalette());
}

TEST(KeptState, TheKeptViewIsShownInsteadOfTheWorldAndTheHistoryBeginsThere) {
    KeptViewer viewer;
    MapState map;
    ASSERT_TRUE(ReadKept(WriteKept(viewer, ChangedMap()), viewer, map));
    map.SetWindowSize(1000, 700);
    EXPECT_DOUBLE_EQ(map.View().center.longitude, 116.25);
    EXPECT_DOUBLE_EQ(map.View().pixelsPerDegree, 24);
    EXPECT_FALSE(map.CanStep(-1));
}

TEST(KeptState, AnUnusableEntryIsNamedAndAllOthersAreTaken) {
    struct Damage {
        const char* piece;
        const char* other;
        const char* name;
    };
    const Damage damages[] = {
        {R"("language": "zh-CN")", R"("language": 7)", "language"},
        {R"("skin": "black")", R"("skin": null)", "skin"},
        {R"("classicBars": true)", R"("classicBars": "yes")", "classicBars"},
        {R"("startMode": "print")", R"("startMode": "dream")", "startMode"},
        {R"("scale": 150)", R"("scale": 20)", "scale"},
        {"-1200", "1e9", "window"},
        {"-1200", "100", "window"}, // its left side right of its right one
        {R"("hiddenToolbars": [)", R"("hiddenToolbars": [1,)", "hiddenToolbars"},
        {R"("openedFiles": [)", R"("openedFiles": [{},)", "openedFiles"},
        {"116.25", "1e300", "map.view"},
        {R"("palette": "night")", R"("palette": "pink")", "map.palette"},
        {R"("smooth": false)", R"("smooth": [])", "map.smooth"},
        {R"("cityNames": false)", R"("cityNames": 0)", "map.labels.cityNames"},
        {"#12ab34", "#12ab3g", "map.layers.coast"},
        {"#12ab34", "red", "map.layers.coast"},
        {R"("spacing": 30)", R"("spacing": 30.5)", "map.spacing"},
    };
    const std::string whole = WriteKept(ChangedViewer(), ChangedMap());
    for (const Damage& damage : damages) {
        KeptViewer viewer;
        MapState map;
        const auto unusable = ReadKept(With(whole, damage.piece, damage.other), viewer, map);
        ASSERT_TRUE(unusable) << damage.name;
        EXPECT_EQ(*unusable, std::vector<std::string>{damage.name});
        EXPECT_EQ(map.NameSize(), 16) << damage.name;
        EXPECT_EQ(map.Marks().size(), 1U) << damage.name;
    }
}

TEST(KeptState, UnknownEntriesAreLeftToLaterVersions) {
    KeptViewer viewer;
    MapState map;
    const auto unusable = ReadKept(R"({"version": 1, "weather": {"rain": true}, "map": {"clouds": 3}})", viewer, map);
    ASSERT_TRUE(unusable);
    EXPECT_TRUE(unusable->empty());
}

TEST(KeptState, WhatIsNoSuchFileChangesNothing) {
    const std::string whole = WriteKept(ChangedViewer(), ChangedMap());
    KeptViewer viewer;
    MapState map;
    const std::string first = WriteKept(viewer, map);
    for (const std::string& text : {std::string(), std::string("{}"), std::string("[1]"), whole.substr(0, 200),
                                    With(whole, "\"version\": 1", "\"version\": 2"), std::string(50, '\0')}) {
        EXPECT_FALSE(ReadKept(text, viewer, map)) << text;
        EXPECT_EQ(WriteKept(viewer, map), first) << text;
    }
}
