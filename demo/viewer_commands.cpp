#include "viewer_commands.h"

#include "map_data.h"
#include "map_state.h"
#include "working_modes.h"

#include <boost/format.hpp>
#include <boost/make_shared.hpp>

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

namespace {

struct LayerName {
    const wchar_t* parameter;
    MapLayer layer;
};
constexpr std::array<LayerName, 8> kLayers = {{{L"relief", MapLayer::Relief},
                                               {L"coast", MapLayer::Coast},
                                               {L"lakes", MapLayer::Lakes},
                                               {L"graticule", MapLayer::Graticule},
                                               {L"cities", MapLayer::Cities},
                                               {L"names", MapLayer::Names},
                                               {L"scalebar", MapLayer::ScaleBar},
                                               {L"opened", MapLayer::Opened}}};

struct PaletteName {
    const wchar_t* parameter;
    std::optional<MapPalette> palette; ///< Nothing: the one that goes with the skin.
};
constexpr std::array<PaletteName, 4> kPalettes = {{{L"skin", std::nullopt},
                                                   {L"natural", MapPalette::Natural},
                                                   {L"night", MapPalette::Night},
                                                   {L"plain", MapPalette::Plain}}};

template <class Table>
auto FindByParameter(const Table& table, const std::wstring& parameter) {
    return std::find_if(table.begin(), table.end(), [&](const auto& row) { return parameter == row.parameter; });
}

double Number(const std::wstring& text) { return std::wcstod(text.c_str(), nullptr); }
int Integer(const std::wstring& text) { return static_cast<int>(std::wcstol(text.c_str(), nullptr, 10)); }

constexpr double kPlaceScale = 24; // pixels a degree: a city with its surroundings

/// Shows a place with its surroundings.
void Visit(MapState& state, GeoPoint place) {
    const double half = state.WindowWidth() / kPlaceScale / 2;
    const double halfHeight = state.WindowHeight() / kPlaceScale / 2;
    state.Show(
        {place.longitude - half, place.latitude - halfHeight, place.longitude + half, place.latitude + halfHeight});
}

void GoToPlace(MapState& state, const MapData& data, ViewerHost& host, bool isQuiet) {
    const std::wstring text = host.PlaceText();
    GeoPoint place;
    if (const auto pair = ParsePair(text)) {
        place = {pair->second, pair->first};
    } else if (const City* const city = data.FindCity(text)) {
        place = city->place;
    } else {
        if (!isQuiet) {
            host.TellPlaceUnknown(text);
        }
        return;
    }
    Visit(state, place);
}

/// "latitude, longitude", as the field of places reads it.
std::wstring TextOf(GeoPoint place) { return (boost::wformat(L"%.4f, %.4f") % place.latitude % place.longitude).str(); }

/// One place a line.
std::wstring TextOf(const std::vector<GeoPoint>& places) {
    std::wstring text;
    for (const GeoPoint& place : places) {
        text += TextOf(place) + L"\r\n";
    }
    return text;
}

/// A command whose parameter is a number: it sets that value, and is checked while the value is the set one. Without a
/// parameter it goes on to the next of the values, and round.
template <class Get, class Set>
void ServeValue(CCommandReactor& reactor, const wchar_t* command, std::vector<int> values, Get get, Set set) {
    reactor.Serve(
        command,
        [=](const std::wstring& parameter) {
            const auto larger = std::upper_bound(values.begin(), values.end(), get());
            set(!parameter.empty() ? Integer(parameter) : larger == values.end() ? values.front() : *larger);
        },
        [=](const std::wstring& parameter) { return !parameter.empty() && get() == Integer(parameter); });
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
        if (const auto fractions = ParsePair(parameter)) {
            state.Pan(fractions->first, fractions->second);
        }
    });
    reactor->Serve(L"region", [&state](const std::wstring& parameter) {
        if (const auto box = ParseBox(parameter)) {
            state.Show(*box);
        }
    });
    // The field sends its command on losing the focus too: nobody wants a message box for that.
    reactor->Serve(L"place", [&state, &data, &host](const std::wstring& parameter) {
        GoToPlace(state, data, host, parameter == L"field" && !host.IsPlaceConfirmed());
    });
    reactor->Serve(L"visit", [&state](const std::wstring& parameter) {
        if (const auto pair = ParsePair(parameter)) {
            Visit(state, {pair->second, pair->first});
        }
    });
    reactor->Serve(
        L"bookmark",
        [&state](const std::wstring& what) {
            if (what == L"add") {
                state.AddBookmark();
            } else if (what == L"clear") {
                state.ClearBookmarks();
            } else {
                state.StepBookmark(what == L"previous" ? -1 : 1);
            }
        },
        nullptr, [&state](const std::wstring& what) { return what == L"add" || state.BookmarkCount() > 0; });
    return reactor;
}

boost::shared_ptr<CMenuReactor> MakeLayerReactor(MapState& state, const ViewerHost& host) {
    auto reactor = boost::make_shared<CCommandReactor>();
    // A choice in a combo of layers only says which layer is meant.
    for (const wchar_t* const combo : {L"layers", L"layercolors", L"labels"}) {
        reactor->Serve(combo, [](const std::wstring&) {});
    }
    reactor->Serve(
        L"lock",
        [&state, &host](const std::wstring&) {
            if (const auto layer = host.ChosenLayer()) {
                state.ToggleLock(*layer);
            }
        },
        [&state, &host](const std::wstring&) {
            const auto layer = host.ChosenLayer();
            return layer && state.IsLocked(*layer);
        },
        [&host](const std::wstring&) { return host.ChosenLayer().has_value(); });
    reactor->Serve(
        L"light",
        [&state, &host](const std::wstring&) {
            if (const auto layer = host.ChosenLayer()) {
                state.SetLit(*layer, !state.IsLit(*layer));
            }
        },
        [&state, &host](const std::wstring&) {
            const auto layer = host.ChosenLayer();
            return layer && state.IsLit(*layer);
        },
        [&state, &host](const std::wstring&) {
            const auto layer = host.ChosenLayer();
            return layer && !state.IsLocked(*layer);
        });
    reactor->Serve(
        L"layer",
        [&state](const std::wstring& name) {
            const auto row = FindByParameter(kLayers, name);
            if (row != kLayers.end()) {
                state.Toggle(row->layer);
            }
        },
        [&state](const std::wstring& name) {
            const auto row = FindByParameter(kLayers, name);
            return row != kLayers.end() && state.IsShown(row->layer);
        },
        [&state](const std::wstring& name) {
            return name == L"names" ? state.IsShown(MapLayer::Cities) : name != L"opened" || !state.Opened().empty();
        });
    reactor->Serve(
        L"palette",
        [&state](const std::wstring& name) {
            const auto row = FindByParameter(kPalettes, name);
            if (row != kPalettes.end()) {
                state.SetPalette(row->palette);
            }
        },
        [&state](const std::wstring& name) {
            const auto row = FindByParameter(kPalettes, name);
            return row != kPalettes.end() && state.ChosenPalette() == row->palette;
        });
    reactor->Serve(
        L"spacing", [&state](const std::wstring& degrees) { state.SetGraticuleSpacing(Integer(degrees)); },
        [&state](const std::wstring& degrees) { return state.GraticuleSpacing() == Integer(degrees); },
        [&state](const std::wstring&) { return state.IsShown(MapLayer::Graticule); });
    reactor->Serve(
        L"smooth", [&state](const std::wstring&) { state.ToggleSmooth(); },
        [&state](const std::wstring&) { return state.IsSmooth(); });
    ServeValue(
        *reactor, L"linewidth", {1, 2, 3}, [&state] { return state.LineWidth(); },
        [&state](int times) { state.SetLineWidth(times); });
    ServeValue(
        *reactor, L"namesize", {9, 12, 16}, [&state] { return state.NameSize(); },
        [&state](int pixels) { state.SetNameSize(pixels); });
    return reactor;
}

boost::shared_ptr<CMenuReactor> MakePictureReactor(const MapState& state, ViewerHost& host) {
    auto reactor = boost::make_shared<CCommandReactor>();
    reactor->Serve(L"picture", [&state, &host](const std::wstring& what) {
        if (what == L"copy") {
            host.CopyPicture();
        } else if (what == L"save") {
            host.SavePicture();
        } else {
            host.CopyText(TextOf(state.View().center));
        }
    });
    return reactor;
}

boost::shared_ptr<CMenuReactor> MakeFileReactor(MapState& state, ViewerHost& host) {
    auto reactor = boost::make_shared<CCommandReactor>();
    reactor->Serve(
        L"file",
        [&state, &host](const std::wstring& what) {
            if (what == L"open") {
                host.OpenMapFile();
            } else if (what == L"exit") {
                host.Leave();
            } else {
                state.CloseOpened();
            }
        },
        nullptr, [&state](const std::wstring& what) { return what != L"close" || !state.Opened().empty(); });
    return reactor;
}

boost::shared_ptr<CMenuReactor> MakeModeReactor(MapState& state, ViewerHost& host) {
    auto reactor = boost::make_shared<CCommandReactor>();
    reactor->Serve(
        L"mode",
        [&state, &host](const std::wstring& name) {
            state.SetMode(WorkingModes::ModeOf(name));
            host.ShowMode(state.Mode());
        },
        [&state](const std::wstring& name) { return state.Mode() == WorkingModes::ModeOf(name); });
    reactor->Serve(
        L"mark",
        [&state, &host](const std::wstring& what) {
            if (what == L"add") {
                state.AddMark();
            } else if (what == L"undo") {
                state.RemoveLastMark();
            } else if (what == L"clear") {
                state.ClearMarks();
            } else {
                host.CopyText(TextOf(state.Marks()));
            }
        },
        nullptr, [&state](const std::wstring& what) { return what == L"add" || !state.Marks().empty(); });
    reactor->Serve(
        L"page",
        [&state, &host](const std::wstring& what) {
            if (what == L"copy") {
                host.CopyPage();
            } else if (what == L"save") {
                host.SavePage();
            } else if (what == L"preview") {
                host.PreviewPage();
            } else if (what == L"print" && state.Mode() == MapMode::Print) {
                host.PrintPage();
            } else if (what == L"print") { // first what will go on the page is shown
                state.SetMode(MapMode::Print);
                host.ShowMode(MapMode::Print);
            } else {
                state.SetPage(what == L"portrait" ? PageShape::Portrait : PageShape::Landscape);
            }
        },
        [&state](const std::wstring& what) {
            return what == (state.Page() == PageShape::Portrait ? L"portrait" : L"landscape");
        });
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
    reactor->Serve(
        L"ribbon",
        [&host](const std::wstring& what) {
            if (what == L"below") {
                host.ToggleQuickAccessBelow();
            } else if (what == L"classic") {
                host.ToggleClassicBars();
            } else {
                host.ToggleRibbonMinimized();
            }
        },
        [&host](const std::wstring& what) {
            return what == L"below"     ? host.IsQuickAccessBelow()
                   : what == L"classic" ? host.AreClassicBarsShown()
                                        : host.IsRibbonMinimized();
        });
    reactor->Serve(L"reload", [&host](const std::wstring&) { host.ReloadFiles(); });
    reactor->Serve(L"options", [&host](const std::wstring&) { host.AskOptions(); });
    reactor->Serve(L"search", [&host](const std::wstring&) { host.ShowCommandSearch(); });
    reactor->Serve(L"keyboard", [&host](const std::wstring&) { host.TellKeyboard(); });
    reactor->Serve(L"customize", [&host](const std::wstring&) { host.CustomizeBars(); });
    reactor->Serve(L"about", [&host](const std::wstring&) { host.TellAbout(); });
    return reactor;
}
