// How the image editor's fields look, and the mouse over them.
#include "toolbar/image_editor.h"

#include "fx/dc_scope.h"
#include "fx/to_rect.h"
#include "fx/window_dc.h"
#include "toolbar/metrics.h"

#include <algorithm>
#include <array>
#include <utility>

namespace toolbar {

namespace {

constexpr COLORREF kLightCheck = RGB(255, 255, 255);
constexpr COLORREF kDarkCheck = RGB(216, 216, 216);
constexpr COLORREF kGridLine = RGB(160, 160, 160);
/// Smaller squares have no lines between them.
constexpr int kSmallestGrid = 5;
constexpr int kSixteen = 16;

constexpr std::array<COLORREF, 32> kColors = {
    RGB(0, 0, 0),       RGB(128, 128, 128), RGB(128, 0, 0),     RGB(128, 128, 0),   RGB(0, 128, 0),
    RGB(0, 128, 128),   RGB(0, 0, 128),     RGB(128, 0, 128),   RGB(255, 255, 255), RGB(192, 192, 192),
    RGB(255, 0, 0),     RGB(255, 255, 0),   RGB(0, 255, 0),     RGB(0, 255, 255),   RGB(0, 0, 255),
    RGB(255, 0, 255),   RGB(64, 64, 64),    RGB(128, 64, 0),    RGB(255, 128, 0),   RGB(255, 192, 64),
    RGB(64, 128, 64),   RGB(0, 96, 160),    RGB(64, 64, 192),   RGB(160, 64, 128),  RGB(224, 224, 224),
    RGB(192, 128, 96),  RGB(255, 192, 192), RGB(255, 255, 192), RGB(192, 255, 192), RGB(192, 240, 255),
    RGB(192, 192, 255), RGB(255, 192, 255)};

/// Opaque over a ground: pixels are multiplied by their alpha.
COLORREF Seen(PixelImage::Pixel pixel, COLORREF ground) {
    const unsigned rest = 255 - (pixel >> 24);
    const auto channel = [rest](unsigned own, unsigned below) { return std::min(255u, own + below * rest / 255); };
    return RGB(channel(pixel >> 16 & 0xFF, GetRValue(ground)), channel(pixel >> 8 & 0xFF, GetGValue(ground)),
               channel(pixel & 0xFF, GetBValue(ground)));
}

fx::Size SizeOf(const CRect& rect) { return {rect.Width(), rect.Height()}; }

} // namespace

std::vector<COLORREF> PaletteColors(bool hasSixteenOnly) {
    return {kColors.begin(), hasSixteenOnly ? kColors.begin() + kSixteen : kColors.end()};
}

void DrawEnlarged(CDC& dc, const CRect& client, const PixelImage& image) {
    const PixelGrid grid(image.Size(), SizeOf(client));
    const bool hasLines = grid.Side() >= kSmallestGrid;
    for (int y = 0; y < image.Size().height; ++y) {
        for (int x = 0; x < image.Size().width; ++x) {
            const COLORREF ground = (x + y) % 2 == 0 ? kLightCheck : kDarkCheck;
            CRect square = fx::ToRect(grid.SquareOf({x, y}));
            square.OffsetRect(client.TopLeft());
            dc.FillSolidRect(square, Seen(image.At({x, y}), ground));
            if (hasLines) {
                dc.FillSolidRect(square.right - 1, square.top, 1, square.Height(), kGridLine);
                dc.FillSolidRect(square.left, square.bottom - 1, square.Width(), 1, kGridLine);
            }
        }
    }
    CRect frame = fx::ToRect(grid.Bounds());
    frame.OffsetRect(client.TopLeft());
    dc.Draw3dRect(frame, kGridLine, kGridLine);
}

void DrawInOwnSize(CDC& dc, const CRect& client, const PixelImage& image) {
    const CPoint corner(client.left + (client.Width() - image.Size().width) / 2,
                        client.top + (client.Height() - image.Size().height) / 2);
    const COLORREF ground = ::GetSysColor(COLOR_BTNFACE);
    dc.FillSolidRect(client, ground);
    for (int y = 0; y < image.Size().height; ++y) {
        for (int x = 0; x < image.Size().width; ++x) {
            dc.SetPixelV(corner.x + x, corner.y + y, Seen(image.At({x, y}), ground));
        }
    }
    dc.Draw3dRect(client, kGridLine, kGridLine);
}

// One column more than the palette has: the chosen colour, as high as the field.
CRect SwatchOf(const CRect& client, int index, int count) {
    if (index < 0 || index >= count) {
        return CRect(0, 0, 0, 0);
    }
    const int rows = (count + kPaletteColumns - 1) / kPaletteColumns;
    const int columns = kPaletteColumns + 2;
    const int column = index % kPaletteColumns + 2;
    const int row = index / kPaletteColumns;
    return CRect(client.left + client.Width() * column / columns, client.top + client.Height() * row / rows,
                 client.left + client.Width() * (column + 1) / columns,
                 client.top + client.Height() * (row + 1) / rows);
}

void DrawPalette(CDC& dc, const CRect& client, const std::vector<COLORREF>& colors, COLORREF chosen) {
    const auto count = static_cast<int>(colors.size());
    const auto drawSwatch = [&dc](CRect place, COLORREF color) {
        place.DeflateRect(Scaled(1), Scaled(1));
        dc.FillSolidRect(place, color);
        dc.Draw3dRect(place, kGridLine, kGridLine);
    };
    CRect present = client;
    present.right = SwatchOf(client, 0, count).left - Scaled(4);
    drawSwatch(present, chosen);
    for (int index = 0; index < count; ++index) {
        drawSwatch(SwatchOf(client, index, count), colors[static_cast<std::size_t>(index)]);
    }
}

// ---- a field

BEGIN_MESSAGE_MAP(DrawnField, CWnd)
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_NCHITTEST()
ON_WM_LBUTTONDOWN()
ON_WM_MOUSEMOVE()
ON_WM_LBUTTONUP()
ON_WM_CAPTURECHANGED()
END_MESSAGE_MAP()

void DrawnField::OnPaint() {
    CPaintDC paint(this);
    CRect client;
    GetClientRect(&client);
    fx::MemoryDc memory(paint, client);
    CDC& dc = memory.GetDC();
    // The ground is the dialog's.
    const LRESULT brush = ::SendMessageW(::GetParent(m_hWnd), WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc.m_hDC),
                                         reinterpret_cast<LPARAM>(m_hWnd));
    ::FillRect(dc.m_hDC, &client, reinterpret_cast<HBRUSH>(brush));
    draw(dc, client);
}

BOOL DrawnField::OnEraseBkgnd(CDC*) { return TRUE; }

LRESULT DrawnField::OnNcHitTest(CPoint) { return HTCLIENT; } // a static lets the mouse through

void DrawnField::OnLButtonDown(UINT, CPoint point) {
    if (press) {
        m_isPressed = true;
        SetCapture();
        press(point);
    }
}

void DrawnField::OnMouseMove(UINT, CPoint point) {
    if (m_isPressed && move) {
        move(point);
    }
}

void DrawnField::OnLButtonUp(UINT, CPoint) {
    if (std::exchange(m_isPressed, false)) {
        ::ReleaseCapture();
        if (release) {
            release();
        }
    }
}

void DrawnField::OnCaptureChanged(CWnd*) {
    if (std::exchange(m_isPressed, false) && cancel) {
        cancel();
    }
}

} // namespace toolbar
