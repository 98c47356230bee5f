#pragma once

#include <afxvisualmanagerofficexp.h>

/// The system's own colours, without mixing. Menus have them, too, unless SetOfficeStyleMenus.
class FRAMEWORK_API CMFCVisualManagerWindows : public CMFCVisualManagerOfficeXP {
    DECLARE_DYNCREATE(CMFCVisualManagerWindows)

public:
    CMFCVisualManagerWindows(BOOL bIsTemporary = FALSE);
    ~CMFCVisualManagerWindows() override;

    /// Whether the system draws its controls by a theme now.
    static BOOL IsWinXPThemeAvailible();
    /// TRUE: menus look as those of CMFCVisualManagerOfficeXP.
    void SetOfficeStyleMenus(BOOL bOn = TRUE) { m_bOfficeStyleMenus = bOn; }
    BOOL IsOfficeStyleMenus() const { return m_bOfficeStyleMenus; }
    BOOL IsOfficeXPStyleMenus() const override { return m_bOfficeStyleMenus; }

    COLORREF GetMenuItemTextColor(CMFCToolBarMenuButton* pButton, BOOL bHighlighted, BOOL bDisabled) override;
    void OnDrawMenuBorder(CDC* pDC, CMFCPopupMenu* pMenu, CRect rect) override;
    void OnDrawMenuCheck(CDC* pDC, CMFCToolBarMenuButton* pButton, CRect rect, BOOL bHighlight, BOOL bIsRadio) override;
    void OnDrawSeparator(CDC* pDC, CBasePane* pBar, CRect rect, BOOL bIsHoriz) override;
    void OnFillBarBackground(CDC* pDC, CBasePane* pBar, CRect rectClient, CRect rectClip,
                             BOOL bNCArea = FALSE) override;
    void OnHighlightMenuItem(CDC* pDC, CMFCToolBarMenuButton* pButton, CRect rect, COLORREF& clrText) override;

protected:
    const visual::Skin& GetSkin() const override;

private:
    BOOL m_bOfficeStyleMenus = FALSE;
    BOOL m_bDrawsMenu = FALSE;
};
