#pragma once

// Wrappers of GDI objects. An object that created or attached a handle owns it and deletes it in its destructor;
// objects from FromHandle and SelectObject may be temporary ones, which own nothing and are deleted at idle.

#include "atltypes.h"
#include "fx/object.h"
#include "fx/string.h"

#include <commctrl.h>

class CBitmap;
class CDC;

/// How many GDI objects and device contexts the wrappers of this process own now. Compare before and after to find
/// leaks.
FRAMEWORK_API long AfxGdiObjectCount() noexcept;
/// Deletes the calling thread's temporary objects of all GDI wrappers (objects, device contexts, image lists).
FRAMEWORK_API void AfxDeleteTemporaryGdiObjects();

class FRAMEWORK_API CGdiObject : public CObject {
    DECLARE_DYNCREATE(CGdiObject)
public:
    HGDIOBJ m_hObject = nullptr;

    CGdiObject() = default;
    ~CGdiObject() override;

    operator HGDIOBJ() const { return m_hObject; }
    /// Null when nothing has been created or attached.
    HGDIOBJ GetSafeHandle() const { return m_hObject; }
    static CGdiObject* PASCAL FromHandle(HGDIOBJ hObject);
    /// Null when no object of this thread owns the handle.
    static CGdiObject* PASCAL FromHandlePermanent(HGDIOBJ hObject);
    static void PASCAL DeleteTempMap();
    /// Takes the handle over. FALSE for null. The object must be empty.
    BOOL Attach(HGDIOBJ hObject);
    HGDIOBJ Detach();
    /// FALSE when there was no handle. The object must not be selected into a device context.
    BOOL DeleteObject();

    int GetObject(int nCount, LPVOID lpObject) const { return ::GetObject(m_hObject, nCount, lpObject); }
    UINT GetObjectType() const { return ::GetObjectType(m_hObject); }
    BOOL CreateStockObject(int nIndex) { return Attach(::GetStockObject(nIndex)); }
    BOOL UnrealizeObject() { return ::UnrealizeObject(m_hObject); }
    BOOL operator==(const CGdiObject& obj) const { return m_hObject == obj.m_hObject; }
    BOOL operator!=(const CGdiObject& obj) const { return m_hObject != obj.m_hObject; }

    void Dump(CDumpContext& dc) const override;
    void AssertValid() const override;

protected:
    static CGdiObject* FromHandle(HGDIOBJ hObject, CRuntimeClass* kind);
};

class FRAMEWORK_API CPen : public CGdiObject {
    DECLARE_DYNCREATE(CPen)
public:
    CPen() = default;
    /// The creating constructors throw CResourceException.
    CPen(int nPenStyle, int nWidth, COLORREF crColor);
    CPen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount = 0, const DWORD* lpStyle = nullptr);

    operator HPEN() const { return static_cast<HPEN>(m_hObject); }
    static CPen* PASCAL FromHandle(HPEN hPen);
    BOOL CreatePen(int nPenStyle, int nWidth, COLORREF crColor) {
        return Attach(::CreatePen(nPenStyle, nWidth, crColor));
    }
    BOOL CreatePen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount = 0,
                   const DWORD* lpStyle = nullptr) {
        return Attach(::ExtCreatePen(nPenStyle, nWidth, pLogBrush, nStyleCount, lpStyle));
    }
    BOOL CreatePenIndirect(LPLOGPEN lpLogPen) { return Attach(::CreatePenIndirect(lpLogPen)); }
    int GetLogPen(LOGPEN* pLogPen) { return GetObject(sizeof(LOGPEN), pLogPen); }
    int GetExtLogPen(EXTLOGPEN* pLogPen) { return GetObject(sizeof(EXTLOGPEN), pLogPen); }
};

class FRAMEWORK_API CBrush : public CGdiObject {
    DECLARE_DYNCREATE(CBrush)
public:
    CBrush() = default;
    /// The creating constructors throw CResourceException.
    CBrush(COLORREF crColor);
    CBrush(int nIndex, COLORREF crColor);
    explicit CBrush(CBitmap* pBitmap);

    operator HBRUSH() const { return static_cast<HBRUSH>(m_hObject); }
    static CBrush* PASCAL FromHandle(HBRUSH hBrush);
    BOOL CreateSolidBrush(COLORREF crColor) { return Attach(::CreateSolidBrush(crColor)); }
    BOOL CreateHatchBrush(int nIndex, COLORREF crColor) { return Attach(::CreateHatchBrush(nIndex, crColor)); }
    BOOL CreateBrushIndirect(const LOGBRUSH* lpLogBrush) { return Attach(::CreateBrushIndirect(lpLogBrush)); }
    BOOL CreatePatternBrush(CBitmap* pBitmap);
    BOOL CreateDIBPatternBrush(HGLOBAL hPackedDIB, UINT nUsage);
    BOOL CreateDIBPatternBrush(const void* lpPackedDIB, UINT nUsage) {
        return Attach(::CreateDIBPatternBrushPt(lpPackedDIB, nUsage));
    }
    BOOL CreateSysColorBrush(int nIndex) { return CreateSolidBrush(::GetSysColor(nIndex)); }
    int GetLogBrush(LOGBRUSH* pLogBrush) { return GetObject(sizeof(LOGBRUSH), pLogBrush); }
};

class FRAMEWORK_API CFont : public CGdiObject {
    DECLARE_DYNCREATE(CFont)
public:
    CFont() = default;

    operator HFONT() const { return static_cast<HFONT>(m_hObject); }
    static CFont* PASCAL FromHandle(HFONT hFont);
    BOOL CreateFontIndirect(const LOGFONT* lpLogFont) { return Attach(::CreateFontIndirect(lpLogFont)); }
    BOOL CreateFont(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight, BYTE bItalic,
                    BYTE bUnderline, BYTE cStrikeOut, BYTE nCharSet, BYTE nOutPrecision, BYTE nClipPrecision,
                    BYTE nQuality, BYTE nPitchAndFamily, LPCTSTR lpszFacename) {
        return Attach(::CreateFont(nHeight, nWidth, nEscapement, nOrientation, nWeight, bItalic, bUnderline, cStrikeOut,
                                   nCharSet, nOutPrecision, nClipPrecision, nQuality, nPitchAndFamily, lpszFacename));
    }
    /// Height in tenths of a point; pDC null means the screen.
    BOOL CreatePointFont(int nPointSize, LPCTSTR lpszFaceName, CDC* pDC = nullptr);
    BOOL CreatePointFontIndirect(const LOGFONT* lpLogFont, CDC* pDC = nullptr);
    int GetLogFont(LOGFONT* pLogFont) { return GetObject(sizeof(LOGFONT), pLogFont); }
};

class FRAMEWORK_API CBitmap : public CGdiObject {
    DECLARE_DYNCREATE(CBitmap)
public:
    CBitmap() = default;

    operator HBITMAP() const { return static_cast<HBITMAP>(m_hObject); }
    static CBitmap* PASCAL FromHandle(HBITMAP hBitmap);
    BOOL LoadBitmap(LPCTSTR lpszResourceName);
    BOOL LoadBitmap(UINT nIDResource) { return LoadBitmap(MAKEINTRESOURCE(nIDResource)); }
    BOOL LoadOEMBitmap(UINT nIDBitmap) { return Attach(::LoadBitmap(nullptr, MAKEINTRESOURCE(nIDBitmap))); }
    BOOL LoadMappedBitmap(UINT nIDBitmap, UINT nFlags = 0, LPCOLORMAP lpColorMap = nullptr, int nMapSize = 0);
    BOOL CreateBitmap(int nWidth, int nHeight, UINT nPlanes, UINT nBitcount, const void* lpBits) {
        return Attach(::CreateBitmap(nWidth, nHeight, nPlanes, nBitcount, lpBits));
    }
    BOOL CreateBitmapIndirect(LPBITMAP lpBitmap) { return Attach(::CreateBitmapIndirect(lpBitmap)); }
    BOOL CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight);
    BOOL CreateDiscardableBitmap(CDC* pDC, int nWidth, int nHeight);
    int GetBitmap(BITMAP* pBitMap) { return GetObject(sizeof(BITMAP), pBitMap); }
    DWORD GetBitmapBits(DWORD dwCount, LPVOID lpBits) const {
        return static_cast<DWORD>(::GetBitmapBits(*this, static_cast<LONG>(dwCount), lpBits));
    }
    DWORD SetBitmapBits(DWORD dwCount, const void* lpBits) {
        return static_cast<DWORD>(::SetBitmapBits(*this, dwCount, lpBits));
    }
    /// In tenths of a millimetre, as set; 0 x 0 otherwise.
    CSize GetBitmapDimension() const;
    CSize SetBitmapDimension(int nWidth, int nHeight);
};

class FRAMEWORK_API CPalette : public CGdiObject {
    DECLARE_DYNCREATE(CPalette)
public:
    CPalette() = default;

    operator HPALETTE() const { return static_cast<HPALETTE>(m_hObject); }
    static CPalette* PASCAL FromHandle(HPALETTE hPalette);
    BOOL CreatePalette(LPLOGPALETTE lpLogPalette) { return Attach(::CreatePalette(lpLogPalette)); }
    BOOL CreateHalftonePalette(CDC* pDC);
    int GetEntryCount();
    UINT GetPaletteEntries(UINT nStartIndex, UINT nNumEntries, LPPALETTEENTRY lpPaletteColors) const {
        return ::GetPaletteEntries(*this, nStartIndex, nNumEntries, lpPaletteColors);
    }
    UINT SetPaletteEntries(UINT nStartIndex, UINT nNumEntries, LPPALETTEENTRY lpPaletteColors) {
        return ::SetPaletteEntries(*this, nStartIndex, nNumEntries, lpPaletteColors);
    }
    void AnimatePalette(UINT nStartIndex, UINT nNumEntries, LPPALETTEENTRY lpPaletteColors) {
        ::AnimatePalette(*this, nStartIndex, nNumEntries, lpPaletteColors);
    }
    UINT GetNearestPaletteIndex(COLORREF crColor) const { return ::GetNearestPaletteIndex(*this, crColor); }
    BOOL ResizePalette(UINT nNumEntries) { return ::ResizePalette(*this, nNumEntries); }
};

class FRAMEWORK_API CRgn : public CGdiObject {
    DECLARE_DYNCREATE(CRgn)
public:
    CRgn() = default;

    operator HRGN() const { return static_cast<HRGN>(m_hObject); }
    static CRgn* PASCAL FromHandle(HRGN hRgn);
    BOOL CreateRectRgn(int x1, int y1, int x2, int y2) { return Attach(::CreateRectRgn(x1, y1, x2, y2)); }
    BOOL CreateRectRgnIndirect(LPCRECT lpRect) { return Attach(::CreateRectRgnIndirect(lpRect)); }
    BOOL CreateEllipticRgn(int x1, int y1, int x2, int y2) { return Attach(::CreateEllipticRgn(x1, y1, x2, y2)); }
    BOOL CreateEllipticRgnIndirect(LPCRECT lpRect) { return Attach(::CreateEllipticRgnIndirect(lpRect)); }
    BOOL CreatePolygonRgn(LPPOINT lpPoints, int nCount, int nMode) {
        return Attach(::CreatePolygonRgn(lpPoints, nCount, nMode));
    }
    BOOL CreatePolyPolygonRgn(LPPOINT lpPoints, LPINT lpPolyCounts, int nCount, int nPolyFillMode) {
        return Attach(::CreatePolyPolygonRgn(lpPoints, lpPolyCounts, nCount, nPolyFillMode));
    }
    BOOL CreateRoundRectRgn(int x1, int y1, int x2, int y2, int x3, int y3) {
        return Attach(::CreateRoundRectRgn(x1, y1, x2, y2, x3, y3));
    }
    BOOL CreateFromPath(CDC* pDC);
    BOOL CreateFromData(const XFORM* lpXForm, int nCount, const RGNDATA* pRgnData) {
        return Attach(::ExtCreateRegion(lpXForm, nCount, pRgnData));
    }
    void SetRectRgn(int x1, int y1, int x2, int y2) { ::SetRectRgn(*this, x1, y1, x2, y2); }
    void SetRectRgn(LPCRECT lpRect) { SetRectRgn(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom); }
    /// The results say what this region, which must exist, is now: NULLREGION, SIMPLEREGION, COMPLEXREGION or ERROR.
    int CombineRgn(CRgn* pRgn1, CRgn* pRgn2, int nCombineMode);
    int CopyRgn(CRgn* pRgnSrc);
    BOOL EqualRgn(CRgn* pRgn) const;
    int OffsetRgn(int x, int y) { return ::OffsetRgn(*this, x, y); }
    int OffsetRgn(POINT point) { return OffsetRgn(point.x, point.y); }
    int GetRgnBox(LPRECT lpRect) const { return ::GetRgnBox(*this, lpRect); }
    BOOL PtInRegion(int x, int y) const { return ::PtInRegion(*this, x, y); }
    BOOL PtInRegion(POINT point) const { return PtInRegion(point.x, point.y); }
    BOOL RectInRegion(LPCRECT lpRect) const { return ::RectInRegion(*this, lpRect); }
    int GetRegionData(LPRGNDATA lpRgnData, int nCount) const {
        return static_cast<int>(::GetRegionData(*this, static_cast<DWORD>(nCount), lpRgnData));
    }
};
