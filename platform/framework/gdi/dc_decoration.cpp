#include "gdi/dc_calls.h"
#include "gdi/device_pixels.h"

#include <algorithm>
#include <array>

void CDC::FillRect(LPCRECT lpRect, CBrush* pBrush) { gdi::FillWith(m_hDC, *lpRect, SafeHandle(pBrush)); }
void CDC::FrameRect(LPCRECT lpRect, CBrush* pBrush) { gdi::FrameWith(m_hDC, *lpRect, SafeHandle(pBrush)); }
void CDC::InvertRect(LPCRECT lpRect) { ::InvertRect(m_hDC, lpRect); }

void CDC::FillSolidRect(LPCRECT lpRect, COLORREF clr) {
    SetBkColor(clr);
    gdi::FillGround(m_hDC, *lpRect);
}
void CDC::FillSolidRect(int x, int y, int cx, int cy, COLORREF clr) { FillSolidRect(CRect(x, y, x + cx, y + cy), clr); }

void CDC::Draw3dRect(LPCRECT lpRect, COLORREF clrTopLeft, COLORREF clrBottomRight) {
    Draw3dRect(lpRect->left, lpRect->top, lpRect->right - lpRect->left, lpRect->bottom - lpRect->top, clrTopLeft,
               clrBottomRight);
}
void CDC::Draw3dRect(int x, int y, int cx, int cy, COLORREF clrTopLeft, COLORREF clrBottomRight) {
    FillSolidRect(x, y, cx - 1, 1, clrTopLeft);
    FillSolidRect(x, y, 1, cy - 1, clrTopLeft);
    FillSolidRect(x + cx - 1, y, 1, cy, clrBottomRight);
    FillSolidRect(x, y + cy - 1, cx, 1, clrBottomRight);
}

BOOL CDC::DrawEdge(LPRECT lpRect, UINT nEdge, UINT nFlags) { return ::DrawEdge(m_hDC, lpRect, nEdge, nFlags); }
BOOL CDC::DrawFrameControl(LPRECT lpRect, UINT nType, UINT nState) {
    if (nType != DFC_BUTTON || !gdi::IsMirrored(m_hDC)) {
        return ::DrawFrameControl(m_hDC, lpRect, nType, nState);
    }
    // A tick does not change its direction in a mirrored window.
    RECT onDevice = gdi::DeviceRect(m_hDC, *lpRect);
    const gdi::ScopedDevicePixels pixels(m_hDC);
    return ::DrawFrameControl(m_hDC, &onDevice, nType, nState);
}
void CDC::DrawFocusRect(LPCRECT lpRect) { ::DrawFocusRect(m_hDC, lpRect); }

namespace {

/// The band inside a rectangle, as wide as size on each side: above, below, left and right, without overlap. In logical
/// units, like the context's rectangles and unlike its regions: so it fits any origin, scale and direction.
using Band = std::array<CRect, 4>;

Band BandOf(CRect outer, SIZE size) {
    outer.NormalizeRect();
    const int width = std::clamp<int>(size.cx, 0, (outer.Width() + 1) / 2);
    const int height = std::clamp<int>(size.cy, 0, (outer.Height() + 1) / 2);
    const int top = outer.top + height;
    const int bottom = std::max<int>(top, outer.bottom - height);
    const int left = outer.left + width;
    const int right = std::max<int>(left, outer.right - width);
    return {CRect(outer.left, outer.top, outer.right, top), CRect(outer.left, bottom, outer.right, outer.bottom),
            CRect(outer.left, top, left, bottom), CRect(right, top, outer.right, bottom)};
}

void InvertBand(CDC& dc, const Band& band, CBrush* brush, const Band* spared = nullptr) {
    const int saved = dc.SaveDC();
    if (spared != nullptr) {
        for (const CRect& side : *spared) {
            dc.ExcludeClipRect(side);
        }
    }
    dc.SelectObject(brush);
    for (const CRect& side : band) {
        dc.PatBlt(side.left, side.top, side.Width(), side.Height(), PATINVERT);
    }
    dc.RestoreDC(saved);
}

} // namespace

void CDC::DrawDragRect(LPCRECT lpRect, SIZE size, LPCRECT lpRectLast, SIZE sizeLast, CBrush* pBrush,
                       CBrush* pBrushLast) {
    CBrush* const brush = pBrush == nullptr ? GetHalftoneBrush() : pBrush;
    CBrush* const lastBrush = pBrushLast == nullptr ? brush : pBrushLast;
    const Band band = BandOf(*lpRect, size);
    if (lpRectLast == nullptr) {
        InvertBand(*this, band, brush);
        return;
    }
    const Band lastBand = BandOf(*lpRectLast, sizeLast);
    // What both have in common is inverted already: without this the frame would flicker.
    const bool hasCommon = brush == lastBrush;
    InvertBand(*this, lastBand, lastBrush, hasCommon ? &band : nullptr);
    InvertBand(*this, band, brush, hasCommon ? &lastBand : nullptr);
}

BOOL CDC::DrawIcon(int x, int y, HICON hIcon) { return ::DrawIcon(m_hDC, x, y, hIcon); }
BOOL CDC::DrawIcon(POINT point, HICON hIcon) { return DrawIcon(point.x, point.y, hIcon); }

BOOL CDC::DrawState(CPoint pt, CSize size, HBITMAP hBitmap, UINT nFlags, HBRUSH hBrush) {
    return ::DrawState(m_hDC, hBrush, nullptr, reinterpret_cast<LPARAM>(hBitmap), 0, pt.x, pt.y, size.cx, size.cy,
                       nFlags | DST_BITMAP);
}
BOOL CDC::DrawState(CPoint pt, CSize size, CBitmap* pBitmap, UINT nFlags, CBrush* pBrush) {
    return DrawState(pt, size, SafeHandle(pBitmap), nFlags, SafeHandle(pBrush));
}
BOOL CDC::DrawState(CPoint pt, CSize size, HICON hIcon, UINT nFlags, HBRUSH hBrush) {
    return ::DrawState(m_hDC, hBrush, nullptr, reinterpret_cast<LPARAM>(hIcon), 0, pt.x, pt.y, size.cx, size.cy,
                       nFlags | DST_ICON);
}
BOOL CDC::DrawState(CPoint pt, CSize size, HICON hIcon, UINT nFlags, CBrush* pBrush) {
    return DrawState(pt, size, hIcon, nFlags, SafeHandle(pBrush));
}
BOOL CDC::DrawState(CPoint pt, CSize size, LPCTSTR lpszText, UINT nFlags, BOOL bPrefixText, int nTextLen,
                    HBRUSH hBrush) {
    return ::DrawState(m_hDC, hBrush, nullptr, reinterpret_cast<LPARAM>(lpszText), static_cast<WPARAM>(nTextLen), pt.x,
                       pt.y, size.cx, size.cy, nFlags | (bPrefixText ? DST_PREFIXTEXT : DST_TEXT));
}
BOOL CDC::DrawState(CPoint pt, CSize size, LPCTSTR lpszText, UINT nFlags, BOOL bPrefixText, int nTextLen,
                    CBrush* pBrush) {
    return DrawState(pt, size, lpszText, nFlags, bPrefixText, nTextLen, SafeHandle(pBrush));
}
BOOL CDC::DrawState(CPoint pt, CSize size, DRAWSTATEPROC lpDrawProc, LPARAM lData, UINT nFlags, HBRUSH hBrush) {
    return ::DrawState(m_hDC, hBrush, lpDrawProc, lData, 0, pt.x, pt.y, size.cx, size.cy, nFlags | DST_COMPLEX);
}
BOOL CDC::DrawState(CPoint pt, CSize size, DRAWSTATEPROC lpDrawProc, LPARAM lData, UINT nFlags, CBrush* pBrush) {
    return DrawState(pt, size, lpDrawProc, lData, nFlags, SafeHandle(pBrush));
}

BOOL CDC::GradientFill(TRIVERTEX* pVertices, ULONG nVertices, void* pMesh, ULONG nMeshElements, DWORD dwMode) {
    return ::GradientFill(m_hDC, pVertices, nVertices, pMesh, nMeshElements, dwMode);
}
BOOL CDC::FloodFill(int x, int y, COLORREF crColor) { return ::FloodFill(m_hDC, x, y, crColor); }
BOOL CDC::ExtFloodFill(int x, int y, COLORREF crColor, UINT nFillType) {
    return ::ExtFloodFill(m_hDC, x, y, crColor, nFillType);
}
COLORREF CDC::SetPixel(int x, int y, COLORREF crColor) { return ::SetPixel(m_hDC, x, y, crColor); }
COLORREF CDC::SetPixel(POINT point, COLORREF crColor) { return SetPixel(point.x, point.y, crColor); }
BOOL CDC::SetPixelV(int x, int y, COLORREF crColor) { return ::SetPixelV(m_hDC, x, y, crColor); }
BOOL CDC::SetPixelV(POINT point, COLORREF crColor) { return SetPixelV(point.x, point.y, crColor); }
COLORREF CDC::GetPixel(int x, int y) const { return ::GetPixel(m_hDC, x, y); }
COLORREF CDC::GetPixel(POINT point) const { return GetPixel(point.x, point.y); }
