// The commands that the quick access toolbar has no room for, and the button that shows them.
#include <algorithm>

#include "afxglobals.h"
#include "afxribbonbar.h"
#include "afxribbonpanelmenu.h"
#include "afxvisualmanager.h"
#include "ribbon/bar_menus.h"
#include "ribbon/bar_parts.h"

IMPLEMENT_DYNCREATE(CMFCRibbonQuickAccessMoreButton, CMFCRibbonButton)

CString CMFCRibbonQuickAccessMoreButton::GetToolTipText() const { return RibbonText(RibbonTextId::QuickAccessMore); }

CSize CMFCRibbonQuickAccessMoreButton::GetCompactSize(CDC* /*pDC*/) {
    return {afxGlobalData.ScalePixels(14), afxGlobalData.ScalePixels(22)};
}

// Two arrows to the right.
void CMFCRibbonQuickAccessMoreButton::OnDraw(CDC* pDC) {
    OnFillBackground(pDC);
    OnDrawBorder(pDC);
    const COLORREF color = CMFCVisualManager::GetInstance()->GetRibbonQuickAccessToolBarTextColor(IsDisabled());
    const int half = afxGlobalData.ScalePixels(3);
    const int thick = std::max(half / 2, 1);
    const CPoint center = m_rect.CenterPoint();
    for (const int left : {center.x - half - 1, center.x + 1}) {
        for (int row = -half; row <= half; ++row) {
            pDC->FillSolidRect(left + half - std::abs(row), center.y + row, thick, 1, color);
        }
    }
}

void CMFCRibbonQuickAccessMoreButton::OnShowPopupMenu() {
    CMFCRibbonBar* bar = GetTopLevelRibbonBar();
    if (IsDroppedDown() || bar == nullptr) {
        ClosePopupMenu();
        return;
    }
    CMFCRibbonBaseElement::OnShowPopupMenu();
    CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*> hidden;
    bar->GetParts().quickAccess.GetHiddenElements(hidden);
    if (!hidden.IsEmpty()) {
        auto* menu = new CMFCRibbonPanelMenu(hidden, TRUE);
        menu->OpenFor(this, CMFCRibbonPanelMenu::Side::Below);
    }
}

void CMFCRibbonQuickAccessToolBar::GetHiddenElements(
    CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*>& arElements) const {
    for (int position = 0; position < GetCount(); ++position) {
        if (m_arButtons[position]->GetRect().IsRectEmpty() && !m_arButtons[position]->IsSeparator()) {
            arElements.Add(m_arButtons[position]);
        }
    }
}

CMFCRibbonBaseElement* CMFCRibbonQuickAccessToolBar::GetDroppedDown() {
    for (CMFCRibbonButton* button :
         {static_cast<CMFCRibbonButton*>(&m_btnMore), static_cast<CMFCRibbonButton*>(&m_btnCustomize)}) {
        if (button->IsDroppedDown()) {
            return button;
        }
    }
    return CMFCRibbonButtonsGroup::GetDroppedDown();
}
