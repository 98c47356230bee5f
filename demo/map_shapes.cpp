#include "map_shapes.h"

#include "geo_json.h"

#include <cmath>

using Gdiplus::Color;
using Gdiplus::PointF;
using Gdiplus::REAL;
using Gdiplus::RectF;

namespace {

void AddRing(const MapCanvas& canvas, const GeoRing& ring, std::vector<PointF>& points) {
    points.clear();
    for (const GeoPoint& place : ring.points) {
        const PointF point = canvas.At(place);
        // Points closer than half a pixel add work and no detail.
        if (points.empty() || std::abs(points.back().X - point.X) + std::abs(points.back().Y - point.Y) > 0.7f) {
            points.push_back(point);
        }
    }
}

/// A dot with a rim round it.
void DrawDot(const MapCanvas& canvas, PointF at, REAL radius, const Gdiplus::Brush& dot, const Gdiplus::Brush& rim) {
    const REAL outer = radius + canvas.Scaled(1.2);
    // As of marks: curves far away may never end.
    RectF reach(0, 0, static_cast<REAL>(canvas.state.WindowWidth()), static_cast<REAL>(canvas.state.WindowHeight()));
    reach.Inflate(outer, outer);
    if (!reach.Contains(at)) {
        return;
    }
    canvas.graphics.FillEllipse(&rim, RectF(at.X - outer, at.Y - outer, 2 * outer, 2 * outer));
    canvas.graphics.FillEllipse(&dot, RectF(at.X - radius, at.Y - radius, 2 * radius, 2 * radius));
}

} // namespace

void DrawRings(const MapCanvas& canvas, const std::vector<GeoRing>& rings, const Color* fill, Color line,
               double width) {
    Gdiplus::SolidBrush brush(fill ? *fill : Color());
    Gdiplus::Pen pen(line, canvas.Scaled(width));
    pen.SetLineJoin(Gdiplus::LineJoinRound);
    // All in one path: what a call costs besides its pixels is more than most rings do.
    Gdiplus::GraphicsPath path(Gdiplus::FillModeWinding);
    std::vector<PointF> points;
    for (const GeoRing& ring : rings) {
        if (!canvas.Sees(ring.box)) {
            continue;
        }
        AddRing(canvas, ring, points);
        if (points.size() > 2) {
            path.AddPolygon(points.data(), static_cast<INT>(points.size()));
        }
    }
    if (fill) {
        canvas.graphics.FillPath(&brush, &path);
    }
    canvas.graphics.DrawPath(&pen, &path);
}

void DrawOpened(const MapCanvas& canvas) {
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
            DrawDot(canvas, canvas.At(place.place), canvas.Scaled(4), dot, rim);
        }
    }
}

void DrawGraticuleLines(const MapCanvas& canvas) {
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

void DrawCities(const MapCanvas& canvas, const std::vector<City>& cities) {
    Gdiplus::SolidBrush dot(canvas.Ink(MapLayer::Cities, canvas.colors.city));
    Gdiplus::SolidBrush rim(canvas.Lit(MapLayer::Cities, canvas.colors.halo));
    ForEachShownCity(canvas, cities,
                     [&](const City&, PointF at, REAL radius) { DrawDot(canvas, at, radius, dot, rim); });
}
