#pragma once

#include "map_data.h"

#include <cstddef>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

struct NamedPlace {
    GeoPoint place;
    std::wstring name; ///< Empty where the file has none.
};

/// What a file of points, lines and areas holds. Plain data that nobody changes: pictures may be drawn from it at any
/// time.
struct GeoFeatures {
    std::vector<NamedPlace> places;
    std::vector<GeoRing> lines;
    /// The first ring of each is its border, the others are holes.
    std::vector<std::vector<GeoRing>> areas;
    GeoBox box; ///< Around everything.
};

enum class GeoJsonError {
    None,
    Unreadable, ///< The file is not there, cannot be read or is too large.
    Syntax,     ///< It is no JSON; the offset says where.
    Format,     ///< It is JSON, but no GeoJSON.
    Empty,      ///< It has nothing that can be shown.
};

struct GeoJsonResult {
    std::shared_ptr<const GeoFeatures> features; ///< Null after an error.
    GeoJsonError error = GeoJsonError::None;
    std::size_t offset = 0; ///< In bytes.
};

/// Reads a GeoJSON text: a geometry, a feature or a collection of either, co-ordinates in degrees. Names are taken from
/// a feature's property "name", whatever its letter case. Places outside of the globe and parts without enough of them
/// are left out.
GeoJsonResult ReadGeoJson(std::string_view text);

/// The same from a file of at most 64 MB.
GeoJsonResult ReadGeoJsonFile(const std::filesystem::path& path);
