#include "gdi/dc_calls.h"

int CDC::GetDeviceCaps(int nIndex) const { return ::GetDeviceCaps(m_hAttribDC, nIndex); }
COLORREF CDC::GetNearestColor(COLORREF crColor) const { return ::GetNearestColor(m_hAttribDC, crColor); }

COLORREF CDC::SetBkColor(COLORREF crColor) {
    return OnBothContexts(*this, COLORREF(CLR_INVALID), [=](HDC dc) { return ::SetBkColor(dc, crColor); });
}
COLORREF CDC::GetBkColor() const { return ::GetBkColor(m_hAttribDC); }
int CDC::SetBkMode(int nBkMode) {
    return OnBothContexts(*this, 0, [=](HDC dc) { return ::SetBkMode(dc, nBkMode); });
}
int CDC::GetBkMode() const { return ::GetBkMode(m_hAttribDC); }
COLORREF CDC::SetTextColor(COLORREF crColor) {
    return OnBothContexts(*this, COLORREF(CLR_INVALID), [=](HDC dc) { return ::SetTextColor(dc, crColor); });
}
COLORREF CDC::GetTextColor() const { return ::GetTextColor(m_hAttribDC); }

int CDC::SetPolyFillMode(int nPolyFillMode) {
    return OnBothContexts(*this, 0, [=](HDC dc) { return ::SetPolyFillMode(dc, nPolyFillMode); });
}
int CDC::GetPolyFillMode() const { return ::GetPolyFillMode(m_hAttribDC); }
int CDC::SetROP2(int nDrawMode) {
    return OnBothContexts(*this, 0, [=](HDC dc) { return ::SetROP2(dc, nDrawMode); });
}
int CDC::GetROP2() const { return ::GetROP2(m_hAttribDC); }
int CDC::SetStretchBltMode(int nStretchMode) {
    return OnBothContexts(*this, 0, [=](HDC dc) { return ::SetStretchBltMode(dc, nStretchMode); });
}
int CDC::GetStretchBltMode() const { return ::GetStretchBltMode(m_hAttribDC); }

CPoint CDC::SetBrushOrg(int x, int y) {
    POINT before = {0, 0};
    ::SetBrushOrgEx(m_hDC, x, y, &before);
    return before;
}
CPoint CDC::SetBrushOrg(POINT point) { return SetBrushOrg(point.x, point.y); }
CPoint CDC::GetBrushOrg() const {
    POINT origin = {0, 0};
    ::GetBrushOrgEx(m_hDC, &origin);
    return origin;
}

COLORREF CDC::SetDCBrushColor(COLORREF crColor) { return ::SetDCBrushColor(m_hDC, crColor); }
COLORREF CDC::GetDCBrushColor() const { return ::GetDCBrushColor(m_hDC); }
COLORREF CDC::SetDCPenColor(COLORREF crColor) { return ::SetDCPenColor(m_hDC, crColor); }
COLORREF CDC::GetDCPenColor() const { return ::GetDCPenColor(m_hDC); }

int CDC::SetArcDirection(int nArcDirection) {
    return OnBothContexts(*this, 0, [=](HDC dc) { return ::SetArcDirection(dc, nArcDirection); });
}
int CDC::GetArcDirection() const { return ::GetArcDirection(m_hAttribDC); }
BOOL CDC::SetMiterLimit(float fMiterLimit) { return ::SetMiterLimit(m_hDC, fMiterLimit, nullptr); }
float CDC::GetMiterLimit() const {
    float limit = 0;
    ::GetMiterLimit(m_hDC, &limit);
    return limit;
}
BOOL CDC::SetColorAdjustment(const COLORADJUSTMENT* lpColorAdjust) {
    return OnBothContexts(*this, FALSE, [=](HDC dc) { return ::SetColorAdjustment(dc, lpColorAdjust); });
}
BOOL CDC::GetColorAdjustment(LPCOLORADJUSTMENT lpColorAdjust) const {
    return ::GetColorAdjustment(m_hAttribDC, lpColorAdjust);
}
UINT CDC::SetBoundsRect(LPCRECT lpRectBounds, UINT flags) { return ::SetBoundsRect(m_hDC, lpRectBounds, flags); }
UINT CDC::GetBoundsRect(LPRECT lpRectBounds, UINT flags) { return ::GetBoundsRect(m_hAttribDC, lpRectBounds, flags); }
DWORD CDC::SetMapperFlags(DWORD dwFlag) {
    return OnBothContexts(*this, DWORD(GDI_ERROR), [=](HDC dc) { return ::SetMapperFlags(dc, dwFlag); });
}

// Clipping.

int CDC::GetClipBox(LPRECT lpRect) const { return ::GetClipBox(m_hAttribDC, lpRect); }
BOOL CDC::PtVisible(int x, int y) const { return ::PtVisible(m_hDC, x, y); }
BOOL CDC::PtVisible(POINT point) const { return PtVisible(point.x, point.y); }
BOOL CDC::RectVisible(LPCRECT lpRect) const { return ::RectVisible(m_hDC, lpRect); }

int CDC::SelectClipRgn(CRgn* pRgn) { return SelectObject(pRgn); }
int CDC::SelectClipRgn(CRgn* pRgn, int nMode) {
    const HRGN region = SafeHandle(pRgn);
    return OnBothContexts(*this, int(ERROR), [=](HDC dc) { return ::ExtSelectClipRgn(dc, region, nMode); });
}
int CDC::ExcludeClipRect(int x1, int y1, int x2, int y2) {
    return OnBothContexts(*this, int(ERROR), [=](HDC dc) { return ::ExcludeClipRect(dc, x1, y1, x2, y2); });
}
int CDC::ExcludeClipRect(LPCRECT lpRect) {
    return ExcludeClipRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}
int CDC::IntersectClipRect(int x1, int y1, int x2, int y2) {
    return OnBothContexts(*this, int(ERROR), [=](HDC dc) { return ::IntersectClipRect(dc, x1, y1, x2, y2); });
}
int CDC::IntersectClipRect(LPCRECT lpRect) {
    return IntersectClipRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}
int CDC::OffsetClipRgn(int x, int y) {
    return OnBothContexts(*this, int(ERROR), [=](HDC dc) { return ::OffsetClipRgn(dc, x, y); });
}
int CDC::OffsetClipRgn(SIZE size) { return OffsetClipRgn(size.cx, size.cy); }
BOOL CDC::SelectClipPath(int nMode) { return ::SelectClipPath(m_hDC, nMode); }
