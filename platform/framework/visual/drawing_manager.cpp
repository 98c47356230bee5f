#include "afxdrawmanager.h"

#include "fx/dc_scope.h"
#include "gdi/device_pixels.h"
#include "visual/canvas.h"

#include <algorithm>
#include <cmath>
#include <functional>

using visual::Canvas;
using visual::FromColorRef;

namespace {

constexpr COLORREF g_none = static_cast<COLORREF>(-1);

/// What a rectangle of a context shows, to be changed pixel by pixel and put back.
class Snapshot {
public:
    Snapshot(HDC dc, const CRect& rect) : m_dc(dc), m_corner(gdi::DeviceCorner(dc, rect)) {
        if (rect.Width() <= 0 || rect.Height() <= 0) {
            return;
        }
        m_memory = CreateCompatibleDC(dc);
        std::uint32_t* bits = nullptr;
        m_bitmap = visual::MakeBitmap32(rect.Width(), rect.Height(), &bits);
        if (m_memory == nullptr || m_bitmap == nullptr) {
            return;
        }
        m_previous = SelectObject(m_memory, m_bitmap);
        gdi::CopyPixels(m_memory, {0, 0}, dc, m_corner, rect.Size());
        GdiFlush();
        m_view = {bits, rect.Width(), rect.Height()};
    }
    ~Snapshot() {
        if (m_previous != nullptr) {
            SelectObject(m_memory, m_previous);
        }
        if (m_bitmap != nullptr) {
            DeleteObject(m_bitmap);
        }
        if (m_memory != nullptr) {
            DeleteDC(m_memory);
        }
    }
    Snapshot(const Snapshot&) = delete;
    Snapshot& operator=(const Snapshot&) = delete;

    bool IsValid() const { return m_view.bits != nullptr; }
    const visual::PixelView& View() const { return m_view; }
    void PutBack() const {
        GdiFlush();
        gdi::CopyPixels(m_dc, m_corner, m_memory, {0, 0}, {m_view.width, m_view.height});
    }
    void ForEach(COLORREF except, int tolerance, const std::function<COLORREF(COLORREF)>& change) const {
        const auto isNear = [tolerance](int a, int b) { return std::abs(a - b) <= tolerance; };
        for (int y = 0; y < m_view.height; ++y) {
            for (int x = 0; x < m_view.width; ++x) {
                const COLORREF color = visual::ToColorRef(m_view.At(x, y));
                if (except != g_none && isNear(GetRValue(color), GetRValue(except)) &&
                    isNear(GetGValue(color), GetGValue(except)) && isNear(GetBValue(color), GetBValue(except))) {
                    continue;
                }
                m_view.At(x, y) = FromColorRef(change(color)) & 0xFFFFFF;
            }
        }
    }

private:
    HDC m_dc;
    POINT m_corner; // in pixels of the device
    HDC m_memory = nullptr;
    HBITMAP m_bitmap = nullptr;
    HGDIOBJ m_previous = nullptr;
    visual::PixelView m_view;
};

/// Copies between a bitmap and the context; an empty CBitmap is made first and then filled from the context.
void SaveOrRestore(CDC& dc, const CRect& rect, CBitmap* bitmap) {
    if (bitmap == nullptr || rect.IsRectEmpty()) {
        return;
    }
    const bool isFilled = bitmap->GetSafeHandle() != nullptr;
    if (!isFilled && !bitmap->Attach(CreateCompatibleBitmap(dc, rect.Width(), rect.Height()))) {
        return;
    }
    const HDC memory = CreateCompatibleDC(dc);
    const HGDIOBJ previous = SelectObject(memory, bitmap->GetSafeHandle());
    if (isFilled) {
        gdi::CopyPixels(dc, gdi::DeviceCorner(dc, rect), memory, {0, 0}, rect.Size());
    } else {
        gdi::CopyPixels(memory, {0, 0}, dc, gdi::DeviceCorner(dc, rect), rect.Size());
    }
    SelectObject(memory, previous);
    DeleteDC(memory);
}

} // namespace

CDrawingManager::CDrawingManager(CDC& dc) : m_dc(dc) {}
CDrawingManager::~CDrawingManager() = default;

void CDrawingManager::FillGradient(CRect rect, COLORREF colorStart, COLORREF colorFinish, BOOL bHorz,
                                   int nStartFlatPercentage, int nEndFlatPercentage) {
    const Canvas canvas(m_dc, rect);
    if (canvas.IsEmpty()) {
        return;
    }
    const int length = bHorz ? rect.Height() : rect.Width();
    const int flatStart = length * nStartFlatPercentage / 100, flatEnd = length * nEndFlatPercentage / 100;
    for (int i = 0; i < length; ++i) {
        const visual::Argb color = visual::Mix(FromColorRef(colorStart), FromColorRef(colorFinish), i - flatStart,
                                               std::max(length - flatStart - flatEnd - 1, 1));
        const fx::Rect stripe = bHorz ? fx::Rect{0, i, rect.Width(), i + 1} : fx::Rect{i, 0, i + 1, rect.Height()};
        visual::FillRounded(canvas.View(), stripe, {}, {color, color, color, color, 50});
    }
}

void CDrawingManager::FillGradient2(CRect rect, COLORREF colorStart, COLORREF colorFinish, int nAngle) {
    const Canvas canvas(m_dc, rect);
    if (canvas.IsEmpty()) {
        return;
    }
    const double angle = nAngle * 3.14159265358979 / 180;
    const double alongX = std::cos(angle), alongY = -std::sin(angle);
    const double length = std::abs(rect.Width() * alongX) + std::abs(rect.Height() * alongY);
    const visual::PixelView& view = canvas.View();
    for (int y = 0; y < view.height; ++y) {
        for (int x = 0; x < view.width; ++x) {
            const double at = (x + 0.5 - view.width / 2.0) * alongX + (y + 0.5 - view.height / 2.0) * alongY;
            const double part = std::clamp(at / std::max(length - 1, 1.0) + 0.5, 0.0, 1.0);
            view.At(x, y) = visual::Mix(FromColorRef(colorStart), FromColorRef(colorFinish),
                                        static_cast<int>(part * 1024 + 0.5), 1024);
        }
    }
}

void CDrawingManager::Fill4ColorsGradient(CRect rect, COLORREF colorStart1, COLORREF colorFinish1, COLORREF colorStart2,
                                          COLORREF colorFinish2, BOOL bHorz, int nPercentage) {
    CRect first = rect, second = rect;
    if (bHorz) {
        first.bottom = second.top = rect.top + rect.Height() * nPercentage / 100;
    } else {
        first.right = second.left = rect.left + rect.Width() * nPercentage / 100;
    }
    FillGradient(first, colorStart1, colorFinish1, bHorz);
    FillGradient(second, colorStart2, colorFinish2, bHorz);
}

BOOL CDrawingManager::DrawGradientRing(CRect rect, COLORREF colorStart, COLORREF colorFinish, COLORREF colorBorder,
                                       int nAngle, int nWidth, COLORREF clrFace) {
    if (rect.Width() <= 2 * nWidth || rect.Height() <= 2 * nWidth) {
        return FALSE;
    }
    CRect inside = rect;
    inside.DeflateRect(nWidth, nWidth);
    const int saved = m_dc.SaveDC();
    m_dc.ExcludeClipRect(inside);
    FillGradient2(rect, colorStart, colorFinish, nAngle);
    m_dc.RestoreDC(saved);
    if (clrFace != g_none) {
        m_dc.FillSolidRect(inside, clrFace);
    }
    if (colorBorder != g_none) {
        m_dc.Draw3dRect(rect, colorBorder, colorBorder);
        inside.InflateRect(1, 1);
        m_dc.Draw3dRect(inside, colorBorder, colorBorder);
    }
    return TRUE;
}

BOOL CDrawingManager::DrawShadow(CRect rect, int nDepth, int iMinBrightness, int iMaxBrightness,
                                 CBitmap* pBmpSaveBottom, CBitmap* pBmpSaveRight, COLORREF clrBase, BOOL bRightShadow) {
    if (nDepth <= 0 || rect.IsRectEmpty()) {
        return FALSE;
    }
    const CRect bottom(bRightShadow ? rect.left + nDepth : rect.left - nDepth, rect.bottom,
                       bRightShadow ? rect.right + nDepth : rect.right - nDepth, rect.bottom + nDepth);
    const CRect side(bRightShadow ? rect.right : rect.left - nDepth, rect.top + nDepth,
                     bRightShadow ? rect.right + nDepth : rect.left, rect.bottom);
    SaveOrRestore(m_dc, bottom, pBmpSaveBottom);
    SaveOrRestore(m_dc, side, pBmpSaveRight);

    const visual::Argb shade = clrBase == g_none ? 0xFF000000 : FromColorRef(clrBase);
    const CRect shifted = rect + CPoint(bRightShadow ? nDepth : -nDepth, nDepth);
    for (const CRect& part : {bottom, side}) {
        const Canvas canvas(m_dc, part);
        if (canvas.IsEmpty()) {
            continue;
        }
        for (int y = 0; y < part.Height(); ++y) {
            for (int x = 0; x < part.Width(); ++x) {
                const CPoint at(part.left + x, part.top + y);
                // Darkest where the shadow meets the object, gone at its outer edges and corners.
                const int toSide = bRightShadow ? shifted.right - 1 - at.x : at.x - shifted.left;
                const int toEnd = bRightShadow ? at.x - shifted.left : shifted.right - 1 - at.x;
                const int distance =
                    std::min<int>({toSide, static_cast<int>(shifted.bottom) - 1 - static_cast<int>(at.y), toEnd + 1,
                                   static_cast<int>(at.y - shifted.top) + 1, nDepth});
                if (distance < 0) {
                    continue;
                }
                const int brightness = iMinBrightness + (iMaxBrightness - iMinBrightness) * distance / nDepth;
                const unsigned alpha = static_cast<unsigned>(std::clamp(100 - brightness, 0, 100) * 255 / 100);
                visual::BlendPixel(canvas.View().At(x, y), visual::WithAlpha(shade, alpha));
            }
        }
    }
    return TRUE;
}

BOOL CDrawingManager::GrayRect(CRect rect, int nPercentage, COLORREF clrTransparent, COLORREF clrDisabled) {
    const Snapshot snapshot(m_dc, rect);
    if (!snapshot.IsValid()) {
        return FALSE;
    }
    const COLORREF shadow = clrDisabled == g_none ? GetSysColor(COLOR_3DSHADOW) : clrDisabled;
    snapshot.ForEach(clrTransparent, 0, [&](COLORREF color) {
        const int grey = (GetRValue(color) * 77 + GetGValue(color) * 151 + GetBValue(color) * 28) >> 8;
        if (nPercentage < 0) {
            return PixelAlpha(RGB(grey, grey, grey), shadow, 40);
        }
        return PixelAlpha(RGB(grey, grey, grey), nPercentage);
    });
    snapshot.PutBack();
    return TRUE;
}

BOOL CDrawingManager::HighlightRect(CRect rect, int nPercentage, COLORREF clrTransparent, int nTolerance,
                                    COLORREF clrBlend) {
    const Snapshot snapshot(m_dc, rect);
    if (!snapshot.IsValid()) {
        return FALSE;
    }
    const COLORREF hilite = GetSysColor(COLOR_HIGHLIGHT);
    snapshot.ForEach(clrTransparent, nTolerance, [&](COLORREF color) {
        if (nPercentage < 0) {
            return PixelAlpha(color, hilite, 50);
        }
        return clrBlend == g_none ? PixelAlpha(color, nPercentage) : PixelAlpha(color, clrBlend, nPercentage);
    });
    snapshot.PutBack();
    return TRUE;
}

void CDrawingManager::MirrorRect(CRect rect, BOOL bHorz) {
    const Snapshot snapshot(m_dc, rect);
    if (!snapshot.IsValid()) {
        return;
    }
    const visual::PixelView& view = snapshot.View();
    if (bHorz) {
        visual::MirrorRows(view);
    } else {
        for (int y = 0; y < view.height / 2; ++y) {
            std::swap_ranges(&view.At(0, y), &view.At(0, y) + view.width, &view.At(0, view.height - 1 - y));
        }
    }
    snapshot.PutBack();
}

void CDrawingManager::DrawAlpha(CDC* pDstDC, const CRect& rectDst, CDC* pSrcDC, const CRect& rectSrc) {
    const BLENDFUNCTION over{AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
    AlphaBlend(*pDstDC, rectDst.left, rectDst.top, rectDst.Width(), rectDst.Height(), *pSrcDC, rectSrc.left,
               rectSrc.top, rectSrc.Width(), rectSrc.Height(), over);
}

void CDrawingManager::DrawRotated(CRect rectDest, CDC& dcSrc, BOOL bClockWise) {
    const int width = rectDest.Height(), height = rectDest.Width();
    const Snapshot source(dcSrc, CRect(0, 0, width, height));
    const Snapshot target(m_dc, rectDest);
    if (!source.IsValid() || !target.IsValid()) {
        return;
    }
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            target.View().At(bClockWise ? height - 1 - y : y, bClockWise ? x : width - 1 - x) = source.View().At(x, y);
        }
    }
    target.PutBack();
}

void CDrawingManager::DrawEllipse(const CRect& rect, COLORREF clrFill, COLORREF clrLine) {
    const Canvas canvas(m_dc, rect);
    if (canvas.IsEmpty()) {
        return;
    }
    const visual::Argb fill = FromColorRef(clrFill);
    if (clrFill != g_none) {
        visual::FillEllipse(canvas.View(), canvas.Local(rect), {fill, fill, fill, fill, 50});
    }
    if (clrLine != g_none) {
        visual::StrokeEllipse(canvas.View(), canvas.Local(rect), FromColorRef(clrLine), 1);
    }
}

void CDrawingManager::DrawRect(const CRect& rect, COLORREF clrFill, COLORREF clrLine) {
    if (clrFill != g_none) {
        m_dc.FillSolidRect(rect, clrFill);
    }
    if (clrLine != g_none) {
        m_dc.Draw3dRect(rect, clrLine, clrLine);
    }
}

void CDrawingManager::DrawLine(int x1, int y1, int x2, int y2, COLORREF clrLine) {
    CPen pen(PS_SOLID, 1, clrLine);
    const fx::DcSelection selected(m_dc, pen);
    m_dc.MoveTo(x1, y1);
    m_dc.LineTo(x2, y2);
}

HBITMAP __stdcall CDrawingManager::CreateBitmap_32(const CSize& size, void** pBits) {
    std::uint32_t* bits = nullptr;
    const HBITMAP bitmap = visual::MakeBitmap32(size.cx, size.cy, &bits);
    if (pBits != nullptr) {
        *pBits = bits;
    }
    return bitmap;
}

HBITMAP __stdcall CDrawingManager::CreateBitmap_32(HBITMAP bitmap, COLORREF clrTransparent) {
    BITMAP info{};
    if (GetObjectW(bitmap, sizeof(info), &info) == 0) {
        return nullptr;
    }
    std::uint32_t* bits = nullptr;
    const HBITMAP copy = visual::MakeBitmap32(info.bmWidth, info.bmHeight, &bits);
    if (copy == nullptr) {
        return nullptr;
    }
    BITMAPINFO format{};
    format.bmiHeader = {sizeof(format.bmiHeader), info.bmWidth, -info.bmHeight, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    const HDC screen = GetDC(nullptr);
    GetDIBits(screen, bitmap, 0, info.bmHeight, bits, &format, DIB_RGB_COLORS);
    ReleaseDC(nullptr, screen);
    for (int i = 0; i < info.bmWidth * info.bmHeight; ++i) {
        const bool isClear = clrTransparent != g_none && visual::ToColorRef(bits[i]) == (clrTransparent & 0xFFFFFF);
        bits[i] = isClear ? 0 : bits[i] | 0xFF000000;
    }
    return copy;
}

HBITMAP __stdcall CDrawingManager::PrepareShadowMask(int nDepth, COLORREF clrBase, int iMinBrightness,
                                                     int iMaxBrightness) {
    const int side = std::max(nDepth, 1) * 2;
    std::uint32_t* bits = nullptr;
    const HBITMAP bitmap = visual::MakeBitmap32(side, side, &bits);
    if (bitmap == nullptr) {
        return nullptr;
    }
    const visual::Argb shade = clrBase == g_none ? 0xFF000000 : FromColorRef(clrBase);
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            const double distance = std::hypot(x + 0.5 - side / 2.0, y + 0.5 - side / 2.0) / (side / 2.0);
            const double brightness = iMinBrightness + (iMaxBrightness - iMinBrightness) * std::min(distance, 1.0);
            const auto alpha = static_cast<unsigned>(std::clamp(100 - brightness, 0.0, 100.0) * 2.55);
            visual::BlendPixel(bits[y * side + x], visual::WithAlpha(shade, alpha));
        }
    }
    return bitmap;
}
