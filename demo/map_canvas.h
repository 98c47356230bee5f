#pragma once

#include "map_painter.h"

#include <windows.h>

#include <gdiplus.h>

#include <vector>

/// What a palette draws with.
struct MapColors {
    Gdiplus::Color sea;
    Gdiplus::Color land;
    Gdiplus::Color coast;
    Gdiplus::Color lake;
    Gdiplus::Color lakeShore;
    Gdiplus::Color graticule;
    Gdiplus::Color text;
    Gdiplus::Color halo;
    Gdiplus::Color city;
    Gdiplus::Color opened;
    BYTE reliefVeil; ///< How much of the sea colour lies over the relief picture, 0 to 255.
};

/// What is unlit keeps a third of its strength.
Gdiplus::Color Faint(Gdiplus::Color color);

/// State of one painting: what each layer's function needs.
struct MapCanvas {
    Gdiplus::Graphics& graphics;
    const MapState& state;
    const MapPaintStyle& style;
    const MapColors& colors;
    GeoBox visible;

    bool Sees(const GeoBox& box) const;
    bool Sees(GeoPoint place) const { return Sees({place.longitude, place.latitude, place.longitude, place.latitude}); }
    Gdiplus::PointF At(GeoPoint place) const;
    /// The colour of a layer: its own one in place of the palette's, faint where its light is off.
    Gdiplus::Color Ink(MapLayer layer, Gdiplus::Color palette) const;
    /// The layer's light alone, for what has no colour of its own.
    Gdiplus::Color Lit(MapLayer layer, Gdiplus::Color color) const;
    Gdiplus::REAL Scaled(double pixels) const { return static_cast<Gdiplus::REAL>(pixels * style.scale); }
};

MapCanvas MakeCanvas(Gdiplus::Graphics& graphics, const MapState& state, const MapPaintStyle& style);

/// Cities of a higher rank are left out at this scale.
int LargestRank(const MapCanvas& canvas);

/// Calls `draw` with each city that is seen, its place in the window and the radius of its mark: the important ones
/// first, so that they get the room for their names.
template <class Draw>
void ForEachShownCity(const MapCanvas& canvas, const std::vector<City>& cities, Draw draw) {
    const int largest = LargestRank(canvas);
    for (int rank = 1; rank <= largest; ++rank) {
        for (const City& city : cities) {
            if (city.rank == rank && canvas.Sees(city.place)) {
                draw(city, canvas.At(city.place), canvas.Scaled(rank == 1 ? 3.5 : 2.5));
            }
        }
    }
}
