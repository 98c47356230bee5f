#include "map_painter.h"

#include <algorithm>

#include <gdiplus.h>

#include <array>
#include <cmath>
#include <cwchar>

using Gdiplus::Color;
using Gdiplus::Graphics;
using Gdiplus::PointF;
using Gdiplus::REAL;
using Gdiplus::RectF;

namespace {

struct Colors {
    Color sea;
    Color land;
    Color coast;
    Color lake;
    Color lakeShore;
    Color graticule;
    Color text;
    Color halo;
    Color city;
    BYTE reliefVeil; ///< How much of the sea colour lies over the relief picture, 0 to 255.
};

// One row a palette, in the order of MapPalette.
const std::array<Colors, 3> kColors = {{
    {Color(0xFFA9C9E4), Color(0xFFF3EFE3), Color(0xFF4C6A86), Color(0xFFA9CBE8), Color(0xFF5B83A8), Color(0x60335577),
     Color(0xFF1E2A36), Color(0xD8FFFFFF), Color(0xFFC0392B), 0},
    {Color(0xFF10202F), Color(0xFF22364A), Color(0xFF5F8FB4), Color(0xFF17304A), Color(0xFF467396), Color(0x60A8C6E0),
     Color(0xFFDDE9F4), Color(0xC0101820), Color(0xFFFFC04D), 168},
    {Color(0xFFFFFFFF), Color(0xFFF5F5F5), Color(0xFF707070), Color(0xFFFFFFFF), Color(0xFFA0A0A0), Color(0x60808080),
     Color(0xFF202020), Color(0xF0FFFFFF), Color(0xFF404040), 216},
}};

/// State of one painting: what each layer's function needs.
struct Canvas {
    Graphics& graphics;
    const MapState& state;
    const MapPaintStyle& style;
    const Colors& colors;
    GeoBox visible;

    bool Sees(const GeoBox& box) const {
        return box.east >= visible.west && box.west <= visible.east && box.north >= visible.south &&
               box.south <= visible.north;
    }
    PointF At(GeoPoint place) const {
        double x = 0;
        double y = 0;
        state.ToWindow(place, x, y);
        return PointF(static_cast<REAL>(x), static_cast<REAL>(y));
    }
    REAL Scaled(double pixels) const { return static_cast<REAL>(pixels * style.scale); }
};

void AddRing(const Canvas& canvas, const GeoRing& ring, std::vector<PointF>& points) {
    points.clear();
    for (const GeoPoint& place : ring.points) {
        const PointF point = canvas.At(place);
        // Points closer than half a pixel add work and no detail.
        if (points.empty() || std::abs(points.back().X - point.X) + std::abs(points.back().Y - point.Y) > 0.7f)
            points.push_back(point);
    }
}

void DrawRings(const Canvas& canvas, const std::vector<GeoRing>& rings, const Color* fill, Color line, double width) {
    Gdiplus::SolidBrush brush(fill ? *fill : Color());
    Gdiplus::Pen pen(line, canvas.Scaled(width));
    pen.SetLineJoin(Gdiplus::LineJoinRound);
    std::vector<PointF> points;
    for (const GeoRing& ring : rings) {
        if (!canvas.Sees(ring.box))
            continue;
        AddRing(canvas, ring, points);
        if (points.size() < 3)
            continue;
        const INT count = static_cast<INT>(points.size());
        if (fill)
            canvas.graphics.FillPolygon(&brush, points.data(), count);
        canvas.graphics.DrawPolygon(&pen, points.data(), count);
    }
}

void DrawHaloText(const Canvas& canvas, const Gdiplus::Font& font, const std::wstring& text, PointF at) {
    Gdiplus::SolidBrush halo(canvas.colors.halo);
    Gdiplus::SolidBrush ink(canvas.colors.text);
    const REAL step = canvas.Scaled(1);
    const INT length = static_cast<INT>(text.size());
    for (const PointF& offset : {PointF(-step, 0), PointF(step, 0), PointF(0, -step), PointF(0, step)})
        canvas.graphics.DrawString(text.c_str(), length, &font, PointF(at.X + offset.X, at.Y + offset.Y), &halo);
    canvas.graphics.DrawString(text.c_str(), length, &font, at, &ink);
}

std::wstring DegreeText(int degrees, wchar_t positive, wchar_t negative) {
    wchar_t text[16];
    std::swprintf(text, std::size(text), L"%d\u00b0", std::abs(degrees));
    std::wstring result = text;
    if (degrees != 0 && std::abs(degrees) != 180)
        result += degrees > 0 ? positive : negative;
    return result;
}

void DrawGraticule(const Canvas& canvas, const Gdiplus::Font& font) {
    Gdiplus::Pen pen(canvas.colors.graticule, canvas.Scaled(1));
    const int spacing = canvas.state.GraticuleSpacing();
    const PointF northWest = canvas.At({-180, 90});
    const PointF southEast = canvas.At({180, -90});
    const REAL top = std::max(northWest.Y, REAL(0));
    const REAL left = std::max(northWest.X, REAL(0));
    for (int longitude = -180; longitude <= 180; longitude += spacing) {
        const REAL x = canvas.At({static_cast<double>(longitude), 0}).X;
        canvas.graphics.DrawLine(&pen, x, northWest.Y, x, southEast.Y);
        if (longitude < 180)
            DrawHaloText(canvas, font, DegreeText(longitude, L'E', L'W'), PointF(x + canvas.Scaled(2), top));
    }
    const int first = 90 / spacing * spacing;
    for (int latitude = -first; latitude <= first; latitude += spacing) {
        const REAL y = canvas.At({0, static_cast<double>(latitude)}).Y;
        canvas.graphics.DrawLine(&pen, northWest.X, y, southEast.X, y);
        if (latitude < 90 && y - top > canvas.Scaled(14))
            DrawHaloText(canvas, font, DegreeText(latitude, L'N', L'S'), PointF(left + canvas.Scaled(2), y));
    }
}

int LargestRank(double pixelsPerDegree, double scale) {
    const double detail = pixelsPerDegree / scale;
    return detail < 3 ? 1 : detail < 7 ? 2 : 3;
}

void DrawCities(const Canvas& canvas, const std::vector<City>& cities, const Gdiplus::Font& font) {
    Gdiplus::SolidBrush dot(canvas.colors.city);
    Gdiplus::Pen rim(canvas.colors.halo, canvas.Scaled(1.2));
    const int rank = LargestRank(canvas.state.View().pixelsPerDegree, canvas.style.scale);
    for (const City& city : cities) {
        if (city.rank > rank)
            continue;
        const PointF at = canvas.At(city.place);
        const REAL radius = canvas.Scaled(city.rank == 1 ? 3.5 : 2.5);
        const RectF circle(at.X - radius, at.Y - radius, 2 * radius, 2 * radius);
        canvas.graphics.DrawEllipse(&rim, circle);
        canvas.graphics.FillEllipse(&dot, circle);
        if (canvas.state.IsShown(MapLayer::Names))
            DrawHaloText(canvas, font, canvas.style.chineseNames ? city.chinese : city.english,
                         PointF(at.X + radius, at.Y - canvas.Scaled(8)));
    }
}

/// The roundest length, 1, 2 or 5 times a power of ten, that is no longer than `limit`.
double RoundLength(double limit) {
    const double power = std::pow(10, std::floor(std::log10(limit)));
    for (const double step : {5.0, 2.0})
        if (step * power <= limit)
            return step * power;
    return power;
}

void DrawScaleBar(const Canvas& canvas, const Gdiplus::Font& font) {
    constexpr double kKilometresPerDegree = 111.32;
    constexpr double kPi = 3.14159265358979;
    const MapView& view = canvas.state.View();
    const double shrink = std::max(std::cos(view.center.latitude * kPi / 180), 0.05);
    const double pixelsPerKilometre = view.pixelsPerDegree / (kKilometresPerDegree * shrink);
    const double kilometres = RoundLength(160 * canvas.style.scale / pixelsPerKilometre);
    const REAL length = static_cast<REAL>(kilometres * pixelsPerKilometre);
    const REAL left = canvas.Scaled(16);
    const REAL bottom = static_cast<REAL>(canvas.state.WindowHeight()) - canvas.Scaled(16);

    Gdiplus::Pen halo(canvas.colors.halo, canvas.Scaled(5));
    Gdiplus::Pen ink(canvas.colors.text, canvas.Scaled(2));
    const REAL tick = canvas.Scaled(6);
    const std::array<PointF, 4> line = {PointF(left, bottom - tick), PointF(left, bottom),
                                        PointF(left + length, bottom), PointF(left + length, bottom - tick)};
    canvas.graphics.DrawLines(&halo, line.data(), static_cast<INT>(line.size()));
    canvas.graphics.DrawLines(&ink, line.data(), static_cast<INT>(line.size()));
    wchar_t text[32];
    std::swprintf(text, std::size(text), L"%g ", kilometres);
    DrawHaloText(canvas, font, text + canvas.style.kilometres,
                 PointF(left + canvas.Scaled(4), bottom - canvas.Scaled(22)));
}

} // namespace

struct MapPainter::Relief {
    explicit Relief(const std::wstring& file) : image(file.c_str()) {}
    Gdiplus::Bitmap image;
};

MapPainter::MapPainter(const MapData& data) : m_data(data) {}

MapPainter::~MapPainter() = default;

void MapPainter::Paint(HDC dc, const MapState& state, const MapPaintStyle& style) {
    Graphics graphics(dc);
    const Colors& colors = kColors[static_cast<std::size_t>(state.Palette())];
    const GeoPoint northWest = state.ToPlace(0, 0);
    const GeoPoint southEast = state.ToPlace(state.WindowWidth(), state.WindowHeight());
    const Canvas canvas{graphics,
                        state,
                        style,
                        colors,
                        {northWest.longitude, southEast.latitude, southEast.longitude, northWest.latitude}};
    graphics.Clear(colors.sea);

    bool hasRelief = false;
    const PointF corner = canvas.At({-180, 90});
    const PointF opposite = canvas.At({180, -90});
    const RectF world(corner.X, corner.Y, opposite.X - corner.X, opposite.Y - corner.Y);
    if (state.IsShown(MapLayer::Relief)) {
        if (!m_relief)
            m_relief = std::make_unique<Relief>(m_data.reliefFile);
        graphics.SetInterpolationMode(Gdiplus::InterpolationModeHighQualityBilinear);
        graphics.SetPixelOffsetMode(Gdiplus::PixelOffsetModeHalf);
        hasRelief = graphics.DrawImage(&m_relief->image, world) == Gdiplus::Ok;
        if (hasRelief && colors.reliefVeil > 0) {
            Gdiplus::SolidBrush veil(Color(colors.reliefVeil, colors.sea.GetR(), colors.sea.GetG(), colors.sea.GetB()));
            graphics.FillRectangle(&veil, world);
        }
        graphics.SetPixelOffsetMode(Gdiplus::PixelOffsetModeDefault);
    }

    graphics.SetSmoothingMode(state.IsSmooth() ? Gdiplus::SmoothingModeAntiAlias : Gdiplus::SmoothingModeNone);
    graphics.SetTextRenderingHint(Gdiplus::TextRenderingHintAntiAliasGridFit);
    const Gdiplus::FontFamily family(style.chineseNames ? L"Microsoft YaHei UI" : L"Segoe UI");
    const Gdiplus::Font small(&family, canvas.Scaled(11), Gdiplus::FontStyleRegular, Gdiplus::UnitPixel);
    const Gdiplus::Font normal(&family, canvas.Scaled(12), Gdiplus::FontStyleRegular, Gdiplus::UnitPixel);

    if (state.IsShown(MapLayer::Coast))
        DrawRings(canvas, m_data.coast, hasRelief ? nullptr : &colors.land, colors.coast, 1);
    if (state.IsShown(MapLayer::Lakes))
        DrawRings(canvas, m_data.lakes, &colors.lake, colors.lakeShore, 0.7);
    if (state.IsShown(MapLayer::Graticule))
        DrawGraticule(canvas, small);
    if (state.IsShown(MapLayer::Cities))
        DrawCities(canvas, m_data.cities, normal);
    DrawScaleBar(canvas, normal);
}
