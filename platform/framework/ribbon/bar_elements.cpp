// The elements that stand on a ribbon bar alone: application button, captions of contexts.
#include "afxribbonbar.h"

#include "afxglobals.h"
#include "afxRibbonMainPanel.h"
#include "afxribbonpanelmenu.h"
#include "afxvisualmanager.h"
#include "ribbon/font_scope.h"
#include "ribbon/shown_text.h"

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
    const COLORREF before = pDC->SetTextColor(afxGlobalData.clrBarText);
    CMFCVisualManager::GetInstance()->OnDrawRibbonApplicationButton(pDC, this);
    const COLORREF textColor = pDC->SetTextColor(before); // what is read on the manager's face
    if (m_Image.GetCount() > 0 || GetIcon(TRUE) != nullptr) {
        DrawImage(pDC, RibbonImageLarge, m_rect);
    } else {
        DrawCenteredText(*pDC, ribbon::PlainText(m_strText), m_rect, textColor);
    }
}

// ---- caption of a context

IMPLEMENT_DYNCREATE(CMFCRibbonContextCaption, CMFCRibbonButton)

CMFCRibbonContextCaption::CMFCRibbonContextCaption() = default;

void CMFCRibbonContextCaption::OnDraw(CDC* pDC) {
    const COLORREF color = CMFCVisualManager::GetInstance()->OnDrawRibbonCategoryCaption(pDC, this);
    DrawCenteredText(*pDC, ribbon::PlainText(m_strText), m_rect, color);
}

void CMFCRibbonContextCaption::OnClick(CPoint /*point*/) {
    CMFCRibbonBar* bar = GetParentRibbonBar();
    if (bar != nullptr && bar->ActivateContextCategory(m_uiContextID)) {
        bar->NotifyCategoryChanged();
    }
}
