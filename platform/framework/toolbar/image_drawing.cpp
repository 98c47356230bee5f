// What the image editor works on.
#include "toolbar/image_editor.h"

#include <utility>

namespace toolbar {

namespace {

constexpr PixelImage::Pixel kOpaque = 0xFF000000;
/// What toolbars take for clear in images without alpha.
constexpr COLORREF kClearGrey = RGB(192, 192, 192);
constexpr std::size_t kMostSteps = 100;

PixelImage::Pixel PixelOf(COLORREF color) {
    return kOpaque | static_cast<PixelImage::Pixel>(GetRValue(color)) << 16 |
           static_cast<PixelImage::Pixel>(GetGValue(color)) << 8 | GetBValue(color);
}

COLORREF ColorOf(PixelImage::Pixel pixel) { return RGB(pixel >> 16 & 0xFF, pixel >> 8 & 0xFF, pixel & 0xFF); }

} // namespace

ImageDrawing::ImageDrawing(PixelImage image, bool hasAlpha) : m_image(std::move(image)), m_hasAlpha(hasAlpha) {}

PixelImage::Pixel ImageDrawing::Ink() const {
    if (m_tool != DrawingTool::Eraser) {
        return PixelOf(m_color);
    }
    return m_hasAlpha ? 0 : PixelOf(kClearGrey);
}

void ImageDrawing::Undo() {
    if (CanUndo() && !IsUnderWay()) {
        m_image = std::move(m_before.back());
        m_before.pop_back();
    }
}

void ImageDrawing::Begin(fx::Point at) {
    if (!m_image.Has(at) || IsUnderWay()) {
        return;
    }
    if (m_tool == DrawingTool::Picker) {
        m_color = (m_image.At(at) & kOpaque) != 0 ? ColorOf(m_image.At(at)) : m_color;
        return;
    }
    if (m_before.size() == kMostSteps) {
        m_before.erase(m_before.begin());
    }
    m_before.push_back(m_image);
    m_start = at;
    m_last = at;
    if (m_tool == DrawingTool::Fill) {
        m_image.Fill(at, Ink());
    } else {
        MoveTo(at);
    }
}

// Shapes are drawn anew from where the stroke began.
void ImageDrawing::MoveTo(fx::Point at) {
    if (!IsUnderWay() || m_tool == DrawingTool::Fill) {
        return;
    }
    const bool isShape =
        m_tool == DrawingTool::Line || m_tool == DrawingTool::Rectangle || m_tool == DrawingTool::Ellipse;
    if (isShape) {
        m_image = m_before.back();
    }
    switch (m_tool) {
    case DrawingTool::Rectangle:
        m_image.DrawRectangle(m_start, at, Ink());
        break;
    case DrawingTool::Ellipse:
        m_image.DrawEllipse(m_start, at, Ink());
        break;
    default:
        m_image.DrawLine(isShape ? m_start : *m_last, at, Ink());
        break;
    }
    m_last = at;
}

void ImageDrawing::Cancel() {
    if (IsUnderWay()) {
        End();
        Undo();
    }
}

} // namespace toolbar
