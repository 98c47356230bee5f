#pragma once

#include <afxvisualmanagerofficexp.h>

/// Bars with gradients, mixed from the system's caption colours.
class FRAMEWORK_API CMFCVisualManagerOffice2003 : public CMFCVisualManagerOfficeXP {
    DECLARE_DYNCREATE(CMFCVisualManagerOffice2003)

public:
    CMFCVisualManagerOffice2003(BOOL bIsTemporary = FALSE);
    ~CMFCVisualManagerOffice2003() override;

    /// Look of classic status bars: FALSE draws them with the gradient of the bars.
    static void __stdcall SetStatusBarOfficeXPLook(BOOL bStatusBarOfficeXPLook = TRUE);
    static BOOL __stdcall IsStatusBarOfficeXPLook();
    /// FALSE: derive the colours from the button face instead of the active caption.
    static void SetDefaultWinXPColors(BOOL bDefaultWinXPColors = TRUE);
    static BOOL IsDefaultWinXPColorsEnabled();

    virtual COLORREF GetBaseThemeColor();
    virtual COLORREF GetHighlightMenuItemColor() const;
    virtual void OnFillHighlightedArea(CDC* pDC, CRect rect, CBrush* pBrush, CMFCToolBarButton* pButton);
    virtual void OnHighlightQuickCustomizeMenuButton(CDC* pDC, CMFCToolBarMenuButton* pButton, CRect rect);

    void OnDrawMenuBorder(CDC* pDC, CMFCPopupMenu* pMenu, CRect rect) override;
    void OnDrawSeparator(CDC* pDC, CBasePane* pBar, CRect rect, BOOL bIsHoriz) override;
    void OnFillBarBackground(CDC* pDC, CBasePane* pBar, CRect rectClient, CRect rectClip,
                             BOOL bNCArea = FALSE) override;
    void OnUpdateSystemColors() override;

protected:
    const visual::Skin& GetSkin() const override;

    /// Toolbars are filled from the first colour (top) to the second (bottom); a host may exchange them while it
    /// paints.
    COLORREF m_clrToolBarGradientLight = 0;
    COLORREF m_clrToolBarGradientDark = 0;
    /// Separator lines: the line itself and the light one beside it.
    CPen m_penSeparator;
    CPen m_penSeparatorLight;
};
