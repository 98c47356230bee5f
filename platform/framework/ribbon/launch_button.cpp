// The button at the end of a panel's caption.
#include "afxRibbonPanel.h"

#include "afxglobals.h"
#include "afxribbonbar.h"
#include "afxribbonpanelmenu.h"
#include "afxvisualmanager.h"
#include "ribbon/bar_parts.h"

IMPLEMENT_DYNCREATE(CMFCRibbonLaunchButton, CMFCRibbonButton)

namespace {

constexpr int kImageSide = 16; // of a copy without an image of its own, at 96 DPI

} // namespace

CMFCRibbonLaunchButton::CMFCRibbonLaunchButton() = default;

CSize CMFCRibbonLaunchButton::GetRegularSize(CDC* pDC) {
    const RibbonBarHost* bar = GetParentRibbonBar();
    if (!IsInCaption() || bar == nullptr) {
        return CMFCRibbonButton::GetRegularSize(pDC);
    }
    const int side = bar->GetMetrics().launchButtonSide;
    return {side, side};
}

CSize CMFCRibbonLaunchButton::GetImageSize(RibbonImageType type) const {
    if (type == RibbonImageLarge || GetIcon(FALSE) != nullptr || GetImageIndex(FALSE) >= 0) {
        return CMFCRibbonButton::GetImageSize(type);
    }
    const int side = afxGlobalData.ScalePixels(kImageSide);
    return {side, side};
}

void CMFCRibbonLaunchButton::DrawImage(CDC* pDC, RibbonImageType type, CRect rectImage) {
    if (type == RibbonImageLarge || GetIcon(FALSE) != nullptr || GetImageIndex(FALSE) >= 0) {
        CMFCRibbonButton::DrawImage(pDC, type, rectImage);
        return;
    }
    CMFCVisualManager::GetInstance()->OnDrawDefaultRibbonImage(pDC, rectImage, IsDisabled(), IsPressed(),
                                                               IsHighlighted());
}

void CMFCRibbonLaunchButton::OnDraw(CDC* pDC) {
    if (!IsInCaption()) {
        CMFCRibbonButton::OnDraw(pDC);
    } else if (!m_rect.IsRectEmpty() && pDC->RectVisible(m_rect)) {
        CMFCVisualManager::GetInstance()->OnDrawRibbonLaunchButton(pDC, this, m_pParentPanel);
    }
}

// ---- the panel's side

void CMFCRibbonPanel::EnableLaunchButton(UINT uiCmdID, int nIconIndex, LPCTSTR lpszKeys) {
    m_btnLaunch.SetID(uiCmdID);
    m_btnLaunch.SetImageIndex(nIconIndex, FALSE);
    m_btnLaunch.SetText(m_strName);
    m_btnLaunch.SetKeys(lpszKeys);
    MarkLayoutDirty();
    if (RibbonPopupHost* popup = m_btnLaunch.GetParentMenu()) {
        popup->MarkLayoutDirty();
    }
}

CMFCRibbonButton& CMFCRibbonPanel::GetLaunchButton() { return LaunchButton(); }

BOOL CMFCRibbonPanel::HasLaunchButton() const { return LaunchButton().GetID() != 0; }
