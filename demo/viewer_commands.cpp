#include "viewer_commands.h"

#include "map_data.h"
#include "map_state.h"

#include <boost/make_shared.hpp>

#include <algorithm>
#include <array>

namespace {

struct LayerName {
    const wchar_t* parameter;
    MapLayer layer;
};
constexpr std::array<LayerName, 6> kLayers = {{{L"relief", MapLayer::Relief},
                                               {L"coast", MapLayer::Coast},
                                               {L"lakes", MapLayer::Lakes},
                                               {L"graticule", MapLayer::Graticule},
                                               {L"cities", MapLayer::Cities},
                                               {L"names", MapLayer::Names}}};

struct PaletteName {
    const wchar_t* parameter;
    MapPalette palette;
};
constexpr std::array<PaletteName, 3> kPalettes = {
    {{L"natural", MapPalette::Natural}, {L"night", MapPalette::Night}, {L"plain", MapPalette::Plain}}};

template <class Table>
auto FindByParameter(const Table& table, const std::wstring& parameter) {
    return std::find_if(table.begin(), table.end(), [&](const auto& row) { return parameter == row.parameter; });
}

double Number(const std::wstring& text) { return std::wcstod(text.c_str(), nullptr); }
int Integer(const std::wstring& text) { return static_cast<int>(std::wcstol(text.c_str(), nullptr, 10)); }

constexpr double kPlaceScale = 24; // pixels a degree: a city with its surroundings

void GoToPlace(MapState& state, const MapData& data, ViewerHost& host, bool isQuiet) {
    const std::wstring text = host.PlaceText();
    GeoPoint place;
    if (const auto pair = ParsePair(text)) {
        place = {pair->second, pair->first};
    } else if (const City* const city = data.FindCity(text)) {
        place = city->place;
    } else {
        if (!isQuiet)
            host.TellPlaceUnknown(text);
        return;
    }
    const double half = state.WindowWidth() / kPlaceScale / 2;
    const double halfHeight = state.WindowHeight() / kPlaceScale / 2;
    state.Show(
        {place.longitude - half, place.latitude - halfHeight, place.longitude + half, place.latitude + halfHeight});
}

} // namespace

boost::shared_ptr<CMenuReactor> MakeNavigationReactor(MapState& state, const MapData& data, ViewerHost& host) {
    auto reactor = boost::make_shared<CCommandReactor>();
    reactor->Serve(L"zoom", [&state](const std::wstring& factor) { state.Zoom(Number(factor)); });
    reactor->Serve(L"world", [&state](const std::wstring&) { state.ShowWorld(); });
    reactor->Serve(L"scale", [&state](const std::wstring& factor) { state.SetScale(2 * Number(factor)); });
    reactor->Serve(L"home", [&state](const std::wstring&) { state.CenterOn({0, 0}); });
    reactor->Serve(L"zoomslider",
                   [&state, &host](const std::wstring&) { state.SetSliderPosition(host.ScaleSliderPosition()); });
    reactor->Serve(
        L"history", [&state](const std::wstring& direction) { state.Step(Integer(direction)); }, nullptr,
        [&state](const std::wstring& direction) { return state.CanStep(Integer(direction)); });
    reactor->Serve(L"pan", [&state](const std::wstring& parameter) {
        if (const auto fractions = ParsePair(parameter))
            state.Pan(fractions->first, fractions->second);
    });
    reactor->Serve(L"region", [&state](const std::wstring& parameter) {
        if (const auto box = ParseBox(parameter))
            state.Show(*box);
    });
    // The edit field sends its command on losing the focus too: nobody wants a message box for that.
    reactor->Serve(L"place", [&state, &data, &host](const std::wstring& parameter) {
        GoToPlace(state, data, host, parameter == L"quiet");
    });
    reactor->Serve(
        L"bookmark",
        [&state](const std::wstring& what) {
            if (what == L"add")
                state.AddBookmark();
            else
                state.NextBookmark();
        },
        nullptr, [&state](const std::wstring& what) { return what == L"add" || state.BookmarkCount() > 0; });
    return reactor;
}

boost::shared_ptr<CMenuReactor> MakeLayerReactor(MapState& state) {
    auto reactor = boost::make_shared<CCommandReactor>();
    reactor->Serve(
        L"layer",
        [&state](const std::wstring& name) {
            const auto row = FindByParameter(kLayers, name);
            if (row != kLayers.end())
                state.Toggle(row->layer);
        },
        [&state](const std::wstring& name) {
            const auto row = FindByParameter(kLayers, name);
            return row != kLayers.end() && state.IsShown(row->layer);
        },
        [&state](const std::wstring& name) { return name != L"names" || state.IsShown(MapLayer::Cities); });
    reactor->Serve(
        L"palette",
        [&state](const std::wstring& name) {
            const auto row = FindByParameter(kPalettes, name);
            if (row != kPalettes.end())
                state.SetPalette(row->palette);
        },
        [&state](const std::wstring& name) {
            const auto row = FindByParameter(kPalettes, name);
            return row != kPalettes.end() && state.Palette() == row->palette;
        });
    reactor->Serve(
        L"spacing", [&state](const std::wstring& degrees) { state.SetGraticuleSpacing(Integer(degrees)); },
        [&state](const std::wstring& degrees) { return state.GraticuleSpacing() == Integer(degrees); },
        [&state](const std::wstring&) { return state.IsShown(MapLayer::Graticule); });
    reactor->Serve(
        L"smooth", [&state](const std::wstring&) { state.ToggleSmooth(); },
        [&state](const std::wstring&) { return state.IsSmooth(); });
    return reactor;
}

boost::shared_ptr<CMenuReactor> MakeSettingsReactor(ViewerHost& host) {
    auto reactor = boost::make_shared<CCommandReactor>();
    reactor->Serve(
        L"language", [&host](const std::wstring& code) { host.SwitchLanguage(code); },
        [&host](const std::wstring& code) { return host.IsLanguage(code); });
    reactor->Serve(
        L"skin", [&host](const std::wstring& name) { host.SwitchSkin(name); },
        [&host](const std::wstring& name) { return host.IsSkin(name); });
    reactor->Serve(
        L"icons", [&host](const std::wstring& style) { host.SwitchIconStyle(style); },
        [&host](const std::wstring& style) { return host.IsIconStyle(style); });
    reactor->Serve(L"about", [&host](const std::wstring&) { host.TellAbout(); });
    return reactor;
}
