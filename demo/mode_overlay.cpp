#include "mode_overlay.h"

#include <algorithm>

#include <gdiplus.h>

using Gdiplus::Color;
using Gdiplus::Graphics;
using Gdiplus::PointF;
using Gdiplus::REAL;
using Gdiplus::RectF;

namespace {

const Color kMarkFill(0xFFD13438);
const Color kMarkRim(0xFFFFFFFF);
const Color kCross(0xFF1F6FEB);
const Color kAroundPage(0x90303840);
const Color kPageEdge(0xFFFFFFFF);

constexpr double kMarkRadius = 9; // pixels at 96 DPI, as everything here
constexpr double kMarkText = 11;
constexpr double kCrossArm = 12;
constexpr double kCrossGap = 4;

REAL Scaled(const MapPaintStyle& style, double pixels) { return static_cast<REAL>(pixels * style.scale); }

void DrawMarks(Graphics& graphics, const MapState& state, const MapPaintStyle& style) {
    const Gdiplus::FontFamily family(L"Segoe UI");
    const Gdiplus::Font font(&family, Scaled(style, kMarkText), Gdiplus::FontStyleBold, Gdiplus::UnitPixel);
    Gdiplus::StringFormat centred;
    centred.SetAlignment(Gdiplus::StringAlignmentCenter);
    centred.SetLineAlignment(Gdiplus::StringAlignmentCenter);
    const Gdiplus::SolidBrush fill(kMarkFill);
    const Gdiplus::SolidBrush ink(kMarkRim);
    const Gdiplus::Pen rim(kMarkRim, Scaled(style, 1.5));
    const REAL radius = Scaled(style, kMarkRadius);
    // Curves far away are not only unseen: some places there make what turns them into lines go on for ever.
    RectF reach(0, 0, static_cast<REAL>(state.WindowWidth()), static_cast<REAL>(state.WindowHeight()));
    reach.Inflate(2 * radius, 2 * radius);
    int number = 0;
    for (const GeoPoint& place : state.Marks()) {
        ++number;
        double x = 0;
        double y = 0;
        state.ToWindow(place, x, y);
        const RectF disc(static_cast<REAL>(x) - radius, static_cast<REAL>(y) - radius, 2 * radius, 2 * radius);
        if (!reach.IntersectsWith(disc)) {
            continue;
        }
        graphics.FillEllipse(&fill, disc);
        graphics.DrawEllipse(&rim, disc);
        const std::wstring text = std::to_wstring(number);
        graphics.DrawString(text.c_str(), static_cast<INT>(text.size()), &font, disc, &centred, &ink);
    }
}

/// Where the next mark would come.
void DrawCross(Graphics& graphics, const MapState& state, const MapPaintStyle& style) {
    const Gdiplus::Pen halo(kMarkRim, Scaled(style, 4));
    const Gdiplus::Pen line(kCross, Scaled(style, 2));
    const PointF middle(static_cast<REAL>(state.WindowWidth()) / 2, static_cast<REAL>(state.WindowHeight()) / 2);
    const REAL gap = Scaled(style, kCrossGap);
    const REAL arm = Scaled(style, kCrossArm);
    for (const Gdiplus::Pen* const pen : {&halo, &line}) {
        for (const auto& [dx, dy] : {std::pair{1, 0}, std::pair{-1, 0}, std::pair{0, 1}, std::pair{0, -1}}) {
            const PointF inner(middle.X + static_cast<REAL>(dx) * gap, middle.Y + static_cast<REAL>(dy) * gap);
            const PointF outer(middle.X + static_cast<REAL>(dx) * arm, middle.Y + static_cast<REAL>(dy) * arm);
            graphics.DrawLine(pen, inner, outer);
        }
    }
}

void DrawPage(Graphics& graphics, const MapState& state, const MapPaintStyle& style) {
    const WindowBox page = state.PageBox();
    const Gdiplus::SolidBrush around(kAroundPage);
    const int width = state.WindowWidth();
    const int height = state.WindowHeight();
    graphics.FillRectangle(&around, 0, 0, width, page.top);
    graphics.FillRectangle(&around, 0, page.bottom, width, height - page.bottom);
    graphics.FillRectangle(&around, 0, page.top, page.left, page.bottom - page.top);
    graphics.FillRectangle(&around, page.right, page.top, width - page.right, page.bottom - page.top);
    // Outside, so that no picture of the page has it.
    const Gdiplus::SolidBrush edge(kPageEdge);
    const int line = std::max(static_cast<int>(style.scale), 1);
    const int outerWidth = page.right - page.left + 2 * line;
    const int pageHeight = page.bottom - page.top;
    graphics.FillRectangle(&edge, page.left - line, page.top - line, outerWidth, line);
    graphics.FillRectangle(&edge, page.left - line, page.bottom, outerWidth, line);
    graphics.FillRectangle(&edge, page.left - line, page.top, line, pageHeight);
    graphics.FillRectangle(&edge, page.right, page.top, line, pageHeight);
}

} // namespace

void DrawModeOverlay(Graphics& graphics, const MapState& state, const MapPaintStyle& style) {
    graphics.SetSmoothingMode(Gdiplus::SmoothingModeAntiAlias);
    DrawMarks(graphics, state, style);
    if (state.Mode() == MapMode::Edit) {
        DrawCross(graphics, state, style);
    }
    graphics.SetSmoothingMode(Gdiplus::SmoothingModeNone);
    if (state.Mode() == MapMode::Print) {
        DrawPage(graphics, state, style);
    }
}
