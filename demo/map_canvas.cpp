#include "map_canvas.h"

#include <array>

using Gdiplus::Color;
using Gdiplus::PointF;
using Gdiplus::REAL;

namespace {

// One row a palette, in the order of MapPalette.
const std::array<MapColors, 3> kColors = {{
    {Color(0xFFA9C9E4), Color(0xFFF3EFE3), Color(0xFF4C6A86), Color(0xFFA9CBE8), Color(0xFF5B83A8), Color(0x60335577),
     Color(0xFF1E2A36), Color(0xD8FFFFFF), Color(0xFFC0392B), Color(0xFF8E24AA), 0},
    {Color(0xFF10202F), Color(0xFF22364A), Color(0xFF5F8FB4), Color(0xFF17304A), Color(0xFF467396), Color(0x60A8C6E0),
     Color(0xFFDDE9F4), Color(0xC0101820), Color(0xFFFFC04D), Color(0xFFFF8AD8), 168},
    {Color(0xFFFFFFFF), Color(0xFFF5F5F5), Color(0xFF707070), Color(0xFFFFFFFF), Color(0xFFA0A0A0), Color(0x60808080),
     Color(0xFF202020), Color(0xF0FFFFFF), Color(0xFF404040), Color(0xFF0A5FB4), 216},
}};

/// Where a layer's own colour stands in a row of the table.
constexpr std::array<Color MapColors::*, static_cast<std::size_t>(MapLayer::Count)> kLayerColors = {
    &MapColors::sea,  &MapColors::coast, &MapColors::lake, &MapColors::graticule,
    &MapColors::city, &MapColors::text,  &MapColors::text, &MapColors::opened};

} // namespace

std::uint32_t ShownColor(const MapState& state, MapLayer layer) {
    if (const auto own = state.Color(layer)) {
        return *own;
    }
    const MapColors& colors = kColors[static_cast<std::size_t>(state.Palette())];
    return (colors.*kLayerColors[static_cast<std::size_t>(layer)]).GetValue() & 0xFFFFFF;
}

Color Faint(Color color) {
    constexpr BYTE kFaintness = 3;
    return Color(color.GetA() / kFaintness, color.GetR(), color.GetG(), color.GetB());
}

bool MapCanvas::Sees(const GeoBox& box) const {
    return box.east >= visible.west && box.west <= visible.east && box.north >= visible.south &&
           box.south <= visible.north;
}

PointF MapCanvas::At(GeoPoint place) const {
    double x = 0;
    double y = 0;
    state.ToWindow(place, x, y);
    return PointF(static_cast<REAL>(x), static_cast<REAL>(y));
}

Color MapCanvas::Ink(MapLayer layer, Color palette) const {
    Color color = palette;
    if (const auto own = state.Color(layer)) {
        color = Color(static_cast<DWORD>(palette.GetA()) << 24 | *own);
    }
    return Lit(layer, color);
}

Color MapCanvas::Lit(MapLayer layer, Color color) const { return state.IsLit(layer) ? color : Faint(color); }

MapCanvas MakeCanvas(Gdiplus::Graphics& graphics, const MapState& state, const MapPaintStyle& style) {
    const GeoPoint northWest = state.ToPlace(0, 0);
    const GeoPoint southEast = state.ToPlace(state.WindowWidth(), state.WindowHeight());
    return {graphics,
            state,
            style,
            kColors[static_cast<std::size_t>(state.Palette())],
            {northWest.longitude, southEast.latitude, southEast.longitude, northWest.latitude}};
}

int LargestRank(const MapCanvas& canvas) {
    const double detail = canvas.state.View().pixelsPerDegree / canvas.style.scale;
    return detail < 3 ? 1 : detail < 7 ? 2 : 3;
}
