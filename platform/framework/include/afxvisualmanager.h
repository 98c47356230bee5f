#pragma once

#include <afxwin.h>
#include <fx/registered_messages.h>
#include <fx/ribbon_colors.h>
#include <uxtheme.h>

class CBasePane;
class CDockablePane;
class CMFCBaseTabCtrl;
class CMFCBaseToolBar;
class CMFCButton;
class CMFCCaptionButton;
class CMFCPopupMenu;
class CMFCRibbonBar;
class CMFCRibbonBaseElement;
class CMFCRibbonButton;
class CMFCRibbonButtonsGroup;
class CMFCRibbonCaptionButton;
class CMFCRibbonCategory;
class CMFCRibbonCheckBox;
class CMFCRibbonColorButton;
class CMFCRibbonContextCaption;
class CMFCRibbonGallery;
class CMFCRibbonGalleryIcon;
class CMFCRibbonLabel;
class CMFCRibbonLaunchButton;
class CMFCRibbonLinkCtrl;
class CMFCRibbonMainPanel;
class CMFCRibbonPanel;
class CMFCRibbonPanelMenu;
class CMFCRibbonPanelMenuBar;
class CMFCRibbonProgressBar;
class CMFCRibbonRichEditCtrl;
class CMFCRibbonSeparator;
class CMFCRibbonSlider;
class CMFCRibbonStatusBar;
class CMFCRibbonStatusBarPane;
class CMFCRibbonTab;
class CMFCSpinButtonCtrl;
class CMFCStatusBar;
class CMFCStatusBarPaneInfo;
class CMFCToolBar;
class CMFCToolBarButton;
class CMFCToolBarComboBoxButton;
class CMFCToolBarEditBoxButton;
class CMFCToolBarMenuButton;
class CMFCToolTipInfo;
class CPaneDivider;
class CPaneFrameWnd;
class CRibbonCategoryScroll;
class CSplitterWndEx;

namespace visual {
class Skin;
}

/// Draws the parts that system themes know. The BOOL functions return FALSE when they drew nothing and the caller draws
/// its own way.
class FRAMEWORK_API CMFCBaseVisualManager : public CObject {
    DECLARE_DYNAMIC(CMFCBaseVisualManager)

public:
    CMFCBaseVisualManager();
    ~CMFCBaseVisualManager() override;

    virtual BOOL DrawCheckBox(CDC* pDC, CRect rect, BOOL bHighlighted, int nState, BOOL bEnabled, BOOL bPressed);
    virtual BOOL DrawRadioButton(CDC* pDC, CRect rect, BOOL bHighlighted, BOOL bChecked, BOOL bEnabled, BOOL bPressed);
    virtual BOOL DrawComboBorder(CDC* pDC, CRect rect, BOOL bDisabled, BOOL bIsDropped, BOOL bIsHighlighted);
    virtual BOOL DrawComboDropButton(CDC* pDC, CRect rect, BOOL bDisabled, BOOL bIsDropped, BOOL bIsHighlighted);
    virtual BOOL DrawPushButton(CDC* pDC, CRect rect, CMFCButton* pButton, UINT uiState);
    virtual void FillReBarPane(CDC* pDC, CBasePane* pBar, CRect rectClient);

protected:
    /// Closes the theme handles; they open again on the next use.
    void CleanUpThemes();
    void UpdateSystemColors();

private:
    HTHEME ButtonTheme();
    HTHEME ComboTheme();
    HTHEME m_hThemeButton = NULL;
    HTHEME m_hThemeCombo = NULL;
};

/// Draws everything that the framework's bars, menus, panes and the ribbon show. This class draws a plain, flat look in
/// the system's colours; derived managers bring their own table of colours or override single functions. The manager
/// must be used from the thread that owns the windows.
class FRAMEWORK_API CMFCVisualManager : public CMFCBaseVisualManager {
    DECLARE_DYNCREATE(CMFCVisualManager)

public:
    enum AFX_BUTTON_STATE { ButtonsIsRegular = 0, ButtonsIsPressed = 1, ButtonsIsHighlighted = 2 };

    /// A temporary manager never becomes the current one.
    CMFCVisualManager(BOOL bTemporary = FALSE);
    ~CMFCVisualManager() override;

    // Instance. One manager exists at a time; it is created on first use from the class given to SetDefaultManager.
    static CMFCVisualManager* GetInstance();
    static void SetDefaultManager(CRuntimeClass* pRTI);
    static void __stdcall DestroyInstance(BOOL bAutoDestroyOnly = FALSE);
    static void RedrawAll();
    static void __stdcall AdjustFrames();
    static void __stdcall AdjustToolbars();
    BOOL IsAutoDestroy() const;

    // Process-wide looks
    void SetMenuFlatLook(BOOL bMenuFlatLook = TRUE);
    BOOL IsMenuFlatLook() const;
    void SetMenuShadowDepth(int nDepth);
    int GetMenuShadowDepth() const;
    void SetShadowHighlightedImage(BOOL bShadow = TRUE);
    BOOL IsShadowHighlightedImage() const;
    void SetEmbossDisabledImage(BOOL bEmboss = TRUE);
    BOOL IsEmbossDisabledImage() const;
    void SetFadeInactiveImage(BOOL bFade = TRUE);
    BOOL IsFadeInactiveImage() const;
    void EnableToolbarButtonFill(BOOL bEnable = TRUE);
    BOOL IsToolbarButtonFillEnabled() const;
    BOOL IsFrameMenuCheckedItems() const;

    // Sizes (pixels) and rules
    virtual CSize GetButtonExtraBorder() const;
    virtual CSize GetCaptionButtonExtraBorder() const;
    virtual int GetDockingTabsBordersSize();
    virtual int GetMDITabsBordersSize();
    virtual int GetDockingPaneCaptionExtraHeight() const;
    virtual CSize GetNcBtnSize(BOOL bSmall) const;
    virtual int GetPopupMenuBorderSize() const;
    virtual int GetPopupMenuGap() const;
    virtual int GetMenuImageMargin() const;
    virtual int GetRibbonPopupBorderSize(const CMFCRibbonPanelMenu*) const;
    virtual int GetRibbonQuickAccessToolBarChevronOffset();
    virtual int GetRibbonQuickAccessToolBarRightMargin();
    virtual int GetShowAllMenuItemsHeight(CDC* pDC, const CSize& sizeDefault);
    virtual int GetTabHorzMargin(const CMFCBaseTabCtrl*);
    virtual int GetToolBarCustomizeButtonMargin() const;
    virtual BOOL AlwaysHighlight3DTabs() const;
    virtual BOOL HasOverlappedAutoHideButtons() const;
    virtual BOOL IsDockingTabHasBorder();
    virtual BOOL IsHighlightOneNoteTabs() const;
    virtual BOOL IsHighlightWholeMenuItem();
    virtual BOOL IsLayeredRibbonKeyTip() const;
    virtual BOOL IsOffsetPressedButton() const;
    virtual BOOL IsOfficeXPStyleMenus() const;
    virtual BOOL IsOwnerDrawCaption();
    virtual BOOL IsOwnerDrawMenuCheck();
    virtual BOOL IsToolbarRoundShape(CMFCToolBar*);
    virtual BOOL IsWindowsThemingSupported() const;

    // Colours
    virtual COLORREF GetHighlightedMenuItemTextColor(CMFCToolBarMenuButton* pButton);
    virtual COLORREF GetMenuItemTextColor(CMFCToolBarMenuButton* pButton, BOOL bHighlighted, BOOL bDisabled);
    virtual COLORREF GetRibbonHyperlinkTextColor(CMFCRibbonLinkCtrl* pHyperLink);
    virtual COLORREF GetRibbonQuickAccessToolBarTextColor(BOOL bDisabled = FALSE);
    virtual void GetRibbonSliderColors(CMFCRibbonSlider* pSlider, BOOL bIsHighlighted, BOOL bIsPressed,
                                       BOOL bIsDisabled, COLORREF& clrLine, COLORREF& clrFill);
    virtual COLORREF GetRibbonStatusBarTextColor(CMFCRibbonStatusBar* pStatusBar);
    virtual COLORREF GetSmartDockingHighlightToneColor();
    virtual COLORREF GetStatusBarPaneTextColor(CMFCStatusBar* pStatusBar, CMFCStatusBarPaneInfo* pPane);
    virtual COLORREF GetTabTextColor(const CMFCBaseTabCtrl*, int, BOOL);
    virtual COLORREF GetToolbarButtonTextColor(CMFCToolBarButton* pButton, AFX_BUTTON_STATE state);
    virtual COLORREF GetToolbarDisabledColor() const;
    virtual COLORREF GetToolbarDisabledTextColor();
    virtual COLORREF GetToolbarHighlightColor();
    virtual COLORREF RibbonCategoryColorToRGB(AFX_RibbonCategoryColor color);
    virtual BOOL GetToolTipInfo(CMFCToolTipInfo& params, UINT nType = (UINT)(-1));

    // Ribbon bar. Functions that return a COLORREF return the text colour, or (COLORREF)-1 for the default one.
    // Key tips, the captions of panels and of the window are drawn with their text. For all others, tabs too, the
    // manager draws the face, and the element its image and its text over it in the colour returned.
    virtual void OnDrawRibbonCaption(CDC* pDC, CMFCRibbonBar* pBar, CRect rect, CRect rectText);
    virtual void OnDrawRibbonCaptionButton(CDC* pDC, CMFCRibbonCaptionButton* pButton);
    virtual void OnDrawRibbonApplicationButton(CDC* pDC, CMFCRibbonButton* pButton);
    virtual COLORREF OnDrawRibbonTabsFrame(CDC* pDC, CMFCRibbonBar* pWndRibbonBar, CRect rectTab);
    virtual COLORREF OnDrawRibbonCategoryTab(CDC* pDC, CMFCRibbonTab* pTab, BOOL bIsActive);
    virtual void OnDrawRibbonCategory(CDC* pDC, CMFCRibbonCategory* pCategory, CRect rectCategory);
    virtual COLORREF OnDrawRibbonCategoryCaption(CDC* pDC, CMFCRibbonContextCaption* pContextCaption);
    virtual void OnDrawRibbonCategoryScroll(CDC* pDC, CRibbonCategoryScroll* pScroll);
    virtual COLORREF OnDrawRibbonPanel(CDC* pDC, CMFCRibbonPanel* pPanel, CRect rectPanel, CRect rectCaption);
    /// The launch button's place is free of text.
    virtual void OnDrawRibbonPanelCaption(CDC* pDC, CMFCRibbonPanel* pPanel, CRect rectCaption);
    virtual void OnDrawRibbonLaunchButton(CDC* pDC, CMFCRibbonLaunchButton* pButton, CMFCRibbonPanel* pPanel);
    virtual void OnDrawRibbonKeyTip(CDC* pDC, CMFCRibbonBaseElement* pElement, CRect rect, CString str);
    virtual void OnDrawRibbonQuickAccessToolBarSeparator(CDC* pDC, CMFCRibbonSeparator* pSeparator, CRect rect);
    virtual void OnFillRibbonQuickAccessToolBarPopup(CDC* pDC, CMFCRibbonPanelMenuBar* pMenuBar, CRect rect);

    // Ribbon elements
    virtual COLORREF OnFillRibbonButton(CDC* pDC, CMFCRibbonButton* pButton);
    virtual void OnDrawRibbonButtonBorder(CDC* pDC, CMFCRibbonButton* pButton);
    virtual COLORREF OnDrawRibbonButtonsGroup(CDC* pDC, CMFCRibbonButtonsGroup* pGroup, CRect rectGroup);
    virtual void OnDrawRibbonDefaultPaneButton(CDC* pDC, CMFCRibbonButton* pButton);
    virtual void OnDrawRibbonDefaultPaneButtonContext(CDC* pDC, CMFCRibbonButton* pButton);
    virtual void OnDrawRibbonDefaultPaneButtonIndicator(CDC* pDC, CMFCRibbonButton* pButton, CRect rect,
                                                        BOOL bIsSelected, BOOL bHighlighted);
    virtual void OnDrawDefaultRibbonImage(CDC* pDC, CRect rectImage, BOOL bIsDisabled = FALSE, BOOL bIsPressed = FALSE,
                                          BOOL bIsHighlighted = FALSE);
    virtual void OnFillRibbonEdit(CDC* pDC, CMFCRibbonRichEditCtrl* pEdit, CRect rect, BOOL bIsHighlighted,
                                  BOOL bIsPaneHighlighted, BOOL bIsDisabled, COLORREF& clrText,
                                  COLORREF& clrSelBackground, COLORREF& clrSelText);
    virtual void OnDrawRibbonLabel(CDC* pDC, CMFCRibbonLabel* pLabel, CRect rect);
    virtual void OnDrawRibbonCheckBoxOnList(CDC* pDC, CMFCRibbonCheckBox* pCheckBox, CRect rect, BOOL bIsSelected,
                                            BOOL bHighlighted);
    virtual void OnDrawRibbonProgressBar(CDC* pDC, CMFCRibbonProgressBar* pProgress, CRect rectProgress,
                                         CRect rectChunk, BOOL bInfiniteMode);
    virtual void OnDrawRibbonSliderChannel(CDC* pDC, CMFCRibbonSlider* pSlider, CRect rect);
    virtual void OnDrawRibbonSliderThumb(CDC* pDC, CMFCRibbonSlider* pSlider, CRect rect, BOOL bIsHighlighted,
                                         BOOL bIsPressed, BOOL bIsDisabled);
    virtual void OnDrawRibbonSliderZoomButton(CDC* pDC, CMFCRibbonSlider* pSlider, CRect rect, BOOL bIsZoomOut,
                                              BOOL bIsHighlighted, BOOL bIsPressed, BOOL bIsDisabled);
    virtual void OnDrawRibbonGalleryBorder(CDC* pDC, CMFCRibbonGallery* pButton, CRect rectBorder);
    virtual void OnDrawRibbonMenuCheckFrame(CDC* pDC, CMFCRibbonButton* pButton, CRect rect);

    // Ribbon pop-ups and status bar
    virtual void OnDrawRibbonMainPanelFrame(CDC* pDC, CMFCRibbonMainPanel* pPanel, CRect rect);
    virtual void OnDrawRibbonMainPanelButtonBorder(CDC* pDC, CMFCRibbonButton* pButton);
    virtual COLORREF OnFillRibbonMainPanelButton(CDC* pDC, CMFCRibbonButton* pButton);
    virtual void OnFillRibbonMenuFrame(CDC* pDC, CMFCRibbonMainPanel* pPanel, CRect rect);
    virtual void OnDrawRibbonRecentFilesFrame(CDC* pDC, CMFCRibbonMainPanel* pPanel, CRect rect);
    virtual COLORREF OnDrawRibbonStatusBarPane(CDC* pDC, CMFCRibbonStatusBar* pBar, CMFCRibbonStatusBarPane* pPane);

    // Menus
    virtual void OnDrawMenuBorder(CDC* pDC, CMFCPopupMenu* pMenu, CRect rect);
    virtual void OnDrawMenuShadow(CDC* pDC, const CRect& rectClient, const CRect& rectExclude, int nDepth,
                                  int iMinBrightness, int iMaxBrightness, CBitmap* pBmpSaveBottom,
                                  CBitmap* pBmpSaveRight, BOOL bRTL);
    virtual void OnDrawMenuCheck(CDC* pDC, CMFCToolBarMenuButton* pButton, CRect rect, BOOL bHighlight, BOOL bIsRadio);
    virtual void OnDrawMenuItemButton(CDC* pDC, CMFCToolBarMenuButton* pButton, CRect rectButton, BOOL bHighlight,
                                      BOOL bDisabled);
    virtual COLORREF OnDrawMenuLabel(CDC* pDC, CRect rect);
    virtual void OnDrawMenuResizeBar(CDC* pDC, CRect rect, int nResizeFlags);
    virtual void OnDrawMenuScrollButton(CDC* pDC, CRect rect, BOOL bIsScrollDown, BOOL bIsHighlited, BOOL bIsPressed,
                                        BOOL bIsDisabled);
    virtual void OnDrawMenuSystemButton(CDC* pDC, CRect rect, UINT uiSystemCommand, UINT nStyle, BOOL bHighlight);
    virtual void OnDrawMenuArrowOnCustomizeList(CDC* pDC, CRect rectCommand, BOOL bSelected);
    virtual void OnDrawShowAllMenuItems(CDC* pDC, CRect rect, AFX_BUTTON_STATE state);
    virtual void OnDrawTearOffCaption(CDC* pDC, CRect rect, BOOL bIsActive);
    virtual void OnHighlightMenuItem(CDC* pDC, CMFCToolBarMenuButton* pButton, CRect rect, COLORREF& clrText);
    virtual void OnHighlightRarelyUsedMenuItems(CDC* pDC, CRect rectRarelyUsed);

    // Bars and their buttons
    virtual void OnFillBarBackground(CDC* pDC, CBasePane* pBar, CRect rectClient, CRect rectClip, BOOL bNCArea = FALSE);
    virtual void OnDrawBarGripper(CDC* pDC, CRect rectGripper, BOOL bHorz, CBasePane* pBar);
    virtual void OnDrawSeparator(CDC* pDC, CBasePane* pBar, CRect rect, BOOL bIsHoriz);
    virtual void OnDrawPaneBorder(CDC* pDC, CBasePane* pBar, CRect& rect);
    virtual void OnFillButtonInterior(CDC* pDC, CMFCToolBarButton* pButton, CRect rect, AFX_BUTTON_STATE state);
    virtual void OnDrawButtonBorder(CDC* pDC, CMFCToolBarButton* pButton, CRect rect, AFX_BUTTON_STATE state);
    virtual void OnDrawButtonSeparator(CDC* pDC, CMFCToolBarButton* pButton, CRect rect, AFX_BUTTON_STATE state,
                                       BOOL bHorz);
    virtual void OnDrawFloatingToolbarBorder(CDC* pDC, CMFCBaseToolBar* pToolBar, CRect rectBorder,
                                             CRect rectBorderSize);
    virtual void OnDrawComboBorder(CDC* pDC, CRect rect, BOOL bDisabled, BOOL bIsDropped, BOOL bIsHighlighted,
                                   CMFCToolBarComboBoxButton* pButton);
    virtual void OnDrawComboDropButton(CDC* pDC, CRect rect, BOOL bDisabled, BOOL bIsDropped, BOOL bIsHighlighted,
                                       CMFCToolBarComboBoxButton* pButton);
    virtual void OnDrawEditBorder(CDC* pDC, CRect rect, BOOL bDisabled, BOOL bIsHighlighted,
                                  CMFCToolBarEditBoxButton* pButton);
    virtual void OnDrawCheckBox(CDC* pDC, CRect rect, BOOL bHighlighted, BOOL bChecked, BOOL bEnabled);
    virtual void OnDrawCheckBoxEx(CDC* pDC, CRect rect, int nState, BOOL bHighlighted, BOOL bPressed, BOOL bEnabled);
    virtual void OnDrawExpandingBox(CDC* pDC, CRect rect, BOOL bIsOpened, COLORREF colorBox);
    virtual void OnDrawScrollButtons(CDC* pDC, const CRect& rect, const int nBorderSize, int iImage, BOOL bHilited);
    virtual void OnDrawStatusBarPaneBorder(CDC* pDC, CMFCStatusBar* pBar, CRect rectPane, UINT uiID, UINT nStyle);
    virtual void OnDrawStatusBarProgress(CDC* pDC, CMFCStatusBar* pStatusBar, CRect rectProgress, int nProgressTotal,
                                         int nProgressCurr, COLORREF clrBar, COLORREF clrProgressBarDest,
                                         COLORREF clrProgressText, BOOL bProgressText);
    virtual void OnDrawStatusBarSizeBox(CDC* pDC, CMFCStatusBar* pStatBar, CRect rectSizeBox);
    virtual COLORREF OnFillCommandsListBackground(CDC* pDC, CRect rect, BOOL bIsSelected = FALSE);
    virtual void OnDrawToolBoxFrame(CDC* pDC, const CRect& rect);
    virtual void OnDrawSplitterBorder(CDC* pDC, CSplitterWndEx* pSplitterWnd, CRect rect);
    virtual void OnDrawSplitterBox(CDC* pDC, CSplitterWndEx* pSplitterWnd, CRect& rect);
    virtual void OnFillSplitterBackground(CDC* pDC, CSplitterWndEx* pSplitterWnd, CRect rect);
    virtual BOOL DrawComboBorderWinXP(CDC*, CRect, BOOL, BOOL, BOOL);
    virtual BOOL DrawComboDropButtonWinXP(CDC*, CRect, BOOL, BOOL, BOOL);
    virtual BOOL DrawPushButtonWinXP(CDC*, CRect, CMFCButton*, UINT);

    // Panes, frames and tabs
    /// A button in the caption of a pane or mini frame, see CMFCCaptionButton::OnDraw. nImageID: -1, its own picture;
    /// the framework has no others.
    virtual void OnDrawCaptionButton(CDC* pDC, CMFCCaptionButton* pButton, BOOL bActive, BOOL bHorz, BOOL bMaximized,
                                     BOOL bDisabled, int nImageID = -1);
    virtual COLORREF OnDrawPaneCaption(CDC* pDC, CDockablePane* pBar, BOOL bActive, CRect rectCaption,
                                       CRect rectButtons);
    virtual void OnDrawPaneDivider(CDC* pDC, CPaneDivider* pSlider, CRect rect, BOOL bAutoHideMode);
    virtual COLORREF OnFillMiniFrameCaption(CDC* pDC, CRect rectCaption, CPaneFrameWnd* pFrameWnd, BOOL bActive);
    virtual void OnDrawMiniFrameBorder(CDC* pDC, CPaneFrameWnd* pFrameWnd, CRect rectBorder, CRect rectBorderSize);
    virtual void GetTabFrameColors(const CMFCBaseTabCtrl* pTabWnd, COLORREF& clrDark, COLORREF& clrBlack,
                                   COLORREF& clrHighlight, COLORREF& clrFace, COLORREF& clrDarkShadow,
                                   COLORREF& clrLight, CBrush*& pbrFace, CBrush*& pbrBlack);
    virtual void OnDrawTab(CDC* pDC, CRect rectTab, int iTab, BOOL bIsActive, const CMFCBaseTabCtrl* pTabWnd);
    virtual void OnDrawTabCloseButton(CDC* pDC, CRect rect, const CMFCBaseTabCtrl* pTabWnd, BOOL bIsHighlighted,
                                      BOOL bIsPressed, BOOL bIsDisabled);
    virtual void OnFillTab(CDC* pDC, CRect rectFill, CBrush* pbrFill, int iTab, BOOL bIsActive,
                           const CMFCBaseTabCtrl* pTabWnd);
    virtual void OnEraseTabsArea(CDC* pDC, CRect rect, const CMFCBaseTabCtrl* pTabWnd);
    virtual void OnEraseTabsButton(CDC* pDC, CRect rect, CMFCButton* pButton, CMFCBaseTabCtrl* pWndTab);
    virtual BOOL OnEraseTabsFrame(CDC* pDC, CRect rect, const CMFCBaseTabCtrl* pTabWnd);
    virtual BOOL OnEraseMDIClientArea(CDC* pDC, CRect rectClient);
    /// Draws the borders of a frame whose ribbon stands for its caption; for other windows FALSE.
    virtual BOOL OnNcPaint(CWnd* pWnd, const CObList& lstSysButtons, CRect rectRedraw);
    virtual BOOL OnNcActivate(CWnd* pWnd, BOOL bActive);
    virtual void OnActivateApp(CWnd* pWnd, BOOL bActive);
    virtual BOOL OnSetWindowRegion(CWnd* pWnd, CSize sizeWindow);
    virtual void OnUpdateSystemColors();

protected:
    /// The table of colours that this manager draws from.
    virtual const visual::Skin& GetSkin() const;

    CBrush m_brTabFace;
    CBrush m_brTabBlack;

    /// TRUE when GetInstance created the manager and DestroyInstance may delete it.
    BOOL m_bAutoDestroy = FALSE;
    BOOL m_bTemporary = FALSE;
    BOOL m_bMenuFlatLook = FALSE;
    int m_nMenuShadowDepth = 12; ///< at 96 DPI
    BOOL m_bShadowHighlightedImage = FALSE;
    BOOL m_bEmbossDisabledImage = TRUE;
    BOOL m_bFadeInactiveImage = FALSE;
    BOOL m_bEnableToolbarButtonFill = TRUE;
    BOOL m_bFrameMenuCheckedItems = FALSE;
};
