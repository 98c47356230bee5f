#include "gdi/dc_calls.h"

#include <cstdlib>

namespace {
constexpr int himetricPerInch = 2540;

int Scaled(int value, int numerator, int denominator) {
    return denominator == 0 ? 0 : std::abs(::MulDiv(value, numerator, denominator));
}

using OriginCall = BOOL(WINAPI*)(HDC, int, int, LPPOINT);
using ExtentCall = BOOL(WINAPI*)(HDC, int, int, LPSIZE);
using ScaleCall = BOOL(WINAPI*)(HDC, int, int, int, int, LPSIZE);

CPoint ChangeOrigin(const CDC& dc, OriginCall call, int x, int y) {
    POINT before = {0, 0};
    OnBothContexts(dc, FALSE, [&](HDC handle) { return call(handle, x, y, &before); });
    return before;
}
CSize ChangeExtent(const CDC& dc, ExtentCall call, int cx, int cy) {
    SIZE before = {0, 0};
    OnBothContexts(dc, FALSE, [&](HDC handle) { return call(handle, cx, cy, &before); });
    return before;
}
CSize ChangeScale(const CDC& dc, ScaleCall call, int xNum, int xDenom, int yNum, int yDenom) {
    SIZE before = {0, 0};
    OnBothContexts(dc, FALSE, [&](HDC handle) { return call(handle, xNum, xDenom, yNum, yDenom, &before); });
    return before;
}
} // namespace

int CDC::SetGraphicsMode(int iMode) { return ::SetGraphicsMode(m_hDC, iMode); }
int CDC::GetGraphicsMode() const { return ::GetGraphicsMode(m_hDC); }
BOOL CDC::SetWorldTransform(const XFORM& rXform) { return ::SetWorldTransform(m_hDC, &rXform); }
BOOL CDC::ModifyWorldTransform(const XFORM& rXform, DWORD iMode) {
    return ::ModifyWorldTransform(m_hDC, &rXform, iMode);
}
BOOL CDC::GetWorldTransform(XFORM& rXform) const { return ::GetWorldTransform(m_hDC, &rXform); }
DWORD CDC::SetLayout(DWORD dwLayout) { return ::SetLayout(m_hDC, dwLayout); }
DWORD CDC::GetLayout() const { return ::GetLayout(m_hDC); }

int CDC::SetMapMode(int nMapMode) {
    return OnBothContexts(*this, 0, [=](HDC dc) { return ::SetMapMode(dc, nMapMode); });
}
int CDC::GetMapMode() const { return ::GetMapMode(m_hAttribDC); }

CPoint CDC::SetViewportOrg(int x, int y) { return ChangeOrigin(*this, &::SetViewportOrgEx, x, y); }
CPoint CDC::SetViewportOrg(POINT point) { return SetViewportOrg(point.x, point.y); }
CPoint CDC::OffsetViewportOrg(int nWidth, int nHeight) {
    return ChangeOrigin(*this, &::OffsetViewportOrgEx, nWidth, nHeight);
}
CPoint CDC::GetViewportOrg() const {
    POINT origin = {0, 0};
    ::GetViewportOrgEx(m_hAttribDC, &origin);
    return origin;
}
CSize CDC::SetViewportExt(int cx, int cy) { return ChangeExtent(*this, &::SetViewportExtEx, cx, cy); }
CSize CDC::SetViewportExt(SIZE size) { return SetViewportExt(size.cx, size.cy); }
CSize CDC::ScaleViewportExt(int xNum, int xDenom, int yNum, int yDenom) {
    return ChangeScale(*this, &::ScaleViewportExtEx, xNum, xDenom, yNum, yDenom);
}
CSize CDC::GetViewportExt() const {
    SIZE size = {0, 0};
    ::GetViewportExtEx(m_hAttribDC, &size);
    return size;
}
CPoint CDC::SetWindowOrg(int x, int y) { return ChangeOrigin(*this, &::SetWindowOrgEx, x, y); }
CPoint CDC::SetWindowOrg(POINT point) { return SetWindowOrg(point.x, point.y); }
CPoint CDC::OffsetWindowOrg(int nWidth, int nHeight) {
    return ChangeOrigin(*this, &::OffsetWindowOrgEx, nWidth, nHeight);
}
CPoint CDC::GetWindowOrg() const {
    POINT origin = {0, 0};
    ::GetWindowOrgEx(m_hAttribDC, &origin);
    return origin;
}
CSize CDC::SetWindowExt(int cx, int cy) { return ChangeExtent(*this, &::SetWindowExtEx, cx, cy); }
CSize CDC::SetWindowExt(SIZE size) { return SetWindowExt(size.cx, size.cy); }
CSize CDC::ScaleWindowExt(int xNum, int xDenom, int yNum, int yDenom) {
    return ChangeScale(*this, &::ScaleWindowExtEx, xNum, xDenom, yNum, yDenom);
}
CSize CDC::GetWindowExt() const {
    SIZE size = {0, 0};
    ::GetWindowExtEx(m_hAttribDC, &size);
    return size;
}

void CDC::DPtoLP(LPPOINT lpPoints, int nCount) const { ::DPtoLP(m_hAttribDC, lpPoints, nCount); }
void CDC::DPtoLP(LPRECT lpRect) const { ::DPtoLP(m_hAttribDC, reinterpret_cast<LPPOINT>(lpRect), 2); }
void CDC::DPtoLP(LPSIZE lpSize) const {
    const CSize window = GetWindowExt();
    const CSize viewport = GetViewportExt();
    lpSize->cx = Scaled(lpSize->cx, window.cx, viewport.cx);
    lpSize->cy = Scaled(lpSize->cy, window.cy, viewport.cy);
}
void CDC::LPtoDP(LPPOINT lpPoints, int nCount) const { ::LPtoDP(m_hAttribDC, lpPoints, nCount); }
void CDC::LPtoDP(LPRECT lpRect) const { ::LPtoDP(m_hAttribDC, reinterpret_cast<LPPOINT>(lpRect), 2); }
void CDC::LPtoDP(LPSIZE lpSize) const {
    const CSize window = GetWindowExt();
    const CSize viewport = GetViewportExt();
    lpSize->cx = Scaled(lpSize->cx, viewport.cx, window.cx);
    lpSize->cy = Scaled(lpSize->cy, viewport.cy, window.cy);
}

void CDC::DPtoHIMETRIC(LPSIZE lpSize) const {
    lpSize->cx = ::MulDiv(lpSize->cx, himetricPerInch, GetDeviceCaps(LOGPIXELSX));
    lpSize->cy = ::MulDiv(lpSize->cy, himetricPerInch, GetDeviceCaps(LOGPIXELSY));
}
void CDC::HIMETRICtoDP(LPSIZE lpSize) const {
    lpSize->cx = ::MulDiv(lpSize->cx, GetDeviceCaps(LOGPIXELSX), himetricPerInch);
    lpSize->cy = ::MulDiv(lpSize->cy, GetDeviceCaps(LOGPIXELSY), himetricPerInch);
}
void CDC::LPtoHIMETRIC(LPSIZE lpSize) const {
    LPtoDP(lpSize);
    DPtoHIMETRIC(lpSize);
}
void CDC::HIMETRICtoLP(LPSIZE lpSize) const {
    HIMETRICtoDP(lpSize);
    DPtoLP(lpSize);
}
