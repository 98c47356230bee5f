#include "map_painter.h"

#include "fine_surface.h"
#include "map_shapes.h"
#include "map_texts.h"
#include "mode_overlay.h"

using Gdiplus::Color;
using Gdiplus::Graphics;
using Gdiplus::PointF;
using Gdiplus::RectF;

namespace {

constexpr BYTE kUnlitVeil = 216; // as reliefVeil of a palette

} // namespace

struct MapPainter::Relief {
    explicit Relief(const std::wstring& file) : image(file.c_str()) {}
    Gdiplus::Bitmap image;
};

MapPainter::MapPainter(const MapData& data) : m_data(data) {}

MapPainter::~MapPainter() = default;

bool MapPainter::PaintRelief(Gdiplus::Graphics& graphics, const Gdiplus::RectF& world) {
    if (!m_relief) {
        m_relief = std::make_unique<Relief>(m_data.reliefFile);
    }
    graphics.SetInterpolationMode(Gdiplus::InterpolationModeHighQualityBilinear);
    graphics.SetPixelOffsetMode(Gdiplus::PixelOffsetModeHalf);
    const bool isDrawn = graphics.DrawImage(&m_relief->image, world) == Gdiplus::Ok;
    graphics.SetPixelOffsetMode(Gdiplus::PixelOffsetModeDefault);
    return isDrawn;
}

void MapPainter::PaintShapes(HDC dc, const MapState& state, const MapPaintStyle& style) {
    Graphics graphics(dc);
    const MapCanvas canvas = MakeCanvas(graphics, state, style);
    const Color& sea = canvas.colors.sea;
    const auto around = state.Color(MapLayer::Relief);
    graphics.Clear(around ? Color(0xFF000000 | *around) : sea);
    const PointF corner = canvas.At({-180, 90});
    const PointF opposite = canvas.At({180, -90});
    const RectF world(corner.X, corner.Y, opposite.X - corner.X, opposite.Y - corner.Y);
    const bool hasRelief = state.IsShown(MapLayer::Relief) && PaintRelief(graphics, world);
    const BYTE veilStrength = state.IsLit(MapLayer::Relief) ? canvas.colors.reliefVeil : kUnlitVeil;
    if (hasRelief && veilStrength > 0) {
        Gdiplus::SolidBrush veil(Color(veilStrength, sea.GetR(), sea.GetG(), sea.GetB()));
        graphics.FillRectangle(&veil, world);
    }
    graphics.SetSmoothingMode(state.IsSmooth() ? Gdiplus::SmoothingModeAntiAlias : Gdiplus::SmoothingModeNone);
    if (state.IsShown(MapLayer::Coast)) {
        DrawRings(canvas, m_data.coast, hasRelief ? nullptr : &canvas.colors.land,
                  canvas.Ink(MapLayer::Coast, canvas.colors.coast), state.LineWidth());
    }
    if (state.IsShown(MapLayer::Lakes)) {
        const Color water = canvas.Ink(MapLayer::Lakes, canvas.colors.lake);
        DrawRings(canvas, m_data.lakes, &water, canvas.Lit(MapLayer::Lakes, canvas.colors.lakeShore),
                  0.7 * state.LineWidth());
    }
    if (state.IsShown(MapLayer::Graticule)) {
        DrawGraticuleLines(canvas);
    }
    if (state.IsShown(MapLayer::Opened)) {
        DrawOpened(canvas);
    }
    if (state.IsShown(MapLayer::Cities)) {
        DrawCities(canvas, m_data.cities);
    }
}

void MapPainter::Paint(HDC dc, const MapState& state, const MapPaintStyle& style) {
    FineSurface fine(state.IsSmooth() ? state.WindowWidth() : 0, state.WindowHeight());
    if (fine.IsUsable()) {
        MapPaintStyle doubled = style;
        doubled.scale *= 2;
        PaintShapes(fine.Dc(), state.Enlarged(2), doubled);
        fine.AverageTo(dc);
    } else {
        PaintShapes(dc, state, style);
    }
    Graphics graphics(dc);
    DrawMapTexts(MakeCanvas(graphics, state, style), m_data.cities);
    DrawModeOverlay(graphics, state, style);
}
