#pragma once

#include "map_data.h"
#include "map_state.h"

#include <windows.h>

#include <cstdint>
#include <memory>

namespace Gdiplus {
class Graphics;
class RectF;
} // namespace Gdiplus

/// What the painter needs beside state and data.
struct MapPaintStyle {
    double scale = 1;          ///< Screen pixels per pixel at 96 DPI; lines and texts grow with it.
    bool chineseNames = false; ///< Which names of the cities are written.
    std::wstring kilometres;   ///< Unit of the scale bar in the reader's language.
};

/// The colour, 0xRRGGBB, in which a layer is drawn: its own one or the palette's. Of the relief it is what lies around
/// it.
std::uint32_t ShownColor(const MapState& state, MapLayer layer);

/// Draws the map. Holds the relief picture, which is read on first use.
class MapPainter {
public:
    explicit MapPainter(const MapData& data);
    ~MapPainter();
    MapPainter(const MapPainter&) = delete;
    MapPainter& operator=(const MapPainter&) = delete;

    /// Draws the whole view at the top left corner of `dc`, in the size that the state was given.
    void Paint(HDC dc, const MapState& state, const MapPaintStyle& style);

private:
    struct Relief;

    void PaintShapes(HDC dc, const MapState& state, const MapPaintStyle& style);
    bool PaintRelief(Gdiplus::Graphics& graphics, const Gdiplus::RectF& world);

    const MapData& m_data;
    std::unique_ptr<Relief> m_relief;
};
