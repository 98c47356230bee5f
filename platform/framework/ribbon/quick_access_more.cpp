// The commands that the quick access toolbar has no room for, and the button that shows them.
#include "afxglobals.h"
#include "afxribbonbar.h"
#include "afxribbonpanelmenu.h"
#include "afxvisualmanager.h"
#include "ribbon/bar_menus.h"
#include "ribbon/bar_parts.h"
#include "visual/manager_instance.h"

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
    const visual::Look look = visual::CurrentLook();
    for (const int aside : {-look.Px(2), look.Px(2)}) {
        CRect arrow = m_rect;
        arrow.OffsetRect(aside, 0);
        visual::PaintChevron(*pDC, arrow, visual::ArrowDirection::Right, visual::FromColorRef(color), look);
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
