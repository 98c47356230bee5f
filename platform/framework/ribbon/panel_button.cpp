// The button that stands for a panel without room for its elements.
#include "afxRibbonPanel.h"

#include "afxglobals.h"
#include "afxvisualmanager.h"
#include "fx/dc_scope.h"

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
