// What belongs to a category beside its panels: its tab, and the buttons that scroll it.
#include "afxribboncategory.h"

#include <oleacc.h>

#include "afxglobals.h"
#include "afxribbonbar.h"
#include "afxvisualmanager.h"
#include "ribbon/access_texts.h"
#include "ribbon/font_scope.h"
#include "ribbon/metrics.h"
#include "ribbon/shown_text.h"

// ---- tab

IMPLEMENT_DYNCREATE(CMFCRibbonTab, CMFCRibbonBaseElement)

CMFCRibbonTab::CMFCRibbonTab() = default;

CSize CMFCRibbonTab::GetRegularSize(CDC* pDC) {
    CMFCRibbonCategory* category = GetParentCategory();
    const RibbonBarHost* bar = category != nullptr ? category->GetParentRibbonBar() : nullptr;
    if (bar == nullptr) {
        return {0, 0};
    }
    const RibbonMetrics& metrics = bar->GetMetrics();
    RibbonFontScope font(*pDC);
    const CSize text = pDC->GetTextExtent(ribbon::PlainText(category->GetName()));
    return {text.cx + 2 * metrics.tabPaddingX, metrics.tabHeight};
}

CString CMFCRibbonTab::GetToolTipText() const {
    return m_bIsTrancated && GetParentCategory() != nullptr ? ribbon::PlainText(GetParentCategory()->GetName())
                                                            : CString();
}

BOOL CMFCRibbonTab::IsSelected() const { return GetParentCategory() != nullptr && GetParentCategory()->IsActive(); }

void CMFCRibbonTab::OnDraw(CDC* pDC) {
    CMFCRibbonCategory* category = GetParentCategory();
    if (category == nullptr) {
        return;
    }
    // A minimised bar shows no page that the tab could belong to, unless the tab has opened it.
    const RibbonBarHost* bar = GetParentRibbonBar();
    const bool isMinimized = bar != nullptr && bar->IsMinimized();
    const BOOL isActive = IsSelected() && (!isMinimized || IsDroppedDown());
    const COLORREF color = CMFCVisualManager::GetInstance()->OnDrawRibbonCategoryTab(pDC, this, isActive);
    CRect text = m_rect;
    if (m_bIsTrancated) {
        text.DeflateRect(afxGlobalData.ScalePixels(2), 0);
    }
    DrawCenteredText(*pDC, ribbon::PlainText(category->GetName()), text, color);
}

void CMFCRibbonTab::OnLButtonDown(CPoint /*point*/) {
    if (RibbonBarHost* bar = GetParentRibbonBar()) {
        bar->OnTabPressed(*this);
    }
}

void CMFCRibbonTab::OnShowPopupMenu() {
    CMFCRibbonBaseElement::OnShowPopupMenu();
    if (RibbonBarHost* bar = GetParentRibbonBar()) {
        bar->OpenCategory(*this);
    }
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
    } else if (RibbonBarHost* bar = GetParentRibbonBar()) {
        bar->ScrollTabs(m_bIsLeft);
    }
}

// ---- for assistive programs

BOOL CMFCRibbonTab::SetACCData(CWnd* pParent, CAccessibilityData& data) {
    CMFCRibbonBaseElement::SetACCData(pParent, data);
    data.m_strName = GetParentCategory() != nullptr ? ribbon::PlainText(GetParentCategory()->GetName()) : CString();
    data.m_nRole = ROLE_SYSTEM_PAGETAB;
    data.m_nState |= STATE_SYSTEM_SELECTABLE | (IsSelected() ? STATE_SYSTEM_SELECTED : 0);
    data.m_strDefaultAction = RibbonAccessText(RibbonAccessTextId::Switch);
    return TRUE;
}

BOOL CRibbonCategoryScroll::SetACCData(CWnd* pParent, CAccessibilityData& data) {
    CMFCRibbonButton::SetACCData(pParent, data);
    data.m_strName = RibbonAccessText(m_bIsLeft ? RibbonAccessTextId::ScrollLeft : RibbonAccessTextId::ScrollRight);
    return TRUE;
}
