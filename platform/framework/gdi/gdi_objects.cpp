#include "fx/dc.h"
#include "fx/exceptions.h"
#include "fx/module_state.h"

IMPLEMENT_DYNCREATE(CPen, CGdiObject)
IMPLEMENT_DYNCREATE(CBrush, CGdiObject)
IMPLEMENT_DYNCREATE(CFont, CGdiObject)
IMPLEMENT_DYNCREATE(CBitmap, CGdiObject)
IMPLEMENT_DYNCREATE(CPalette, CGdiObject)
IMPLEMENT_DYNCREATE(CRgn, CGdiObject)

namespace {

void Require(BOOL created) {
    if (!created) {
        AfxThrowResourceException();
    }
}

HDC HandleOf(const CDC* dc) { return dc == nullptr ? nullptr : dc->GetSafeHdc(); }
HBITMAP HandleOf(const CBitmap* bitmap) { return bitmap == nullptr ? nullptr : static_cast<HBITMAP>(*bitmap); }
HRGN HandleOf(const CRgn* region) { return region == nullptr ? nullptr : static_cast<HRGN>(*region); }

} // namespace

CPen* PASCAL CPen::FromHandle(HPEN hPen) {
    return static_cast<CPen*>(CGdiObject::FromHandle(hPen, RUNTIME_CLASS(CPen)));
}
CBrush* PASCAL CBrush::FromHandle(HBRUSH hBrush) {
    return static_cast<CBrush*>(CGdiObject::FromHandle(hBrush, RUNTIME_CLASS(CBrush)));
}
CFont* PASCAL CFont::FromHandle(HFONT hFont) {
    return static_cast<CFont*>(CGdiObject::FromHandle(hFont, RUNTIME_CLASS(CFont)));
}
CBitmap* PASCAL CBitmap::FromHandle(HBITMAP hBitmap) {
    return static_cast<CBitmap*>(CGdiObject::FromHandle(hBitmap, RUNTIME_CLASS(CBitmap)));
}
CPalette* PASCAL CPalette::FromHandle(HPALETTE hPalette) {
    return static_cast<CPalette*>(CGdiObject::FromHandle(hPalette, RUNTIME_CLASS(CPalette)));
}
CRgn* PASCAL CRgn::FromHandle(HRGN hRgn) {
    return static_cast<CRgn*>(CGdiObject::FromHandle(hRgn, RUNTIME_CLASS(CRgn)));
}

CPen::CPen(int nPenStyle, int nWidth, COLORREF crColor) { Require(CreatePen(nPenStyle, nWidth, crColor)); }
CPen::CPen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount, const DWORD* lpStyle) {
    Require(CreatePen(nPenStyle, nWidth, pLogBrush, nStyleCount, lpStyle));
}

CBrush::CBrush(COLORREF crColor) { Require(CreateSolidBrush(crColor)); }
CBrush::CBrush(int nIndex, COLORREF crColor) { Require(CreateHatchBrush(nIndex, crColor)); }
CBrush::CBrush(CBitmap* pBitmap) { Require(CreatePatternBrush(pBitmap)); }

BOOL CBrush::CreatePatternBrush(CBitmap* pBitmap) { return Attach(::CreatePatternBrush(HandleOf(pBitmap))); }

BOOL CBrush::CreateDIBPatternBrush(HGLOBAL hPackedDIB, UINT nUsage) {
    const void* const bits = ::GlobalLock(hPackedDIB);
    const BOOL created = bits != nullptr && CreateDIBPatternBrush(bits, nUsage);
    if (bits != nullptr) {
        ::GlobalUnlock(hPackedDIB);
    }
    return created;
}

BOOL CFont::CreatePointFont(int nPointSize, LPCTSTR lpszFaceName, CDC* pDC) {
    LOGFONT font = {};
    font.lfCharSet = DEFAULT_CHARSET;
    font.lfHeight = nPointSize;
    ::lstrcpyn(font.lfFaceName, lpszFaceName, LF_FACESIZE);
    return CreatePointFontIndirect(&font, pDC);
}

BOOL CFont::CreatePointFontIndirect(const LOGFONT* lpLogFont, CDC* pDC) {
    const HDC given = pDC == nullptr ? nullptr : pDC->m_hAttribDC;
    const HDC dc = given == nullptr ? ::GetDC(nullptr) : given;
    LOGFONT font = *lpLogFont;
    constexpr int tenthsOfPointPerInch = 720;
    POINT height = {0, ::MulDiv(::GetDeviceCaps(dc, LOGPIXELSY), font.lfHeight, tenthsOfPointPerInch)};
    POINT origin = {0, 0};
    ::DPtoLP(dc, &height, 1);
    ::DPtoLP(dc, &origin, 1);
    font.lfHeight = -std::abs(height.y - origin.y);
    if (given == nullptr) {
        ::ReleaseDC(nullptr, dc);
    }
    return CreateFontIndirect(&font);
}

BOOL CBitmap::LoadBitmap(LPCTSTR lpszResourceName) {
    return Attach(::LoadBitmap(AfxFindResourceHandle(lpszResourceName, RT_BITMAP), lpszResourceName));
}
BOOL CBitmap::LoadMappedBitmap(UINT nIDBitmap, UINT nFlags, LPCOLORMAP lpColorMap, int nMapSize) {
    const HINSTANCE module = AfxFindResourceHandle(MAKEINTRESOURCE(nIDBitmap), RT_BITMAP);
    return Attach(::CreateMappedBitmap(module, static_cast<INT_PTR>(nIDBitmap), nFlags, lpColorMap, nMapSize));
}
BOOL CBitmap::CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight) {
    return Attach(::CreateCompatibleBitmap(HandleOf(pDC), nWidth, nHeight));
}
BOOL CBitmap::CreateDiscardableBitmap(CDC* pDC, int nWidth, int nHeight) {
    return Attach(::CreateDiscardableBitmap(HandleOf(pDC), nWidth, nHeight));
}
CSize CBitmap::GetBitmapDimension() const {
    SIZE size = {0, 0};
    ::GetBitmapDimensionEx(*this, &size);
    return size;
}
CSize CBitmap::SetBitmapDimension(int nWidth, int nHeight) {
    SIZE before = {0, 0};
    ::SetBitmapDimensionEx(*this, nWidth, nHeight, &before);
    return before;
}

BOOL CPalette::CreateHalftonePalette(CDC* pDC) { return Attach(::CreateHalftonePalette(HandleOf(pDC))); }
int CPalette::GetEntryCount() {
    WORD count = 0;
    GetObject(sizeof(count), &count);
    return count;
}

BOOL CRgn::CreateFromPath(CDC* pDC) { return Attach(::PathToRegion(HandleOf(pDC))); }
int CRgn::CombineRgn(CRgn* pRgn1, CRgn* pRgn2, int nCombineMode) {
    return ::CombineRgn(*this, HandleOf(pRgn1), HandleOf(pRgn2), nCombineMode);
}
int CRgn::CopyRgn(CRgn* pRgnSrc) { return ::CombineRgn(*this, HandleOf(pRgnSrc), nullptr, RGN_COPY); }
BOOL CRgn::EqualRgn(CRgn* pRgn) const { return ::EqualRgn(*this, HandleOf(pRgn)); }
