#include "geo_json.h"

#include <varnhold/letter_case.h>
#include <varnhold/strings.h>

#include <nlohmann/json.hpp>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <optional>

namespace {

using Json = nlohmann::json;

constexpr std::uintmax_t kLargestFile = std::uintmax_t{64} << 20;
/// Collections in collections, far beyond what anybody writes.
constexpr int kDeepest = 32;

std::optional<GeoPoint> PointOf(const Json& position) {
    if (!position.is_array() || position.size() < 2 || !position[0].is_number() || !position[1].is_number()) {
        return std::nullopt;
    }
    const GeoPoint point{position[0].get<double>(), position[1].get<double>()};
    const bool isOnGlobe = std::abs(point.longitude) <= 180 && std::abs(point.latitude) <= 90;
    return isOnGlobe ? std::optional(point) : std::nullopt;
}

GeoBox Around(const std::vector<GeoPoint>& points) {
    GeoBox box{180, 90, -180, -90};
    for (const GeoPoint& point : points) {
        box = {std::min(box.west, point.longitude), std::min(box.south, point.latitude),
               std::max(box.east, point.longitude), std::max(box.north, point.latitude)};
    }
    return box;
}

class FeatureReader {
public:
    /// False when the value is nothing that GeoJSON knows.
    bool ReadAny(const Json& value, int depth = 0) {
        const std::string type = TypeOf(value);
        if (type == "FeatureCollection" || type == "GeometryCollection") {
            const Json* const members = Find(value, type == "FeatureCollection" ? "features" : "geometries");
            if (members == nullptr || !members->is_array() || depth >= kDeepest) {
                return false;
            }
            return std::all_of(members->begin(), members->end(),
                               [&](const Json& member) { return ReadAny(member, depth + 1); });
        }
        return type == "Feature" ? ReadFeature(value, depth) : ReadGeometry(type, value);
    }

    GeoFeatures Take() {
        GeoBox box{180, 90, -180, -90};
        const auto widen = [&box](const GeoBox& other) {
            box = {std::min(box.west, other.west), std::min(box.south, other.south), std::max(box.east, other.east),
                   std::max(box.north, other.north)};
        };
        for (const NamedPlace& place : m_features.places) {
            widen({place.place.longitude, place.place.latitude, place.place.longitude, place.place.latitude});
        }
        for (const GeoRing& line : m_features.lines) {
            widen(line.box);
        }
        for (const std::vector<GeoRing>& area : m_features.areas) {
            widen(area.front().box);
        }
        m_features.box = box;
        return std::move(m_features);
    }

private:
    static const Json* Find(const Json& object, const char* name) {
        const auto found = object.is_object() ? object.find(name) : object.end();
        return found != object.end() ? &*found : nullptr;
    }
    static std::string TypeOf(const Json& value) {
        const Json* const type = Find(value, "type");
        return type != nullptr && type->is_string() ? type->get<std::string>() : std::string();
    }
    static std::wstring NameOf(const Json& feature) {
        const Json* const properties = Find(feature, "properties");
        if (properties == nullptr || !properties->is_object()) {
            return {};
        }
        for (const auto& [key, value] : properties->items()) {
            if (value.is_string() && varnhold::EqualsIgnoringCase(std::string_view(key), std::string_view("name"))) {
                return string2wstring(value.get<std::string>());
            }
        }
        return {};
    }

    bool ReadFeature(const Json& feature, int depth) {
        const Json* const geometry = Find(feature, "geometry");
        if (geometry == nullptr) {
            return false;
        }
        if (geometry->is_null()) {
            return true; // a feature may have no place
        }
        m_name = NameOf(feature);
        const bool isRead = ReadAny(*geometry, depth + 1);
        m_name.clear();
        return isRead;
    }

    bool ReadGeometry(const std::string& type, const Json& geometry) {
        struct Kind {
            const char* type;
            void (FeatureReader::*read)(const Json&);
            bool hasSeveral;
        };
        static constexpr Kind kinds[] = {
            {"Point", &FeatureReader::AddPlace, false},     {"MultiPoint", &FeatureReader::AddPlace, true},
            {"LineString", &FeatureReader::AddLine, false}, {"MultiLineString", &FeatureReader::AddLine, true},
            {"Polygon", &FeatureReader::AddArea, false},    {"MultiPolygon", &FeatureReader::AddArea, true}};
        const Json* const coordinates = Find(geometry, "coordinates");
        for (const Kind& kind : kinds) {
            if (type != kind.type) {
                continue;
            }
            if (coordinates == nullptr || !coordinates->is_array()) {
                return false;
            }
            if (!kind.hasSeveral) {
                (this->*kind.read)(*coordinates);
                return true;
            }
            for (const Json& part : *coordinates) {
                (this->*kind.read)(part);
            }
            return true;
        }
        return false;
    }

    static GeoRing RingOf(const Json& positions) {
        GeoRing ring;
        if (positions.is_array()) {
            for (const Json& position : positions) {
                if (const std::optional<GeoPoint> point = PointOf(position)) {
                    ring.points.push_back(*point);
                }
            }
        }
        ring.box = Around(ring.points);
        return ring;
    }

    void AddPlace(const Json& position) {
        if (const std::optional<GeoPoint> point = PointOf(position)) {
            m_features.places.push_back({*point, m_name});
        }
    }
    void AddLine(const Json& positions) {
        constexpr std::size_t fewest = 2;
        if (GeoRing line = RingOf(positions); line.points.size() >= fewest) {
            m_features.lines.push_back(std::move(line));
        }
    }
    void AddArea(const Json& rings) {
        constexpr std::size_t fewest = 3;
        std::vector<GeoRing> area;
        for (const Json& positions : rings.is_array() ? rings : Json::array()) {
            GeoRing ring = RingOf(positions);
            if (ring.points.size() >= fewest) {
                area.push_back(std::move(ring));
            } else if (area.empty()) {
                return; // without its border there is no area
            }
        }
        if (!area.empty()) {
            m_features.areas.push_back(std::move(area));
        }
    }

    GeoFeatures m_features;
    std::wstring m_name; ///< Of the feature that is being read.
};

} // namespace

GeoJsonResult ReadGeoJson(std::string_view text) {
    Json value;
    try {
        value = Json::parse(text);
    } catch (const Json::parse_error& error) {
        return {nullptr, GeoJsonError::Syntax, error.byte};
    }
    FeatureReader reader;
    if (!reader.ReadAny(value)) {
        return {nullptr, GeoJsonError::Format, 0};
    }
    GeoFeatures features = reader.Take();
    if (features.places.empty() && features.lines.empty() && features.areas.empty()) {
        return {nullptr, GeoJsonError::Empty, 0};
    }
    return {std::make_shared<const GeoFeatures>(std::move(features)), GeoJsonError::None, 0};
}

GeoJsonResult ReadGeoJsonFile(const std::filesystem::path& path) {
    std::error_code error;
    const std::uintmax_t size = std::filesystem::file_size(path, error);
    if (error || size > kLargestFile) {
        return {nullptr, GeoJsonError::Unreadable, 0};
    }
    std::ifstream file(path, std::ios::binary);
    const std::string text((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    return text.size() == size ? ReadGeoJson(text) : GeoJsonResult{nullptr, GeoJsonError::Unreadable, 0};
}
