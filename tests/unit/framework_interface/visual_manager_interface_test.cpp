#include "interface.h"

#include "afxvisualmanager.h"
#include "afxvisualmanageroffice2003.h"
#include "afxvisualmanageroffice2007.h"
#include "afxvisualmanagerofficexp.h"
#include "afxvisualmanagervs2008.h"
#include "afxvisualmanagerwindows7.h"

INTERFACE_OF(CMFCBaseVisualManager) {
    BASE(CObject);
    MADE_FROM();
    VIRTUAL(BOOL, DrawCheckBox, (CDC*, CRect, BOOL, int, BOOL, BOOL));
    VIRTUAL(BOOL, DrawComboBorder, (CDC*, CRect, BOOL, BOOL, BOOL));
    VIRTUAL(BOOL, DrawComboDropButton, (CDC*, CRect, BOOL, BOOL, BOOL));
    VIRTUAL(BOOL, DrawPushButton, (CDC*, CRect, CMFCButton*, UINT));
    VIRTUAL(BOOL, DrawRadioButton, (CDC*, CRect, BOOL, BOOL, BOOL, BOOL));
    VIRTUAL(void, FillReBarPane, (CDC*, CBasePane*, CRect));
}

PROTECTED_INTERFACE_OF(CMFCBaseVisualManager) {
    MEMBER(void, CleanUpThemes, ());
    MEMBER(void, UpdateSystemColors, ());
}

// What the standard manager declares and a manager with a look of its own documents as overridden: a check of each.
#define OVERRIDDEN_BY_LOOKS                                                                                            \
    VIRTUAL(BOOL, AlwaysHighlight3DTabs, () const);                                                                    \
    VIRTUAL(COLORREF, GetHighlightedMenuItemTextColor, (CMFCToolBarMenuButton*));                                      \
    VIRTUAL(COLORREF, GetMenuItemTextColor, (CMFCToolBarMenuButton*, BOOL, BOOL));                                     \
    VIRTUAL(CSize, GetNcBtnSize, (BOOL) const);                                                                        \
    VIRTUAL(COLORREF, GetRibbonHyperlinkTextColor, (CMFCRibbonLinkCtrl*));                                             \
    VIRTUAL(int, GetRibbonPopupBorderSize, (const CMFCRibbonPanelMenu*) const);                                        \
    VIRTUAL(COLORREF, GetRibbonQuickAccessToolBarTextColor, (BOOL));                                                   \
    CALL(GetRibbonQuickAccessToolBarTextColor);                                                                        \
    VIRTUAL(int, GetShowAllMenuItemsHeight, (CDC*, const CSize&));                                                     \
    VIRTUAL(COLORREF, GetStatusBarPaneTextColor, (CMFCStatusBar*, CMFCStatusBarPaneInfo*));                            \
    VIRTUAL(void, GetTabFrameColors,                                                                                   \
            (const CMFCBaseTabCtrl*, COLORREF&, COLORREF&, COLORREF&, COLORREF&, COLORREF&, COLORREF&, CBrush*&,       \
             CBrush*&));                                                                                               \
    VIRTUAL(COLORREF, GetTabTextColor, (const CMFCBaseTabCtrl*, int, BOOL));                                           \
    VIRTUAL(COLORREF, GetToolbarButtonTextColor, (CMFCToolBarButton*, CMFCVisualManager::AFX_BUTTON_STATE));           \
    VIRTUAL(COLORREF, GetToolbarDisabledTextColor, ());                                                                \
    VIRTUAL(BOOL, GetToolTipInfo, (CMFCToolTipInfo&, UINT));                                                           \
    CALL(GetToolTipInfo, CMFCToolTipInfo&);                                                                            \
    VIRTUAL(BOOL, IsOwnerDrawCaption, ());                                                                             \
    VIRTUAL(void, OnDrawBarGripper, (CDC*, CRect, BOOL, CBasePane*));                                                  \
    VIRTUAL(void, OnDrawButtonBorder, (CDC*, CMFCToolBarButton*, CRect, CMFCVisualManager::AFX_BUTTON_STATE));         \
    VIRTUAL(void, OnDrawButtonSeparator,                                                                               \
            (CDC*, CMFCToolBarButton*, CRect, CMFCVisualManager::AFX_BUTTON_STATE, BOOL));                             \
    VIRTUAL(void, OnDrawCheckBoxEx, (CDC*, CRect, int, BOOL, BOOL, BOOL));                                             \
    VIRTUAL(void, OnDrawComboBorder, (CDC*, CRect, BOOL, BOOL, BOOL, CMFCToolBarComboBoxButton*));                     \
    VIRTUAL(void, OnDrawComboDropButton, (CDC*, CRect, BOOL, BOOL, BOOL, CMFCToolBarComboBoxButton*));                 \
    VIRTUAL(void, OnDrawDefaultRibbonImage, (CDC*, CRect, BOOL, BOOL, BOOL));                                          \
    CALL(OnDrawDefaultRibbonImage, CDC*, CRect);                                                                       \
    VIRTUAL(void, OnDrawEditBorder, (CDC*, CRect, BOOL, BOOL, CMFCToolBarEditBoxButton*));                             \
    VIRTUAL(void, OnDrawFloatingToolbarBorder, (CDC*, CMFCBaseToolBar*, CRect, CRect));                                \
    VIRTUAL(void, OnDrawMenuBorder, (CDC*, CMFCPopupMenu*, CRect));                                                    \
    VIRTUAL(void, OnDrawMenuCheck, (CDC*, CMFCToolBarMenuButton*, CRect, BOOL, BOOL));                                 \
    VIRTUAL(void, OnDrawMenuItemButton, (CDC*, CMFCToolBarMenuButton*, CRect, BOOL, BOOL));                            \
    VIRTUAL(COLORREF, OnDrawMenuLabel, (CDC*, CRect));                                                                 \
    VIRTUAL(void, OnDrawMenuResizeBar, (CDC*, CRect, int));                                                            \
    VIRTUAL(void, OnDrawMenuScrollButton, (CDC*, CRect, BOOL, BOOL, BOOL, BOOL));                                      \
    VIRTUAL(void, OnDrawMenuSystemButton, (CDC*, CRect, UINT, UINT, BOOL));                                            \
    VIRTUAL(void, OnDrawMiniFrameBorder, (CDC*, CPaneFrameWnd*, CRect, CRect));                                        \
    VIRTUAL(COLORREF, OnDrawPaneCaption, (CDC*, CDockablePane*, BOOL, CRect, CRect));                                  \
    VIRTUAL(void, OnDrawRibbonApplicationButton, (CDC*, CMFCRibbonButton*));                                           \
    VIRTUAL(void, OnDrawRibbonButtonBorder, (CDC*, CMFCRibbonButton*));                                                \
    VIRTUAL(COLORREF, OnDrawRibbonButtonsGroup, (CDC*, CMFCRibbonButtonsGroup*, CRect));                               \
    VIRTUAL(void, OnDrawRibbonCaption, (CDC*, CMFCRibbonBar*, CRect, CRect));                                          \
    VIRTUAL(void, OnDrawRibbonCaptionButton, (CDC*, CMFCRibbonCaptionButton*));                                        \
    VIRTUAL(void, OnDrawRibbonCategory, (CDC*, CMFCRibbonCategory*, CRect));                                           \
    VIRTUAL(COLORREF, OnDrawRibbonCategoryCaption, (CDC*, CMFCRibbonContextCaption*));                                 \
    VIRTUAL(void, OnDrawRibbonCategoryScroll, (CDC*, CRibbonCategoryScroll*));                                         \
    VIRTUAL(COLORREF, OnDrawRibbonCategoryTab, (CDC*, CMFCRibbonTab*, BOOL));                                          \
    VIRTUAL(void, OnDrawRibbonCheckBoxOnList, (CDC*, CMFCRibbonCheckBox*, CRect, BOOL, BOOL));                         \
    VIRTUAL(void, OnDrawRibbonDefaultPaneButton, (CDC*, CMFCRibbonButton*));                                           \
    VIRTUAL(void, OnDrawRibbonDefaultPaneButtonIndicator, (CDC*, CMFCRibbonButton*, CRect, BOOL, BOOL));               \
    VIRTUAL(void, OnDrawRibbonGalleryBorder, (CDC*, CMFCRibbonGallery*, CRect));                                       \
    VIRTUAL(void, OnDrawRibbonKeyTip, (CDC*, CMFCRibbonBaseElement*, CRect, CString));                                 \
    VIRTUAL(void, OnDrawRibbonLaunchButton, (CDC*, CMFCRibbonLaunchButton*, CMFCRibbonPanel*));                        \
    VIRTUAL(void, OnDrawRibbonMainPanelButtonBorder, (CDC*, CMFCRibbonButton*));                                       \
    VIRTUAL(void, OnDrawRibbonMainPanelFrame, (CDC*, CMFCRibbonMainPanel*, CRect));                                    \
    VIRTUAL(void, OnDrawRibbonMenuCheckFrame, (CDC*, CMFCRibbonButton*, CRect));                                       \
    VIRTUAL(COLORREF, OnDrawRibbonPanel, (CDC*, CMFCRibbonPanel*, CRect, CRect));                                      \
    VIRTUAL(void, OnDrawRibbonPanelCaption, (CDC*, CMFCRibbonPanel*, CRect));                                          \
    VIRTUAL(void, OnDrawRibbonProgressBar, (CDC*, CMFCRibbonProgressBar*, CRect, CRect, BOOL));                        \
    VIRTUAL(void, OnDrawRibbonRecentFilesFrame, (CDC*, CMFCRibbonMainPanel*, CRect));                                  \
    VIRTUAL(void, OnDrawRibbonSliderChannel, (CDC*, CMFCRibbonSlider*, CRect));                                        \
    VIRTUAL(void, OnDrawRibbonSliderThumb, (CDC*, CMFCRibbonSlider*, CRect, BOOL, BOOL, BOOL));                        \
    VIRTUAL(void, OnDrawRibbonSliderZoomButton, (CDC*, CMFCRibbonSlider*, CRect, BOOL, BOOL, BOOL, BOOL));             \
    VIRTUAL(COLORREF, OnDrawRibbonStatusBarPane, (CDC*, CMFCRibbonStatusBar*, CMFCRibbonStatusBarPane*));              \
    VIRTUAL(COLORREF, OnDrawRibbonTabsFrame, (CDC*, CMFCRibbonBar*, CRect));                                           \
    VIRTUAL(void, OnDrawScrollButtons, (CDC*, const CRect&, const int, int, BOOL));                                    \
    VIRTUAL(void, OnDrawSeparator, (CDC*, CBasePane*, CRect, BOOL));                                                   \
    VIRTUAL(void, OnDrawShowAllMenuItems, (CDC*, CRect, CMFCVisualManager::AFX_BUTTON_STATE));                         \
    VIRTUAL(void, OnDrawStatusBarPaneBorder, (CDC*, CMFCStatusBar*, CRect, UINT, UINT));                               \
    VIRTUAL(void, OnDrawStatusBarSizeBox, (CDC*, CMFCStatusBar*, CRect));                                              \
    VIRTUAL(void, OnDrawTab, (CDC*, CRect, int, BOOL, const CMFCBaseTabCtrl*));                                        \
    VIRTUAL(void, OnDrawTearOffCaption, (CDC*, CRect, BOOL));                                                          \
    VIRTUAL(BOOL, OnEraseMDIClientArea, (CDC*, CRect));                                                                \
    VIRTUAL(void, OnEraseTabsArea, (CDC*, CRect, const CMFCBaseTabCtrl*));                                             \
    VIRTUAL(void, OnEraseTabsButton, (CDC*, CRect, CMFCButton*, CMFCBaseTabCtrl*));                                    \
    VIRTUAL(BOOL, OnEraseTabsFrame, (CDC*, CRect, const CMFCBaseTabCtrl*));                                            \
    VIRTUAL(void, OnFillBarBackground, (CDC*, CBasePane*, CRect, CRect, BOOL));                                        \
    CALL(OnFillBarBackground, CDC*, CBasePane*, CRect, CRect);                                                         \
    VIRTUAL(void, OnFillButtonInterior, (CDC*, CMFCToolBarButton*, CRect, CMFCVisualManager::AFX_BUTTON_STATE));       \
    VIRTUAL(COLORREF, OnFillMiniFrameCaption, (CDC*, CRect, CPaneFrameWnd*, BOOL));                                    \
    VIRTUAL(COLORREF, OnFillRibbonButton, (CDC*, CMFCRibbonButton*));                                                  \
    VIRTUAL(void, OnFillRibbonEdit,                                                                                    \
            (CDC*, CMFCRibbonRichEditCtrl*, CRect, BOOL, BOOL, BOOL, COLORREF&, COLORREF&, COLORREF&));                \
    VIRTUAL(COLORREF, OnFillRibbonMainPanelButton, (CDC*, CMFCRibbonButton*));                                         \
    VIRTUAL(void, OnFillRibbonMenuFrame, (CDC*, CMFCRibbonMainPanel*, CRect));                                         \
    VIRTUAL(void, OnFillRibbonQuickAccessToolBarPopup, (CDC*, CMFCRibbonPanelMenuBar*, CRect));                        \
    VIRTUAL(void, OnFillTab, (CDC*, CRect, CBrush*, int, BOOL, const CMFCBaseTabCtrl*));                               \
    VIRTUAL(void, OnHighlightMenuItem, (CDC*, CMFCToolBarMenuButton*, CRect, COLORREF&));                              \
    VIRTUAL(void, OnHighlightRarelyUsedMenuItems, (CDC*, CRect));                                                      \
    VIRTUAL(BOOL, OnNcPaint, (CWnd*, const CObList&, CRect));                                                          \
    VIRTUAL(BOOL, OnSetWindowRegion, (CWnd*, CSize));                                                                  \
    VIRTUAL(void, OnUpdateSystemColors, ());                                                                           \
    VIRTUAL(int, GetRibbonQuickAccessToolBarChevronOffset, ());                                                        \
    VIRTUAL(int, GetRibbonQuickAccessToolBarRightMargin, ());                                                          \
    VIRTUAL(COLORREF, GetRibbonStatusBarTextColor, (CMFCRibbonStatusBar*));                                            \
    VIRTUAL(int, GetTabHorzMargin, (const CMFCBaseTabCtrl*));                                                          \
    VIRTUAL(BOOL, IsHighlightWholeMenuItem, ());                                                                       \
    VIRTUAL(BOOL, IsLayeredRibbonKeyTip, () const);                                                                    \
    VIRTUAL(BOOL, IsOwnerDrawMenuCheck, ());                                                                           \
    VIRTUAL(BOOL, OnNcActivate, (CWnd*, BOOL))

INTERFACE_OF(CMFCVisualManager) {
    BASE(CMFCBaseVisualManager);
    OVERRIDDEN_BY_LOOKS;
    MADE_FROM(BOOL);
    STATIC(void, AdjustFrames, ());
    STATIC(void, AdjustToolbars, ());
    STATIC(void, DestroyInstance, (BOOL));
    CALL(DestroyInstance);
    VIRTUAL(BOOL, DrawComboDropButtonWinXP, (CDC*, CRect, BOOL, BOOL, BOOL));
    VIRTUAL(BOOL, DrawPushButtonWinXP, (CDC*, CRect, CMFCButton*, UINT));
    VIRTUAL(CSize, GetButtonExtraBorder, () const);
    VIRTUAL(int, GetDockingTabsBordersSize, ());
    STATIC(CMFCVisualManager*, GetInstance, ());
    VIRTUAL(int, GetMDITabsBordersSize, ());
    MEMBER(int, GetMenuShadowDepth, () const);
    VIRTUAL(int, GetPopupMenuBorderSize, () const);
    VIRTUAL(void, GetRibbonSliderColors, (CMFCRibbonSlider*, BOOL, BOOL, BOOL, COLORREF&, COLORREF&));
    VIRTUAL(COLORREF, GetSmartDockingHighlightToneColor, ());
    VIRTUAL(COLORREF, GetToolbarHighlightColor, ());
    VIRTUAL(BOOL, HasOverlappedAutoHideButtons, () const);
    VIRTUAL(BOOL, IsDockingTabHasBorder, ());
    MEMBER(BOOL, IsEmbossDisabledImage, () const);
    MEMBER(BOOL, IsFadeInactiveImage, () const);
    MEMBER(BOOL, IsMenuFlatLook, () const);
    VIRTUAL(BOOL, IsOfficeXPStyleMenus, () const);
    MEMBER(BOOL, IsShadowHighlightedImage, () const);
    VIRTUAL(void, OnDrawCaptionButton, (CDC*, CMFCCaptionButton*, BOOL, BOOL, BOOL, BOOL, int));
    CALL(OnDrawCaptionButton, CDC*, CMFCCaptionButton*, BOOL, BOOL, BOOL, BOOL);
    VIRTUAL(void, OnDrawCheckBox, (CDC*, CRect, BOOL, BOOL, BOOL));
    VIRTUAL(void, OnDrawExpandingBox, (CDC*, CRect, BOOL, COLORREF));
    VIRTUAL(void, OnDrawMenuArrowOnCustomizeList, (CDC*, CRect, BOOL));
    VIRTUAL(void, OnDrawMenuShadow, (CDC*, const CRect&, const CRect&, int, int, int, CBitmap*, CBitmap*, BOOL));
    VIRTUAL(void, OnDrawPaneBorder, (CDC*, CBasePane*, CRect&));
    VIRTUAL(void, OnDrawPaneDivider, (CDC*, CPaneDivider*, CRect, BOOL));
    VIRTUAL(void, OnDrawRibbonDefaultPaneButtonContext, (CDC*, CMFCRibbonButton*));
    VIRTUAL(void, OnDrawRibbonLabel, (CDC*, CMFCRibbonLabel*, CRect));
    VIRTUAL(void, OnDrawRibbonQuickAccessToolBarSeparator, (CDC*, CMFCRibbonSeparator*, CRect));
    VIRTUAL(void, OnDrawSplitterBorder, (CDC*, CSplitterWndEx*, CRect));
    VIRTUAL(void, OnDrawSplitterBox, (CDC*, CSplitterWndEx*, CRect&));
    VIRTUAL(void, OnDrawStatusBarProgress, (CDC*, CMFCStatusBar*, CRect, int, int, COLORREF, COLORREF, COLORREF, BOOL));
    VIRTUAL(void, OnDrawTabCloseButton, (CDC*, CRect, const CMFCBaseTabCtrl*, BOOL, BOOL, BOOL));
    VIRTUAL(void, OnDrawToolBoxFrame, (CDC*, const CRect&));
    VIRTUAL(COLORREF, OnFillCommandsListBackground, (CDC*, CRect, BOOL));
    CALL(OnFillCommandsListBackground, CDC*, CRect);
    VIRTUAL(void, OnFillSplitterBackground, (CDC*, CSplitterWndEx*, CRect));
    STATIC(void, RedrawAll, ());
    VIRTUAL(COLORREF, RibbonCategoryColorToRGB, (AFX_RibbonCategoryColor));
    STATIC(void, SetDefaultManager, (CRuntimeClass*));
    MEMBER(void, SetEmbossDisabledImage, (BOOL));
    CALL(SetEmbossDisabledImage);
    MEMBER(void, SetFadeInactiveImage, (BOOL));
    CALL(SetFadeInactiveImage);
    MEMBER(void, SetMenuFlatLook, (BOOL));
    CALL(SetMenuFlatLook);
    MEMBER(void, SetMenuShadowDepth, (int));
    MEMBER(void, SetShadowHighlightedImage, (BOOL));
    CALL(SetShadowHighlightedImage);
    VIRTUAL(BOOL, DrawComboBorderWinXP, (CDC*, CRect, BOOL, BOOL, BOOL));
    MEMBER(void, EnableToolbarButtonFill, (BOOL));
    CALL(EnableToolbarButtonFill);
    VIRTUAL(CSize, GetCaptionButtonExtraBorder, () const);
    VIRTUAL(int, GetDockingPaneCaptionExtraHeight, () const);
    VIRTUAL(int, GetMenuImageMargin, () const);
    VIRTUAL(int, GetPopupMenuGap, () const);
    VIRTUAL(int, GetToolBarCustomizeButtonMargin, () const);
    VIRTUAL(COLORREF, GetToolbarDisabledColor, () const);
    MEMBER(BOOL, IsAutoDestroy, () const);
    MEMBER(BOOL, IsFrameMenuCheckedItems, () const);
    VIRTUAL(BOOL, IsHighlightOneNoteTabs, () const);
    VIRTUAL(BOOL, IsOffsetPressedButton, () const);
    MEMBER(BOOL, IsToolbarButtonFillEnabled, () const);
    VIRTUAL(BOOL, IsToolbarRoundShape, (CMFCToolBar*));
    VIRTUAL(BOOL, IsWindowsThemingSupported, () const);
    VIRTUAL(void, OnActivateApp, (CWnd*, BOOL));
}

INTERFACE_OF(CMFCVisualManagerOfficeXP) { BASE(CMFCVisualManager); }

INTERFACE_OF(CMFCVisualManagerVS2005) {
    BASE(CMFCVisualManagerOffice2003);
    MADE_FROM(BOOL);
    MADE_FROM();
    VIRTUAL(void, OnDrawSeparator, (CDC*, CBasePane*, CRect, BOOL));
    VIRTUAL(void, OnFillHighlightedArea, (CDC*, CRect, CBrush*, CMFCToolBarButton*));
    VIRTUAL(void, OnUpdateSystemColors, ());
}

INTERFACE_OF(CMFCVisualManagerWindows) {
    BASE(CMFCVisualManagerOfficeXP);
    MADE_FROM(BOOL);
    MADE_FROM();
    MEMBER(BOOL, IsOfficeStyleMenus, () const);
    VIRTUAL(BOOL, IsOfficeXPStyleMenus, () const);
    STATIC(BOOL, IsWinXPThemeAvailible, ());
    VIRTUAL(void, OnDrawMenuBorder, (CDC*, CMFCPopupMenu*, CRect));
    VIRTUAL(void, OnDrawSeparator, (CDC*, CBasePane*, CRect, BOOL));
    VIRTUAL(void, OnFillBarBackground, (CDC*, CBasePane*, CRect, CRect, BOOL));
    VIRTUAL(void, OnHighlightMenuItem, (CDC*, CMFCToolBarMenuButton*, CRect, COLORREF&));
    VIRTUAL(void, OnUpdateSystemColors, ());
    MEMBER(void, SetOfficeStyleMenus, (BOOL));
    CALL(SetOfficeStyleMenus);
}

INTERFACE_OF(CMFCVisualManagerWindows7) {
    BASE(CMFCVisualManagerWindows);
    MADE_FROM();
}

INTERFACE_OF(CMFCVisualManagerOffice2003) {
    BASE(CMFCVisualManagerOfficeXP);
    VIRTUAL(BOOL, DrawComboBorderWinXP, (CDC*, CRect, BOOL, BOOL, BOOL));
    VIRTUAL(BOOL, DrawComboDropButtonWinXP, (CDC*, CRect, BOOL, BOOL, BOOL));
    VIRTUAL(BOOL, DrawPushButtonWinXP, (CDC*, CRect, CMFCButton*, UINT));
    VIRTUAL(COLORREF, GetBaseThemeColor, ());
    VIRTUAL(COLORREF, GetHighlightMenuItemColor, () const);
    VIRTUAL(int, GetShowAllMenuItemsHeight, (CDC*, const CSize&));
    VIRTUAL(COLORREF, GetSmartDockingHighlightToneColor, ());
    VIRTUAL(
        void, GetTabFrameColors,
        (const CMFCBaseTabCtrl*, COLORREF&, COLORREF&, COLORREF&, COLORREF&, COLORREF&, COLORREF&, CBrush*&, CBrush*&));
    VIRTUAL(int, GetToolBarCustomizeButtonMargin, () const);
    VIRTUAL(COLORREF, GetToolbarDisabledColor, () const);
    VIRTUAL(BOOL, GetToolTipInfo, (CMFCToolTipInfo&, UINT));
    CALL(GetToolTipInfo, CMFCToolTipInfo&);
    STATIC(BOOL, IsDefaultWinXPColorsEnabled, ());
    VIRTUAL(BOOL, IsDockingTabHasBorder, ());
    VIRTUAL(BOOL, IsHighlightOneNoteTabs, () const);
    VIRTUAL(BOOL, IsOffsetPressedButton, () const);
    STATIC(BOOL, IsStatusBarOfficeXPLook, ());
    VIRTUAL(BOOL, IsToolbarRoundShape, (CMFCToolBar*));
    VIRTUAL(BOOL, IsWindowsThemingSupported, () const);
    VIRTUAL(void, OnDrawBarGripper, (CDC*, CRect, BOOL, CBasePane*));
    VIRTUAL(void, OnDrawButtonBorder, (CDC*, CMFCToolBarButton*, CRect, CMFCVisualManager::AFX_BUTTON_STATE));
    VIRTUAL(void, OnDrawCheckBoxEx, (CDC*, CRect, int, BOOL, BOOL, BOOL));
    VIRTUAL(void, OnDrawComboBorder, (CDC*, CRect, BOOL, BOOL, BOOL, CMFCToolBarComboBoxButton*));
    VIRTUAL(void, OnDrawComboDropButton, (CDC*, CRect, BOOL, BOOL, BOOL, CMFCToolBarComboBoxButton*));
    VIRTUAL(void, OnDrawExpandingBox, (CDC*, CRect, BOOL, COLORREF));
    VIRTUAL(void, OnDrawMenuBorder, (CDC*, CMFCPopupMenu*, CRect));
    VIRTUAL(void, OnDrawPaneBorder, (CDC*, CBasePane*, CRect&));
    VIRTUAL(COLORREF, OnDrawPaneCaption, (CDC*, CDockablePane*, BOOL, CRect, CRect));
    VIRTUAL(COLORREF, OnDrawRibbonButtonsGroup, (CDC*, CMFCRibbonButtonsGroup*, CRect));
    VIRTUAL(COLORREF, OnDrawRibbonCategoryCaption, (CDC*, CMFCRibbonContextCaption*));
    VIRTUAL(COLORREF, OnDrawRibbonCategoryTab, (CDC*, CMFCRibbonTab*, BOOL));
    VIRTUAL(void, OnDrawRibbonProgressBar, (CDC*, CMFCRibbonProgressBar*, CRect, CRect, BOOL));
    VIRTUAL(void, OnDrawRibbonQuickAccessToolBarSeparator, (CDC*, CMFCRibbonSeparator*, CRect));
    VIRTUAL(void, OnDrawRibbonSliderChannel, (CDC*, CMFCRibbonSlider*, CRect));
    VIRTUAL(void, OnDrawRibbonSliderThumb, (CDC*, CMFCRibbonSlider*, CRect, BOOL, BOOL, BOOL));
    VIRTUAL(void, OnDrawRibbonSliderZoomButton, (CDC*, CMFCRibbonSlider*, CRect, BOOL, BOOL, BOOL, BOOL));
    VIRTUAL(COLORREF, OnDrawRibbonStatusBarPane, (CDC*, CMFCRibbonStatusBar*, CMFCRibbonStatusBarPane*));
    VIRTUAL(void, OnDrawScrollButtons, (CDC*, const CRect&, const int, int, BOOL));
    VIRTUAL(void, OnDrawSeparator, (CDC*, CBasePane*, CRect, BOOL));
    VIRTUAL(void, OnDrawShowAllMenuItems, (CDC*, CRect, CMFCVisualManager::AFX_BUTTON_STATE));
    VIRTUAL(void, OnDrawStatusBarPaneBorder, (CDC*, CMFCStatusBar*, CRect, UINT, UINT));
    VIRTUAL(void, OnDrawStatusBarProgress, (CDC*, CMFCStatusBar*, CRect, int, int, COLORREF, COLORREF, COLORREF, BOOL));
    VIRTUAL(void, OnDrawStatusBarSizeBox, (CDC*, CMFCStatusBar*, CRect));
    VIRTUAL(void, OnDrawTab, (CDC*, CRect, int, BOOL, const CMFCBaseTabCtrl*));
    VIRTUAL(void, OnDrawTearOffCaption, (CDC*, CRect, BOOL));
    VIRTUAL(void, OnEraseTabsArea, (CDC*, CRect, const CMFCBaseTabCtrl*));
    VIRTUAL(void, OnEraseTabsButton, (CDC*, CRect, CMFCButton*, CMFCBaseTabCtrl*));
    VIRTUAL(BOOL, OnEraseTabsFrame, (CDC*, CRect, const CMFCBaseTabCtrl*));
    VIRTUAL(void, OnFillBarBackground, (CDC*, CBasePane*, CRect, CRect, BOOL));
    CALL(OnFillBarBackground, CDC*, CBasePane*, CRect, CRect);
    VIRTUAL(void, OnFillButtonInterior, (CDC*, CMFCToolBarButton*, CRect, CMFCVisualManager::AFX_BUTTON_STATE));
    VIRTUAL(COLORREF, OnFillCommandsListBackground, (CDC*, CRect, BOOL));
    CALL(OnFillCommandsListBackground, CDC*, CRect);
    VIRTUAL(void, OnFillHighlightedArea, (CDC*, CRect, CBrush*, CMFCToolBarButton*));
    VIRTUAL(void, OnFillTab, (CDC*, CRect, CBrush*, int, BOOL, const CMFCBaseTabCtrl*));
    VIRTUAL(void, OnHighlightQuickCustomizeMenuButton, (CDC*, CMFCToolBarMenuButton*, CRect));
    VIRTUAL(void, OnHighlightRarelyUsedMenuItems, (CDC*, CRect));
    VIRTUAL(void, OnUpdateSystemColors, ());
    STATIC(void, SetDefaultWinXPColors, (BOOL));
    CALL(SetDefaultWinXPColors);
    STATIC(void, SetStatusBarOfficeXPLook, (BOOL));
    CALL(SetStatusBarOfficeXPLook);
}

INTERFACE_OF(CMFCVisualManagerOffice2007) {
    BASE(CMFCVisualManagerOffice2003);
    OVERRIDDEN_BY_LOOKS;
    STATIC(void, CleanStyle, ());
    MEMBER(CMFCRibbonBar*, GetRibbonBar, (CWnd*) const);
    NAMED(GetStyle);
    MEMBER(BOOL, IsRibbonPresent, (CWnd*) const);
    VIRTUAL(void, OnFillHighlightedArea, (CDC*, CRect, CBrush*, CMFCToolBarButton*));
    STATIC(void, SetResourceHandle, (HINSTANCE));
    NAMED(SetStyle);
}
