#include "kept_state.h"

#include <varnhold/strings.h>

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <functional>
#include <map>
#include <optional>

namespace {

using Json = nlohmann::ordered_json;

constexpr int kVersion = 1;
constexpr int kFarthest = 1000000;
constexpr std::size_t kMostPlaces = 10000;
constexpr int kHexDigits = 16;
constexpr int kLeastScale = 100; // percent
constexpr int kMostScale = 400;
constexpr double kEast = 180;
constexpr double kNorth = 90;

constexpr std::size_t kLayerCount = static_cast<std::size_t>(MapLayer::Count);
constexpr std::size_t kLabelCount = static_cast<std::size_t>(MapLabel::Count);
/// In the order of MapLayer, MapLabel and MapPalette.
constexpr std::array<const char*, kLayerCount> kLayerNames = {"relief", "coast", "lakes",    "graticule",
                                                              "cities", "names", "scalebar", "opened"};
constexpr std::array<const char*, kLabelCount> kLabelNames = {"graticuleNumbers", "cityNames", "scaleBarText"};
constexpr std::array<const char*, 3> kPaletteNames = {"natural", "night", "plain"};
constexpr const char* kSkinPalette = "skin"; // no palette is chosen

/// What is thrown where an entry cannot be used; the reader of the file names the entry.
struct Unusable {};

void Require(bool isUsable) {
    if (!isUsable) {
        throw Unusable();
    }
}

// ---- values

std::wstring TextOf(const Json& value) {
    Require(value.is_string());
    return string2wstring(value.get_ref<const std::string&>());
}

bool FlagOf(const Json& value) {
    Require(value.is_boolean());
    return value.get<bool>();
}

double NumberOf(const Json& value) {
    Require(value.is_number() && std::isfinite(value.get<double>()));
    return value.get<double>();
}

int IntegerOf(const Json& value) {
    const double number = NumberOf(value);
    Require(number == std::floor(number) && std::abs(number) <= kFarthest);
    return static_cast<int>(number);
}

template <std::size_t Count>
std::size_t IndexOf(const std::array<const char*, Count>& names, const std::string& name) {
    const auto found = std::find(names.begin(), names.end(), name);
    Require(found != names.end());
    return static_cast<std::size_t>(found - names.begin());
}

GeoPoint PointOf(const Json& value) {
    Require(value.is_array() && value.size() == 2);
    const GeoPoint point{NumberOf(value[0]), NumberOf(value[1])};
    Require(std::abs(point.longitude) <= kEast && std::abs(point.latitude) <= kNorth);
    return point;
}

MapView ViewOf(const Json& value) {
    Require(value.is_array() && value.size() == 3);
    return {PointOf({value[0], value[1]}), NumberOf(value[2])};
}

Json ToJson(const MapView& view) { return {view.center.longitude, view.center.latitude, view.pixelsPerDegree}; }

template <class Value>
std::vector<Value> ListOf(const Json& value, Value (*read)(const Json&)) {
    Require(value.is_array() && value.size() <= kMostPlaces);
    std::vector<Value> list;
    std::transform(value.begin(), value.end(), std::back_inserter(list), read);
    return list;
}

std::uint32_t ColorOf(const Json& value) {
    const std::wstring text = TextOf(value);
    constexpr std::size_t length = 7; // #RRGGBB
    Require(text.size() == length && text[0] == L'#' &&
            text.find_first_not_of(L"0123456789abcdefABCDEF", 1) == std::wstring::npos);
    return static_cast<std::uint32_t>(std::wcstoul(text.c_str() + 1, nullptr, kHexDigits));
}

std::string ColorText(std::uint32_t color) {
    std::array<char, 8> text = {};
    std::snprintf(text.data(), text.size(), "#%06x", static_cast<unsigned>(color & 0xFFFFFF));
    return text.data();
}

KeptWindow WindowOf(const Json& value) {
    Require(value.is_object() && value.contains("place") && value["place"].is_array() && value["place"].size() == 4);
    const Json& place = value["place"];
    const WindowBox box{IntegerOf(place[0]), IntegerOf(place[1]), IntegerOf(place[2]), IntegerOf(place[3])};
    Require(box.left < box.right && box.top < box.bottom);
    return {box, value.contains("maximized") && FlagOf(value["maximized"])};
}

std::wstring ModeOf(const Json& value) {
    const std::wstring name = TextOf(value);
    Require(name == L"browse" || name == L"edit" || name == L"print");
    return name;
}

int ScaleOf(const Json& value) {
    const int percent = IntegerOf(value);
    Require(percent >= kLeastScale && percent <= kMostScale);
    return percent;
}

// ---- the map

Json LayersToJson(const MapState& map) {
    Json layers = Json::object();
    for (std::size_t i = 0; i < kLayerCount; ++i) {
        const auto layer = static_cast<MapLayer>(i);
        Json& entry = layers[kLayerNames[i]];
        entry = {{"shown", map.IsShown(layer)}, {"lit", map.IsLit(layer)}, {"locked", map.IsLocked(layer)}};
        if (const auto color = map.Color(layer)) {
            entry["color"] = ColorText(*color);
        }
    }
    return layers;
}

/// All of the layer or nothing.
void ReadLayer(const Json& entry, MapLayer layer, MapState& map) {
    Require(entry.is_object());
    const auto flag = [&entry](const char* name, bool missing) {
        return entry.contains(name) ? FlagOf(entry[name]) : missing;
    };
    const bool isShown = flag("shown", map.IsShown(layer)), isLit = flag("lit", map.IsLit(layer)),
               isLocked = flag("locked", map.IsLocked(layer));
    if (entry.contains("color")) {
        map.SetColor(layer, ColorOf(entry["color"]));
    }
    map.SetShown(layer, isShown);
    map.SetLit(layer, isLit);
    if (isLocked != map.IsLocked(layer)) {
        map.ToggleLock(layer);
    }
}

Json LabelsToJson(const MapState& map) {
    Json labels = Json::object();
    for (std::size_t i = 0; i < kLabelCount; ++i) {
        labels[kLabelNames[i]] = map.IsLit(static_cast<MapLabel>(i));
    }
    return labels;
}

const char* PaletteName(const MapState& map) {
    const auto chosen = map.ChosenPalette();
    return chosen ? kPaletteNames[static_cast<std::size_t>(*chosen)] : kSkinPalette;
}

Json MapToJson(const MapState& map) {
    Json marks = Json::array();
    for (const GeoPoint& mark : map.Marks()) {
        marks.push_back({mark.longitude, mark.latitude});
    }
    Json bookmarks = Json::array();
    for (const MapView& bookmark : map.Bookmarks()) {
        bookmarks.push_back(ToJson(bookmark));
    }
    return {{"view", ToJson(map.View())},
            {"layers", LayersToJson(map)},
            {"labels", LabelsToJson(map)},
            {"palette", PaletteName(map)},
            {"spacing", map.GraticuleSpacing()},
            {"smooth", map.IsSmooth()},
            {"lineWidth", map.LineWidth()},
            {"nameSize", map.NameSize()},
            {"page", map.Page() == PageShape::Portrait ? "portrait" : "landscape"},
            {"marks", std::move(marks)},
            {"bookmarks", std::move(bookmarks)}};
}

// ---- the file

/// Reads the entries of an object one by one; what cannot be used is remembered by its name.
class EntryReader {
public:
    using Readers = std::map<std::string, std::function<void(const Json&)>>;

    std::vector<std::string> unusable;

    /// Unknown entries are left to the versions that know them.
    void Read(const Json& object, const std::string& prefix, const Readers& readers) {
        for (const auto& [name, value] : object.items()) {
            const auto reader = readers.find(name);
            if (reader != readers.end()) {
                Try(prefix + name, [&, &entry = value] { reader->second(entry); });
            }
        }
    }

    template <class Action>
    void Try(const std::string& name, const Action& action) {
        try {
            action();
        } catch (const Unusable&) {
            unusable.push_back(name);
        }
    }
};

void ReadMap(EntryReader& reader, const Json& object, MapState& map) {
    Require(object.is_object());
    const auto layers = [&](const Json& value) {
        Require(value.is_object());
        for (const auto& [name, entry] : value.items()) {
            reader.Try("map.layers." + name, [&map, &key = name, &layer = entry] {
                ReadLayer(layer, static_cast<MapLayer>(IndexOf(kLayerNames, key)), map);
            });
        }
    };
    const auto labels = [&](const Json& value) {
        Require(value.is_object());
        for (const auto& [name, entry] : value.items()) {
            reader.Try("map.labels." + name, [&map, &key = name, &lit = entry] {
                map.SetLit(static_cast<MapLabel>(IndexOf(kLabelNames, key)), FlagOf(lit));
            });
        }
    };
    const auto smooth = [&](const Json& value) {
        if (FlagOf(value) != map.IsSmooth()) {
            map.ToggleSmooth();
        }
    };
    const auto page = [&](const Json& value) {
        const std::wstring name = TextOf(value);
        Require(name == L"portrait" || name == L"landscape");
        map.SetPage(name == L"portrait" ? PageShape::Portrait : PageShape::Landscape);
    };
    const auto palette = [&](const Json& value) {
        const std::string name = wstring2String(TextOf(value));
        map.SetPalette(name == kSkinPalette ? std::nullopt
                                            : std::optional(static_cast<MapPalette>(IndexOf(kPaletteNames, name))));
    };
    reader.Read(object, "map.",
                {{"view", [&](const Json& value) { map.SetFirstView(ViewOf(value)); }},
                 {"layers", layers},
                 {"labels", labels},
                 {"palette", palette},
                 {"spacing", [&](const Json& value) { map.SetGraticuleSpacing(IntegerOf(value)); }},
                 {"smooth", smooth},
                 {"lineWidth", [&](const Json& value) { map.SetLineWidth(IntegerOf(value)); }},
                 {"nameSize", [&](const Json& value) { map.SetNameSize(IntegerOf(value)); }},
                 {"page", page},
                 {"marks", [&](const Json& value) { map.SetMarks(ListOf(value, PointOf)); }},
                 {"bookmarks", [&](const Json& value) { map.SetBookmarks(ListOf(value, ViewOf)); }}});
}

} // namespace

std::string WriteKept(const KeptViewer& viewer, const MapState& map) {
    Json json = {{"version", kVersion},
                 {"language", wstring2String(viewer.language)},
                 {"skin", wstring2String(viewer.skin)},
                 {"classicBars", viewer.showsClassicBars}};
    if (viewer.iconStyle) {
        json["iconStyle"] = wstring2String(*viewer.iconStyle);
    }
    if (!viewer.startMode.empty()) {
        json["startMode"] = wstring2String(viewer.startMode);
    }
    if (viewer.scalePercent != 0) {
        json["scale"] = viewer.scalePercent;
    }
    Json hidden = Json::array();
    for (const std::wstring& title : viewer.hiddenToolbars) {
        hidden.push_back(wstring2String(title));
    }
    json["hiddenToolbars"] = std::move(hidden);
    Json opened = Json::array();
    for (const std::wstring& path : viewer.openedFiles) {
        opened.push_back(wstring2String(path));
    }
    json["openedFiles"] = std::move(opened);
    if (viewer.window) {
        const WindowBox& place = viewer.window->place;
        json["window"] = {{"place", {place.left, place.top, place.right, place.bottom}},
                          {"maximized", viewer.window->isMaximized}};
    }
    json["map"] = MapToJson(map);
    return json.dump(2) + "\n";
}

std::optional<std::vector<std::string>> ReadKept(const std::string& text, KeptViewer& viewer, MapState& map) {
    const Json json = Json::parse(text, nullptr, false);
    if (!json.is_object() || !json.contains("version") || json["version"] != kVersion) {
        return std::nullopt;
    }
    EntryReader reader;
    const auto takeText = [](std::wstring& target) { return [&target](const Json& value) { target = TextOf(value); }; };
    reader.Read(
        json, "",
        {{"language", takeText(viewer.language)},
         {"skin", takeText(viewer.skin)},
         {"iconStyle", [&](const Json& value) { viewer.iconStyle = TextOf(value); }},
         {"window", [&](const Json& value) { viewer.window = WindowOf(value); }},
         {"startMode", [&](const Json& value) { viewer.startMode = ModeOf(value); }},
         {"scale", [&](const Json& value) { viewer.scalePercent = ScaleOf(value); }},
         {"classicBars", [&](const Json& value) { viewer.showsClassicBars = FlagOf(value); }},
         {"hiddenToolbars", [&](const Json& value) { viewer.hiddenToolbars = ListOf<std::wstring>(value, TextOf); }},
         {"openedFiles", [&](const Json& value) { viewer.openedFiles = ListOf<std::wstring>(value, TextOf); }},
         {"map", [&](const Json& value) { ReadMap(reader, value, map); }}});
    return reader.unusable;
}
