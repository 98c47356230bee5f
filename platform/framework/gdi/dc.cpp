#include "fx/dc.h"

#include "fx/dump_context.h"
#include "gdi/dc_calls.h"
#include "gdi/gdi_maps.h"

IMPLEMENT_DYNCREATE(CDC, CObject)

namespace {
template <class Wrapper>
struct HandleOf;
template <>
struct HandleOf<CGdiObject> {
    using Type = HGDIOBJ;
};
template <>
struct HandleOf<CPen> {
    using Type = HPEN;
};
template <>
struct HandleOf<CBrush> {
    using Type = HBRUSH;
};
template <>
struct HandleOf<CFont> {
    using Type = HFONT;
};
} // namespace

CDC::~CDC() {
    if (m_hDC != nullptr) {
        ::DeleteDC(Detach());
    }
}

CDC* PASCAL CDC::FromHandle(HDC hDC) {
    return ThreadGdiMaps().contexts.FromHandle(hDC, RUNTIME_CLASS(CDC), fx::HandlerDepth());
}
CDC* PASCAL CDC::FromHandlePermanent(HDC hDC) { return ThreadGdiMaps().contexts.LookupPermanent(hDC); }
void PASCAL CDC::DeleteTempMap() { ThreadGdiMaps().contexts.DeleteTemp(); }

BOOL CDC::Attach(HDC hDC) {
    ASSERT(m_hDC == nullptr);
    if (hDC == nullptr) {
        return FALSE;
    }
    m_hDC = hDC;
    ThreadGdiMaps().contexts.SetPermanent(hDC, this);
    CountGdiObjectMade();
    SetAttribDC(hDC);
    return TRUE;
}

HDC CDC::Detach() {
    const HDC handle = m_hDC;
    if (handle != nullptr) {
        ThreadGdiMaps().contexts.RemovePermanent(handle, this);
        CountGdiObjectGone();
        m_hDC = nullptr;
    }
    m_hAttribDC = nullptr;
    return handle;
}

void CDC::SetAttribDC(HDC hDC) { m_hAttribDC = hDC; }
void CDC::ReleaseAttribDC() { m_hAttribDC = nullptr; }

void CDC::SetOutputDC(HDC hDC) {
    GdiMaps& maps = ThreadGdiMaps();
    const bool isOwner = m_hDC != nullptr && maps.contexts.LookupPermanent(m_hDC) == this;
    if (isOwner) {
        maps.contexts.RemovePermanent(m_hDC, this);
        maps.contexts.SetPermanent(hDC, this);
    }
    m_hDC = hDC;
}

void CDC::ReleaseOutputDC() {
    if (m_hDC != nullptr) {
        GdiMaps& maps = ThreadGdiMaps();
        if (maps.contexts.LookupPermanent(m_hDC) == this) {
            maps.contexts.RemovePermanent(m_hDC, this);
            CountGdiObjectGone();
        }
        m_hDC = nullptr;
    }
}

HDC CDC::GetSafeHdc() const { return m_hDC; }
BOOL CDC::IsPrinting() const { return m_bPrinting; }

BOOL CDC::CreateDC(LPCTSTR lpszDriverName, LPCTSTR lpszDeviceName, LPCTSTR lpszOutput, const void* lpInitData) {
    return Attach(::CreateDC(lpszDriverName, lpszDeviceName, lpszOutput, static_cast<const DEVMODE*>(lpInitData)));
}

BOOL CDC::CreateIC(LPCTSTR lpszDriverName, LPCTSTR lpszDeviceName, LPCTSTR lpszOutput, const void* lpInitData) {
    return Attach(::CreateIC(lpszDriverName, lpszDeviceName, lpszOutput, static_cast<const DEVMODE*>(lpInitData)));
}

BOOL CDC::CreateCompatibleDC(CDC* pDC) { return Attach(::CreateCompatibleDC(SafeHandle(pDC))); }
BOOL CDC::DeleteDC() { return m_hDC != nullptr && ::DeleteDC(Detach()); }
BOOL CDC::ResetDC(const DEVMODE* lpDevMode) { return ::ResetDC(m_hAttribDC, lpDevMode) != nullptr; }

int CDC::SaveDC() {
    const bool isSplit = m_hDC != nullptr && m_hAttribDC != nullptr && m_hDC != m_hAttribDC;
    const int saved = OnBothContexts(*this, 0, [](HDC dc) { return ::SaveDC(dc); });
    // Two contexts number their states each for itself: only "the latest" means the same to both.
    return saved != 0 && isSplit ? -1 : saved;
}

BOOL CDC::RestoreDC(int nSavedDC) {
    return OnBothContexts(*this, FALSE, [nSavedDC](HDC dc) { return ::RestoreDC(dc, nSavedDC); });
}

template <class Wrapper>
Wrapper* CDC::SelectAs(const CGdiObject* object) {
    const HGDIOBJ handle = object == nullptr ? nullptr : object->m_hObject;
    const HGDIOBJ before =
        OnBothContexts(*this, HGDIOBJ(nullptr), [handle](HDC dc) { return ::SelectObject(dc, handle); });
    return Wrapper::FromHandle(static_cast<typename HandleOf<Wrapper>::Type>(before));
}

CGdiObject* CDC::SelectStockObject(int nIndex) {
    const HGDIOBJ handle = ::GetStockObject(nIndex);
    return CGdiObject::FromHandle(
        OnBothContexts(*this, HGDIOBJ(nullptr), [handle](HDC dc) { return ::SelectObject(dc, handle); }));
}

CPen* CDC::SelectObject(CPen* pPen) { return SelectAs<CPen>(pPen); }
CBrush* CDC::SelectObject(CBrush* pBrush) { return SelectAs<CBrush>(pBrush); }
CFont* CDC::SelectObject(CFont* pFont) { return SelectAs<CFont>(pFont); }

CBitmap* CDC::SelectObject(CBitmap* pBitmap) {
    // A bitmap belongs to the one context that draws into it.
    return CBitmap::FromHandle(static_cast<HBITMAP>(::SelectObject(m_hDC, SafeHandle(pBitmap))));
}

int CDC::SelectObject(CRgn* pRgn) {
    const HRGN region = SafeHandle(pRgn);
    return OnBothContexts(*this, int(GDI_ERROR), [region](HDC dc) { return ::SelectClipRgn(dc, region); });
}

CGdiObject* CDC::SelectObject(CGdiObject* pObject) {
    if (pObject == nullptr) {
        return nullptr;
    }
    switch (pObject->GetObjectType()) {
    case OBJ_BITMAP:
        return CGdiObject::FromHandle(::SelectObject(m_hDC, pObject->m_hObject));
    case OBJ_REGION:
        // The result of selecting a region is no object.
        OnBothContexts(*this, 0, [&](HDC dc) { return ::SelectClipRgn(dc, static_cast<HRGN>(pObject->m_hObject)); });
        return nullptr;
    default:
        return SelectAs<CGdiObject>(pObject);
    }
}

CPalette* CDC::SelectPalette(CPalette* pPalette, BOOL bForceBackground) {
    const HPALETTE palette = pPalette == nullptr ? nullptr : static_cast<HPALETTE>(*pPalette);
    return CPalette::FromHandle(OnBothContexts(*this, HPALETTE(nullptr),
                                               [=](HDC dc) { return ::SelectPalette(dc, palette, bForceBackground); }));
}
UINT CDC::RealizePalette() {
    return OnBothContexts(*this, UINT(GDI_ERROR), [](HDC dc) { return ::RealizePalette(dc); });
}
void CDC::UpdateColors() { ::UpdateColors(m_hDC); }

CPen* CDC::GetCurrentPen() const {
    return CPen::FromHandle(static_cast<HPEN>(::GetCurrentObject(m_hAttribDC, OBJ_PEN)));
}
CBrush* CDC::GetCurrentBrush() const {
    return CBrush::FromHandle(static_cast<HBRUSH>(::GetCurrentObject(m_hAttribDC, OBJ_BRUSH)));
}
CPalette* CDC::GetCurrentPalette() const {
    return CPalette::FromHandle(static_cast<HPALETTE>(::GetCurrentObject(m_hAttribDC, OBJ_PAL)));
}
CFont* CDC::GetCurrentFont() const {
    return CFont::FromHandle(static_cast<HFONT>(::GetCurrentObject(m_hAttribDC, OBJ_FONT)));
}
CBitmap* CDC::GetCurrentBitmap() const {
    return CBitmap::FromHandle(static_cast<HBITMAP>(::GetCurrentObject(m_hDC, OBJ_BITMAP)));
}

CBrush* PASCAL CDC::GetHalftoneBrush() {
    // Lives as long as the process; no wrapper owns it.
    static const HBRUSH brush = [] {
        constexpr WORD rows[8] = {0x5555, 0xAAAA, 0x5555, 0xAAAA, 0x5555, 0xAAAA, 0x5555, 0xAAAA};
        const HBITMAP pattern = ::CreateBitmap(8, 8, 1, 1, rows);
        const HBRUSH made = ::CreatePatternBrush(pattern);
        ::DeleteObject(pattern);
        return made;
    }();
    return CBrush::FromHandle(brush);
}

int CDC::EnumObjects(int nObjectType, int(CALLBACK* lpfn)(LPVOID, LPARAM), LPARAM lpData) {
    return ::EnumObjects(m_hAttribDC, nObjectType, lpfn, lpData);
}

void CDC::Dump(CDumpContext& dc) const {
    CObject::Dump(dc);
    dc << L"m_hDC = " << m_hDC << L", m_hAttribDC = " << m_hAttribDC << L"\n";
}

void CDC::AssertValid() const { CObject::AssertValid(); }
