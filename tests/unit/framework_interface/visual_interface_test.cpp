#include "interface.h"

#include "afxdrawmanager.h"
#include "afxglobals.h"
#include "afxtoolbarimages.h"
#include "afxtooltipctrl.h"
#include "afxtooltipmanager.h"

INTERFACE_OF(AFX_GLOBAL_DATA) {
    MEMBER(void, CleanUp, ());
    MEMBER(BOOL, DrawParentBackground, (CWnd*, CDC*, LPRECT));
    CALL(DrawParentBackground, CWnd*, CDC*);
    MEMBER(BOOL, ExcludeTag, (CString&, LPCTSTR, CString&, BOOL));
    CALL(ExcludeTag, CString&, LPCTSTR, CString&);
    MEMBER(COLORREF, GetColor, (int));
    MEMBER(HCURSOR, GetHandCursor, ());
    MEMBER(BOOL, GetNonClientMetrics, (NONCLIENTMETRICS&));
    MEMBER(int, GetShellAutohideBars, ());
    MEMBER(int, GetTextHeight, (BOOL));
    CALL(GetTextHeight);
    MEMBER(BOOL, Is32BitIcons, () const);
    MEMBER(BOOL, IsHighContrastMode, () const);
    MEMBER(void, OnSettingChange, ());
    MEMBER(CString, RegisterWindowClass, (LPCTSTR));
    MEMBER(BOOL, Resume, ());
    MEMBER(BOOL, SetLayeredAttrib, (HWND, COLORREF, BYTE, DWORD));
    MEMBER(BOOL, SetMenuFont, (LPLOGFONT, BOOL));
    MEMBER(void, UpdateFonts, ());
    MEMBER(void, UpdateSysColors, ());
    DATA(BOOL, bIsOSAlphaBlendingSupport);
    DATA(BOOL, bIsWindows7);
    DATA(COLORREF, clrActiveCaptionGradient);
    DATA(COLORREF, clrInactiveCaptionGradient);
    DATA(BOOL, m_bUseBuiltIn32BitIcons);
    DATA(BOOL, m_bUseSystemFont);
    DATA(HCURSOR, m_hcurHand);
    DATA(HCURSOR, m_hcurStretch);
    DATA(HCURSOR, m_hcurStretchVert);
    DATA(HICON, m_hiconTool);
    DATA(int, m_nAutoHideToolBarMargin);
    DATA(int, m_nAutoHideToolBarSpacing);
    DATA(int, m_nDragFrameThicknessDock);
    DATA(int, m_nDragFrameThicknessFloat);
}

PROTECTED_INTERFACE_OF(AFX_GLOBAL_DATA) {
    MEMBER(void, EnableAccessibilitySupport, (BOOL));
    CALL(EnableAccessibilitySupport);
    MEMBER(BOOL, IsAccessibilitySupport, () const);
    MEMBER(BOOL, IsWindowsLayerSupportAvailable, () const);
}

INTERFACE_OF(CDrawingManager) {
    BASE(CObject);
    MADE_FROM(CDC&);
    STATIC(HBITMAP, CreateBitmap_32, (const CSize&, void**));
    STATIC(HBITMAP, CreateBitmap_32, (HBITMAP, COLORREF));
    CALL(CreateBitmap_32, HBITMAP);
    MEMBER(void, DrawAlpha, (CDC*, const CRect&, CDC*, const CRect&));
    MEMBER(void, DrawRotated, (CRect, CDC&, BOOL));
    MEMBER(void, DrawEllipse, (const CRect&, COLORREF, COLORREF));
    MEMBER(BOOL, DrawGradientRing, (CRect, COLORREF, COLORREF, COLORREF, int, int, COLORREF));
    CALL(DrawGradientRing, CRect, COLORREF, COLORREF, COLORREF, int, int);
    MEMBER(void, DrawLine, (int, int, int, int, COLORREF));
    MEMBER(void, DrawRect, (const CRect&, COLORREF, COLORREF));
    MEMBER(BOOL, DrawShadow, (CRect, int, int, int, CBitmap*, CBitmap*, COLORREF, BOOL));
    CALL(DrawShadow, CRect, int);
    MEMBER(void, Fill4ColorsGradient, (CRect, COLORREF, COLORREF, COLORREF, COLORREF, BOOL, int));
    CALL(Fill4ColorsGradient, CRect, COLORREF, COLORREF, COLORREF, COLORREF);
    MEMBER(void, FillGradient, (CRect, COLORREF, COLORREF, BOOL, int, int));
    CALL(FillGradient, CRect, COLORREF, COLORREF);
    MEMBER(void, FillGradient2, (CRect, COLORREF, COLORREF, int));
    CALL(FillGradient2, CRect, COLORREF, COLORREF);
    MEMBER(BOOL, GrayRect, (CRect, int, COLORREF, COLORREF));
    CALL(GrayRect, CRect);
    MEMBER(BOOL, HighlightRect, (CRect, int, COLORREF, int, COLORREF));
    CALL(HighlightRect, CRect);
    STATIC(COLORREF, HLStoRGB_ONE, (double, double, double));
    STATIC(COLORREF, HLStoRGB_TWO, (double, double, double));
    STATIC(COLORREF, HSVtoRGB, (double, double, double));
    STATIC(double, HuetoRGB, (double, double, double));
    STATIC(BYTE, HueToRGB, (float, float, float));
    MEMBER(void, MirrorRect, (CRect, BOOL));
    CALL(MirrorRect, CRect);
    STATIC(COLORREF, PixelAlpha, (COLORREF, int));
    STATIC(COLORREF, PixelAlpha, (COLORREF, double, double, double));
    STATIC(COLORREF, PixelAlpha, (COLORREF, COLORREF, int));
    STATIC(HBITMAP, PrepareShadowMask, (int, COLORREF, int, int));
    CALL(PrepareShadowMask, int, COLORREF);
    STATIC(void, RGBtoHSL, (COLORREF, double*, double*, double*));
    STATIC(void, RGBtoHSV, (COLORREF, double*, double*, double*));
    STATIC(void, SetAlphaPixel, (COLORREF*, CRect, int, int, int, int, COLORREF, BOOL));
    CALL(SetAlphaPixel, COLORREF*, CRect, int, int, int, int);
    STATIC(void, SetPixel, (COLORREF*, int, int, int, int, COLORREF));
    STATIC(COLORREF, SmartMixColors, (COLORREF, COLORREF, double, int, int));
    CALL(SmartMixColors, COLORREF, COLORREF);
}

INTERFACE_OF(CMFCToolBarImages) {
    BASE(CObject);
    MADE_FROM();
    MEMBER(void, AdaptColors, (COLORREF, COLORREF));
    MEMBER(int, AddIcon, (HICON, BOOL));
    CALL(AddIcon, HICON);
    MEMBER(int, AddImage, (HBITMAP, BOOL));
    CALL(AddImage, HBITMAP);
    MEMBER(int, AddImage, (const CMFCToolBarImages&, int));
    MEMBER(void, Clear, ());
    MEMBER(BOOL, ConvertTo32Bits, (COLORREF));
    CALL(ConvertTo32Bits);
    MEMBER(BOOL, CopyImageToClipboard, (int));
    MEMBER(BOOL, CopyTo, (CMFCToolBarImages&));
    MEMBER(BOOL, CreateFromImageList, (const CImageList&));
    STATIC(HRGN, CreateRegionFromImage, (HBITMAP, COLORREF));
    MEMBER(BOOL, DeleteImage, (int));
    MEMBER(BOOL, Draw, (CDC*, int, int, int, BOOL, BOOL, BOOL, BOOL, BOOL, BYTE));
    CALL(Draw, CDC*, int, int, int);
    MEMBER(BOOL, DrawEx,
           (CDC*, CRect, int, CMFCToolBarImages::ImageAlignHorz, CMFCToolBarImages::ImageAlignVert, CRect, BYTE));
    CALL(DrawEx, CDC*, CRect, int);
    STATIC(void, EnableRTL, (BOOL));
    CALL(EnableRTL);
    MEMBER(void, EndDrawImage, (CAfxDrawState&));
    MEMBER(HICON, ExtractIcon, (int));
    STATIC(void, FillDitheredRect, (CDC*, const CRect&));
    MEMBER(BOOL, GetAlwaysLight, () const);
    MEMBER(int, GetBitsPerPixel, () const);
    MEMBER(int, GetCount, () const);
    STATIC(BYTE, GetDisabledImageAlpha, ());
    STATIC(BYTE, GetFadedImageAlpha, ());
    MEMBER(SIZE, GetImageSize, (BOOL) const);
    CALL(GetImageSize);
    MEMBER(HBITMAP, GetImageWell, () const);
    MEMBER(HBITMAP, GetImageWellLight, () const);
    MEMBER(CRect, GetLastImageRect, () const);
    MEMBER(int, GetLightPercentage, () const);
    MEMBER(BOOL, GetMapTo3DColors, () const);
    MEMBER(HBITMAP, GetMask, (int));
    MEMBER(int, GetResourceOffset, (UINT) const);
    MEMBER(double, GetScale, () const);
    MEMBER(COLORREF, GetTransparentColor, () const);
    MEMBER(BOOL, GrayImages, (int));
    STATIC(BOOL, Is32BitTransparencySupported, ());
    MEMBER(BOOL, IsPreMultiplyAutoCheck, () const);
    STATIC(BOOL, IsRTL, ());
    MEMBER(BOOL, IsReadOnly, () const);
    MEMBER(BOOL, IsScaled, () const);
    MEMBER(BOOL, IsUserImagesList, () const);
    MEMBER(BOOL, IsValid, () const);
    MEMBER(BOOL, Load, (UINT, HINSTANCE, BOOL));
    CALL(Load, UINT);
    MEMBER(BOOL, Load, (LPCTSTR, DWORD));
    CALL(Load, LPCTSTR);
    MEMBER(BOOL, LoadStr, (LPCTSTR, HINSTANCE, BOOL));
    CALL(LoadStr, LPCTSTR);
    STATIC(COLORREF, MapFromSysColor, (COLORREF, BOOL));
    CALL(MapFromSysColor, COLORREF);
    MEMBER(BOOL, MapTo3dColors, (BOOL, COLORREF, COLORREF));
    CALL(MapTo3dColors);
    STATIC(COLORREF, MapToSysColor, (COLORREF, BOOL));
    CALL(MapToSysColor, COLORREF);
    MEMBER(BOOL, Mirror, ());
    STATIC(BOOL, MirrorBitmap, (HBITMAP&, int));
    STATIC(BOOL, MirrorBitmapVert, (HBITMAP&, int));
    MEMBER(BOOL, MirrorVert, ());
    MEMBER(void, OnSysColorChange, ());
    MEMBER(BOOL, PrepareDrawImage, (CAfxDrawState&, CSize, BOOL));
    CALL(PrepareDrawImage, CAfxDrawState&);
    MEMBER(BOOL, Save, (LPCTSTR));
    CALL(Save);
    MEMBER(void, SetAlwaysLight, (BOOL));
    CALL(SetAlwaysLight);
    STATIC(void, SetDisabledImageAlpha, (BYTE));
    STATIC(void, SetFadedImageAlpha, (BYTE));
    MEMBER(void, SetImageSize, (SIZE, BOOL));
    CALL(SetImageSize, SIZE);
    MEMBER(void, SetLightPercentage, (int));
    MEMBER(void, SetMapTo3DColors, (BOOL));
    MEMBER(void, SetPreMultiplyAutoCheck, (BOOL));
    CALL(SetPreMultiplyAutoCheck);
    MEMBER(void, SetSingleImage, ());
    MEMBER(COLORREF, SetTransparentColor, (COLORREF));
    MEMBER(BOOL, SmoothResize, (double));
    MEMBER(BOOL, UpdateImage, (int, HBITMAP));
    STATIC_DATA(BOOL, m_bDisableTrueColorAlpha);
}

PROTECTED_INTERFACE_OF(CMFCToolBarImages) {
    STATIC(BOOL, PreMultiplyAlpha, (HBITMAP, BOOL));
    MEMBER(BOOL, PreMultiplyAlpha, (HBITMAP));
}

INTERFACE_OF(CMFCToolTipCtrl) {
    BASE(CToolTipCtrl);
    MADE_FROM(CMFCToolTipInfo*);
    VIRTUAL(CSize, GetIconSize, ());
    MEMBER(const CMFCToolTipInfo&, GetParams, () const);
    VIRTUAL(void, OnDrawBorder, (CDC*, CRect, COLORREF));
    VIRTUAL(CSize, OnDrawDescription, (CDC*, CRect, BOOL));
    VIRTUAL(BOOL, OnDrawIcon, (CDC*, CRect));
    VIRTUAL(CSize, OnDrawLabel, (CDC*, CRect, BOOL));
    VIRTUAL(void, OnDrawSeparator, (CDC*, int, int, int));
    VIRTUAL(void, OnFillBackground, (CDC*, CRect, COLORREF&, COLORREF&));
    VIRTUAL(void, SetDescription, (const CString));
    MEMBER(void, SetFixedWidth, (int, int));
    MEMBER(void, SetHotRibbonButton, (CMFCRibbonButton*));
    MEMBER(void, SetLocation, (CPoint));
    MEMBER(void, SetParams, (CMFCToolTipInfo*));
}

INTERFACE_OF(CMFCToolTipInfo) {
    MEMBER(CMFCToolTipInfo&, operator=, (CMFCToolTipInfo&));
    DATA(BOOL, m_bBalloonTooltip);
    DATA(BOOL, m_bBoldLabel);
    DATA(BOOL, m_bDrawDescription);
    DATA(BOOL, m_bDrawIcon);
    DATA(BOOL, m_bDrawSeparator);
    DATA(BOOL, m_bRoundedCorners);
    DATA(BOOL, m_bVislManagerTheme);
    DATA(COLORREF, m_clrBorder);
    DATA(COLORREF, m_clrFill);
    DATA(COLORREF, m_clrFillGradient);
    DATA(COLORREF, m_clrText);
    DATA(int, m_nGradientAngle);
    DATA(int, m_nMaxDescrWidth);
}

INTERFACE_OF(CTooltipManager) {
    BASE(CObject);
    STATIC(BOOL, CreateToolTip, (CToolTipCtrl*&, CWnd*, UINT));
    STATIC(void, DeleteToolTip, (CToolTipCtrl*&));
    MEMBER(void, SetTooltipParams, (UINT, CRuntimeClass*, CMFCToolTipInfo*));
    CALL(SetTooltipParams, UINT);
    STATIC(void, SetTooltipText, (TOOLINFO*, CToolTipCtrl*, UINT, const CString, LPCTSTR));
    CALL(SetTooltipText, TOOLINFO*, CToolTipCtrl*, UINT, const CString);
    MEMBER(void, UpdateTooltips, ());
}
