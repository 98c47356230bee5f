#include "afxtoolbarimages.h"

#include "afxglobals.h"
#include "gdi/device_pixels.h"
#include "visual/image_source.h"
#include "visual/scratch_picture.h"

#include <algorithm>
#include <cstdlib>
#include <optional>

using visual::PixelView;

namespace {

/// Looks of an image, in any combination.
constexpr UINT LookHilite = 1, LookDisabled = 2, LookIndeterminate = 4, LookShadow = 8, LookFaded = 16;

void CopyImage(const PixelView& source, const CRect& from, const PixelView& target, bool hasAlpha, COLORREF clear) {
    for (int y = 0; y < target.height; ++y) {
        for (int x = 0; x < target.width; ++x) {
            const int sourceX = from.left + x, sourceY = from.top + y;
            if (sourceX >= source.width || sourceY >= source.height || sourceX < 0 || sourceY < 0) {
                continue;
            }
            const std::uint32_t pixel = source.At(sourceX, sourceY);
            target.At(x, y) = !hasAlpha && visual::ToColorRef(pixel) == clear ? 0 : pixel;
        }
    }
}

void ForEachPixel(const PixelView& view, auto change) {
    for (int y = 0; y < view.height; ++y) {
        for (int x = 0; x < view.width; ++x) {
            view.At(x, y) = change(view.At(x, y), x, y);
        }
    }
}

std::uint32_t Lightened(std::uint32_t pixel, unsigned percent) {
    const unsigned alpha = visual::AlphaOf(pixel);
    const auto channel = [&](unsigned value) { return std::min(value * percent / 100, alpha); };
    return visual::MakeArgb(alpha, channel(visual::RedOf(pixel)), channel(visual::GreenOf(pixel)),
                            channel(visual::BlueOf(pixel)));
}

void ApplyLook(const PixelView& view, UINT look, int lightPercentage) {
    if (look & LookDisabled) {
        ForEachPixel(view, [](std::uint32_t pixel, int, int) { return visual::DisabledPixel(pixel); });
    }
    if (look & LookShadow) {
        ForEachPixel(view, [](std::uint32_t pixel, int, int) { return visual::AlphaOf(pixel) / 3 << 24; });
    }
    if ((look & LookHilite) && lightPercentage < 0) {
        ForEachPixel(view, [](std::uint32_t pixel, int, int) { return Lightened(pixel, 110); });
    }
    if (lightPercentage >= 0) {
        ForEachPixel(view, [&](std::uint32_t pixel, int, int) { return Lightened(pixel, lightPercentage); });
    }
    if (look & LookIndeterminate) {
        ForEachPixel(view, [](std::uint32_t pixel, int x, int y) { return (x + y) % 2 != 0 ? pixel : 0; });
    }
}

} // namespace

CAfxDrawState::~CAfxDrawState() = default;

BOOL CMFCToolBarImages::PrepareDrawImage(CAfxDrawState& ds, CSize sizeImageDest, BOOL bFadeInactive) {
    if (m_hbmImageWell == nullptr || m_iCount == 0) {
        return FALSE;
    }
    ds.m_pImages = this;
    ds.m_sizeDestBefore = m_sizeImageDest;
    ds.m_bFadeBefore = m_bFadeInactive;
    m_sizeImageDest = sizeImageDest;
    m_bFadeInactive = bFadeInactive;
    return TRUE;
}

void CMFCToolBarImages::EndDrawImage(CAfxDrawState& ds) {
    if (ds.m_pImages != this) {
        return;
    }
    m_sizeImageDest = ds.m_sizeDestBefore;
    m_bFadeInactive = ds.m_bFadeBefore;
    ds.m_pImages = nullptr;
}

BOOL CMFCToolBarImages::Draw(CDC* pDC, int x, int y, int iImageIndex, BOOL bHilite, BOOL bDisabled, BOOL bIndeterminate,
                             BOOL bShadow, BOOL bInactive, BYTE alphaSrc) {
    if (iImageIndex < 0 || iImageIndex >= m_iCount) {
        return FALSE;
    }
    const CSize size = m_sizeImageDest == CSize(0, 0) ? m_sizeImage : m_sizeImageDest;
    UINT look = 0;
    look |= bHilite ? LookHilite : 0;
    look |= bDisabled ? LookDisabled : 0;
    look |= bIndeterminate ? LookIndeterminate : 0;
    look |= bShadow ? LookShadow : 0;
    look |= bInactive && m_bFadeInactive ? LookFaded : 0;
    return BlendImage(pDC, CRect(CPoint(x, y), size), iImageIndex, CRect(CPoint(0, 0), m_sizeImage), look, alphaSrc);
}

BOOL CMFCToolBarImages::DrawEx(CDC* pDC, CRect rect, int iImageIndex, ImageAlignHorz horzAlign,
                               ImageAlignVert vertAlign, CRect rectSrc, BYTE alphaSrc) {
    if (iImageIndex < 0 || iImageIndex >= m_iCount) {
        return FALSE;
    }
    const CRect source = rectSrc.IsRectEmpty() ? CRect(CPoint(0, 0), m_sizeImage) : rectSrc;
    const CSize size = source.Size();
    CRect target = rect;
    if (horzAlign != ImageAlignHorzStretch) {
        const int free = rect.Width() - size.cx;
        target.left += horzAlign == ImageAlignHorzCenter ? free / 2 : horzAlign == ImageAlignHorzRight ? free : 0;
        target.right = target.left + size.cx;
    }
    if (vertAlign != ImageAlignVertStretch) {
        const int free = rect.Height() - size.cy;
        target.top += vertAlign == ImageAlignVertCenter ? free / 2 : vertAlign == ImageAlignVertBottom ? free : 0;
        target.bottom = target.top + size.cy;
    }
    return BlendImage(pDC, target, iImageIndex, source, 0, alphaSrc);
}

BOOL CMFCToolBarImages::BlendImage(CDC* pDC, const CRect& rectDest, int iImageIndex, const CRect& rectSrc, UINT nLook,
                                   BYTE alphaSrc) {
    if (rectDest.IsRectEmpty() || rectSrc.IsRectEmpty()) {
        return FALSE;
    }
    const bool isWhole = rectSrc == CRect(CPoint(0, 0), m_sizeImage);
    const CMFCToolBarImages* const larger = isWhole ? LargerFor(iImageIndex, rectDest.Size()) : nullptr;
    const CMFCToolBarImages& list = larger != nullptr ? *larger : *this;
    const CRect source = larger != nullptr
                             ? larger->GetSourceRect(0)
                             : CRect(rectSrc.TopLeft() + GetSourceRect(iImageIndex).TopLeft(), rectSrc.Size());
    const visual::ScratchPicture whole(source.Width(), source.Height());
    if (whole.IsEmpty()) {
        return FALSE;
    }
    CopyImage(visual::ViewOf(list.m_hbmImageWell), source, whole.View(), list.m_nBitsPerPixel == 32, m_clrTransparent);
    std::optional<visual::ScratchPicture> scaled;
    if (rectDest.Size() != source.Size()) {
        scaled.emplace(rectDest.Width(), rectDest.Height());
        if (scaled->IsEmpty()) {
            return FALSE;
        }
        visual::Resample(whole.View(), scaled->View());
    }
    const visual::ScratchPicture& image = scaled ? *scaled : whole;
    const PixelView& view = image.View();
    if (m_bIsRTL) {
        visual::MirrorRows(view);
    }
    const int light = m_bAlwaysLight ? std::max(m_nLightPercentage, 130) : m_nLightPercentage;
    ApplyLook(view, nLook, light);

    int alpha = alphaSrc;
    if (nLook & LookFaded) {
        alpha = alpha * m_nFadedImageAlpha / 255;
    }
    if (nLook & LookDisabled) { // the usual setting, 127, is the look that DisabledPixel makes
        alpha = std::min(alpha * m_nDisabledImageAlpha / 127, 255);
    }
    const BLENDFUNCTION over{AC_SRC_OVER, 0, static_cast<BYTE>(alpha), AC_SRC_ALPHA};
    BOOL drawn = FALSE;
    {
        // An image is not turned round in a mirrored window: an arrow to the west points to the left there, too.
        const bool isMirrored = gdi::IsMirrored(*pDC);
        const POINT corner = isMirrored ? gdi::DeviceCorner(*pDC, rectDest) : POINT(rectDest.TopLeft());
        std::optional<gdi::ScopedDevicePixels> pixels;
        if (isMirrored) {
            pixels.emplace(*pDC);
        }
        drawn = ::AlphaBlend(*pDC, corner.x, corner.y, rectDest.Width(), rectDest.Height(), image.Context(), 0, 0,
                             rectDest.Width(), rectDest.Height(), over);
    }
    m_rectLastDraw = rectDest;
    return drawn;
}

void CMFCToolBarImages::FillDitheredRect(CDC* pDC, const CRect& rect) {
    const visual::Canvas canvas(*pDC, rect);
    if (canvas.IsEmpty()) {
        return;
    }
    const visual::Argb light = visual::FromColorRef(afxGlobalData.clrBtnHilite);
    const visual::Argb face = visual::FromColorRef(afxGlobalData.clrBtnFace);
    ForEachPixel(canvas.View(), [&](std::uint32_t, int x, int y) { return (x + y) % 2 != 0 ? light : face; });
}
