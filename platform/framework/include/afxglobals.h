#pragma once

#include <afxwin.h>

/// What the whole framework shares about the screen and the user's settings: fonts, system colours, cursors, scale.
/// One object, afxGlobalData, made when the DLL is loaded and filled when first used by the thread that owns the
/// windows. All heights and sizes are device pixels; fonts are created at the ribbon image scale.
struct FRAMEWORK_API AFX_GLOBAL_DATA {
    AFX_GLOBAL_DATA();
    ~AFX_GLOBAL_DATA();
    AFX_GLOBAL_DATA(const AFX_GLOBAL_DATA&) = delete;
    AFX_GLOBAL_DATA& operator=(const AFX_GLOBAL_DATA&) = delete;

    /// Recreate the fonts from the user's settings at the current scale; text heights follow.
    void UpdateFonts();
    /// Read colours, brushes, colour depth and high-contrast mode again.
    void UpdateSysColors();
    /// A WM_SETTINGCHANGE or a change of resolution: fonts, colours, drag frame and tooltip widths.
    void OnSettingChange();
    /// Ready the object after CleanUp.
    BOOL Resume();
    /// Delete fonts, brushes, icons and shell objects. The object can be used again: Resume is implied by UpdateFonts.
    void CleanUp();

    /// One of the COLOR_ constants; a constant that does not exist gives GetSysColor's 0.
    COLORREF GetColor(int nColor);
    /// Height of a row of text in the regular (or, not bHorz, the vertical) font: that of a row in a list.
    int GetTextHeight(BOOL bHorz = TRUE);
    /// Height of the regular font's characters, without the space between two rows.
    int GetCharacterHeight() const { return m_nCharacterHeight; }
    /// FALSE when the system refuses; info is then unchanged.
    BOOL GetNonClientMetrics(NONCLIENTMETRICS& info);
    /// Replace the regular (bHorz) or vertical menu font. FALSE when the font cannot be created.
    BOOL SetMenuFont(LPLOGFONT lpLogFont, BOOL bHorz);
    /// Registers a window class with the arrow cursor and the bar face brush under the prefix, once per module; its
    /// name.
    CString RegisterWindowClass(LPCTSTR lpszClassNamePrefix);
    HCURSOR GetHandCursor();
    BOOL IsHighContrastMode() const { return m_bIsBlackHighContrast || m_bIsWhiteHighContrast; }
    /// TRUE when the screen shows more than 8 bits per pixel: images with alpha can be blended.
    BOOL Is32BitIcons() const { return m_nBitsPerPixel > 8; }
    BOOL IsWindowsLayerSupportAvailable() const { return TRUE; }
    BOOL SetLayeredAttrib(HWND hwnd, COLORREF crKey, BYTE bAlpha, DWORD dwFlags);
    /// Paints what the parent of pWnd shows behind it into pDC. FALSE when there is no parent.
    BOOL DrawParentBackground(CWnd* pWnd, CDC* pDC, LPRECT lpRect = NULL);
    /// ABE_-numbered bits of the screen edges that hold an auto-hide taskbar.
    int GetShellAutohideBars();
    /// Takes <TAG>...</TAG> out of strBuffer, its contents into strTag. FALSE when the tag is not there.
    BOOL ExcludeTag(CString& strBuffer, LPCTSTR lpszTag, CString& strTag, BOOL bIsCharsList = FALSE);
    void EnableAccessibilitySupport(BOOL bEnable = TRUE) { m_bEnableAccessibility = bEnable; }
    BOOL IsAccessibilitySupport() const { return m_bEnableAccessibility; }

    /// Ribbon image scale: screen resolution against 96 DPI unless set. It scales images, fonts and paddings of the
    /// ribbon.
    BOOL IsRibbonImageScaleEnabled() const { return m_bRibbonImageScaleEnabled; }
    void EnableRibbonImageScale(BOOL bEnable = TRUE);
    /// 1.0 while scaling is switched off.
    /// Dots per inch of the monitor that the main frame is on; 0: as the screen says. Takes effect with UpdateFonts.
    void SetScreenDpi(UINT dpi) { m_nScreenDpi = dpi; }
    double GetRibbonImageScale() const { return m_bRibbonImageScaleEnabled ? m_dblRibbonImageScale : 1.0; }
    /// A host, test or preview sets 1.0 to 4.0; 0 returns to the screen's own. Recreates the fonts at once; bars must
    /// be laid out again by the caller. FALSE, and nothing changed, when the factor is out of range.
    BOOL SetRibbonImageScale(double dblScale);
    /// n pixels at 96 DPI in pixels at the current scale, rounded to nearest.
    int ScalePixels(int n) const;

    // Colours
    COLORREF clrBtnFace = 0, clrBtnShadow = 0, clrBtnHilite = 0, clrBtnText = 0, clrWindowFrame = 0;
    COLORREF clrBtnDkShadow = 0, clrBtnLight = 0;
    COLORREF clrGrayedText = 0, clrPrompt = 0, clrHilite = 0, clrTextHilite = 0, clrHotText = 0, clrHotLinkText = 0;
    COLORREF clrBarWindow = 0, clrBarFace = 0, clrBarShadow = 0, clrBarHilite = 0, clrBarDkShadow = 0, clrBarLight = 0;
    COLORREF clrBarText = 0;
    COLORREF clrWindow = 0, clrWindowText = 0, clrMenuText = 0, clrCaptionText = 0;
    COLORREF clrActiveCaption = 0, clrInactiveCaption = 0, clrInactiveCaptionText = 0;
    COLORREF clrActiveCaptionGradient = 0, clrInactiveCaptionGradient = 0;
    COLORREF clrActiveBorder = 0, clrInactiveBorder = 0;
    CBrush brBtnFace, brHilite, brLight, brBlack, brActiveCaption, brInactiveCaption, brWindow, brBarFace;
    CPen penHilite, penBarFace, penBarShadow;

    // Fonts
    CFont fontRegular, fontTooltip, fontBold, fontDefaultGUIBold, fontUnderline, fontVert, fontVertCaption, fontSmall;

    // Cursors and icons
    HCURSOR m_hcurStretch = NULL, m_hcurStretchVert = NULL, m_hcurHand = NULL, m_hcurSizeAll = NULL;
    HICON m_hiconTool = NULL, m_hiconLink = NULL;
    CSize m_sizeSmallIcon = CSize(16, 16);

    // Screen and settings
    int m_nBitsPerPixel = 32;
    BOOL m_bIsBlackHighContrast = FALSE, m_bIsWhiteHighContrast = FALSE;
    BOOL bIsOSAlphaBlendingSupport = TRUE, bIsWindows7 = FALSE, bIsRemoteSession = FALSE;
    BOOL m_bUseSystemFont = FALSE, m_bUseBuiltIn32BitIcons = TRUE;
    BOOL m_bMenuAnimation = FALSE, m_bMenuFadeEffect = FALSE;
    int m_nMaxToolTipWidth =
        -1; ///< of a tooltip's text, pixels; wider text wraps. Set before the bars are made. -1: no matter
    int m_nDragFrameThicknessFloat = 4, m_nDragFrameThicknessDock = 3;
    int m_nAutoHideToolBarSpacing = 5, m_nAutoHideToolBarMargin = 4;
    int m_nCoveredMainWndClientAreaPercent = 50;

private:
    void CreateFonts(const NONCLIENTMETRICS& metrics);
    void UpdateTextHeights();
    void ReadHighContrast();
    double ScreenScale() const;

    UINT m_nScreenDpi = 0;
    double m_dblRibbonImageScale = 1.0;
    double m_dblScaleSetByHost = 0.0;
    BOOL m_bRibbonImageScaleEnabled = TRUE;
    BOOL m_bEnableAccessibility = TRUE;
    int m_nTextHeightHorz = 0, m_nTextHeightVert = 0;
    int m_nCharacterHeight = 0;
};

FRAMEWORK_API extern AFX_GLOBAL_DATA afxGlobalData;
