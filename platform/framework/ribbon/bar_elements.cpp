// The elements that only a ribbon bar has: tabs, scroll buttons, collapsed panels, application button, context
// captions.
#include "afxribbonbar.h"

#include "afxglobals.h"
#include "afxribbonpanelmenu.h"
#include "afxvisualmanager.h"
#include "fx/dc_scope.h"
#include "ribbon/bar_parts.h"

namespace {

COLORREF OrDefault(COLORREF color) { return color == static_cast<COLORREF>(-1) ? afxGlobalData.clrBarText : color; }

// One line in the middle of the rectangle, ended with dots where it is too long.
void DrawCenteredText(CDC* pDC, const CString& text, CRect rect, COLORREF color) {
    RibbonFontScope font(*pDC);
    const COLORREF previousColor = pDC->SetTextColor(OrDefault(color));
    const int previousMode = pDC->SetBkMode(TRANSPARENT);
    pDC->DrawText(text, rect, DT_SINGLELINE | DT_CENTER | DT_VCENTER | DT_END_ELLIPSIS | DT_NOPREFIX);
    pDC->SetBkMode(previousMode);
    pDC->SetTextColor(previousColor);
}

} // namespace

// ---- tab

IMPLEMENT_DYNCREATE(CMFCRibbonTab, CMFCRibbonBaseElement)

CMFCRibbonTab::CMFCRibbonTab() = default;

CSize CMFCRibbonTab::GetRegularSize(CDC* pDC) {
    CMFCRibbonCategory* category = GetParentCategory();
    if (category == nullptr || category->GetParentRibbonBar() == nullptr) {
        return {0, 0};
    }
    const RibbonMetrics& metrics = category->GetParentRibbonBar()->GetMetrics();
    RibbonFontScope font(*pDC);
    const CSize text = pDC->GetTextExtent(CString(category->GetName()));
    return {text.cx + 2 * metrics.tabPaddingX, metrics.tabHeight};
}

CString CMFCRibbonTab::GetToolTipText() const {
    return m_bIsTrancated && GetParentCategory() != nullptr ? CString(GetParentCategory()->GetName()) : CString();
}

BOOL CMFCRibbonTab::IsSelected() const { return GetParentCategory() != nullptr && GetParentCategory()->IsActive(); }

void CMFCRibbonTab::OnDraw(CDC* pDC) {
    CMFCRibbonCategory* category = GetParentCategory();
    if (category == nullptr) {
        return;
    }
    // A minimised bar shows no page that the tab could belong to, unless the tab has opened it.
    const CMFCRibbonBar* bar = GetParentRibbonBar();
    const bool isMinimized = bar != nullptr && (bar->GetHideFlags() & AFX_RIBBONBAR_HIDE_ELEMENTS) != 0;
    const BOOL isActive = IsSelected() && (!isMinimized || IsDroppedDown());
    const COLORREF color = CMFCVisualManager::GetInstance()->OnDrawRibbonCategoryTab(pDC, this, isActive);
    CRect text = m_rect;
    if (m_bIsTrancated) {
        text.DeflateRect(afxGlobalData.ScalePixels(2), 0);
    }
    DrawCenteredText(pDC, category->GetName(), text, color);
}

void CMFCRibbonTab::OnLButtonDown(CPoint /*point*/) {
    CMFCRibbonCategory* category = GetParentCategory();
    CMFCRibbonBar* bar = GetParentRibbonBar();
    if (category == nullptr || bar == nullptr) {
        return;
    }
    const bool isMinimized = (bar->GetHideFlags() & AFX_RIBBONBAR_HIDE_ELEMENTS) != 0;
    if (isMinimized && IsDroppedDown()) {
        ClosePopupMenu();
        return;
    }
    const bool changes = !category->IsActive();
    if (changes && !bar->SetActiveCategory(category)) {
        return;
    }
    const HWND window = bar->GetSafeHwnd();
    if (isMinimized) {
        OnShowPopupMenu();
    }
    // The host may do anything; it comes last.
    if (changes && ::IsWindow(window)) {
        bar->NotifyCategoryChanged();
    }
}

// The panels of a minimised bar, below its tabs.
void CMFCRibbonTab::OnShowPopupMenu() {
    CMFCRibbonBaseElement::OnShowPopupMenu();
    CMFCRibbonCategory* category = GetParentCategory();
    CMFCRibbonBar* bar = GetParentRibbonBar();
    if (category == nullptr || bar == nullptr || category->GetParentMenuBar() != nullptr) {
        return;
    }
    CRect row;
    bar->GetClientRect(row);
    row.top = row.bottom = m_rect.bottom;
    const int border = CMFCVisualManager::GetInstance()->GetRibbonPopupBorderSize(nullptr);
    const CSize size(row.Width() - 2 * border, bar->GetMetrics().CategoryHeight());
    auto* menu = new CMFCRibbonPanelMenu(category, size);
    menu->OpenAt(bar, row, CMFCRibbonPanelMenu::Side::Below, this);
}

// ---- scroll buttons of a category

IMPLEMENT_DYNCREATE(CRibbonCategoryScroll, CMFCRibbonButton)

CRibbonCategoryScroll::CRibbonCategoryScroll() = default;

void CRibbonCategoryScroll::OnDraw(CDC* pDC) {
    CMFCVisualManager::GetInstance()->OnDrawRibbonCategoryScroll(pDC, this);
}

void CRibbonCategoryScroll::OnClick(CPoint /*point*/) {
    // Without a category it scrolls the tabs.
    if (GetParentCategory() != nullptr) {
        GetParentCategory()->OnScrollHorz(m_bIsLeft);
    } else if (CMFCRibbonBar* bar = GetParentRibbonBar()) {
        bar->ScrollTabs(m_bIsLeft);
    }
}

// ---- button of a collapsed panel

IMPLEMENT_DYNCREATE(CMFCRibbonDefaultPanelButton, CMFCRibbonButton)

CMFCRibbonDefaultPanelButton::CMFCRibbonDefaultPanelButton() = default;

CSize CMFCRibbonDefaultPanelButton::GetImageSize(RibbonImageType type) const {
    const int side = afxGlobalData.ScalePixels(type == RibbonImageLarge ? 32 : 16);
    return {side, side};
}

// Without an icon of its own a panel shows what its first element with an image shows.
void CMFCRibbonDefaultPanelButton::DrawImage(CDC* pDC, RibbonImageType /*type*/, CRect rectImage) {
    CMFCRibbonBaseElement* element = nullptr;
    CMFCRibbonPanel* panel = GetParentPanel();
    for (int index = 0; m_panelIcon == nullptr && panel != nullptr && index < panel->GetCount(); ++index) {
        if (panel->GetElement(index)->GetImageSize(RibbonImageSmall).cx > 0) {
            element = panel->GetElement(index);
            break;
        }
    }
    // A frame around nothing would look like a picture that is missing.
    if (m_panelIcon == nullptr && element == nullptr) {
        return;
    }
    const CSize small = GetImageSize(RibbonImageSmall);
    const CRect inner(CPoint(rectImage.CenterPoint().x - small.cx / 2, rectImage.CenterPoint().y - small.cy / 2),
                      small);
    CMFCVisualManager::GetInstance()->OnDrawDefaultRibbonImage(pDC, rectImage, IsDisabled(), IsPressed(),
                                                               IsHighlighted());
    if (m_panelIcon != nullptr) {
        const fx::PictureScope place(*pDC, inner);
        ::DrawIconEx(*pDC, place.Corner().x, place.Corner().y, m_panelIcon, inner.Width(), inner.Height(), 0, nullptr,
                     DI_NORMAL);
    } else {
        element->DrawImage(pDC, RibbonImageSmall, inner);
    }
}

COLORREF CMFCRibbonDefaultPanelButton::OnFillBackground(CDC* pDC) {
    CMFCVisualManager::GetInstance()->OnDrawRibbonDefaultPaneButton(pDC, this);
    return static_cast<COLORREF>(-1);
}

void CMFCRibbonDefaultPanelButton::OnShowPopupMenu() {
    if (IsDroppedDown()) {
        ClosePopupMenu();
        return;
    }
    CMFCRibbonBaseElement::OnShowPopupMenu();
    if (CMFCRibbonPanel* panel = GetParentPanel()) {
        panel->ShowPopup(this);
    }
}

// ---- application button

IMPLEMENT_DYNCREATE(CMFCRibbonApplicationButton, CMFCRibbonButton)

CMFCRibbonApplicationButton::CMFCRibbonApplicationButton() = default;

CMFCRibbonApplicationButton::CMFCRibbonApplicationButton(UINT uiBmpResID) { SetImage(uiBmpResID); }

CMFCRibbonApplicationButton::CMFCRibbonApplicationButton(HBITMAP hBmp) { SetImage(hBmp); }

void CMFCRibbonApplicationButton::SetImage(UINT uiBmpResID) {
    m_Image.Clear();
    m_Image.Load(uiBmpResID);
    m_Image.SetSingleImage();
    Redraw();
}

void CMFCRibbonApplicationButton::SetImage(HBITMAP hBmp) {
    m_Image.Clear();
    BITMAP bitmap{};
    if (hBmp != nullptr && ::GetObject(hBmp, sizeof(bitmap), &bitmap) == sizeof(bitmap)) {
        m_Image.SetImageSize(CSize(bitmap.bmWidth, bitmap.bmHeight));
        m_Image.AddImage(hBmp);
    }
    Redraw();
}

BOOL CMFCRibbonApplicationButton::HasMenu() const {
    const CMFCRibbonBar* bar = GetParentRibbonBar();
    return (bar != nullptr && bar->GetMainCategory() != nullptr) || CMFCRibbonButton::HasMenu();
}

void CMFCRibbonApplicationButton::OnShowPopupMenu() {
    CMFCRibbonBar* bar = GetParentRibbonBar();
    CMFCRibbonCategory* main = bar != nullptr ? bar->GetMainCategory() : nullptr;
    if (main == nullptr || IsDroppedDown()) {
        CMFCRibbonButton::OnShowPopupMenu();
        return;
    }
    CMFCRibbonBaseElement::OnShowPopupMenu();
    if (!IsDisabled()) {
        auto* menu = new CMFCRibbonPanelMenu(main->GetPanel(0));
        menu->OpenFor(this, CMFCRibbonPanelMenu::Side::Below);
    }
}

void CMFCRibbonApplicationButton::DrawImage(CDC* pDC, RibbonImageType type, CRect rectImage) {
    if (m_Image.GetCount() == 0) {
        CMFCRibbonButton::DrawImage(pDC, type, rectImage);
        return;
    }
    m_Image.DrawEx(pDC, rectImage, 0, CMFCToolBarImages::ImageAlignHorzCenter, CMFCToolBarImages::ImageAlignVertCenter);
}

void CMFCRibbonApplicationButton::OnDraw(CDC* pDC) {
    CMFCVisualManager::GetInstance()->OnDrawRibbonApplicationButton(pDC, this);
    if (m_Image.GetCount() > 0 || GetIcon(TRUE) != nullptr) {
        DrawImage(pDC, RibbonImageLarge, m_rect);
    } else {
        DrawCenteredText(pDC, m_strText, m_rect, static_cast<COLORREF>(-1));
    }
}

// ---- caption of a context

IMPLEMENT_DYNCREATE(CMFCRibbonContextCaption, CMFCRibbonButton)

CMFCRibbonContextCaption::CMFCRibbonContextCaption() = default;

void CMFCRibbonContextCaption::OnDraw(CDC* pDC) {
    const COLORREF color = CMFCVisualManager::GetInstance()->OnDrawRibbonCategoryCaption(pDC, this);
    DrawCenteredText(pDC, m_strText, m_rect, color);
}

void CMFCRibbonContextCaption::OnClick(CPoint /*point*/) {
    CMFCRibbonBar* bar = GetParentRibbonBar();
    if (bar != nullptr && bar->ActivateContextCategory(m_uiContextID)) {
        bar->NotifyCategoryChanged();
    }
}
