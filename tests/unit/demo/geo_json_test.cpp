#include "geo_json.h"
#include "tests/support/temporary_directory.h"

#include <gtest/gtest.h>

#include <random>

namespace {

std::shared_ptr<const GeoFeatures> Read(const std::string& text) {
    const GeoJsonResult result = ReadGeoJson(text);
    EXPECT_EQ(result.error, GeoJsonError::None) << text;
    return result.features ? result.features : std::make_shared<const GeoFeatures>();
}

GeoJsonError ErrorOf(const std::string& text) {
    const GeoJsonResult result = ReadGeoJson(text);
    EXPECT_EQ(result.features == nullptr, result.error != GeoJsonError::None);
    return result.error;
}

std::string Geometry(const std::string& type, const std::string& coordinates) {
    return R"({"type":")" + type + R"(","coordinates":)" + coordinates + "}";
}

TEST(GeoJson, ReadsPlacesWithTheirNames) {
    const auto features = Read(R"({"type":"FeatureCollection","features":[
            {"type":"Feature","properties":{"Name":"Z\u00fcrich"},"geometry":{"type":"Point","coordinates":[8.54,47.37,400]}},
            {"type":"Feature","properties":null,"geometry":{"type":"MultiPoint","coordinates":[[1,2],[3,4]]}},
            {"type":"Feature","properties":{},"geometry":null}]})");
    ASSERT_EQ(features->places.size(), 3u);
    EXPECT_EQ(features->places[0].name, L"Z\u00fcrich");
    EXPECT_DOUBLE_EQ(features->places[0].place.longitude, 8.54);
    EXPECT_DOUBLE_EQ(features->places[0].place.latitude, 47.37);
    EXPECT_EQ(features->places[1].name, L"");
    EXPECT_DOUBLE_EQ(features->box.west, 1);
    EXPECT_DOUBLE_EQ(features->box.north, 47.37);
}

TEST(GeoJson, ReadsLinesAndAreasWithHoles) {
    const auto features =
        Read(R"({"type":"GeometryCollection","geometries":[)" + Geometry("LineString", "[[0,0],[10,5]]") + "," +
             Geometry("MultiLineString", "[[[0,0],[1,1]],[[2,2],[3,3],[4,4]]]") + "," +
             Geometry("Polygon", "[[[0,0],[10,0],[10,10],[0,0]],[[1,1],[2,1],[2,2],[1,1]]]") + "," +
             Geometry("MultiPolygon", "[[[[20,0],[30,0],[30,10],[20,0]]],[[[40,0],[50,0],[50,-10],[40,0]]]]") + "]}");
    ASSERT_EQ(features->lines.size(), 3u);
    EXPECT_EQ(features->lines[2].points.size(), 3u);
    ASSERT_EQ(features->areas.size(), 3u);
    EXPECT_EQ(features->areas[0].size(), 2u);
    EXPECT_DOUBLE_EQ(features->box.east, 50);
    EXPECT_DOUBLE_EQ(features->box.south, -10);
}

TEST(GeoJson, LeavesOutPlacesThatAreNotOnTheGlobe) {
    const auto features = Read(Geometry("MultiPoint", R"([[181,0],[0,91],[1,2],["a",1],[1],{"a":1},null])"));
    EXPECT_EQ(features->places.size(), 1u);
}

TEST(GeoJson, LeavesOutPartsWithTooFewPlaces) {
    EXPECT_EQ(ErrorOf(Geometry("LineString", "[[1,2]]")), GeoJsonError::Empty);
    EXPECT_EQ(ErrorOf(Geometry("Polygon", "[[[1,2],[3,4]]]")), GeoJsonError::Empty);
    EXPECT_EQ(ErrorOf(Geometry("Polygon", "[[],[[0,0],[1,0],[1,1]]]")), GeoJsonError::Empty) << "a hole of nothing";
    EXPECT_EQ(Read(Geometry("Polygon", "[[[0,0],[1,0],[1,1]],[[0,0]]]"))->areas[0].size(), 1u);
}

TEST(GeoJson, SaysWhereATextIsNoJson) {
    const GeoJsonResult result = ReadGeoJson(R"({"type": Point})");
    EXPECT_EQ(result.error, GeoJsonError::Syntax);
    EXPECT_EQ(result.offset, 10u);
    EXPECT_EQ(ErrorOf(""), GeoJsonError::Syntax);
}

TEST(GeoJson, OtherJsonIsRefused) {
    for (const char* text : {"1", "[]", "{}", R"({"type":"Topology"})", R"({"type":1})", R"({"type":"Point"})",
                             R"({"type":"Point","coordinates":{}})", R"({"type":"FeatureCollection"})",
                             R"({"type":"Feature"})", R"({"type":"FeatureCollection","features":[{"type":"Car"}]})"}) {
        EXPECT_EQ(ErrorOf(text), GeoJsonError::Format) << text;
    }
}

TEST(GeoJson, AFileWithoutAnythingToShowSaysSo) {
    EXPECT_EQ(ErrorOf(R"({"type":"FeatureCollection","features":[]})"), GeoJsonError::Empty);
}

TEST(GeoJson, DeepNestingDoesNotOverflowTheStack) {
    std::string text;
    for (int i = 0; i < 1000; ++i) {
        text += R"({"type":"GeometryCollection","geometries":[)";
    }
    for (int i = 0; i < 1000; ++i) {
        text += "]}";
    }
    EXPECT_EQ(ErrorOf(text), GeoJsonError::Format);
    EXPECT_EQ(ErrorOf(std::string(100000, '[')), GeoJsonError::Syntax);
}

TEST(GeoJson, RandomDamageIsRefusedOrRead) {
    const std::string whole = R"({"type":"FeatureCollection","features":[{"type":"Feature","properties":{"name":"a"},)"
                              R"("geometry":{"type":"Polygon","coordinates":[[[0,0],[1,0],[1,1],[0,0]]]}}]})";
    std::mt19937 random(3);
    for (int i = 0; i < 20000; ++i) {
        std::string text = whole;
        for (int hit = 0; hit <= i % 3; ++hit) {
            text[random() % text.size()] = static_cast<char>(random() % 256);
        }
        const GeoJsonResult result = ReadGeoJson(text);
        EXPECT_EQ(result.features == nullptr, result.error != GeoJsonError::None);
    }
}

TEST(GeoJson, AFileThatIsNotThereIsUnreadable) {
    const TemporaryDirectory directory;
    EXPECT_EQ(ReadGeoJsonFile(directory.Path() / "none.geojson").error, GeoJsonError::Unreadable);
    EXPECT_EQ(ReadGeoJsonFile(directory.Path()).error, GeoJsonError::Unreadable);
    const std::filesystem::path file(directory.Write("one.geojson", Geometry("Point", "[1,2]")));
    EXPECT_EQ(ReadGeoJsonFile(file).error, GeoJsonError::None);
}

} // namespace
