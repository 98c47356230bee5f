#include "map_data.h"

#include "varnhold/strings.h"

#include <boost/algorithm/string.hpp>

#include <cstdint>
#include <fstream>
#include <iterator>
#include <sstream>

namespace {

/// Reads little-endian values from a file that is held in memory; runs dry instead of running over.
class Reader {
public:
    explicit Reader(const std::filesystem::path& path) {
        std::ifstream file(path, std::ios::binary);
        m_bytes.assign(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    }

    template <class T>
    bool Read(T& value) {
        if (m_bytes.size() - m_at < sizeof value) {
            return false;
        }
        std::memcpy(&value, m_bytes.data() + m_at, sizeof value);
        m_at += sizeof value;
        return true;
    }

    std::size_t Left() const noexcept { return m_bytes.size() - m_at; }

private:
    std::vector<char> m_bytes;
    std::size_t m_at = 0;
};

bool ReadRing(Reader& reader, GeoRing& ring) {
    std::uint32_t count = 0;
    float box[4];
    if (!reader.Read(count)) {
        return false;
    }
    for (float& side : box) {
        if (!reader.Read(side)) {
            return false;
        }
    }
    if (reader.Left() / (2 * sizeof(float)) < count) {
        return false;
    }
    ring.box = {box[0], box[1], box[2], box[3]};
    ring.points.resize(count);
    for (GeoPoint& point : ring.points) {
        float longitude = 0;
        float latitude = 0;
        reader.Read(longitude);
        reader.Read(latitude);
        point = {longitude, latitude};
    }
    return true;
}

std::vector<GeoRing> ReadRings(const std::filesystem::path& path) {
    Reader reader(path);
    std::uint32_t count = 0;
    std::vector<GeoRing> rings;
    if (!reader.Read(count)) {
        return rings;
    }
    GeoRing ring;
    while (count-- > 0 && ReadRing(reader, ring)) {
        rings.push_back(std::move(ring));
    }
    return rings;
}

std::vector<City> ReadCities(const std::filesystem::path& path) {
    std::vector<City> cities;
    std::ifstream file(path, std::ios::binary);
    std::string line;
    while (std::getline(file, line)) {
        std::vector<std::string> fields;
        boost::trim_right(line);
        boost::split(fields, line, [](char character) { return character == '\t'; });
        if (line.empty() || line[0] == '#' || fields.size() != 5) {
            continue;
        }
        std::istringstream numbers(fields[0] + " " + fields[1] + " " + fields[2]);
        City city;
        if (numbers >> city.place.longitude >> city.place.latitude >> city.rank) {
            city.english = string2wstring(fields[3]);
            city.chinese = string2wstring(fields[4]);
            cities.push_back(std::move(city));
        }
    }
    return cities;
}

} // namespace

MapData MapData::Load(const std::filesystem::path& folder) {
    MapData data;
    data.coast = ReadRings(folder / "coast.bin");
    data.lakes = ReadRings(folder / "lakes.bin");
    data.cities = ReadCities(folder / "cities.tsv");
    data.reliefFile = (folder / "relief.png").wstring();
    return data;
}

const City* MapData::FindCity(const std::wstring& name) const {
    if (name.empty()) {
        return nullptr;
    }
    for (const City& city : cities) {
        if (boost::istarts_with(city.english, name) || boost::starts_with(city.chinese, name)) {
            return &city;
        }
    }
    return nullptr;
}
