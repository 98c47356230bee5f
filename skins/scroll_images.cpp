#include "skins/scroll_images.h"

namespace {

using scroll::Box;
using scroll::Extent;

Gdiplus::Rect ToRect(const Box& box) { return {box.left, box.top, box.Width(), box.Height()}; }

Extent SizeOf(Gdiplus::Bitmap& image) {
    return {static_cast<int>(image.GetWidth()), static_cast<int>(image.GetHeight())};
}

/// Pixel by pixel, whatever resolution the image has.
void DrawInPixels(Gdiplus::Graphics& graphics, Gdiplus::Bitmap& image, const Box& to, const Box& from,
                  const Gdiplus::ImageAttributes* edges = nullptr) {
    graphics.DrawImage(&image, ToRect(to), from.left, from.top, from.Width(), from.Height(), Gdiplus::UnitPixel, edges);
}

std::unique_ptr<Gdiplus::Bitmap> FitThumb(Gdiplus::Bitmap& image, scroll::Direction direction, Extent size) {
    auto fitted = std::make_unique<Gdiplus::Bitmap>(size.width, size.height, PixelFormat32bppPARGB);
    fitted->SetResolution(image.GetHorizontalResolution(), image.GetVerticalResolution());
    Gdiplus::Graphics graphics(fitted.get());
    if (graphics.GetLastStatus() != Gdiplus::Ok) {
        return nullptr;
    }
    graphics.SetInterpolationMode(Gdiplus::InterpolationModeHighQualityBicubic);
    // Pixels of the image lie on pixels of the thumb, and what lies outside is as the outer rows are, so that these do
    // not fade.
    graphics.SetPixelOffsetMode(Gdiplus::PixelOffsetModeHalf);
    Gdiplus::ImageAttributes edges;
    edges.SetWrapMode(Gdiplus::WrapModeTileFlipXY);
    const Extent source = SizeOf(image);
    if (scroll::IsTooShort(direction, source, size)) {
        DrawInPixels(graphics, image, {0, 0, size.width, size.height}, {0, 0, source.width, source.height}, &edges);
        return fitted;
    }
    for (const scroll::Piece& piece : scroll::CutPieces(direction, source, size)) {
        DrawInPixels(graphics, image, piece.to, piece.from, &edges);
    }
    return fitted;
}

} // namespace

void ScrollImages::SetFiles(const std::array<std::wstring, Count>& paths) {
    m_paths = paths;
    m_isTaken.fill(false);
}

Gdiplus::Bitmap* ScrollImages::Current(Which which, File file) {
    if (file == File::LookedAt || !m_isTaken[which]) {
        m_isTaken[which] = true;
        if (m_pictures[which].Take(m_paths[which])) {
            m_fitted[which] = {};
        }
    }
    return m_pictures[which].Get();
}

void ScrollImages::DrawCentered(HDC dc, Which which, const Box& box) {
    Gdiplus::Bitmap* const image = box.IsEmpty() ? nullptr : Current(which, File::LookedAt);
    if (!image) {
        return;
    }
    const Extent size = SizeOf(*image);
    Gdiplus::Graphics graphics(dc);
    DrawInPixels(graphics, *image, scroll::CenteredIn(box, size), {0, 0, size.width, size.height});
}

void ScrollImages::DrawThumb(HDC dc, Which which, scroll::Direction direction, const Box& box, File file) {
    Gdiplus::Bitmap* const image = box.IsEmpty() ? nullptr : Current(which, file);
    if (!image) {
        return;
    }
    Fitted& fitted = m_fitted[which];
    const Extent size = {box.Width(), box.Height()};
    if (!fitted.bitmap || fitted.direction != direction || fitted.size != size) {
        fitted = {direction, size, FitThumb(*image, direction, size)};
    }
    if (fitted.bitmap) {
        Gdiplus::Graphics graphics(dc);
        DrawInPixels(graphics, *fitted.bitmap, box, {0, 0, size.width, size.height});
    }
}
