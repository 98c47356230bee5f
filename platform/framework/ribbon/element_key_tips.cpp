// Key tips of ribbon elements: which an element has, how large they are, where they lie and how they are drawn.
#include <afxglobals.h>
#include <afxribbonbar.h>
#include <afxribbonkeytip.h>
#include <afxvisualmanager.h>

#include "ribbon/bar_parts.h"
#include "ribbon/focus_walk.h"

namespace {

// Around the letters, at 96 DPI.
constexpr int kPaddingX = 4;
constexpr int kPaddingY = 1;

// A tip never lies outside of the work area of its element's monitor; client pixels of the window.
fx::Rect WorkAreaIn(CWnd& window, const CRect& element) {
    CRect screen = element;
    window.ClientToScreen(screen);
    MONITORINFO monitor{};
    monitor.cbSize = sizeof(monitor);
    if (!::GetMonitorInfo(::MonitorFromRect(screen, MONITOR_DEFAULTTONEAREST), &monitor)) {
        return {};
    }
    CRect area(monitor.rcWork);
    window.ScreenToClient(area);
    return fx::FromRect(area);
}

} // namespace

void CMFCRibbonBaseElement::AddToKeyList(CArray<CMFCRibbonKeyTip*, CMFCRibbonKeyTip*>& arElems) {
    if (IsTabStop() && !IsSeparator()) {
        arElems.Add(new CMFCRibbonKeyTip(this));
    }
}

void CMFCRibbonButton::AddToKeyList(CArray<CMFCRibbonKeyTip*, CMFCRibbonKeyTip*>& arElems) {
    CMFCRibbonBaseElement::AddToKeyList(arElems);
    if (IsTabStop() && IsSplit()) {
        arElems.Add(new CMFCRibbonKeyTip(this, TRUE));
    }
}

void CMFCRibbonButtonsGroup::AddToKeyList(CArray<CMFCRibbonKeyTip*, CMFCRibbonKeyTip*>& arElems) {
    for (int i = 0; i < GetCount(); ++i) {
        m_arButtons[i]->AddToKeyList(arElems);
    }
}

CString CMFCRibbonBaseElement::GetKeyTipText(BOOL bIsMenu) const {
    RibbonBarHost* bar = GetBarHost();
    const CString given = bIsMenu ? m_strMenuKeys : m_strKeys;
    return bar != nullptr ? bar->GetElementKeys().KeysOf(*this, bIsMenu != FALSE, given) : given;
}

CSize CMFCRibbonBaseElement::GetKeyTipSize(CDC* pDC) {
    RibbonFontScope font(*pDC);
    CSize text = pDC->GetTextExtent(GetKeyTipText(FALSE));
    text.cx = std::max(text.cx, pDC->GetTextExtent(GetKeyTipText(TRUE)).cx);
    if (text.cx == 0) {
        return {0, 0};
    }
    const int height = static_cast<int>(text.cy) + 2 * afxGlobalData.ScalePixels(kPaddingY);
    const int width = static_cast<int>(text.cx) + 2 * afxGlobalData.ScalePixels(kPaddingX);
    return {std::max(width, height), height};
}

CRect CMFCRibbonBaseElement::GetKeyTipRect(CDC* pDC, BOOL /*bIsMenu*/) {
    CWnd* parent = GetParentWnd();
    const CSize tip = GetKeyTipSize(pDC);
    if (m_rect.IsRectEmpty() || tip.cx == 0 || parent == nullptr) {
        return {0, 0, 0, 0};
    }
    return fx::ToRect(ribbon::PlaceKeyTip(fx::FromRect(m_rect), {static_cast<int>(tip.cx), static_cast<int>(tip.cy)},
                                          static_cast<int>(GetImageSize(RibbonImageSmall).cx),
                                          WorkAreaIn(*parent, m_rect)));
}

CRect CMFCRibbonButton::GetKeyTipRect(CDC* pDC, BOOL bIsMenu) {
    CWnd* parent = GetParentWnd();
    // The parts of a split button have a tip each; side by side they would lie on top of each other under the whole.
    const CRect area = !IsSplit() ? CRect(0, 0, 0, 0) : bIsMenu ? m_rectMenu : m_rectCommand;
    const CSize tip = GetKeyTipSize(pDC);
    if (area.IsRectEmpty() || tip.cx == 0 || parent == nullptr) {
        return CMFCRibbonBaseElement::GetKeyTipRect(pDC, bIsMenu);
    }
    return fx::ToRect(ribbon::PlaceKeyTip(fx::FromRect(area), {static_cast<int>(tip.cx), static_cast<int>(tip.cy)}, 0,
                                          WorkAreaIn(*parent, m_rect)));
}

void CMFCRibbonBaseElement::OnDrawKeyTip(CDC* pDC, const CRect& rect, BOOL bIsMenu) {
    RibbonFontScope font(*pDC);
    const int previousMode = pDC->SetBkMode(TRANSPARENT);
    CMFCVisualManager::GetInstance()->OnDrawRibbonKeyTip(pDC, this, rect, GetKeyTipText(bIsMenu));
    pDC->SetBkMode(previousMode);
}
