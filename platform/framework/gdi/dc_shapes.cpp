#include "gdi/dc_calls.h"

CPoint CDC::MoveTo(int x, int y) {
    POINT before = {0, 0};
    OnBothContexts(*this, FALSE, [&](HDC dc) { return ::MoveToEx(dc, x, y, &before); });
    return before;
}
CPoint CDC::MoveTo(POINT point) { return MoveTo(point.x, point.y); }
BOOL CDC::LineTo(int x, int y) {
    if (m_hAttribDC != nullptr && m_hAttribDC != m_hDC) {
        ::MoveToEx(m_hAttribDC, x, y, nullptr);
    }
    return ::LineTo(m_hDC, x, y);
}
BOOL CDC::LineTo(POINT point) { return LineTo(point.x, point.y); }
CPoint CDC::GetCurrentPosition() const {
    POINT position = {0, 0};
    ::GetCurrentPositionEx(m_hAttribDC, &position);
    return position;
}

BOOL CDC::AngleArc(int x, int y, int nRadius, float fStartAngle, float fSweepAngle) {
    return ::AngleArc(m_hDC, x, y, static_cast<DWORD>(nRadius), fStartAngle, fSweepAngle);
}
BOOL CDC::Arc(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4) {
    return ::Arc(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
}
BOOL CDC::Arc(LPCRECT lpRect, POINT ptStart, POINT ptEnd) {
    return Arc(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, ptStart.x, ptStart.y, ptEnd.x, ptEnd.y);
}
BOOL CDC::ArcTo(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4) {
    return ::ArcTo(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
}
BOOL CDC::ArcTo(LPCRECT lpRect, POINT ptStart, POINT ptEnd) {
    return ArcTo(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, ptStart.x, ptStart.y, ptEnd.x, ptEnd.y);
}
BOOL CDC::Chord(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4) {
    return ::Chord(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
}
BOOL CDC::Chord(LPCRECT lpRect, POINT ptStart, POINT ptEnd) {
    return Chord(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, ptStart.x, ptStart.y, ptEnd.x, ptEnd.y);
}
BOOL CDC::Pie(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4) {
    return ::Pie(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
}
BOOL CDC::Pie(LPCRECT lpRect, POINT ptStart, POINT ptEnd) {
    return Pie(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, ptStart.x, ptStart.y, ptEnd.x, ptEnd.y);
}
BOOL CDC::Ellipse(int x1, int y1, int x2, int y2) { return ::Ellipse(m_hDC, x1, y1, x2, y2); }
BOOL CDC::Ellipse(LPCRECT lpRect) { return Ellipse(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom); }
BOOL CDC::Rectangle(int x1, int y1, int x2, int y2) { return ::Rectangle(m_hDC, x1, y1, x2, y2); }
BOOL CDC::Rectangle(LPCRECT lpRect) { return Rectangle(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom); }
BOOL CDC::RoundRect(int x1, int y1, int x2, int y2, int x3, int y3) {
    return ::RoundRect(m_hDC, x1, y1, x2, y2, x3, y3);
}
BOOL CDC::RoundRect(LPCRECT lpRect, POINT point) {
    return RoundRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, point.x, point.y);
}

BOOL CDC::Polygon(LPPOINT lpPoints, int nCount) { return ::Polygon(m_hDC, lpPoints, nCount); }
BOOL CDC::PolyPolygon(LPPOINT lpPoints, LPINT lpPolyCounts, int nCount) {
    return ::PolyPolygon(m_hDC, lpPoints, lpPolyCounts, nCount);
}
BOOL CDC::Polyline(LPPOINT lpPoints, int nCount) { return ::Polyline(m_hDC, lpPoints, nCount); }
BOOL CDC::PolylineTo(const POINT* lpPoints, int nCount) {
    return ::PolylineTo(m_hDC, lpPoints, static_cast<DWORD>(nCount));
}
BOOL CDC::PolyPolyline(const POINT* lpPoints, const DWORD* lpPolyPoints, int nCount) {
    return ::PolyPolyline(m_hDC, lpPoints, lpPolyPoints, static_cast<DWORD>(nCount));
}
BOOL CDC::PolyBezier(const POINT* lpPoints, int nCount) {
    return ::PolyBezier(m_hDC, lpPoints, static_cast<DWORD>(nCount));
}
BOOL CDC::PolyBezierTo(const POINT* lpPoints, int nCount) {
    return ::PolyBezierTo(m_hDC, lpPoints, static_cast<DWORD>(nCount));
}
BOOL CDC::PolyDraw(const POINT* lpPoints, const BYTE* lpTypes, int nCount) {
    return ::PolyDraw(m_hDC, lpPoints, lpTypes, nCount);
}

BOOL CDC::FillRgn(CRgn* pRgn, CBrush* pBrush) { return ::FillRgn(m_hDC, SafeHandle(pRgn), SafeHandle(pBrush)); }
BOOL CDC::FrameRgn(CRgn* pRgn, CBrush* pBrush, int nWidth, int nHeight) {
    return ::FrameRgn(m_hDC, SafeHandle(pRgn), SafeHandle(pBrush), nWidth, nHeight);
}
BOOL CDC::InvertRgn(CRgn* pRgn) { return ::InvertRgn(m_hDC, SafeHandle(pRgn)); }
BOOL CDC::PaintRgn(CRgn* pRgn) { return ::PaintRgn(m_hDC, SafeHandle(pRgn)); }

// Paths.

BOOL CDC::AbortPath() { return ::AbortPath(m_hDC); }
BOOL CDC::BeginPath() { return ::BeginPath(m_hDC); }
BOOL CDC::CloseFigure() { return ::CloseFigure(m_hDC); }
BOOL CDC::EndPath() { return ::EndPath(m_hDC); }
BOOL CDC::FillPath() { return ::FillPath(m_hDC); }
BOOL CDC::FlattenPath() { return ::FlattenPath(m_hDC); }
int CDC::GetPath(LPPOINT lpPoints, LPBYTE lpTypes, int nCount) const {
    return ::GetPath(m_hDC, lpPoints, lpTypes, nCount);
}
BOOL CDC::StrokeAndFillPath() { return ::StrokeAndFillPath(m_hDC); }
BOOL CDC::StrokePath() { return ::StrokePath(m_hDC); }
BOOL CDC::WidenPath() { return ::WidenPath(m_hDC); }
