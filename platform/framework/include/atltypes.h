#pragma once

// CPoint, CSize, CRect: the Windows structures with operators. Coordinates are plain integers without a unit of their
// own. A rectangle's right and bottom edges lie outside of it.

#include "fx/base.h"

class CSize;
class CPoint;
class CRect;

class CSize : public tagSIZE {
public:
    CSize() noexcept {
        cx = 0;
        cy = 0;
    }
    CSize(int initCX, int initCY) noexcept {
        cx = initCX;
        cy = initCY;
    }
    CSize(SIZE initSize) noexcept : tagSIZE(initSize) {}
    CSize(POINT initPt) noexcept {
        cx = initPt.x;
        cy = initPt.y;
    }
    /// Width in the low word, height in the high word, both signed.
    CSize(DWORD dwSize) noexcept {
        cx = static_cast<short>(LOWORD(dwSize));
        cy = static_cast<short>(HIWORD(dwSize));
    }

    BOOL operator==(SIZE size) const noexcept { return cx == size.cx && cy == size.cy; }
    BOOL operator!=(SIZE size) const noexcept { return !(*this == size); }
    void operator+=(SIZE size) noexcept { *this = *this + size; }
    void operator-=(SIZE size) noexcept { *this = *this - size; }
    void SetSize(int CX, int CY) noexcept { *this = CSize(CX, CY); }

    CSize operator+(SIZE size) const noexcept { return CSize(cx + size.cx, cy + size.cy); }
    CSize operator-(SIZE size) const noexcept { return CSize(cx - size.cx, cy - size.cy); }
    CSize operator-() const noexcept { return CSize(-cx, -cy); }
    inline CPoint operator+(POINT point) const noexcept;
    inline CPoint operator-(POINT point) const noexcept;
    inline CRect operator+(const RECT* lpRect) const noexcept;
    inline CRect operator-(const RECT* lpRect) const noexcept;
};

class CPoint : public tagPOINT {
public:
    CPoint() noexcept {
        x = 0;
        y = 0;
    }
    CPoint(int initX, int initY) noexcept {
        x = initX;
        y = initY;
    }
    CPoint(POINT initPt) noexcept : tagPOINT(initPt) {}
    CPoint(SIZE initSize) noexcept {
        x = initSize.cx;
        y = initSize.cy;
    }
    /// x in the low word, y in the high word, both signed, as in mouse messages.
    CPoint(LPARAM dwPoint) noexcept {
        x = static_cast<short>(LOWORD(dwPoint));
        y = static_cast<short>(HIWORD(dwPoint));
    }

    void Offset(int xOffset, int yOffset) noexcept {
        x += xOffset;
        y += yOffset;
    }
    void Offset(POINT point) noexcept { Offset(point.x, point.y); }
    void Offset(SIZE size) noexcept { Offset(size.cx, size.cy); }
    void SetPoint(int X, int Y) noexcept { *this = CPoint(X, Y); }

    BOOL operator==(POINT point) const noexcept { return x == point.x && y == point.y; }
    BOOL operator!=(POINT point) const noexcept { return !(*this == point); }
    void operator+=(SIZE size) noexcept { Offset(size); }
    void operator+=(POINT point) noexcept { Offset(point); }
    void operator-=(SIZE size) noexcept { Offset(-size.cx, -size.cy); }
    void operator-=(POINT point) noexcept { Offset(-point.x, -point.y); }

    CPoint operator+(SIZE size) const noexcept { return CPoint(x + size.cx, y + size.cy); }
    CPoint operator+(POINT point) const noexcept { return CPoint(x + point.x, y + point.y); }
    CPoint operator-(SIZE size) const noexcept { return CPoint(x - size.cx, y - size.cy); }
    CSize operator-(POINT point) const noexcept { return CSize(x - point.x, y - point.y); }
    CPoint operator-() const noexcept { return CPoint(-x, -y); }
    inline CRect operator+(const RECT* lpRect) const noexcept;
    inline CRect operator-(const RECT* lpRect) const noexcept;
};

class CRect : public tagRECT {
public:
    CRect() noexcept {
        left = 0;
        top = 0;
        right = 0;
        bottom = 0;
    }
    CRect(int l, int t, int r, int b) noexcept {
        left = l;
        top = t;
        right = r;
        bottom = b;
    }
    CRect(const RECT& srcRect) noexcept : tagRECT(srcRect) {}
    CRect(LPCRECT lpSrcRect) noexcept : tagRECT(*lpSrcRect) {}
    CRect(POINT point, SIZE size) noexcept {
        left = point.x;
        top = point.y;
        right = point.x + size.cx;
        bottom = point.y + size.cy;
    }
    CRect(POINT topLeft, POINT bottomRight) noexcept {
        left = topLeft.x;
        top = topLeft.y;
        right = bottomRight.x;
        bottom = bottomRight.y;
    }
    CRect(const CRect&) noexcept = default;

    int Width() const noexcept { return right - left; }
    int Height() const noexcept { return bottom - top; }
    CSize Size() const noexcept { return CSize(Width(), Height()); }
    // The two corners are laid out as points, as Windows' own rectangle functions assume.
    CPoint& TopLeft() noexcept { return *reinterpret_cast<CPoint*>(&left); }
    const CPoint& TopLeft() const noexcept { return *reinterpret_cast<const CPoint*>(&left); }
    CPoint& BottomRight() noexcept { return *reinterpret_cast<CPoint*>(&right); }
    const CPoint& BottomRight() const noexcept { return *reinterpret_cast<const CPoint*>(&right); }
    CPoint CenterPoint() const noexcept { return CPoint((left + right) / 2, (top + bottom) / 2); }
    void SwapLeftRight() noexcept {
        const LONG before = left;
        left = right;
        right = before;
    }

    operator LPRECT() noexcept { return this; }
    operator LPCRECT() const noexcept { return this; }

    BOOL IsRectEmpty() const noexcept { return ::IsRectEmpty(this); }
    BOOL IsRectNull() const noexcept { return left == 0 && right == 0 && top == 0 && bottom == 0; }
    BOOL PtInRect(POINT point) const noexcept { return ::PtInRect(this, point); }
    BOOL EqualRect(LPCRECT lpRect) const noexcept { return ::EqualRect(this, lpRect); }

    void SetRect(int x1, int y1, int x2, int y2) noexcept { *this = CRect(x1, y1, x2, y2); }
    void SetRect(POINT topLeft, POINT bottomRight) noexcept { *this = CRect(topLeft, bottomRight); }
    void SetRectEmpty() noexcept { *this = CRect(); }
    void CopyRect(LPCRECT lpSrcRect) noexcept { *this = *lpSrcRect; }

    void InflateRect(int x, int y) noexcept { InflateRect(x, y, x, y); }
    void InflateRect(SIZE size) noexcept { InflateRect(size.cx, size.cy); }
    void InflateRect(LPCRECT lpRect) noexcept { InflateRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom); }
    void InflateRect(int l, int t, int r, int b) noexcept {
        left -= l;
        top -= t;
        right += r;
        bottom += b;
    }
    void DeflateRect(int x, int y) noexcept { InflateRect(-x, -y); }
    void DeflateRect(SIZE size) noexcept { InflateRect(-size.cx, -size.cy); }
    void DeflateRect(LPCRECT lpRect) noexcept { DeflateRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom); }
    void DeflateRect(int l, int t, int r, int b) noexcept { InflateRect(-l, -t, -r, -b); }

    void OffsetRect(int x, int y) noexcept {
        left += x;
        top += y;
        right += x;
        bottom += y;
    }
    void OffsetRect(SIZE size) noexcept { OffsetRect(size.cx, size.cy); }
    void OffsetRect(POINT point) noexcept { OffsetRect(point.x, point.y); }
    /// Swaps edges until width and height are not negative.
    void NormalizeRect() noexcept {
        SetRect(left < right ? left : right, top < bottom ? top : bottom, left < right ? right : left,
                top < bottom ? bottom : top);
    }
    // These keep the size.
    void MoveToX(int x) noexcept { OffsetRect(x - left, 0); }
    void MoveToY(int y) noexcept { OffsetRect(0, y - top); }
    void MoveToXY(int x, int y) noexcept { OffsetRect(x - left, y - top); }
    void MoveToXY(POINT point) noexcept { MoveToXY(point.x, point.y); }

    /// FALSE, and this rectangle empty, when the two do not overlap.
    BOOL IntersectRect(LPCRECT lpRect1, LPCRECT lpRect2) noexcept { return ::IntersectRect(this, lpRect1, lpRect2); }
    /// The smallest rectangle around both; an empty one does not count.
    BOOL UnionRect(LPCRECT lpRect1, LPCRECT lpRect2) noexcept { return ::UnionRect(this, lpRect1, lpRect2); }
    BOOL SubtractRect(LPCRECT lpRectSrc1, LPCRECT lpRectSrc2) noexcept {
        return ::SubtractRect(this, lpRectSrc1, lpRectSrc2);
    }

    void operator=(const RECT& srcRect) noexcept { tagRECT::operator=(srcRect); }
    CRect& operator=(const CRect&) noexcept = default;
    BOOL operator==(const RECT& rect) const noexcept { return ::EqualRect(this, &rect); }
    BOOL operator!=(const RECT& rect) const noexcept { return !(*this == rect); }
    void operator+=(POINT point) noexcept { OffsetRect(point); }
    void operator+=(SIZE size) noexcept { OffsetRect(size); }
    void operator+=(LPCRECT lpRect) noexcept { InflateRect(lpRect); }
    void operator-=(POINT point) noexcept { OffsetRect(-point.x, -point.y); }
    void operator-=(SIZE size) noexcept { OffsetRect(-size.cx, -size.cy); }
    void operator-=(LPCRECT lpRect) noexcept { DeflateRect(lpRect); }
    void operator&=(const RECT& rect) noexcept { IntersectRect(this, &rect); }
    void operator|=(const RECT& rect) noexcept { UnionRect(this, &rect); }

    CRect operator+(POINT point) const noexcept {
        return Changed([&](CRect& rect) { rect += point; });
    }
    CRect operator+(SIZE size) const noexcept {
        return Changed([&](CRect& rect) { rect += size; });
    }
    CRect operator+(LPCRECT lpRect) const noexcept {
        return Changed([&](CRect& rect) { rect += lpRect; });
    }
    CRect operator-(POINT point) const noexcept {
        return Changed([&](CRect& rect) { rect -= point; });
    }
    CRect operator-(SIZE size) const noexcept {
        return Changed([&](CRect& rect) { rect -= size; });
    }
    CRect operator-(LPCRECT lpRect) const noexcept {
        return Changed([&](CRect& rect) { rect -= lpRect; });
    }
    CRect operator&(const RECT& rect2) const noexcept {
        return Changed([&](CRect& rect) { rect &= rect2; });
    }
    CRect operator|(const RECT& rect2) const noexcept {
        return Changed([&](CRect& rect) { rect |= rect2; });
    }
    CRect MulDiv(int nMultiplier, int nDivisor) const noexcept {
        return CRect(::MulDiv(left, nMultiplier, nDivisor), ::MulDiv(top, nMultiplier, nDivisor),
                     ::MulDiv(right, nMultiplier, nDivisor), ::MulDiv(bottom, nMultiplier, nDivisor));
    }

private:
    template <typename Change>
    CRect Changed(Change change) const noexcept {
        CRect result(*this);
        change(result);
        return result;
    }
};

inline CPoint CSize::operator+(POINT point) const noexcept { return CPoint(cx + point.x, cy + point.y); }
inline CPoint CSize::operator-(POINT point) const noexcept { return CPoint(cx - point.x, cy - point.y); }
inline CRect CSize::operator+(const RECT* lpRect) const noexcept { return CRect(lpRect) + *this; }
inline CRect CSize::operator-(const RECT* lpRect) const noexcept { return CRect(lpRect) - *this; }
inline CRect CPoint::operator+(const RECT* lpRect) const noexcept { return CRect(lpRect) + *this; }
inline CRect CPoint::operator-(const RECT* lpRect) const noexcept { return CRect(lpRect) - *this; }
