#include "afxvisualmanager.h"

#include "afxtooltipctrl.h"
#include "managers/manager_look.h"

using visual::ColorSlot;
using visual::FaceSlot;
using visual::ToColorRef;

CSize CMFCVisualManager::GetButtonExtraBorder() const { return CSize(0, 0); }
CSize CMFCVisualManager::GetCaptionButtonExtraBorder() const { return CSize(0, 0); }
int CMFCVisualManager::GetDockingTabsBordersSize() { return -1; }
int CMFCVisualManager::GetMDITabsBordersSize() { return -1; }
int CMFCVisualManager::GetDockingPaneCaptionExtraHeight() const { return 0; }
CSize CMFCVisualManager::GetNcBtnSize(BOOL bSmall) const {
    return bSmall ? CSize(GetSystemMetrics(SM_CXSMSIZE), GetSystemMetrics(SM_CYSMSIZE))
                  : CSize(GetSystemMetrics(SM_CXSIZE), GetSystemMetrics(SM_CYSIZE));
}
int CMFCVisualManager::GetPopupMenuBorderSize() const { return 2; }
int CMFCVisualManager::GetPopupMenuGap() const { return 0; }
int CMFCVisualManager::GetMenuImageMargin() const { return 2; }
int CMFCVisualManager::GetRibbonPopupBorderSize(const CMFCRibbonPanelMenu*) const { return 2; }
int CMFCVisualManager::GetRibbonQuickAccessToolBarChevronOffset() { return 0; }
int CMFCVisualManager::GetRibbonQuickAccessToolBarRightMargin() { return 2; }
int CMFCVisualManager::GetShowAllMenuItemsHeight(CDC*, const CSize& sizeDefault) { return sizeDefault.cy; }
int CMFCVisualManager::GetTabHorzMargin(const CMFCBaseTabCtrl*) { return 0; }
int CMFCVisualManager::GetToolBarCustomizeButtonMargin() const { return 0; }
BOOL CMFCVisualManager::AlwaysHighlight3DTabs() const { return FALSE; }
BOOL CMFCVisualManager::HasOverlappedAutoHideButtons() const { return FALSE; }
BOOL CMFCVisualManager::IsDockingTabHasBorder() { return FALSE; }
BOOL CMFCVisualManager::IsHighlightOneNoteTabs() const { return FALSE; }
BOOL CMFCVisualManager::IsHighlightWholeMenuItem() { return FALSE; }
BOOL CMFCVisualManager::IsLayeredRibbonKeyTip() const { return FALSE; }
BOOL CMFCVisualManager::IsOffsetPressedButton() const { return FALSE; }
BOOL CMFCVisualManager::IsOfficeXPStyleMenus() const { return FALSE; }
BOOL CMFCVisualManager::IsOwnerDrawCaption() { return FALSE; }
BOOL CMFCVisualManager::IsOwnerDrawMenuCheck() { return FALSE; }
BOOL CMFCVisualManager::IsToolbarRoundShape(CMFCToolBar*) { return FALSE; }
BOOL CMFCVisualManager::IsWindowsThemingSupported() const { return FALSE; }

COLORREF CMFCVisualManager::GetHighlightedMenuItemTextColor(CMFCToolBarMenuButton*) {
    return ToColorRef(GetSkin()[ColorSlot::MenuTextHot]);
}
COLORREF CMFCVisualManager::GetMenuItemTextColor(CMFCToolBarMenuButton*, BOOL bHighlighted, BOOL bDisabled) {
    return ToColorRef(GetSkin()[bDisabled      ? ColorSlot::MenuTextDisabled
                                : bHighlighted ? ColorSlot::MenuTextHot
                                               : ColorSlot::MenuText]);
}
COLORREF CMFCVisualManager::GetSmartDockingHighlightToneColor() { return afxGlobalData.clrActiveCaption; }
COLORREF CMFCVisualManager::GetStatusBarPaneTextColor(CMFCStatusBar*, CMFCStatusBarPaneInfo*) {
    return ToColorRef(GetSkin()[ColorSlot::StatusText]);
}
COLORREF CMFCVisualManager::GetTabTextColor(const CMFCBaseTabCtrl*, int, BOOL bIsActive) {
    return ToColorRef(GetSkin()[bIsActive ? ColorSlot::DocumentTabTextActive : ColorSlot::DocumentTabText]);
}
COLORREF CMFCVisualManager::GetToolbarButtonTextColor(CMFCToolBarButton*, AFX_BUTTON_STATE state) {
    return ToColorRef(GetSkin()[state == ButtonsIsRegular ? ColorSlot::ToolbarText : ColorSlot::ToolbarTextHot]);
}
COLORREF CMFCVisualManager::GetToolbarDisabledColor() const {
    return ToColorRef(GetSkin()[ColorSlot::ToolbarTextDisabled]);
}
COLORREF CMFCVisualManager::GetToolbarDisabledTextColor() {
    return ToColorRef(GetSkin()[ColorSlot::ToolbarTextDisabled]);
}
COLORREF CMFCVisualManager::GetToolbarHighlightColor() { return ToColorRef(GetSkin()[FaceSlot::ToolBar].top1); }

BOOL CMFCVisualManager::GetToolTipInfo(CMFCToolTipInfo&, UINT) { return FALSE; }

BOOL CMFCVisualManager::DrawComboBorderWinXP(CDC* pDC, CRect rect, BOOL bDisabled, BOOL bIsDropped,
                                             BOOL bIsHighlighted) {
    return IsWindowsThemingSupported() && DrawComboBorder(pDC, rect, bDisabled, bIsDropped, bIsHighlighted);
}
BOOL CMFCVisualManager::DrawComboDropButtonWinXP(CDC* pDC, CRect rect, BOOL bDisabled, BOOL bIsDropped,
                                                 BOOL bIsHighlighted) {
    return IsWindowsThemingSupported() && DrawComboDropButton(pDC, rect, bDisabled, bIsDropped, bIsHighlighted);
}
BOOL CMFCVisualManager::DrawPushButtonWinXP(CDC* pDC, CRect rect, CMFCButton* pButton, UINT uiState) {
    return IsWindowsThemingSupported() && DrawPushButton(pDC, rect, pButton, uiState);
}

BOOL CMFCVisualManager::OnEraseMDIClientArea(CDC* pDC, CRect rectClient) {
    visual::PaintSolid(*pDC, rectClient, GetSkin()[ColorSlot::MdiBackground]);
    return TRUE;
}
