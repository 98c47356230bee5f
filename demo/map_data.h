#pragma once

#include "map_state.h"

#include <filesystem>
#include <string>
#include <vector>

/// A closed line on the globe with the box around it.
struct GeoRing {
    GeoBox box;
    std::vector<GeoPoint> points;
};

struct City {
    GeoPoint place;
    int rank = 1; ///< 1 is shown at every scale, larger ranks only when there is room.
    std::wstring english;
    std::wstring chinese;
};

/// What the map is drawn from, read from the data folder of the installation directory. A missing or broken file leaves
/// its part empty: the map then lacks that layer, nothing else.
struct MapData {
    std::vector<GeoRing> coast;
    std::vector<GeoRing> lakes;
    std::vector<City> cities;
    std::wstring reliefFile; ///< Path of the relief picture; equirectangular, the whole globe.

    static MapData Load(const std::filesystem::path& folder);

    /// The city whose English or Chinese name begins with `name`, letter case aside; null when there is none.
    const City* FindCity(const std::wstring& name) const;
};
