#include "map_texts.h"

#include "geo_json.h"
#include "text_places.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cwchar>

using Gdiplus::Color;
using Gdiplus::PointF;
using Gdiplus::REAL;
using Gdiplus::RectF;

namespace {

TextBox ToBox(const RectF& place) { return {place.X, place.Y, place.GetRight(), place.GetBottom()}; }

RectF PlaceOfText(const MapCanvas& canvas, const Gdiplus::Font& font, const std::wstring& text, PointF at) {
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

TextStyle StyleOf(const MapCanvas& canvas, const Gdiplus::Font& font, MapLayer layer, MapLabel label) {
    const bool isLit = canvas.state.IsLit(label);
    const Color ink = canvas.Ink(layer, canvas.colors.text);
    return {font, isLit ? ink : Faint(ink), isLit ? canvas.colors.halo : Faint(canvas.colors.halo)};
}

void DrawHaloText(const MapCanvas& canvas, const TextStyle& style, const std::wstring& text, PointF at) {
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

/// Numbers along the upper and the left edge of what is written on; those without room, on the map or beside each
/// other, are left out.
void DrawGraticuleNumbers(const MapCanvas& canvas, const TextStyle& style, TextPlaces& places) {
    const int spacing = canvas.state.GraticuleSpacing();
    const PointF northWest = canvas.At({-180, 90});
    const PointF southEast = canvas.At({180, -90});
    const WindowBox written = canvas.state.WrittenBox();
    const REAL top = std::max(northWest.Y, static_cast<REAL>(written.top));
    const REAL left = std::max(northWest.X, static_cast<REAL>(written.left));
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

/// Keeps the names away from a mark, but not from its edge, at which they begin.
void KeepFreeOfTexts(const MapCanvas& canvas, PointF at, REAL radius, TextPlaces& places) {
    const REAL reach = radius - canvas.Scaled(0.5);
    places.KeepFree(ToBox(RectF(at.X - reach, at.Y - reach, 2 * reach, 2 * reach)));
}

/// Right of the dot, or at the next side of it where there is room.
void DrawNameBeside(const MapCanvas& canvas, const TextStyle& style, const std::wstring& name, PointF at, REAL radius,
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

void DrawOpenedNames(const MapCanvas& canvas, const TextStyle& style, TextPlaces& places) {
    for (const auto& features : canvas.state.Opened()) {
        for (const NamedPlace& place : features->places) {
            if (!place.name.empty() && canvas.Sees(place.place)) {
                DrawNameBeside(canvas, style, place.name, canvas.At(place.place), canvas.Scaled(5), places);
            }
        }
    }
}

void DrawCityNames(const MapCanvas& canvas, const std::vector<City>& cities, const TextStyle& style,
                   TextPlaces& places) {
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

/// No longer than a quarter of what is written on, and above the marks that lie where it would stand. Keeps the numbers
/// and names away from its line and its text.
void DrawScaleBar(const MapCanvas& canvas, const TextStyle& style, TextPlaces& places) {
    constexpr double kKilometresPerDegree = 111.32;
    constexpr double kPi = 3.14159265358979;
    constexpr double kHighestRise = 32; // pixels at 96 DPI
    const MapView& view = canvas.state.View();
    const double shrink = std::max(std::cos(view.center.latitude * kPi / 180), 0.05);
    const double pixelsPerKilometre = view.pixelsPerDegree / (kKilometresPerDegree * shrink);
    const WindowBox box = canvas.state.WrittenBox();
    const double longest = std::min(160 * canvas.style.scale, (box.right - box.left) / 4.0);
    const double kilometres = RoundLength(longest / pixelsPerKilometre);
    const REAL length = static_cast<REAL>(kilometres * pixelsPerKilometre);
    const REAL left = static_cast<REAL>(box.left) + canvas.Scaled(16);
    const REAL lowest = static_cast<REAL>(box.bottom) - canvas.Scaled(16);
    wchar_t number[32];
    std::swprintf(number, std::size(number), L"%g ", kilometres);
    const std::wstring text = number + canvas.style.kilometres;
    const REAL above = canvas.Scaled(22), haloWidth = canvas.Scaled(5);
    const RectF written = PlaceOfText(canvas, style.font, text, PointF(left + canvas.Scaled(4), lowest - above));
    const REAL right = std::max(left + length, written.GetRight());
    const RectF whole(left - haloWidth / 2, written.Y, right - left + haloWidth, above + haloWidth / 2);
    const REAL bottom = lowest - static_cast<REAL>(places.RiseOf(ToBox(whole), canvas.Scaled(kHighestRise)));

    Gdiplus::Pen halo(canvas.Lit(MapLayer::ScaleBar, canvas.colors.halo), haloWidth);
    Gdiplus::Pen ink(canvas.Ink(MapLayer::ScaleBar, canvas.colors.text), canvas.Scaled(2));
    const REAL tick = canvas.Scaled(6);
    const std::array<PointF, 4> line = {PointF(left, bottom - tick), PointF(left, bottom),
                                        PointF(left + length, bottom), PointF(left + length, bottom - tick)};
    canvas.graphics.DrawLines(&halo, line.data(), static_cast<INT>(line.size()));
    canvas.graphics.DrawLines(&ink, line.data(), static_cast<INT>(line.size()));
    const PointF at(written.X, bottom - above);
    DrawHaloText(canvas, style, text, at);
    places.KeepFree(ToBox(RectF(left, at.Y, right - left, above)));
}

} // namespace

void DrawMapTexts(const MapCanvas& canvas, const std::vector<City>& cities) {
    const MapState& state = canvas.state;
    canvas.graphics.SetTextRenderingHint(Gdiplus::TextRenderingHintAntiAliasGridFit);
    const Gdiplus::FontFamily family(canvas.style.chineseNames ? L"Microsoft YaHei UI" : L"Segoe UI");
    const Gdiplus::Font small(&family, canvas.Scaled(11), Gdiplus::FontStyleRegular, Gdiplus::UnitPixel);
    const Gdiplus::Font normal(&family, canvas.Scaled(12), Gdiplus::FontStyleRegular, Gdiplus::UnitPixel);
    const Gdiplus::Font names(&family, canvas.Scaled(state.NameSize()), Gdiplus::FontStyleRegular, Gdiplus::UnitPixel);
    const WindowBox written = state.WrittenBox();
    TextPlaces places({static_cast<double>(written.left), static_cast<double>(written.top),
                       static_cast<double>(written.right), static_cast<double>(written.bottom)});
    if (state.IsShown(MapLayer::Cities)) {
        ForEachShownCity(canvas, cities,
                         [&](const City&, PointF at, REAL radius) { KeepFreeOfTexts(canvas, at, radius, places); });
    }
    if (state.IsShown(MapLayer::ScaleBar)) {
        DrawScaleBar(canvas, StyleOf(canvas, normal, MapLayer::ScaleBar, MapLabel::ScaleBarText), places);
    }
    if (state.IsShown(MapLayer::Graticule)) {
        DrawGraticuleNumbers(canvas, StyleOf(canvas, small, MapLayer::Graticule, MapLabel::GraticuleNumbers), places);
    }
    if (state.IsShown(MapLayer::Opened)) {
        DrawOpenedNames(canvas, StyleOf(canvas, names, MapLayer::Opened, MapLabel::CityNames), places);
    }
    if (state.IsShown(MapLayer::Cities) && state.IsShown(MapLayer::Names)) {
        DrawCityNames(canvas, cities, StyleOf(canvas, names, MapLayer::Names, MapLabel::CityNames), places);
    }
}
