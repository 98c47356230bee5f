#include "map_painter.h"

#include "bitmap_info.h"
#include "geo_json.h"
#include "mode_overlay.h"
#include "text_places.h"

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
    Color opened;
    BYTE reliefVeil; ///< How much of the sea colour lies over the relief picture, 0 to 255.
};

// One row a palette, in the order of MapPalette.
const std::array<Colors, 3> kColors = {{
    {Color(0xFFA9C9E4), Color(0xFFF3EFE3), Color(0xFF4C6A86), Color(0xFFA9CBE8), Color(0xFF5B83A8), Color(0x60335577),
     Color(0xFF1E2A36), Color(0xD8FFFFFF), Color(0xFFC0392B), Color(0xFF8E24AA), 0},
    {Color(0xFF10202F), Color(0xFF22364A), Color(0xFF5F8FB4), Color(0xFF17304A), Color(0xFF467396), Color(0x60A8C6E0),
     Color(0xFFDDE9F4), Color(0xC0101820), Color(0xFFFFC04D), Color(0xFFFF8AD8), 168},
    {Color(0xFFFFFFFF), Color(0xFFF5F5F5), Color(0xFF707070), Color(0xFFFFFFFF), Color(0xFFA0A0A0), Color(0x60808080),
     Color(0xFF202020), Color(0xF0FFFFFF), Color(0xFF404040), Color(0xFF0A5FB4), 216},
}};

/// Where a layer's own colour stands in a row of the table.
constexpr std::array<Color Colors::*, static_cast<std::size_t>(MapLayer::Count)> kLayerColors = {
    &Colors::sea,  &Colors::coast, &Colors::lake, &Colors::graticule,
    &Colors::city, &Colors::text,  &Colors::text, &Colors::opened};

constexpr BYTE kUnlitVeil = 216;
constexpr BYTE kFaintness = 3; // what is unlit keeps a third of its strength

Color Faint(Color color) { return Color(color.GetA() / kFaintness, color.GetR(), color.GetG(), color.GetB()); }

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
    /// The colour of a layer: its own one in place of the palette's, faint where its light is off.
    Color Ink(MapLayer layer, Color palette) const {
        Color color = palette;
        if (const auto own = state.Color(layer)) {
            color = Color(static_cast<DWORD>(palette.GetA()) << 24 | *own);
        }
        return state.IsLit(layer) ? color : Faint(color);
    }
    /// The layer's light alone, for what has no colour of its own.
    Color Lit(MapLayer layer, Color color) const { return state.IsLit(layer) ? color : Faint(color); }
    REAL Scaled(double pixels) const { return static_cast<REAL>(pixels * style.scale); }
};

Canvas MakeCanvas(Graphics& graphics, const MapState& state, const MapPaintStyle& style) {
    const GeoPoint northWest = state.ToPlace(0, 0);
    const GeoPoint southEast = state.ToPlace(state.WindowWidth(), state.WindowHeight());
    return {graphics,
            state,
            style,
            kColors[static_cast<std::size_t>(state.Palette())],
            {northWest.longitude, southEast.latitude, southEast.longitude, northWest.latitude}};
}

void AddRing(const Canvas& canvas, const GeoRing& ring, std::vector<PointF>& points) {
    points.clear();
    for (const GeoPoint& place : ring.points) {
        const PointF point = canvas.At(place);
        // Points closer than half a pixel add work and no detail.
        if (points.empty() || std::abs(points.back().X - point.X) + std::abs(points.back().Y - point.Y) > 0.7f) {
            points.push_back(point);
        }
    }
}

void DrawRings(const Canvas& canvas, const std::vector<GeoRing>& rings, const Color* fill, Color line, double width) {
    Gdiplus::SolidBrush brush(fill ? *fill : Color());
    Gdiplus::Pen pen(line, canvas.Scaled(width));
    pen.SetLineJoin(Gdiplus::LineJoinRound);
    std::vector<PointF> points;
    for (const GeoRing& ring : rings) {
        if (!canvas.Sees(ring.box)) {
            continue;
        }
        AddRing(canvas, ring, points);
        if (points.size() < 3) {
            continue;
        }
        const INT count = static_cast<INT>(points.size());
        if (fill) {
            canvas.graphics.FillPolygon(&brush, points.data(), count);
        }
        canvas.graphics.DrawPolygon(&pen, points.data(), count);
    }
}

/// What the user opened: areas with a faint fill, lines, places.
void DrawOpened(const Canvas& canvas) {
    constexpr int kFill = 4; // a quarter of the strength
    const Color ink = canvas.Ink(MapLayer::Opened, canvas.colors.opened);
    Gdiplus::Pen pen(ink, canvas.Scaled(1.5 * canvas.state.LineWidth()));
    pen.SetLineJoin(Gdiplus::LineJoinRound);
    Gdiplus::SolidBrush fill(Color(ink.GetA() / kFill, ink.GetR(), ink.GetG(), ink.GetB()));
    Gdiplus::SolidBrush dot(ink);
    Gdiplus::SolidBrush rim(canvas.Lit(MapLayer::Opened, canvas.colors.halo));
    std::vector<PointF> points;
    for (const auto& features : canvas.state.Opened()) {
        for (const std::vector<GeoRing>& area : features->areas) {
            if (!canvas.Sees(area.front().box)) {
                continue;
            }
            Gdiplus::GraphicsPath path(Gdiplus::FillModeAlternate);
            for (const GeoRing& ring : area) {
                AddRing(canvas, ring, points);
                if (points.size() > 2) {
                    path.AddPolygon(points.data(), static_cast<INT>(points.size()));
                }
            }
            canvas.graphics.FillPath(&fill, &path);
            canvas.graphics.DrawPath(&pen, &path);
        }
        for (const GeoRing& line : features->lines) {
            AddRing(canvas, line, points);
            if (canvas.Sees(line.box) && points.size() > 1) {
                canvas.graphics.DrawLines(&pen, points.data(), static_cast<INT>(points.size()));
            }
        }
        for (const NamedPlace& place : features->places) {
            const PointF at = canvas.At(place.place);
            const REAL radius = canvas.Scaled(4), outer = canvas.Scaled(5.2);
            canvas.graphics.FillEllipse(&rim, RectF(at.X - outer, at.Y - outer, 2 * outer, 2 * outer));
            canvas.graphics.FillEllipse(&dot, RectF(at.X - radius, at.Y - radius, 2 * radius, 2 * radius));
        }
    }
}

TextBox ToBox(const RectF& place) { return {place.X, place.Y, place.GetRight(), place.GetBottom()}; }

RectF PlaceOfText(const Canvas& canvas, const Gdiplus::Font& font, const std::wstring& text, PointF at) {
    RectF place;
    canvas.graphics.MeasureString(text.c_str(), static_cast<INT>(text.size()), &font, at, &place);
    return place;
}

/// How the texts of one kind are written.
struct TextStyle {
    const Gdiplus::Font& font;
    Color ink;
    Color halo;
};

TextStyle StyleOf(const Canvas& canvas, const Gdiplus::Font& font, MapLayer layer, MapLabel label) {
    const bool isLit = canvas.state.IsLit(label);
    const Color ink = canvas.Ink(layer, canvas.colors.text);
    return {font, isLit ? ink : Faint(ink), isLit ? canvas.colors.halo : Faint(canvas.colors.halo)};
}

void DrawHaloText(const Canvas& canvas, const TextStyle& style, const std::wstring& text, PointF at) {
    Gdiplus::SolidBrush halo(style.halo);
    Gdiplus::SolidBrush ink(style.ink);
    const Gdiplus::Font& font = style.font;
    const REAL step = canvas.Scaled(1);
    const INT length = static_cast<INT>(text.size());
    for (const PointF& offset : {PointF(-step, 0), PointF(step, 0), PointF(0, -step), PointF(0, step)}) {
        canvas.graphics.DrawString(text.c_str(), length, &font, PointF(at.X + offset.X, at.Y + offset.Y), &halo);
    }
    canvas.graphics.DrawString(text.c_str(), length, &font, at, &ink);
}

std::wstring DegreeText(int degrees, wchar_t positive, wchar_t negative) {
    wchar_t text[16];
    std::swprintf(text, std::size(text), L"%d\u00b0", std::abs(degrees));
    std::wstring result = text;
    if (degrees != 0 && std::abs(degrees) != 180) {
        result += degrees > 0 ? positive : negative;
    }
    return result;
}

void DrawGraticuleLines(const Canvas& canvas) {
    Gdiplus::Pen pen(canvas.Ink(MapLayer::Graticule, canvas.colors.graticule), canvas.Scaled(1));
    const int spacing = canvas.state.GraticuleSpacing();
    const PointF northWest = canvas.At({-180, 90});
    const PointF southEast = canvas.At({180, -90});
    for (int longitude = -180; longitude <= 180; longitude += spacing) {
        const REAL x = canvas.At({static_cast<double>(longitude), 0}).X;
        canvas.graphics.DrawLine(&pen, x, northWest.Y, x, southEast.Y);
    }
    const int first = 90 / spacing * spacing;
    for (int latitude = -first; latitude <= first; latitude += spacing) {
        const REAL y = canvas.At({0, static_cast<double>(latitude)}).Y;
        canvas.graphics.DrawLine(&pen, northWest.X, y, southEast.X, y);
    }
}

/// Numbers along the upper and the left edge of what is seen; those without room, on the map or beside each other, are
/// left out.
void DrawGraticuleNumbers(const Canvas& canvas, const TextStyle& style, TextPlaces& places) {
    const int spacing = canvas.state.GraticuleSpacing();
    const PointF northWest = canvas.At({-180, 90});
    const PointF southEast = canvas.At({180, -90});
    const REAL top = std::max(northWest.Y, REAL(0));
    const REAL left = std::max(northWest.X, REAL(0));
    const auto write = [&](const std::wstring& text, PointF at) {
        const RectF place = PlaceOfText(canvas, style.font, text, at);
        const bool isOnMap = place.GetRight() <= southEast.X && place.GetBottom() <= southEast.Y;
        if (isOnMap && places.Take(ToBox(place))) {
            DrawHaloText(canvas, style, text, at);
        }
    };
    const RectF longest = PlaceOfText(canvas, style.font, DegreeText(-165, L'E', L'W'), PointF(0, 0));
    const PointF corner = canvas.At({0, 0});
    const PointF next = canvas.At({static_cast<double>(spacing), -static_cast<double>(spacing)});
    const int across = spacing * LinesToANumber(next.X - corner.X, longest.Width);
    for (int longitude = -180 / across * across; longitude < 180; longitude += across) {
        const REAL x = canvas.At({static_cast<double>(longitude), 0}).X;
        write(DegreeText(longitude, L'E', L'W'), PointF(x + canvas.Scaled(2), top));
    }
    const int down = spacing * LinesToANumber(next.Y - corner.Y, longest.Height);
    for (int latitude = 90 / down * down; latitude >= -90; latitude -= down) {
        const REAL y = canvas.At({0, static_cast<double>(latitude)}).Y;
        if (y >= top) {
            write(DegreeText(latitude, L'N', L'S'), PointF(left + canvas.Scaled(2), y));
        }
    }
}

int LargestRank(double pixelsPerDegree, double scale) {
    const double detail = pixelsPerDegree / scale;
    return detail < 3 ? 1 : detail < 7 ? 2 : 3;
}

template <class Draw>
void ForEachShownCity(const Canvas& canvas, const std::vector<City>& cities, Draw draw) {
    const int largest = LargestRank(canvas.state.View().pixelsPerDegree, canvas.style.scale);
    // The important ones first: they get the room for their names.
    for (int rank = 1; rank <= largest; ++rank) {
        for (const City& city : cities) {
            if (city.rank == rank &&
                canvas.Sees({city.place.longitude, city.place.latitude, city.place.longitude, city.place.latitude})) {
                draw(city, canvas.At(city.place), canvas.Scaled(rank == 1 ? 3.5 : 2.5));
            }
        }
    }
}

/// Keeps the names away from a mark, but not from its edge, at which they begin.
void KeepFreeOfTexts(const Canvas& canvas, PointF at, REAL radius, TextPlaces& places) {
    const REAL reach = radius - canvas.Scaled(0.5);
    places.KeepFree(ToBox(RectF(at.X - reach, at.Y - reach, 2 * reach, 2 * reach)));
}

void DrawCities(const Canvas& canvas, const std::vector<City>& cities) {
    Gdiplus::SolidBrush dot(canvas.Ink(MapLayer::Cities, canvas.colors.city));
    Gdiplus::SolidBrush rim(canvas.Lit(MapLayer::Cities, canvas.colors.halo));
    ForEachShownCity(canvas, cities, [&](const City&, PointF at, REAL radius) {
        const REAL outer = radius + canvas.Scaled(1.2);
        canvas.graphics.FillEllipse(&rim, RectF(at.X - outer, at.Y - outer, 2 * outer, 2 * outer));
        canvas.graphics.FillEllipse(&dot, RectF(at.X - radius, at.Y - radius, 2 * radius, 2 * radius));
    });
}

/// Right of the dot, or at the next side of it where there is room.
void DrawNameBeside(const Canvas& canvas, const TextStyle& style, const std::wstring& name, PointF at, REAL radius,
                    TextPlaces& places) {
    const RectF size = PlaceOfText(canvas, style.font, name, at);
    const REAL beside = at.Y - size.Height / 2, middle = at.X - size.Width / 2;
    for (const PointF& corner : {PointF(at.X + radius, beside), PointF(at.X - radius - size.Width, beside),
                                 PointF(middle, at.Y - radius - size.Height), PointF(middle, at.Y + radius)}) {
        if (places.Take(ToBox(RectF(corner.X, corner.Y, size.Width, size.Height)))) {
            DrawHaloText(canvas, style, name, corner);
            return;
        }
    }
}

void DrawOpenedNames(const Canvas& canvas, const TextStyle& style, TextPlaces& places) {
    for (const auto& features : canvas.state.Opened()) {
        for (const NamedPlace& place : features->places) {
            const GeoPoint& point = place.place;
            if (!place.name.empty() &&
                canvas.Sees({point.longitude, point.latitude, point.longitude, point.latitude})) {
                DrawNameBeside(canvas, style, place.name, canvas.At(point), canvas.Scaled(5), places);
            }
        }
    }
}

void DrawCityNames(const Canvas& canvas, const std::vector<City>& cities, const TextStyle& style, TextPlaces& places) {
    ForEachShownCity(canvas, cities, [&](const City& city, PointF at, REAL radius) {
        const std::wstring& name = canvas.style.chineseNames ? city.chinese : city.english;
        DrawNameBeside(canvas, style, name, at, radius, places);
    });
}

/// The roundest length, 1, 2 or 5 times a power of ten, that is no longer than `limit`.
double RoundLength(double limit) {
    const double power = std::pow(10, std::floor(std::log10(limit)));
    for (const double step : {5.0, 2.0}) {
        if (step * power <= limit) {
            return step * power;
        }
    }
    return power;
}

/// Keeps the numbers and names away from its line and its text.
void DrawScaleBar(const Canvas& canvas, const TextStyle& style, TextPlaces& places) {
    constexpr double kKilometresPerDegree = 111.32;
    constexpr double kPi = 3.14159265358979;
    const MapView& view = canvas.state.View();
    const double shrink = std::max(std::cos(view.center.latitude * kPi / 180), 0.05);
    const double pixelsPerKilometre = view.pixelsPerDegree / (kKilometresPerDegree * shrink);
    const double kilometres = RoundLength(160 * canvas.style.scale / pixelsPerKilometre);
    const REAL length = static_cast<REAL>(kilometres * pixelsPerKilometre);
    const REAL left = canvas.Scaled(16);
    const REAL bottom = static_cast<REAL>(canvas.state.WindowHeight()) - canvas.Scaled(16);

    Gdiplus::Pen halo(canvas.Lit(MapLayer::ScaleBar, canvas.colors.halo), canvas.Scaled(5));
    Gdiplus::Pen ink(canvas.Ink(MapLayer::ScaleBar, canvas.colors.text), canvas.Scaled(2));
    const REAL tick = canvas.Scaled(6);
    const std::array<PointF, 4> line = {PointF(left, bottom - tick), PointF(left, bottom),
                                        PointF(left + length, bottom), PointF(left + length, bottom - tick)};
    canvas.graphics.DrawLines(&halo, line.data(), static_cast<INT>(line.size()));
    canvas.graphics.DrawLines(&ink, line.data(), static_cast<INT>(line.size()));
    wchar_t number[32];
    std::swprintf(number, std::size(number), L"%g ", kilometres);
    const std::wstring text = number + canvas.style.kilometres;
    const PointF at(left + canvas.Scaled(4), bottom - canvas.Scaled(22));
    DrawHaloText(canvas, style, text, at);
    const RectF written = PlaceOfText(canvas, style.font, text, at);
    const REAL right = std::max(left + length, written.GetRight());
    places.KeepFree(ToBox(RectF(left, at.Y, right - left, bottom - at.Y)));
}

/// A picture twice as wide and high as what it is averaged down to: smooth edges wherever the lines are drawn.
class FineSurface {
public:
    FineSurface(int width, int height) : m_width(width), m_height(height), m_dc(::CreateCompatibleDC(nullptr)) {
        const BITMAPINFO info = TopDownPixels(2 * width, 2 * height);
        void* bits = nullptr;
        m_bitmap = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        m_fine = static_cast<DWORD*>(bits);
        m_earlier = ::SelectObject(m_dc, m_bitmap);
    }
    ~FineSurface() {
        ::SelectObject(m_dc, m_earlier);
        ::DeleteObject(m_bitmap);
        ::DeleteDC(m_dc);
    }
    FineSurface(const FineSurface&) = delete;
    FineSurface& operator=(const FineSurface&) = delete;

    bool IsUsable() const { return m_fine != nullptr; }
    HDC Dc() const { return m_dc; }

    void AverageTo(HDC target) {
        ::GdiFlush();
        std::vector<DWORD> pixels(static_cast<std::size_t>(m_width) * m_height);
        const std::size_t stride = 2 * static_cast<std::size_t>(m_width);
        for (int y = 0; y < m_height; ++y) {
            const DWORD* upper = m_fine + 2 * y * stride;
            const DWORD* lower = upper + stride;
            DWORD* out = pixels.data() + static_cast<std::size_t>(y) * m_width;
            for (int x = 0; x < m_width; ++x, upper += 2, lower += 2) {
                out[x] = Average(upper[0], upper[1], lower[0], lower[1]);
            }
        }
        const BITMAPINFO info = TopDownPixels(m_width, m_height);
        ::SetDIBitsToDevice(target, 0, 0, m_width, m_height, 0, 0, 0, m_height, pixels.data(), &info, DIB_RGB_COLORS);
    }

private:
    /// Of each colour on its own: two colours at a time, with eight free bits above each.
    static DWORD Average(DWORD a, DWORD b, DWORD c, DWORD d) {
        constexpr DWORD kEven = 0x00FF00FF;
        const DWORD even = (a & kEven) + (b & kEven) + (c & kEven) + (d & kEven);
        const DWORD odd = ((a >> 8) & kEven) + ((b >> 8) & kEven) + ((c >> 8) & kEven) + ((d >> 8) & kEven);
        return (even >> 2 & kEven) | ((odd >> 2 & kEven) << 8);
    }

    int m_width;
    int m_height;
    HDC m_dc;
    HBITMAP m_bitmap = nullptr;
    HGDIOBJ m_earlier = nullptr;
    DWORD* m_fine = nullptr;
};

} // namespace

std::uint32_t ShownColor(const MapState& state, MapLayer layer) {
    if (const auto own = state.Color(layer)) {
        return *own;
    }
    const Colors& colors = kColors[static_cast<std::size_t>(state.Palette())];
    return (colors.*kLayerColors[static_cast<std::size_t>(layer)]).GetValue() & 0xFFFFFF;
}

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
    const Canvas canvas = MakeCanvas(graphics, state, style);
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

void MapPainter::PaintTexts(HDC dc, const MapState& state, const MapPaintStyle& style) {
    Graphics graphics(dc);
    const Canvas canvas = MakeCanvas(graphics, state, style);
    graphics.SetTextRenderingHint(Gdiplus::TextRenderingHintAntiAliasGridFit);
    const Gdiplus::FontFamily family(style.chineseNames ? L"Microsoft YaHei UI" : L"Segoe UI");
    const Gdiplus::Font small(&family, canvas.Scaled(11), Gdiplus::FontStyleRegular, Gdiplus::UnitPixel);
    const Gdiplus::Font normal(&family, canvas.Scaled(12), Gdiplus::FontStyleRegular, Gdiplus::UnitPixel);
    const Gdiplus::Font names(&family, canvas.Scaled(state.NameSize()), Gdiplus::FontStyleRegular, Gdiplus::UnitPixel);
    TextPlaces places(state.WindowWidth(), state.WindowHeight());
    if (state.IsShown(MapLayer::ScaleBar)) {
        DrawScaleBar(canvas, StyleOf(canvas, normal, MapLayer::ScaleBar, MapLabel::ScaleBarText), places);
    }
    if (state.IsShown(MapLayer::Graticule)) {
        DrawGraticuleNumbers(canvas, StyleOf(canvas, small, MapLayer::Graticule, MapLabel::GraticuleNumbers), places);
    }
    if (state.IsShown(MapLayer::Cities)) {
        ForEachShownCity(canvas, m_data.cities,
                         [&](const City&, PointF at, REAL radius) { KeepFreeOfTexts(canvas, at, radius, places); });
    }
    if (state.IsShown(MapLayer::Opened)) {
        DrawOpenedNames(canvas, StyleOf(canvas, names, MapLayer::Opened, MapLabel::CityNames), places);
    }
    if (state.IsShown(MapLayer::Cities) && state.IsShown(MapLayer::Names)) {
        DrawCityNames(canvas, m_data.cities, StyleOf(canvas, names, MapLayer::Names, MapLabel::CityNames), places);
    }
    DrawModeOverlay(graphics, state, style);
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
    PaintTexts(dc, state, style);
}
