// The frame around a window whose caption is a row of its ribbon, and the colours around tab windows.
#include "afxvisualmanageroffice2007.h"

#include "fx/window_dc.h"
#include "managers/manager_look.h"

#include <afxribbonbar.h>

using visual::ColorSlot;
using visual::FaceSlot;
using visual::LookOf;
using visual::ToColorRef;

namespace {

constexpr int kCornerRadius = 7; // of the window's upper corners, at 96 DPI

/// The ribbon whose first row is the window's caption; null when there is none.
CMFCRibbonBar* CaptionRibbon(CWnd* window) {
    for (CWnd* child = window->GetWindow(GW_CHILD); child != nullptr; child = child->GetWindow(GW_HWNDNEXT)) {
        CMFCRibbonBar* const bar = DYNAMIC_DOWNCAST(CMFCRibbonBar, child);
        if (bar != nullptr && bar->IsReplaceFrameCaption() && bar->IsVisible()) {
            return bar;
        }
    }
    return nullptr;
}

visual::WindowGlyph GlyphOf(UINT command) {
    switch (command) {
    case SC_MINIMIZE:
        return visual::WindowGlyph::Minimize;
    case SC_MAXIMIZE:
        return visual::WindowGlyph::Maximize;
    case SC_RESTORE:
        return visual::WindowGlyph::Restore;
    default:
        return visual::WindowGlyph::Close;
    }
}

/// Upper corners round, lower ones square.
HRGN TopRoundedRegion(const CSize& size, int radius) {
    const HRGN whole = ::CreateRoundRectRgn(0, 0, size.cx + 1, size.cy + 1, 2 * radius, 2 * radius);
    const HRGN lower = ::CreateRectRgn(0, radius, size.cx, size.cy);
    ::CombineRgn(whole, whole, lower, RGN_OR);
    ::DeleteObject(lower);
    return whole;
}

void SetBrush(CBrush& brush, COLORREF color) {
    brush.DeleteObject();
    brush.CreateSolidBrush(color);
}

} // namespace

void CMFCVisualManager::OnDrawRibbonCaptionButton(CDC* pDC, CMFCRibbonCaptionButton* pButton) {
    const UINT command = pButton->GetSystemCommand();
    // An MDI child's buttons lie on the row of tabs.
    if (pButton->GetMDIChild() != nullptr) {
        visual::PaintChildButton(*pDC, pButton->GetRect(), GlyphOf(command), visual::StateOf(*pButton),
                                 LookOf(GetSkin()));
    } else {
        visual::PaintCaptionButton(*pDC, pButton->GetRect(), GlyphOf(command), visual::StateOf(*pButton),
                                   LookOf(GetSkin()));
    }
}

BOOL CMFCVisualManager::OnNcPaint(CWnd* pWnd, const CObList&, CRect) {
    CMFCRibbonBar* const ribbon = CaptionRibbon(pWnd);
    if (ribbon == nullptr) {
        return FALSE;
    }
    CRect window, client;
    pWnd->GetWindowRect(&window);
    pWnd->GetClientRect(&client);
    pWnd->ClientToScreen(&client);
    client.OffsetRect(-window.left, -window.top);
    window.OffsetRect(-window.left, -window.top);
    if (client == window) {
        return TRUE;
    }
    CWindowDC dc(pWnd);
    dc.ExcludeClipRect(&client);
    const CRect caption = ribbon->GetCaptionRect();
    const bool isRound = LookOf(GetSkin()).Radius() > 0 && !pWnd->IsZoomed();
    visual::PaintFrameBorder(dc, window, client, caption.Height(),
                             {ribbon->IsCaptionActive(), isRound ? afxGlobalData.ScalePixels(kCornerRadius) : 0},
                             LookOf(GetSkin()));
    return TRUE;
}

BOOL CMFCVisualManager::OnNcActivate(CWnd*, BOOL) { return FALSE; }

void CMFCVisualManager::OnActivateApp(CWnd*, BOOL) {}

BOOL CMFCVisualManager::OnSetWindowRegion(CWnd* pWnd, CSize sizeWindow) {
    if (LookOf(GetSkin()).Radius() == 0 || CaptionRibbon(pWnd) == nullptr) {
        return FALSE;
    }
    // The window owns the region from here.
    return ::SetWindowRgn(pWnd->GetSafeHwnd(), TopRoundedRegion(sizeWindow, afxGlobalData.ScalePixels(kCornerRadius)),
                          TRUE) != 0;
}

void CMFCVisualManager::GetTabFrameColors(const CMFCBaseTabCtrl*, COLORREF& clrDark, COLORREF& clrBlack,
                                          COLORREF& clrHighlight, COLORREF& clrFace, COLORREF& clrDarkShadow,
                                          COLORREF& clrLight, CBrush*& pbrFace, CBrush*& pbrBlack) {
    const visual::Skin& skin = GetSkin();
    const visual::Face& active = skin[FaceSlot::DocumentTabActive];
    clrDark = ToColorRef(skin[ColorSlot::PaneBorder]);
    clrBlack = ToColorRef(skin[ColorSlot::DocumentTabText]);
    clrHighlight = ToColorRef(active.top1);
    clrFace = ToColorRef(active.bottom2);
    clrDarkShadow = ToColorRef(active.outer);
    clrLight = ToColorRef(skin[FaceSlot::DocumentTab].top1);
    SetBrush(m_brTabFace, clrFace);
    SetBrush(m_brTabBlack, clrBlack);
    pbrFace = &m_brTabFace;
    pbrBlack = &m_brTabBlack;
}
